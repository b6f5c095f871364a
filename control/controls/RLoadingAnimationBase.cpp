#include "controls/RLoadingAnimationBase.h"

#include <QtCore/QTimerEvent>

#include <utility>

namespace tamble::client {

namespace {

constexpr int waitMs = 300; // shorter waits would only flicker

} // namespace

RLoadingAnimationBase::RLoadingAnimationBase(QQuickItem *parent)
    : QQuickBusyIndicator(parent)
    , m_seen(*this)
{
    connect(this, &QQuickBusyIndicator::runningChanged, this, &RLoadingAnimationBase::useRunning);
    connect(&m_seen, &SeenWatch::seenChanged, this, &RLoadingAnimationBase::updateTurning);
}

RLoadingAnimationBase::~RLoadingAnimationBase()
{
    disconnect(this, nullptr, this, nullptr);
}

void RLoadingAnimationBase::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT textChanged();
}

void RLoadingAnimationBase::componentComplete()
{
    QQuickBusyIndicator::componentComplete();
    useRunning();
}

void RLoadingAnimationBase::useRunning()
{
    if (!isComponentComplete())
        return;
    if (isRunning()) {
        m_wait.start(waitMs, this);
    } else {
        m_wait.stop();
        setShown(false);
    }
}

void RLoadingAnimationBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_wait.timerId()) {
        QQuickBusyIndicator::timerEvent(event);
        return;
    }
    m_wait.stop();
    setShown(true);
}

void RLoadingAnimationBase::setShown(bool shown)
{
    if (std::exchange(m_isShown, shown) == shown)
        return;
    Q_EMIT shownChanged();
    updateTurning();
}

void RLoadingAnimationBase::updateTurning()
{
    const bool isTurning = m_isShown && m_seen.isSeen();
    if (std::exchange(m_isTurning, isTurning) != isTurning)
        Q_EMIT turningChanged();
}

void RLoadingAnimationBase::accessibilityActiveChanged(bool active)
{
    if (active)
        beginToSpeak(*this);
}

QString RLoadingAnimationBase::spokenDescription(const QString &given) const
{
    return given.isEmpty() ? m_text : given;
}

} // namespace tamble::client
