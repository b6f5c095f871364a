#include "bodeplot/filters/RBodeplotCalculationItem.h"

namespace tamble::client {

namespace {

// Never hidden and kept to the end: what it carries is visible when a page says so. Without a parent, an item of later
// Qt versions that was hidden once stays so.
QQuickItem *ground()
{
    static auto *const item = new QQuickItem;
    return item;
}

} // namespace

RBodeplotCalculationItem::RBodeplotCalculationItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    if (!parent)
        setParentItem(ground());
}

} // namespace tamble::client
