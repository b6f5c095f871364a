#include "fields/RTextFieldBase.h"

#include "fields/FieldFrame.h"
#include "fields/FieldParts.h"
#include "style/StyleSetProps.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

constexpr std::array<void (RTextFieldBase::*)(), 11> fieldColorSignals = {
    &RTextFieldBase::ssBackgroundChanged,          &RTextFieldBase::ssColorChanged,
    &RTextFieldBase::ssForegroundInvalidChanged,   &RTextFieldBase::ssLineColorChanged,
    &RTextFieldBase::ssLineInvalidChanged,         &RTextFieldBase::ssLineUnconfirmedChanged,
    &RTextFieldBase::ssBorderColorChanged,         &RTextFieldBase::ssSelectionChanged,
    &RTextFieldBase::ssForegroundSelectionChanged, &RTextFieldBase::ssConfirmIndicatorChanged,
    &RTextFieldBase::ssInconsistentFlagChanged,
};

} // namespace

const std::array<SheetColors::Source, 11> RTextFieldBase::colorSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::foreground},
    {&StyleSetProps::foregroundInvalid, "foreground-invalid", LineInvalid},
    {&StyleSetProps::line},
    {&StyleSetProps::lineInvalid, "line-invalid", ForegroundInvalid},
    {&StyleSetProps::lineUnconfirmed, "line-unconfirmed", LineColor},
    {&StyleSetProps::border, "border"},
    {&StyleSetProps::selection},
    {&StyleSetProps::foregroundSelection},
    {&StyleSetProps::confirmIndicator},
    {&StyleSetProps::inconsistentFlag},
}};

RTextFieldBase::RTextFieldBase(QQuickItem *parent)
    : QQuickTextField(parent)
    , m_colors(*this, colorSources, [this](std::size_t begin, std::size_t end) {
        updateFrame();
        for (std::size_t i = begin; i < end; ++i)
            Q_EMIT(this->*fieldColorSignals[i])();
    })
{
    connect(this, &QQuickItem::activeFocusChanged, this, &RTextFieldBase::updateFrame);
    connect(this, &QQuickTextField::backgroundChanged, this, &RTextFieldBase::updateFrame);
    connect(this, &QQuickTextInput::textChanged, this, &RTextFieldBase::updateHint);
    connect(this, &QQuickTextField::placeholderTextChanged, this, &RTextFieldBase::updateHint);
}

// The base tells that it loses the focus when nothing of this is left.
RTextFieldBase::~RTextFieldBase()
{
    disconnect(this, nullptr, this, nullptr);
    if (m_edit)
        m_edit->setEditor(nullptr);
}

void RTextFieldBase::setEdit(FieldEdit *edit)
{
    if (m_edit == edit)
        return;
    if (m_edit)
        m_edit->disconnect(this);
    m_edit = edit;
    if (edit) {
        connect(edit, &FieldEdit::valueEdited, this, &RTextFieldBase::valueEdited);
        connect(edit, &FieldEdit::valueCommitted, this, &RTextFieldBase::valueCommitted);
        connect(edit, &FieldEdit::canceled, this, &RTextFieldBase::editCanceled);
        connect(edit, &FieldEdit::rejected, this, &RTextFieldBase::rejected);
        connect(edit, &FieldEdit::valueWaits, this, &RTextFieldBase::valueWaits);
        connect(edit, &FieldEdit::lookChanged, this, &RTextFieldBase::updateFrame);
        connect(edit, &FieldEdit::consistentChanged, this, &RTextFieldBase::updateHint);
    }
    Q_EMIT editChanged();
}

void RTextFieldBase::setClearable(bool clearable)
{
    if (std::exchange(m_isClearable, clearable) == clearable)
        return;
    needButtons();
    Q_EMIT clearableChanged();
}

void RTextFieldBase::setRevealable(bool revealable)
{
    if (std::exchange(m_isRevealable, revealable) == revealable)
        return;
    needButtons();
    Q_EMIT revealableChanged();
}

void RTextFieldBase::setIconKey(const QString &key)
{
    if (std::exchange(m_iconKey, key) == key)
        return;
    if (!m_icon)
        m_icon = makeFieldPart(Part::FieldIcon, *this);
    Q_EMIT iconKeyChanged();
}

void RTextFieldBase::reveal(bool shown)
{
    if (shown == (echoMode() == Normal))
        return;
    if (shown)
        m_hidingEcho = echoMode();
    setEchoMode(shown ? Normal : m_hidingEcho);
}

void RTextFieldBase::paste()
{
    if (m_edit && !isReadOnly())
        m_edit->paste(QGuiApplication::clipboard()->text(), selectionStart(), selectionEnd());
}

void RTextFieldBase::clearByUser()
{
    if (isReadOnly())
        return;
    forceActiveFocus(Qt::MouseFocusReason);
    remove(0, length());
}

void RTextFieldBase::addSpokenStates(QAccessible::State &state) const
{
    state.editable = !isReadOnly();
    state.readOnly = isReadOnly();
    state.passwordEdit = echoMode() != Normal;
}

void RTextFieldBase::componentComplete()
{
    keepDescription(*this);
    QQuickTextField::componentComplete();
    updateHint();
    updateFrame();
}

// Qt 6.8 never ends to lay out a line whose width is not a number.
void RTextFieldBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    if (std::isnan(newGeometry.width()))
        QQuickItem::geometryChange(newGeometry, oldGeometry); // NOLINT(bugprone-parent-virtual-call): no layout
    else
        QQuickTextField::geometryChange(newGeometry, oldGeometry);
}

void RTextFieldBase::updateFrame()
{
    auto *frame = isComponentComplete() && m_edit ? qobject_cast<FieldFrame *>(background()) : nullptr;
    if (!frame)
        return;
    const bool isWaiting = m_edit->isEdited() || !m_edit->isConfirmed();
    frame->setColor(ssBackground());
    frame->setFocused(hasActiveFocus());
    frame->setBorderColor(ssBorderColor());
    frame->setLineColor(!m_edit->isAcceptable() ? ssLineInvalid() : isWaiting ? ssLineUnconfirmed() : ssLineColor());
}

void RTextFieldBase::updateHint()
{
    const bool isMixed = m_edit && !m_edit->isConsistent();
    if (isComponentComplete() && (isMixed || !placeholderText().isEmpty()) && length() == 0 && !m_hint)
        m_hint = makeFieldPart(Part::FieldHint, *this);
}

void RTextFieldBase::needButtons()
{
    if (!m_buttons)
        m_buttons = makeFieldPart(Part::FieldButtons, *this);
}

} // namespace tamble::client
