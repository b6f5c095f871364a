#pragma once

#include <QtGui/QColor>
#include <QtQuick/QQuickItem>

#include <array>

class QQuickRectangle;

namespace tamble::client {

/// The pictures of a spin box's two buttons, "minus" and "plus", side by side; the box handles their presses.
class SpinButtons : public QQuickItem
{
    Q_OBJECT

public:
    explicit SpinButtons(QQuickItem *box);

    /// `unit`: pixels of one density-independent unit. Mirrored, "plus" comes first.
    void show(const QColor &color, qreal unit, bool mirrored);
    /// Which of them does something, and which is held: -1 for "minus", 1 for "plus", else 0.
    void enable(bool minus, bool plus, int pressed);

private:
    std::array<QQuickRectangle *, 4> m_bars; ///< Children: of "minus", and those of "plus": across, above, below.
};

} // namespace tamble::client
