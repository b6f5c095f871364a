#pragma once

#include "bars/RBarButtonBase.h"
#include "base/SeenWatch.h"

#include <QtCore/QBasicTimer>

#include <memory>

namespace tamble::client {

/// Button that shows and switches a state of the system. It can flash, and ask to be pressed twice.
///
/// Keys: Esc takes back the first press of two.
class TAMBLE_CLIENT_CONTROL_EXPORT RAppBarStateButtonBase : public tamble::client::RBarButtonBase
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAppBarStateButtonBase)
    Q_PROPERTY(QString subText READ subText WRITE setSubText NOTIFY subTextChanged FINAL)
    Q_PROPERTY(bool flashing READ isFlashing WRITE setFlashing NOTIFY flashingChanged FINAL)
    /// Whether the other ground shows at the moment; always false while nobody sees the button.
    Q_PROPERTY(bool flashLit READ isFlashLit NOTIFY flashLitChanged FINAL)
    Q_PROPERTY(bool pressTwice READ pressesTwice WRITE setPressTwice NOTIFY pressTwiceChanged FINAL)
    Q_PROPERTY(bool armed READ isArmed NOTIFY armedChanged FINAL)
    Q_PROPERTY(int armedTime READ armedTime CONSTANT FINAL)

public:
    explicit RAppBarStateButtonBase(QQuickItem *parent = nullptr);
    ~RAppBarStateButtonBase() override;

    /// A second, smaller line; empty by default.
    QString subText() const { return m_subText; }
    void setSubText(const QString &text);
    /// Whether the ground alternates each half second, in step with all that flashes; false by default.
    bool isFlashing() const { return m_isFlashing; }
    void setFlashing(bool flashing);
    bool isFlashLit() const { return m_isFlashLit; }
    /// Whether a click only arms the button and a second one, within `armedTime`, counts; false by default. The second
    /// half of a double click does not count. For actions that interrupt a show.
    bool pressesTwice() const { return m_pressesTwice; }
    void setPressTwice(bool twice);
    /// Whether the next click counts.
    bool isArmed() const { return m_armedTimer.isActive(); }
    /// How long the first of two presses holds, 3000 ms. Esc and losing the focus end it sooner.
    int armedTime() const { return 3000; }

    QString spokenDescription(const QString &given) const override;

Q_SIGNALS:
    void subTextChanged();
    void flashingChanged();
    void flashLitChanged();
    void pressTwiceChanged();
    void armedChanged();

protected:
    bool holdsBackClick() override;
    bool canTakeBack() const override;
    void takeBack() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void touchEvent(QTouchEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void arm();
    void disarm();
    void tellArmed();
    void updateFlashing();
    void updateLit();

    QString m_subText;
    std::unique_ptr<SeenWatch> m_seen; // while `flashing`
    QMetaObject::Connection m_flashes; // to the clock, while flashing is seen
    QBasicTimer m_armedTimer;
    quint64 m_lastTap = 0;             // ms of the window system's clock
    QQuickItem *m_countdown = nullptr; // a child, made when the button is first armed
    bool m_isFlashing = false;
    bool m_isFlashLit = false;
    bool m_pressesTwice = false;
    bool m_isSecondPress = false; // of a double click, or a double tap
};

} // namespace tamble::client
