#pragma once

#include "fields/ComboHighlight.h"

class QEvent;
class QKeyEvent;
class QQmlChangeSet;

namespace tamble::client {

/// The list of a combo box, closed or open, and what keys, typing, the wheel and the pointer do to it.
class ComboList
{
public:
    explicit ComboList(RComboBoxBase &box);

    bool isOpen() const { return m_isOpen; }
    /// The entry that Enter would choose; -1 for none.
    int highlight() const { return m_highlight.entry(); }

    /// The list is open or closed from now on; false when it was before. One that opens highlights `entry`.
    bool setOpen(bool open, int entry);
    /// The highlight stays at its entry, so that Enter never takes one that has just come to stand in its place.
    void follow(const QQmlChangeSet &change, bool reset);

    /// Whether a key is the list's before whatever Esc or Enter do around the box.
    bool takesFirst(const QEvent &event) const;
    /// A key of the box, or of the field in an editable one; false when it is left to others.
    bool handleKey(const QKeyEvent &event);
    bool handleFieldKey(const QKeyEvent &event);
    /// Whether the release of a key belongs to a press that these take.
    bool takesRelease(const QKeyEvent &event) const;
    /// What stands in the field was typed.
    void onTextTyped(const QString &text);
    /// The wheel of an open list turns by so many eighths of a degree.
    void turnWheel(int angle);
    /// The pointer has come to a place, in the scene, above an entry.
    void pointAt(int entry, const QPointF &place);

private:
    bool handleClosedKey(const QKeyEvent &event);
    bool handleOpenKey(const QKeyEvent &event);
    bool moveByKey(const QKeyEvent &event);
    void chooseHighlighted();
    template <typename Move>
    void moveHighlight(Move move);

    RComboBoxBase &m_box;
    ComboHighlight m_highlight;
    int m_wheelAngle = 0; ///< In eighths of a degree, what is left of less than a notch.
    bool m_isOpen = false;
    bool m_openedByKey = false;
    bool m_typesInField = false; ///< What was typed last counts, not the highlight.
};

} // namespace tamble::client
