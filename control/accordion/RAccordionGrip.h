#pragma once

#include "dragging/DragSource.h"

#include <QtCore/QPointer>

namespace tamble::client {

class RAccordionItemBase;

/// The dots at the end of an item's header, by which the item is dragged to another place. A picture of the header
/// follows the pointer; the accordion shows where it would be put in.
class RAccordionGrip : public DragSource
{
    Q_OBJECT

public:
    RAccordionGrip(QQuickItem *header, RAccordionItemBase *item);
    ~RAccordionGrip() override;

protected:
    bool beginsAt(const QPointF &point) const override { return contains(point); }
    QQuickItem *pictured() override { return parentItem(); }
    QPointF dragMoves(const QPointF &way) override;
    bool dragEnds() override;
    void dragIsCanceled() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    /// Null while the item is being destroyed.
    RAccordionItemBase *item() const;

    QPointer<QQuickItem> m_item;
};

} // namespace tamble::client
