#pragma once

#include <QtCore/QObject>

#include <vector>

namespace tamble::client {

/// Tells when one of some objects changes a property that a filter has. Works by the names of the properties, for
/// filter items as well as for any object that a page lists.
class FilterWatch : public QObject
{
    Q_OBJECT

public:
    /// Objects that are watched already keep their connections.
    void setFilters(const std::vector<QObject *> &filters);

Q_SIGNALS:
    /// A property other than `header` and `selected` changed.
    void filterChanged(QObject *filter);
    /// The filter's `header` changed.
    void filterHeaderChanged(QObject *filter);
    /// The filter's `selected` changed.
    void filterSelectionChanged(QObject *filter);
    void filterDestroyed(QObject *filter);

private Q_SLOTS:
    void reportChange();
    void reportHeader();
    void reportSelection();
    void reportEnd(QObject *filter);

private:
    void watch(QObject *filter);

    std::vector<QObject *> m_filters;
};

} // namespace tamble::client
