#include "EditHistory.h"

#include <QtQml/QJSValue>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 gesturePause = 600; // ms without a step that end a gesture

/// Of lists and objects of JavaScript only copies can be compared.
QVariant comparable(const QVariant &state)
{
    const auto isScript = state.metaType() == QMetaType::fromType<QJSValue>();
    return isScript ? state.value<QJSValue>().toVariant() : state;
}

/// States of an object that keeps its own.
class StateStep : public EditStep
{
public:
    StateStep(QObject *owner, const QVariant &before, const QVariant &after, const QString &text,
              const QString &gesture)
        : EditStep(text, gesture)
        , m_owner(owner)
        , m_before(before)
        , m_after(after)
    {}

    void undo() override { reveal(m_before); }
    void redo() override { reveal(m_after); }

protected:
    bool extend(const EditStep &later) override
    {
        m_after = static_cast<const StateStep &>(later).m_after;
        return m_after != m_before;
    }

private:
    void reveal(const QVariant &state)
    {
        if (m_owner)
            QMetaObject::invokeMethod(m_owner, "reveal", Q_ARG(QVariant, state));
        else
            setObsolete(true);
    }

    QPointer<QObject> m_owner;
    QVariant m_before;
    QVariant m_after;
};

} // namespace

EditStep::EditStep(const QString &text, const QString &gesture)
    : QUndoCommand(text)
    , m_gesture(gesture)
{}

bool EditStep::mergeWith(const QUndoCommand *later)
{
    const auto &step = static_cast<const EditStep &>(*later);
    if (!step.m_continues)
        return false;
    setObsolete(!extend(step));
    return true;
}

EditHistory::EditHistory(QObject *parent)
    : QUndoStack(parent)
{
    connect(this, &QUndoStack::indexChanged, this, &EditHistory::tellUndone);
}

// The stack tells that it is cleared when nothing of this is left.
EditHistory::~EditHistory()
{
    disconnect(this, nullptr, this, nullptr);
}

void EditHistory::setHeld(bool held)
{
    if (held == m_isHeld)
        return;
    m_isHeld = held;
    finish();
    Q_EMIT heldChanged();
}

void EditHistory::take(EditStep *step)
{
    const QString text = step->text();
    step->m_place = m_place;
    const bool continues = step->m_continues = continuesLast(*step);
    m_sinceStep.start();
    m_isTaking = true;
    push(step);
    m_isTaking = false;
    m_lastIndex = index();
    if (!continues)
        Q_EMIT happened(text);
}

void EditHistory::keep(QObject *owner, const QVariant &before, const QVariant &after, const QString &text,
                       const QString &gesture)
{
    if (!owner)
        return;
    const QString key = QStringLiteral("%1 %2").arg(quintptr(owner)).arg(gesture);
    take(new StateStep(owner, comparable(before), comparable(after), text, key));
}

bool EditHistory::continuesLast(const EditStep &step) const
{
    const QUndoCommand *last = index() == m_lastIndex ? command(index() - 1) : nullptr;
    return last && static_cast<const EditStep *>(last)->m_gesture == step.m_gesture && m_sinceStep.isValid() &&
           (m_isHeld || m_sinceStep.elapsed() < gesturePause);
}

void EditHistory::tellUndone(int index)
{
    if (m_isTaking)
        return;
    const int before = std::exchange(m_lastIndex, index);
    m_sinceStep.invalidate();
    if (const auto *step = static_cast<const EditStep *>(command(std::min(index, before))))
        Q_EMIT concerned(step->m_place);
    if (index < before)
        Q_EMIT happened(tr("Undone: %1").arg(text(index)));
    else if (index > before)
        Q_EMIT happened(tr("Redone: %1").arg(text(before)));
}
