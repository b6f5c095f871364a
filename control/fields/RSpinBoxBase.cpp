#include "fields/RSpinBoxBase.h"

#include "fields/FieldFrame.h"
#include "fields/FieldParts.h"
#include "fields/SpinButtons.h"
#include "style/StyleSetProps.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWheelEvent>

#include <utility>

namespace tamble::client {

namespace {

constexpr std::array<void (RSpinBoxBase::*)(), 8> boxColorSignals = {
    &RSpinBoxBase::ssBackgroundChanged,       &RSpinBoxBase::ssColorChanged,
    &RSpinBoxBase::ssLineColorChanged,        &RSpinBoxBase::ssBorderColorChanged,
    &RSpinBoxBase::ssSelectionChanged,        &RSpinBoxBase::ssForegroundSelectionChanged,
    &RSpinBoxBase::ssConfirmIndicatorChanged, &RSpinBoxBase::ssInconsistentFlagChanged,
};

} // namespace

const std::array<SheetColors::Source, 8> RSpinBoxBase::colorSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::foreground},
    {&StyleSetProps::line},
    {&StyleSetProps::border, "border"},
    {&StyleSetProps::selection},
    {&StyleSetProps::foregroundSelection},
    {&StyleSetProps::confirmIndicator},
    {&StyleSetProps::inconsistentFlag},
}};

RSpinBoxBase::RSpinBoxBase(QQuickItem *parent)
    : QQuickControl(parent)
    , m_colors(*this, colorSources, [this](std::size_t begin, std::size_t end) {
        updateFrame();
        updateButtons();
        for (std::size_t i = begin; i < end; ++i)
            Q_EMIT(this->*boxColorSignals[i])();
    })
{
    setFlag(ItemIsFocusScope);
    setAcceptedMouseButtons(Qt::LeftButton);
    setWheelEnabled(true);
}

void RSpinBoxBase::setEdit(FieldEdit *edit)
{
    if (m_edit == edit)
        return;
    if (m_edit)
        m_edit->disconnect(this);
    m_edit = edit;
    if (edit) {
        connect(edit, &FieldEdit::valueEdited, this,
                [this](const QVariant &value) { Q_EMIT valueEdited(value.toDouble()); });
        connect(edit, &FieldEdit::valueCommitted, this,
                [this](const QVariant &value) { Q_EMIT valueCommitted(value.toDouble()); });
        connect(edit, &FieldEdit::canceled, this, &RSpinBoxBase::editCanceled);
        connect(edit, &FieldEdit::rejected, this, &RSpinBoxBase::rejected);
        connect(edit, &FieldEdit::invalidTextChanged, this, &RSpinBoxBase::onInvalid);
        connect(edit, &FieldEdit::lookChanged, this, &RSpinBoxBase::updateFrame);
    }
    Q_EMIT editChanged();
}

// As the item goes it is disabled, which the steps hear.
RSpinBoxBase::~RSpinBoxBase()
{
    if (m_steps)
        m_steps->disconnect(this);
}

void RSpinBoxBase::setSteps(NumberSteps *steps)
{
    if (m_steps == steps)
        return;
    if (m_steps)
        m_steps->disconnect(this);
    m_steps = steps;
    if (steps) {
        connect(steps, &NumberSteps::stepped, this, &RSpinBoxBase::stepped);
        connect(steps, &NumberSteps::boundsReached, this, &RSpinBoxBase::updateButtons);
    }
    Q_EMIT stepsChanged();
}

void RSpinBoxBase::setButtonsVisible(bool visible)
{
    if (std::exchange(m_buttonsVisible, visible) == visible)
        return;
    release();
    updateButtons();
    Q_EMIT buttonsVisibleChanged();
}

void RSpinBoxBase::setUnit(qreal unit)
{
    if (std::exchange(m_unit, unit) == unit)
        return;
    updateButtons();
    Q_EMIT unitChanged();
}

void RSpinBoxBase::setPrefix(const QString &prefix)
{
    if (std::exchange(m_prefix, prefix) == prefix)
        return;
    needAffixes();
    Q_EMIT prefixChanged();
}

void RSpinBoxBase::setSuffix(const QString &suffix)
{
    if (std::exchange(m_suffix, suffix) == suffix)
        return;
    needAffixes();
    Q_EMIT suffixChanged();
}

void RSpinBoxBase::setSsForegroundInvalid(const QColor &color)
{
    if (std::exchange(m_foregroundInvalid, color) != color)
        Q_EMIT ssForegroundInvalidChanged();
}

void RSpinBoxBase::setSsLineInvalid(const QColor &color)
{
    if (std::exchange(m_lineInvalid, color) == color)
        return;
    updateFrame();
    Q_EMIT ssLineInvalidChanged();
}

void RSpinBoxBase::needAffixes()
{
    if (!m_affixes && isComponentComplete() && !(m_prefix.isEmpty() && m_suffix.isEmpty()))
        m_affixes = makeFieldPart(Part::SpinAffixes, *this);
}

// The sheets have no such colours for spin boxes; what gives them those of text fields is made when it is needed.
void RSpinBoxBase::onInvalid()
{
    if (!m_invalidLook && !m_edit->isAcceptable())
        m_invalidLook = makeFieldPart(Part::SpinInvalidLook, *this);
}

void RSpinBoxBase::componentComplete()
{
    QQuickControl::componentComplete();
    updateButtons();
    needAffixes();
    updateFrame();
}

void RSpinBoxBase::updateFrame()
{
    auto *frame = isComponentComplete() && m_edit ? qobject_cast<FieldFrame *>(background()) : nullptr;
    if (!frame)
        return;
    frame->setColor(ssBackground());
    frame->setFocused(hasActiveFocus());
    frame->setBorderColor(ssBorderColor());
    frame->setLineColor(m_edit->isAcceptable() ? ssLineColor() : ssLineInvalid());
}

void RSpinBoxBase::updateButtons()
{
    if (!isComponentComplete() || (!m_buttons && !m_buttonsVisible))
        return;
    if (!m_buttons)
        m_buttons = new SpinButtons(this);
    m_buttons->setVisible(m_buttonsVisible);
    m_buttons->setX(isMirrored() ? 0.0 : width() - 2.0 * buttonWidth());
    m_buttons->setSize({2.0 * buttonWidth(), height()});
    m_buttons->show(ssColor(), m_unit, isMirrored());
    // A disabled box is dim as a whole.
    const auto shows = [this](bool canStep) { return !isEnabled() || canStep; };
    m_buttons->enable(shows(m_steps && m_steps->canStepDown()), shows(m_steps && m_steps->canStepUp()),
                      m_held.button());
}

void RSpinBoxBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickControl::geometryChange(newGeometry, oldGeometry);
    updateButtons();
}

void RSpinBoxBase::mirrorChange()
{
    QQuickControl::mirrorChange();
    updateButtons();
}

void RSpinBoxBase::requestValue(const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (m_steps && isNumber)
        m_steps->request(number);
}

QString RSpinBoxBase::spokenDescription(const QString &given) const
{
    if (!m_edit)
        return given;
    const QString shown =
        m_edit->isConsistent() ? (m_prefix + m_edit->text() + u' ' + m_suffix.trimmed()).trimmed() : QString();
    return m_edit->description(given.isEmpty() ? shown : given);
}

void RSpinBoxBase::addSpokenStates(QAccessible::State &state) const
{
    state.focusable = true; // by its editor
    state.readOnly = m_edit && !m_edit->canEdit();
    state.editable = !state.readOnly;
}

void RSpinBoxBase::accessibilityActiveChanged(bool active)
{
    if (active)
        beginToSpeak(*this);
}

int RSpinBoxBase::buttonAt(qreal x) const
{
    const qreal fromEnd = isMirrored() ? x : width() - x;
    if (!m_buttonsVisible || fromEnd < 0.0 || fromEnd >= 2.0 * buttonWidth())
        return 0;
    return fromEnd < buttonWidth() ? 1 : -1;
}

void RSpinBoxBase::mousePressEvent(QMouseEvent *event)
{
    const int button = buttonAt(event->position().x());
    forceActiveFocus(Qt::MouseFocusReason);
    event->accept();
    if (button == 0 || m_held.button() != 0)
        return;
    m_held.press(button, m_autoRepeat, *this);
    updateButtons();
    Q_EMIT pressedButtonChanged();
    stepByButton();
}

void RSpinBoxBase::mouseReleaseEvent(QMouseEvent *)
{
    release();
}

void RSpinBoxBase::mouseUngrabEvent()
{
    release();
}

// Left to the mouse events that are made of touches which nobody takes.
void RSpinBoxBase::touchEvent(QTouchEvent *event)
{
    event->ignore();
}

void RSpinBoxBase::timerEvent(QTimerEvent *event)
{
    if (!m_held.isMine(*event))
        QQuickControl::timerEvent(event);
    else if (m_held.goOn(m_autoRepeat, *this))
        stepByButton();
}

void RSpinBoxBase::stepByButton()
{
    if (m_steps)
        m_steps->step(m_held.stepSize(QGuiApplication::keyboardModifiers()), m_held.button());
}

void RSpinBoxBase::release()
{
    if (!m_held.release())
        return;
    const QPointer<RSpinBoxBase> guard(this);
    if (m_steps)
        m_steps->finish();
    if (!guard)
        return;
    updateButtons();
    Q_EMIT pressedButtonChanged();
}

void RSpinBoxBase::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(m_steps && m_steps->takeWheel(*event));
}

void RSpinBoxBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickControl::itemChange(change, data);
    if (change == ItemActiveFocusHasChanged)
        updateFrame();
    const bool isHidden = (change == ItemVisibleHasChanged || change == ItemEnabledHasChanged) && !data.boolValue;
    if (isHidden || (change == ItemSceneChange && !data.window))
        release();
}

} // namespace tamble::client
