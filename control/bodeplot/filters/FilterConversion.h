#pragma once

#include "bodeplot/filters/FilterRecords.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtQml/QQmlListReference>

#include <vector>

namespace tamble::client {

class RBodeplotCalculationItem;

/// Filter records and the objects that they were made from, position by position.
struct ConvertedFilters
{
    FilterRecords records;
    std::vector<QObject *> sources;
    std::vector<qsizetype> places; ///< Of the objects in the list that they were taken from.
    bool fromReference = false;
};

/// Records of the filter items of a list. Items of any other type are skipped with a warning, so that positions can
/// differ from those of the list.
ConvertedFilters calculationItemsQListToStdVector(const QList<RBodeplotCalculationItem *> &items);

/// Records of any objects that have filter-named properties; each is a band of an equaliser. A property that an object
/// lacks, or has with another type, takes its default, and an unlabelled band is labelled with its place from 1. Real
/// values are rounded to single precision, as the pages that use this way exchange them. Null objects are skipped.
ConvertedFilters calculationItemsQmlListReferenceToStdVector(const QQmlListReference &reference);

/// Makes one of the records anew from its object.
FilterRecord convertedAgain(const ConvertedFilters &filters, std::size_t position);

} // namespace tamble::client
