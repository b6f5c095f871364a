#pragma once

#include "bodeplot/filters/FilterConversion.h"
#include "bodeplot/filters/RBodeplotCalculationItem.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtQml/QQmlListProperty>
#include <QtQml/QQmlListReference>

class QQuickItem;

namespace tamble::client {

/// The filters that a page gives a curve: items of the module or, when there are none, any objects with filter-named
/// properties.
class ListedFilters : public QObject
{
    Q_OBJECT

public:
    /// `curve` owns the lists and is who warnings are about.
    explicit ListedFilters(QQuickItem *curve);
    ~ListedFilters() override;

    /// A filter that is destroyed leaves the list by itself.
    QQmlListProperty<RBodeplotCalculationItem> items();
    /// An empty list while none is set and when its owner is gone.
    QQmlListReference reference();
    void setReference(const QQmlListReference &reference);

    /// The records of the filters that count.
    ConvertedFilters converted() const;
    /// Warns, with the next event, of filters among the curve's children that neither list names then.
    void tellOfUnlisted();

Q_SIGNALS:
    void itemsChanged();
    void referenceChanged();

private:
    using ItemList = QQmlListProperty<RBodeplotCalculationItem>;

    static void appendItem(ItemList *list, RBodeplotCalculationItem *item);
    static qsizetype itemCount(ItemList *list);
    static RBodeplotCalculationItem *itemAt(ItemList *list, qsizetype index);
    static void clearItems(ItemList *list);
    void forgetItem(QObject *item);
    bool isListed(QObject *filter) const;

    QQuickItem *m_curve;
    QList<RBodeplotCalculationItem *> m_items;
    QQmlListReference m_reference;
    bool m_hasToldOfNoFilter = false;
};

} // namespace tamble::client
