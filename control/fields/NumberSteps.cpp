#include "fields/NumberSteps.h"

#include "fields/FieldChecks.h"

#include <QtCore/QLocale>
#include <QtCore/QTimerEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QPointingDevice>
#include <QtGui/QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tamble::client {

namespace {

constexpr int gestureEndMs = 400; // after the last step by key or wheel
constexpr int wheelStep = 120;    // eighths of a degree

StepSize sizeOf(Qt::KeyboardModifiers modifiers)
{
    return modifiers & Qt::ShiftModifier     ? StepSize::Fine
           : modifiers & Qt::ControlModifier ? StepSize::Page
                                             : StepSize::Normal;
}

/// As a person writes it: without exponent, group separators and trailing zeros.
QString shortText(double value)
{
    return QString::number(value + 0.0, 'f', QLocale::FloatingPointShortest);
}

} // namespace

NumberSteps::NumberSteps(QObject *parent)
    : QObject(parent)
{
    connect(this, &NumberSteps::steppingChanged, this, &NumberSteps::boundsReached);
}

void NumberSteps::setEdit(FieldEdit *edit)
{
    if (m_edit == edit)
        return;
    m_edit = edit;
    if (edit) {
        edit->setRules(this);
        connect(edit, &FieldEdit::valueChanged, this, &NumberSteps::boundsReached);
        connect(edit, &FieldEdit::consistentChanged, this, &NumberSteps::boundsReached);
        connect(edit, &FieldEdit::editorChanged, this, &NumberSteps::watch);
        watch();
    }
    Q_EMIT editChanged();
}

// The editor for its keys; the wheel goes through it to the field around it.
void NumberSteps::watch()
{
    if (m_watched) {
        m_watched->removeEventFilter(this);
        m_watched->disconnect(this);
    }
    m_watched = m_edit->editor();
    if (m_watched) {
        m_watched->installEventFilter(this);
        connect(m_watched, &QQuickItem::enabledChanged, this, &NumberSteps::boundsReached);
        // By name, as the classes have no public header.
        connect(m_watched, SIGNAL(readOnlyChanged(bool)), this, SIGNAL(boundsReached()));
    }
}

template <typename Value>
void NumberSteps::set(Value &member, Value value)
{
    if (member == value)
        return;
    member = value;
    onRuleChanged();
}

void NumberSteps::onRuleChanged()
{
    if (!m_ownFineStep)
        m_rule.fine = m_rule.normal / 10.0;
    if (!m_ownPageStep)
        m_rule.page = m_rule.normal * 10.0;
    if (m_edit)
        m_edit->applyRules();
    Q_EMIT ruleChanged();
    Q_EMIT boundsReached();
}

void NumberSteps::setFrom(double from)
{
    set(m_rule.from, from);
}

void NumberSteps::setTo(double to)
{
    set(m_rule.to, to);
}

void NumberSteps::setStepSize(double size)
{
    set(m_rule.normal, size);
}

void NumberSteps::setFineStepSize(double size)
{
    m_ownFineStep = true;
    set(m_rule.fine, size);
}

void NumberSteps::setPageStepSize(double size)
{
    m_ownPageStep = true;
    set(m_rule.page, size);
}

void NumberSteps::setDecimals(int decimals)
{
    set(m_rule.decimals, decimals);
}

void NumberSteps::setWraps(bool wraps)
{
    set(m_rule.wraps, wraps);
}

void NumberSteps::setMinimumText(const QString &text)
{
    if (std::exchange(m_minimumText, text) == text)
        return;
    if (m_edit)
        m_edit->applyRules();
    Q_EMIT minimumTextChanged();
}

QString NumberSteps::textOf(const QVariant &value) const
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!m_minimumText.isEmpty() && isNumber && number <= m_rule.from)
        return m_minimumText;
    return numberText(value);
}

QString NumberSteps::numberText(const QVariant &value) const
{
    if (m_edit && m_edit->converter())
        return m_edit->converter()->toText(value);
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber || std::isnan(number))
        return QStringLiteral("–");
    if (std::isinf(number))
        return number > 0.0 ? QStringLiteral("∞") : QStringLiteral("−∞");
    const double rounded = m_rule.rounded(number);
    return m_rule.decimals < 0 ? shortText(rounded) : QString::number(rounded, 'f', m_rule.shownDecimals());
}

QVariant NumberSteps::valueOf(const QString &text) const
{
    if (readsAsMinimum(text))
        return m_rule.from;
    if (text.isEmpty())
        return {};
    const QVariant value =
        m_edit && m_edit->converter() ? m_edit->converter()->fromText(text) : tidyDecimal(text).toDouble();
    return m_snapsToStep ? QVariant(m_rule.snapped(value.toDouble())) : value;
}

QString NumberSteps::problemOf(const QString &text) const
{
    if (readsAsMinimum(text))
        return {};
    // A field that never had a number may stay without one.
    if (text.isEmpty() && m_edit && !m_edit->value().isValid())
        return {};
    const bool isRead = m_edit && m_edit->converter()
                            ? m_edit->converter()->accepts(text)
                            : checkDecimal(text, m_rule.from, m_rule.to, -1) == QValidator::Acceptable;
    bool isNumber = false;
    const double number = isRead ? valueOf(text).toDouble(&isNumber) : 0.0;
    if (isNumber && number >= m_rule.from && number <= m_rule.to)
        return {};
    if (!m_minimumText.isEmpty())
        return tr("%1, or %2").arg(rangeMessage(), m_minimumText);
    return rangeMessage();
}

QString NumberSteps::rangeMessage() const
{
    const QString from = numberText(m_rule.from);
    const QString to = numberText(m_rule.to);
    if (std::isfinite(m_rule.from) && std::isfinite(m_rule.to))
        return tr("Enter a number from %1 to %2").arg(from, to);
    if (std::isfinite(m_rule.from))
        return tr("Enter a number of at least %1").arg(from);
    if (std::isfinite(m_rule.to))
        return tr("Enter a number of at most %1").arg(to);
    return tr("Enter a number");
}

bool NumberSteps::readsAsMinimum(const QString &text) const
{
    return !m_minimumText.isEmpty() &&
           (text.compare(m_minimumText, Qt::CaseInsensitive) == 0 ||
            text.compare(QLatin1String("-inf"), Qt::CaseInsensitive) == 0 || text == QStringLiteral("−∞"));
}

double NumberSteps::number() const
{
    QVariant value = m_edit->value();
    // Without a value the text itself counts.
    if (!value.isValid() && m_edit->isAcceptable())
        value = valueOf(m_edit->text());
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? number : std::numeric_limits<double>::quiet_NaN();
}

bool NumberSteps::canEdit() const
{
    return m_edit && m_edit->canEdit() && m_isStepping && m_rule.isUsable();
}

bool NumberSteps::canStep(int direction) const
{
    return canEdit() &&
           (!m_edit->isConsistent() || m_rule.stepped(stepOrigin(), StepSize::Normal, direction) != stepOrigin());
}

void NumberSteps::step(StepSize size, int direction)
{
    if (!canEdit())
        return;
    if (!m_edit->isConsistent() && !m_edit->isEdited()) {
        const double steps = m_rule.size(size) / m_rule.size(StepSize::Normal);
        Q_EMIT stepped(direction * steps);
        return;
    }
    // What was typed and can be entered is what the step starts from.
    if (m_edit->isEdited() && !m_edit->enter())
        return;
    const double next = m_edit ? m_rule.stepped(stepOrigin(), size, direction) : 0.0;
    if (canEdit() && next != stepOrigin())
        show(next);
}

// Below a bound that reads "off" there are no steps, however far below it is for the device.
double NumberSteps::stepOrigin() const
{
    return m_minimumText.isEmpty() ? number() : std::max(number(), m_rule.from);
}

void NumberSteps::show(double value)
{
    if (value == number() && m_edit->isConsistent())
        return;
    m_isGesture = true;
    m_edit->show(value, m_isLive);
}

void NumberSteps::finish()
{
    m_gestureEnd.stop();
    if (std::exchange(m_isGesture, false) && m_edit)
        m_edit->commit(!m_isLive);
}

void NumberSteps::reset()
{
    bool isNumber = false;
    const double number = m_defaultValue.toDouble(&isNumber);
    if (isNumber)
        request(number);
}

void NumberSteps::request(double value)
{
    if (!m_edit || !m_edit->canEdit() || !(value >= m_rule.from && value <= m_rule.to))
        return;
    m_edit->cancel();
    show(value);
    finish();
}

bool NumberSteps::eventFilter(QObject *, QEvent *event)
{
    if (!m_edit || m_edit->isGoing())
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return onKey(static_cast<const QKeyEvent &>(*event));
    case QEvent::Wheel: {
        const bool isTaken = takeWheel(static_cast<const QWheelEvent &>(*event));
        event->setAccepted(isTaken);
        return isTaken;
    }
    case QEvent::MouseButtonDblClick:
        if (!(static_cast<const QMouseEvent &>(*event).modifiers() & Qt::ControlModifier) || !m_defaultValue.isValid())
            return false;
        reset();
        return true;
    case QEvent::FocusOut:
        finish();
        return false;
    default:
        return false;
    }
}

bool NumberSteps::onKey(const QKeyEvent &key)
{
    const bool isPage = key.key() == Qt::Key_PageUp || key.key() == Qt::Key_PageDown;
    const bool isUp = key.key() == Qt::Key_Up || key.key() == Qt::Key_PageUp;
    if (!m_isStepping || !(isUp || isPage || key.key() == Qt::Key_Down))
        return false;
    const QPointer<NumberSteps> guard(this);
    step(isPage ? StepSize::Page : sizeOf(key.modifiers()), isUp ? 1 : -1);
    if (guard)
        m_gestureEnd.start(gestureEndMs, this);
    return true;
}

bool NumberSteps::takeWheel(const QWheelEvent &wheel)
{
    const bool isMouse = !wheel.pointingDevice() || wheel.pointingDevice()->type() == QInputDevice::DeviceType::Mouse;
    if (!m_wheelEnabled || !isMouse || !canEdit() || (m_wheelNeedsFocus && !m_watched->hasActiveFocus()))
        return false;
    // Some systems turn the wheel sideways while Shift is held.
    const QPoint angle = wheel.angleDelta();
    m_wheelTravel += angle.y() != 0 ? angle.y() : angle.x();
    const int count = m_wheelTravel / wheelStep;
    m_wheelTravel -= count * wheelStep;
    const QPointer<NumberSteps> guard(this);
    for (int i = 0; guard && i < std::abs(count); ++i)
        step(sizeOf(wheel.modifiers()), count > 0 ? 1 : -1);
    if (guard)
        m_gestureEnd.start(gestureEndMs, this);
    return true;
}

void NumberSteps::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_gestureEnd.timerId())
        finish();
    else
        QObject::timerEvent(event);
}

} // namespace tamble::client
