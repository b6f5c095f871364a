#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtGui/QUndoStack>

/// A step that was done. Steps of one gesture, or of a button that is pressed again and again, are undone together.
class EditStep : public QUndoCommand
{
public:
    /// Steps with the same `gesture` may belong together.
    EditStep(const QString &text, const QString &gesture);

    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand *later) override;

protected:
    /// Ends where `later`, which has the same gesture, ends; returns whether anything is left to undo.
    virtual bool extend(const EditStep &later) = 0;

private:
    friend class EditHistory;

    QString m_gesture;
    QString m_place;
    bool m_continues = false;
};

/// What was done and can be undone, without end, whichever page it was done on.
class EditHistory : public QUndoStack
{
    Q_OBJECT
    /// Where steps are done at present, in words of the program's own; empty for nowhere.
    Q_PROPERTY(QString place MEMBER m_place NOTIFY placeChanged FINAL)
    /// A gesture is going on, however long nothing moves.
    Q_PROPERTY(bool held READ isHeld WRITE setHeld NOTIFY heldChanged FINAL)

public:
    explicit EditHistory(QObject *parent = nullptr);
    ~EditHistory() override;

    bool isHeld() const { return m_isHeld; }
    void setHeld(bool held);

    /// Does a step and owns it. It becomes part of the last one when both are one gesture, unless that was finished or
    /// ended more than 0.6 seconds ago.
    void take(EditStep *step);
    /// Takes a step of an object that keeps its state itself and has a function `reveal(state: var)`, which is called
    /// with `after` now, and with one of the two whenever the step is undone or redone.
    Q_INVOKABLE void keep(QObject *owner, const QVariant &before, const QVariant &after, const QString &text,
                          const QString &gesture);
    /// The gesture is over: whatever follows is another step.
    Q_INVOKABLE void finish() { m_sinceStep.invalidate(); }

Q_SIGNALS:
    void placeChanged();
    void heldChanged();
    /// A step that was done at `place` was undone or redone.
    void concerned(const QString &place);
    /// Something was done, undone or redone: what, for people.
    void happened(const QString &text);

private:
    bool continuesLast(const EditStep &step) const;
    void tellUndone(int index);

    QString m_place;
    QElapsedTimer m_sinceStep;
    int m_lastIndex = 0;
    bool m_isTaking = false;
    bool m_isHeld = false;
};
