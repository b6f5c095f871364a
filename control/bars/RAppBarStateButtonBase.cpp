#include "bars/RAppBarStateButtonBase.h"

#include "bars/FlashClock.h"
#include "base/PartComponents.h"

#include <QtCore/QTimerEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>
#include <QtGui/QTouchEvent>

#include <utility>

namespace tamble::client {

RAppBarStateButtonBase::RAppBarStateButtonBase(QQuickItem *parent)
    : RBarButtonBase(parent)
{}

RAppBarStateButtonBase::~RAppBarStateButtonBase()
{
    if (m_flashes)
        FlashClock::instance().letGo();
    disconnect(m_flashes);
}

void RAppBarStateButtonBase::setSubText(const QString &text)
{
    if (m_subText == text)
        return;
    m_subText = text;
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT subTextChanged();
}

void RAppBarStateButtonBase::setFlashing(bool flashing)
{
    if (m_isFlashing == flashing)
        return;
    m_isFlashing = flashing;
    m_seen.reset();
    if (flashing) {
        m_seen = std::make_unique<SeenWatch>(*this);
        connect(m_seen.get(), &SeenWatch::seenChanged, this, &RAppBarStateButtonBase::updateFlashing);
    }
    updateFlashing();
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT flashingChanged();
}

void RAppBarStateButtonBase::updateFlashing()
{
    const bool isSeen = m_seen && m_seen->isSeen();
    if (isSeen == bool(m_flashes))
        return;
    FlashClock &clock = FlashClock::instance();
    if (isSeen) {
        m_flashes = connect(&clock, &FlashClock::litChanged, this, &RAppBarStateButtonBase::updateLit);
        clock.follow();
    } else {
        disconnect(std::exchange(m_flashes, {}));
        clock.letGo();
    }
    updateLit();
}

void RAppBarStateButtonBase::updateLit()
{
    const bool isLit = m_flashes && FlashClock::instance().isLit();
    if (std::exchange(m_isFlashLit, isLit) != isLit)
        Q_EMIT flashLitChanged();
}

void RAppBarStateButtonBase::setPressTwice(bool twice)
{
    if (m_pressesTwice == twice)
        return;
    m_pressesTwice = twice;
    disarm();
    Q_EMIT pressTwiceChanged();
}

bool RAppBarStateButtonBase::holdsBackClick()
{
    if (!m_pressesTwice || std::exchange(m_isSecondPress, false))
        return m_pressesTwice;
    if (!isArmed()) {
        arm();
        return true;
    }
    disarm();
    return false;
}

void RAppBarStateButtonBase::arm()
{
    m_armedTimer.start(armedTime(), this);
    if (!m_countdown)
        m_countdown = PartComponents::makeItem(Part::BarCountdown, *this);
    tellArmed();
}

void RAppBarStateButtonBase::disarm()
{
    if (!isArmed())
        return;
    m_armedTimer.stop();
    tellArmed();
}

void RAppBarStateButtonBase::tellArmed()
{
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT armedChanged();
}

bool RAppBarStateButtonBase::canTakeBack() const
{
    return isArmed() || RBarButtonBase::canTakeBack();
}

void RAppBarStateButtonBase::takeBack()
{
    if (RBarButtonBase::canTakeBack())
        RBarButtonBase::takeBack();
    disarm();
}

void RAppBarStateButtonBase::mousePressEvent(QMouseEvent *event)
{
    m_isSecondPress = false;
    RBarButtonBase::mousePressEvent(event);
}

void RAppBarStateButtonBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_isSecondPress = true;
    RBarButtonBase::mouseDoubleClickEvent(event);
}

void RAppBarStateButtonBase::touchEvent(QTouchEvent *event)
{
    const auto interval = quint64(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    if (event->type() == QEvent::TouchBegin)
        m_isSecondPress = m_lastTap != 0 && event->timestamp() - m_lastTap < interval;
    else if (event->type() == QEvent::TouchEnd)
        m_lastTap = event->timestamp();
    RBarButtonBase::touchEvent(event);
}

void RAppBarStateButtonBase::focusOutEvent(QFocusEvent *event)
{
    RBarButtonBase::focusOutEvent(event);
    disarm();
}

void RAppBarStateButtonBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    RBarButtonBase::itemChange(change, data);
    if (change == ItemVisibleHasChanged || change == ItemEnabledHasChanged || change == ItemSceneChange)
        disarm();
}

void RAppBarStateButtonBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_armedTimer.timerId())
        disarm();
    else
        RBarButtonBase::timerEvent(event);
}

QString RAppBarStateButtonBase::spokenDescription(const QString &given) const
{
    QStringList parts{m_subText, RBarButtonBase::spokenDescription(given), m_isFlashing ? tr("attention") : QString(),
                      isArmed() ? tr("press again") : QString()};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

} // namespace tamble::client
