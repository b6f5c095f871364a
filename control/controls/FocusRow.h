#pragma once

#include <QtCore/QList>

class QKeyEvent;
class QQuickItem;

namespace tamble::client {

class RButtonBase;

/// Buttons that stand side by side and are one stop of the Tab key, in the order in which they are seen from the left.
class FocusRow
{
public:
    FocusRow() = default;
    explicit FocusRow(QList<RButtonBase *> buttons);

    /// Adds buttons that stand to the right of all before them, or would if nothing scrolled.
    void append(const FocusRow &more) { m_buttons += more.m_buttons; }

    const QList<RButtonBase *> &buttons() const { return m_buttons; }
    bool contains(const QQuickItem *item) const;

    /// Where Left, Right, Home or End moves the focus from one of the buttons; null for other keys and other items. In
    /// a mirrored row Home is at the right.
    RButtonBase *buttonAt(int key, const QQuickItem *here, bool mirrored) const;
    /// The button that stands for a page and is selected; null for none.
    RButtonBase *selectedTab() const;
    /// Where Tab enters the row: at its selected tab, or at its beginning. Null in an empty row.
    RButtonBase *entry(bool mirrored) const;
    /// Whether a key leaves a row: Tab forwards, Shift+Tab backwards.
    static bool isExit(const QKeyEvent &event);
    /// Moves the focus to what comes after the row, or before it; false when nothing else takes the focus.
    bool leave(QQuickItem &here, const QKeyEvent &exit) const;

private:
    QList<RButtonBase *> m_buttons;
};

} // namespace tamble::client
