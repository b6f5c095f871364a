#include "bodeplot/RBodeplotCurve.h"

#include "base/ControlLog.h"
#include <QtCore/QScopedValueRollback>
#include <QtQuick/QQuickWindow>

#include <algorithm>
#include <utility>

// Where the filters of a curve come from.

namespace tamble::client {

namespace {

RBodeplotCurve *curveOf(const QQmlListProperty<RBodeplotCalculationItem> *list)
{
    return static_cast<RBodeplotCurve *>(list->object);
}

} // namespace

QQmlListProperty<RBodeplotCalculationItem> RBodeplotCurve::calculationItems()
{
    return {this, nullptr, &appendItem, &itemCount, &itemAt, &clearItems};
}

QQmlListReference RBodeplotCurve::calculationItemsReference()
{
    if (m_calculationItemsReference.isValid())
        return m_calculationItemsReference;
    // The script engine crashes on a reference to nothing.
    const auto count = [](QQmlListProperty<QObject> *) { return qsizetype(0); };
    const auto at = [](QQmlListProperty<QObject> *, qsizetype) -> QObject * { return nullptr; };
    return QQmlListReference(QVariant::fromValue(QQmlListProperty<QObject>(this, nullptr, count, at)));
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
    auto *curve = curveOf(list);
    if (!item) {
        if (!std::exchange(curve->m_hasToldOfNoFilter, true))
            warnOfPage(curve, QStringLiteral("what is no filter item, such as RBodeplotEqFilter, is left out of "
                                             "calculationItems; other objects go in calculationItemsReference"));
        return;
    }
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

bool RBodeplotCurve::isListed(QObject *filter) const
{
    const auto isFilter = [filter](const QObject *listed) { return listed == filter; };
    if (std::ranges::any_of(m_calculationItems, isFilter))
        return true;
    const QQmlListReference &reference = m_calculationItemsReference;
    const auto count = reference.isValid() && reference.canCount() && reference.canAt() ? reference.count() : 0;
    for (qsizetype i = 0; i < count; ++i) {
        if (isFilter(reference.at(i)))
            return true;
    }
    return false;
}

void RBodeplotCurve::tellOfUnlistedFilters()
{
    QList<QPointer<QObject>> unlisted;
    for (QQuickItem *child : childItems()) {
        if (qobject_cast<RBodeplotCalculationItem *>(child) && !isListed(child))
            unlisted.append(child);
    }
    if (unlisted.isEmpty())
        return;
    // A page may well list them when all of it is complete.
    const auto tell = [this, unlisted] {
        const auto found = std::ranges::find_if(
            unlisted, [this](const QPointer<QObject> &filter) { return filter && !isListed(filter); });
        if (found != unlisted.end())
            warnOfPage(*found, QStringLiteral("a filter that is only a child of its curve is not drawn: name it in the "
                                              "curve's calculationItems"));
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void RBodeplotCurve::requestConversion()
{
    if (!isComponentComplete() || std::exchange(m_listIsStale, true))
        return;
    if (window())
        polish();
    else
        QMetaObject::invokeMethod(this, &RBodeplotCurve::updatePolish, Qt::QueuedConnection);
}

CurveFilters &RBodeplotCurve::presentFilters()
{
    // What asks may be a binding, or a gesture on a handle that goes with the old list: it must be through before other
    // handles are told of.
    const QScopedValueRollback asked(m_tellsHandlesLater, true);
    if (m_listIsStale)
        convertFilters();
    return m_filters;
}

QList<QObject *> RBodeplotCurve::filterPointModels()
{
    return presentFilters().pointModels();
}

void RBodeplotCurve::tellPointModels()
{
    if (m_tellsHandlesLater)
        QMetaObject::invokeMethod(this, &RBodeplotCurve::filterPointModelsChanged, Qt::QueuedConnection);
    else
        Q_EMIT filterPointModelsChanged();
}

void RBodeplotCurve::convertFilters()
{
    m_listIsStale = false;
    if (!isComponentComplete())
        return;
    if (!m_calculationItems.isEmpty())
        m_filters.setFilters(calculationItemsQListToStdVector(m_calculationItems));
    else if (m_calculationItemsReference.isValid())
        m_filters.setFilters(calculationItemsQmlListReferenceToStdVector(m_calculationItemsReference));
    else
        m_filters.setFilters({});
}

void RBodeplotCurve::onCalculationItemsChanged()
{
    convertFilters();
    evaluate();
}

void RBodeplotCurve::refresh(const QList<QSharedPointer<tamble::common::CalculationItem>> &data)
{
    ConvertedFilters filters;
    filters.records.assign(data.begin(), data.end());
    m_listIsStale = false;
    m_filters.setFilters(std::move(filters));
    evaluate();
}

} // namespace tamble::client
