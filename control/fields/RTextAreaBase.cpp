#include "fields/RTextAreaBase.h"

#include "fields/FieldParts.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>

namespace tamble::client {

RTextAreaBase::RTextAreaBase(QQuickItem *parent)
    : QQuickTextArea(parent)
{
    // The base has laid out its empty text in the application's font. The platform's would be loaded next, only to be
    // replaced. Not with a size in points: Qt warns of two sizes when the style sets that in pixels.
    if (const QFont font = QGuiApplication::font(); font.pixelSize() > 0)
        setFont(font);
    connect(this, &QQuickTextEdit::textChanged, this, &RTextAreaBase::updateHint);
    connect(this, &QQuickTextArea::placeholderTextChanged, this, &RTextAreaBase::updateHint);
}

// The base tells that it loses the focus when nothing of this is left.
RTextAreaBase::~RTextAreaBase()
{
    disconnect(this, nullptr, this, nullptr);
    if (m_edit)
        m_edit->setEditor(nullptr);
}

void RTextAreaBase::setEdit(FieldEdit *edit)
{
    if (m_edit == edit)
        return;
    if (m_edit)
        m_edit->disconnect(this);
    m_edit = edit;
    if (edit)
        connect(edit, &FieldEdit::consistentChanged, this, &RTextAreaBase::updateHint);
    Q_EMIT editChanged();
}

void RTextAreaBase::addSpokenStates(QAccessible::State &state) const
{
    state.multiLine = true;
    state.editable = !isReadOnly();
    state.readOnly = isReadOnly();
}

void RTextAreaBase::componentComplete()
{
    keepDescription(*this);
    QQuickTextArea::componentComplete();
    updateHint();
}

void RTextAreaBase::updateHint()
{
    const bool isMixed = m_edit && !m_edit->isConsistent();
    if (isComponentComplete() && (isMixed || !placeholderText().isEmpty()) && length() == 0 && !m_hint)
        m_hint = makeFieldPart(Part::FieldHint, *this);
}

void RTextAreaBase::keyPressEvent(QKeyEvent *event)
{
    // The window moves the focus for a Tab that nobody takes.
    if (m_tabChangesFocus && (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab))
        event->ignore();
    else
        QQuickTextArea::keyPressEvent(event);
}

} // namespace tamble::client
