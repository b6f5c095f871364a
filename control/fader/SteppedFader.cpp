#include "fader/SteppedFader.h"

#include <QtCore/QTimerEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>
#include <QtQml/qqml.h>
#include <QtQuick/private/qquickaccessibleattached_p.h>

#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

constexpr int stepsEndMs = 400;
constexpr int wheelStep = 120; // eighths of a degree

// Parts of the range that steps of 0, which stand for "continuous", move by.
constexpr double normalPart = 0.01;
constexpr double finePart = 0.001;
constexpr double pagePart = 0.1;

} // namespace

SteppedFader::SteppedFader(QQuickItem *parent)
    : FaderItem(parent)
{
    setWheelEnabled(true);
}

bool SteppedFader::canEdit() const
{
    return !isReadOnly() && isEnabled() && travel().isUsable();
}

PendingValue &SteppedFader::pending()
{
    if (!m_pending)
        m_pending = new PendingValue(this, QStringLiteral("value"));
    return *m_pending;
}

void SteppedFader::edit(double level)
{
    // The first edit while devices differ sets them all, even to the level that is shown.
    if (level == value() && (m_editing || isConsistent()))
        return;
    const bool begins = !std::exchange(m_editing, true);
    pending().show(level);
    if (begins)
        Q_EMIT editingChanged();
    if (live())
        Q_EMIT valueEdited(value());
}

void SteppedFader::finish()
{
    m_stepsEnd.stop();
    if (!m_editing)
        return;
    m_editing = false;
    const QPointer<SteppedFader> guard(this);
    const double level = value();
    Q_EMIT editingChanged();
    if (!live())
        Q_EMIT valueEdited(level);
    Q_EMIT valueCommitted(level);
    if (guard)
        settle();
}

void SteppedFader::takeBack()
{
    m_stepsEnd.stop();
    m_editing = false;
    const QPointer<SteppedFader> guard(this);
    pending().show(pending().valueAtBegin());
    Q_EMIT editingChanged();
    if (live())
        Q_EMIT valueEdited(value());
    Q_EMIT editCanceled();
    if (guard)
        settle();
}

void SteppedFader::settle()
{
    pending().setSettleTime(m_settleTime);
    pending().commit();
}

void SteppedFader::reset()
{
    const std::optional<double> level = resetLevel();
    if (!level || !canEdit())
        return;
    edit(*level);
    finish();
}

void SteppedFader::requestValue(const QVariant &value)
{
    bool isNumber = false;
    const double level = value.toDouble(&isNumber);
    if (!isNumber || std::isnan(level) || !canEdit() || isHeld())
        return;
    finish();
    edit(travel().rounded(level, 0.0));
    finish();
}

void SteppedFader::step(double delta)
{
    m_stepsEnd.start(stepsEndMs, this);
    edit(travel().stepped(value(), delta));
}

double SteppedFader::pageStep() const
{
    const double page = std::abs(pageStepSize());
    return page > 0.0 ? page : pagePart * std::abs(to() - from());
}

double SteppedFader::stepFor(Qt::KeyboardModifiers modifiers) const
{
    if (modifiers & Qt::ControlModifier)
        return pageStep();
    const bool isFine = modifiers & Qt::ShiftModifier;
    const double step = std::abs(isFine ? fineStepSize() : stepSize());
    return step > 0.0 ? step : (isFine ? finePart : normalPart) * std::abs(to() - from());
}

std::optional<double> SteppedFader::keyDelta(const QKeyEvent *event) const
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        return stepFor(event->modifiers());
    case Qt::Key_Down:
    case Qt::Key_Left:
        return -stepFor(event->modifiers());
    case Qt::Key_PageUp:
        return pageStep();
    case Qt::Key_PageDown:
        return -pageStep();
    default:
        return std::nullopt;
    }
}

// End leads to the default level and not to the maximum, which would be loud.
std::optional<double> SteppedFader::keyTarget(const QKeyEvent *event) const
{
    switch (event->key()) {
    case Qt::Key_Home:
        return from();
    case Qt::Key_End:
        return resetLevel();
    case Qt::Key_0:
        return event->modifiers() & Qt::ControlModifier ? resetLevel() : std::nullopt;
    default:
        return std::nullopt;
    }
}

void SteppedFader::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
    if (event->key() == Qt::Key_Escape && m_editing) {
        event->accept();
        dropHandle();
        takeBack();
        return;
    }
    const Qt::KeyboardModifiers known = Qt::ShiftModifier | Qt::ControlModifier | Qt::KeypadModifier;
    if (!canEdit() || (event->modifiers() & ~known))
        return;
    if (const std::optional<double> delta = keyDelta(event)) {
        event->accept();
        step(*delta);
    } else if (const std::optional<double> target = keyTarget(event)) {
        event->accept();
        m_stepsEnd.start(stepsEndMs, this);
        edit(*target);
    }
}

void SteppedFader::keyReleaseEvent(QKeyEvent *event)
{
    event->ignore();
}

void SteppedFader::wheelEvent(QWheelEvent *event)
{
    event->ignore();
    const QPointingDevice *device = event->pointingDevice();
    // Two fingers on a pad scroll the page.
    const bool isMouse = !device || device->type() == QInputDevice::DeviceType::Mouse;
    if (!isWheelEnabled() || !canEdit() || !isMouse || (m_wheelNeedsFocus && !hasActiveFocus()))
        return;
    const QPoint turned = event->angleDelta();
    // Some platforms turn the wheel sideways while Shift is down.
    const int delta = turned.y() != 0 || !(event->modifiers() & Qt::ShiftModifier) ? turned.y() : turned.x();
    if (delta == 0)
        return;
    event->accept();
    if ((delta > 0) != (m_wheelRest > 0))
        m_wheelRest = 0;
    m_wheelRest += delta;
    const int steps = m_wheelRest / wheelStep;
    m_wheelRest -= steps * wheelStep;
    if (steps != 0)
        step(steps * stepFor(event->modifiers()));
}

void SteppedFader::focusOutEvent(QFocusEvent *event)
{
    FaderItem::focusOutEvent(event);
    m_wheelRest = 0;
    if (!isHeld())
        finish();
}

void SteppedFader::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_stepsEnd.timerId()) {
        FaderItem::timerEvent(event);
        return;
    }
    m_stepsEnd.stop();
    if (!isHeld())
        finish();
}

void SteppedFader::accessibilityActiveChanged(bool active)
{
    FaderItem::accessibilityActiveChanged(active);
    auto *accessible =
        qobject_cast<QQuickAccessibleAttached *>(qmlAttachedPropertiesObject<QQuickAccessibleAttached>(this, active));
    if (!active || !accessible)
        return;
    const auto stepBy = [this](int direction) {
        if (canEdit())
            step(direction * stepFor(Qt::NoModifier));
    };
    accessible->disconnect(this);
    connect(accessible, &QQuickAccessibleAttached::increaseAction, this, [stepBy] { stepBy(1); });
    connect(accessible, &QQuickAccessibleAttached::decreaseAction, this, [stepBy] { stepBy(-1); });
}

} // namespace tamble::client
