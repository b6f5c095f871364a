#pragma once

#include "accordion/InsertionPlace.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QPointer>

#include <optional>

class QQuickItem;

namespace tamble::client {

class EnclosingView;
class RAccordionColumn;
class RAccordionItemBase;

/// A section on its way to another place: a line shows where it would go, and near an edge the accordion scrolls.
class AccordionDrag : public QObject
{
public:
    /// `view` is the one that the accordion is in.
    AccordionDrag(RAccordionColumn &column, EnclosingView &view);

    /// The pointer is there in the scene.
    void moveTo(RAccordionItemBase &item, const QPointF &scenePoint);
    /// The sections may have moved.
    void follow();
    /// Ends the drag; returns where it led to, none outside of the accordion.
    std::optional<InsertionPlace> drop();
    void end();
    bool isUnderWay() const { return m_dragged; }

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    std::optional<InsertionPlace> insertionAt(const QPointF &point) const;

    RAccordionColumn &m_column;
    EnclosingView &m_view;
    QPointer<RAccordionItemBase> m_dragged;
    QPointF m_pointer; // in the scene
    std::optional<InsertionPlace> m_insertion;
    QPointer<QQuickItem> m_line;
    QBasicTimer m_scrolling; // runs during a drag
};

} // namespace tamble::client
