#include "bodeplot/RBodeplotCurve.h"

#include <algorithm>

namespace tamble::client {

namespace {

RBodeplotCurve *curveOf(const QQmlListProperty<RBodeplotCalculationItem> *list)
{
    return static_cast<RBodeplotCurve *>(list->object);
}

} // namespace

RBodeplotCurve::RBodeplotCurve(QQuickItem *parent)
    : QQuickItem(parent)
{}

QQmlListProperty<RBodeplotCalculationItem> RBodeplotCurve::calculationItems()
{
    return {this, nullptr, &appendItem, &itemCount, &itemAt, &clearItems};
}

void RBodeplotCurve::setCalculationItemsReference(const QQmlListReference &reference)
{
    // An equal reference names the same list, but that list may have new contents: that is when a binding comes here.
    m_calculationItemsReference = reference;
    Q_EMIT calculationItemsReferenceChanged();
}

// The filters get no visual parent: their `visible` must tell what the page wrote, not whether the plot is on screen.
void RBodeplotCurve::appendItem(ItemList *list, RBodeplotCalculationItem *item)
{
    if (!item)
        return;
    auto *curve = curveOf(list);
    curve->m_calculationItems.append(item);
    connect(item, &QObject::destroyed, curve, &RBodeplotCurve::forgetItem, Qt::UniqueConnection);
    Q_EMIT curve->calculationItemsChanged();
}

qsizetype RBodeplotCurve::itemCount(ItemList *list)
{
    return curveOf(list)->m_calculationItems.size();
}

RBodeplotCalculationItem *RBodeplotCurve::itemAt(ItemList *list, qsizetype index)
{
    return curveOf(list)->m_calculationItems.value(index);
}

void RBodeplotCurve::clearItems(ItemList *list)
{
    auto *curve = curveOf(list);
    if (curve->m_calculationItems.isEmpty())
        return;
    for (RBodeplotCalculationItem *item : std::as_const(curve->m_calculationItems))
        item->disconnect(curve);
    curve->m_calculationItems.clear();
    Q_EMIT curve->calculationItemsChanged();
}

void RBodeplotCurve::forgetItem(QObject *item)
{
    const auto isItem = [item](const QObject *candidate) { return candidate == item; };
    if (erase_if(m_calculationItems, isItem) > 0)
        Q_EMIT calculationItemsChanged();
}

} // namespace tamble::client
