#include "bodeplot/ListedFilters.h"

#include "base/ControlLog.h"

#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

ListedFilters *listsOf(const QQmlListProperty<RBodeplotCalculationItem> *list)
{
    return static_cast<ListedFilters *>(list->data);
}

} // namespace

ListedFilters::ListedFilters(QQuickItem *curve)
    : m_curve(curve)
{}

ListedFilters::~ListedFilters()
{
    for (RBodeplotCalculationItem *item : std::as_const(m_items))
        item->disconnect(this);
}

QQmlListProperty<RBodeplotCalculationItem> ListedFilters::items()
{
    return {m_curve, this, &appendItem, &itemCount, &itemAt, &clearItems};
}

QQmlListReference ListedFilters::reference()
{
    if (m_reference.isValid())
        return m_reference;
    // The script engine crashes on a reference to nothing.
    const auto count = [](QQmlListProperty<QObject> *) { return qsizetype(0); };
    const auto at = [](QQmlListProperty<QObject> *, qsizetype) -> QObject * { return nullptr; };
    return QQmlListReference(QVariant::fromValue(QQmlListProperty<QObject>(m_curve, nullptr, count, at)));
}

void ListedFilters::setReference(const QQmlListReference &reference)
{
    // An equal reference names the same list, but that list may have new contents: that is when a binding comes here.
    m_reference = reference;
    Q_EMIT referenceChanged();
}

// The filters get no visual parent: their `visible` must tell what the page wrote, not whether the plot is on screen.
void ListedFilters::appendItem(ItemList *list, RBodeplotCalculationItem *item)
{
    ListedFilters *lists = listsOf(list);
    if (!item) {
        if (!std::exchange(lists->m_hasToldOfNoFilter, true))
            warnOfPage(lists->m_curve,
                       QStringLiteral("what is no filter item, such as RBodeplotEqFilter, is left out of "
                                      "calculationItems; other objects go in calculationItemsReference"));
        return;
    }
    lists->m_items.append(item);
    connect(item, &QObject::destroyed, lists, &ListedFilters::forgetItem, Qt::UniqueConnection);
    Q_EMIT lists->itemsChanged();
}

qsizetype ListedFilters::itemCount(ItemList *list)
{
    return listsOf(list)->m_items.size();
}

RBodeplotCalculationItem *ListedFilters::itemAt(ItemList *list, qsizetype index)
{
    return listsOf(list)->m_items.value(index);
}

void ListedFilters::clearItems(ItemList *list)
{
    ListedFilters *lists = listsOf(list);
    if (lists->m_items.isEmpty())
        return;
    for (RBodeplotCalculationItem *item : std::as_const(lists->m_items))
        item->disconnect(lists);
    lists->m_items.clear();
    Q_EMIT lists->itemsChanged();
}

void ListedFilters::forgetItem(QObject *item)
{
    const auto isItem = [item](const QObject *candidate) { return candidate == item; };
    if (erase_if(m_items, isItem) > 0)
        Q_EMIT itemsChanged();
}

bool ListedFilters::isListed(QObject *filter) const
{
    const auto isFilter = [filter](const QObject *listed) { return listed == filter; };
    if (std::ranges::any_of(m_items, isFilter))
        return true;
    const QQmlListReference &reference = m_reference;
    const auto count = reference.isValid() && reference.canCount() && reference.canAt() ? reference.count() : 0;
    for (qsizetype i = 0; i < count; ++i) {
        if (isFilter(reference.at(i)))
            return true;
    }
    return false;
}

void ListedFilters::tellOfUnlisted()
{
    QList<QPointer<QObject>> unlisted;
    for (QQuickItem *child : m_curve->childItems()) {
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

ConvertedFilters ListedFilters::converted() const
{
    if (!m_items.isEmpty())
        return calculationItemsQListToStdVector(m_items);
    return m_reference.isValid() ? calculationItemsQmlListReferenceToStdVector(m_reference) : ConvertedFilters();
}

} // namespace tamble::client
