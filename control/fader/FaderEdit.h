#pragma once

class QObject;
class QQuickSlider;

namespace tamble::client {

/// Shows edited levels on a fader in front of what a page binds to its value.
class FaderEdit
{
public:
    explicit FaderEdit(QQuickSlider *fader)
        : m_fader(fader)
    {}

    /// Shows `level` until the edit ends.
    void show(double level);
    /// Ends the edit; what the page binds counts again after `settleTime` ms.
    void settle(int settleTime);
    /// Shows the value of before the edit and ends it at once.
    void takeBack();

private:
    void begin(double level);

    QQuickSlider *m_fader;
    QObject *m_override = nullptr; // a child of the fader, made at the first edit
    double m_levelBefore = 0.0;
    bool m_isOpen = false;
};

} // namespace tamble::client
