#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QAccessible>

class QQuickItem;

namespace tamble::client {

/// What a native control tells assistive tools, answered when one asks: the attached object `Accessible` costs 2.4 KB a
/// control, whether or not anybody listens. What a page attaches counts before the control's own.
class SpokenControl
{
public:
    virtual QAccessible::Role spokenRole() const = 0;
    virtual QString spokenName() const = 0;
    /// `given` is the description that the page attaches, or empty.
    virtual QString spokenDescription(const QString &given) const { return given; }
    /// Adds to the states that every item has (visible, enabled, focus).
    virtual void addSpokenStates(QAccessible::State &) const {}
    /// Puts what the control contains into the order in which tools walk it; by default that of Qt, of painting.
    virtual QList<QQuickItem *> spokenOrder(const QList<QQuickItem *> &children) const { return children; }
    /// A tool presses the control; false, the default, for one that is not pressed.
    virtual bool pressBySpeech() { return false; }

protected:
    ~SpokenControl() = default;
};

/// The name that the page attaches, or else the control's own.
QString spokenNameOf(const QQuickItem &item);

/// Whether the page has hidden an item from assistive tools.
bool isIgnoredByTools(const QQuickItem &item);

/// Makes a control known as its tools begin to listen, and logs once for each type a control without a name. Not to be
/// called before: Qt makes an interface to tell of each change of what is known, whether or not somebody listens.
void beginToSpeak(QQuickItem &item);

/// Tells listening tools that something has changed.
void announce(QQuickItem &item, QAccessible::Event change);
/// Likewise for those states that are set in `changed`.
void announceStates(QQuickItem &item, QAccessible::State changed);

} // namespace tamble::client
