#include "bodeplot/filters/FilterConversion.h"

#include "base/ControlLog.h"
#include "bodeplot/filters/FilterFields.h"
#include "bodeplot/filters/RBodeplotAsymmetricEqFilter.h"
#include "bodeplot/filters/RBodeplotEqFilter.h"
#include "bodeplot/filters/RBodeplotFIRFilter.h"
#include "bodeplot/filters/RBodeplotXOverFilter.h"

#include <QtCore/QDebug>
#include <QtCore/QVariant>

#include <string>
#include <utility>

namespace tamble::client {

namespace {

enum class Precision { Double, Single };

/// Reads properties by their names; what is missing or of another type reads as the default.
class PropertyReader
{
public:
    PropertyReader(const QObject &object, Precision precision)
        : m_object(object)
        , m_precision(precision)
    {}

    void read(const char *name, bool &value) const
    {
        const QVariant found = m_object.property(name);
        if (found.canConvert<bool>())
            value = found.toBool();
    }

    void read(const char *name, int &value) const
    {
        bool isNumber = false;
        const int found = m_object.property(name).toInt(&isNumber);
        if (isNumber)
            value = found;
    }

    void read(const char *name, double &value) const
    {
        bool isNumber = false;
        const double found = m_object.property(name).toDouble(&isNumber);
        if (isNumber)
            value = m_precision == Precision::Single ? double(float(found)) : found;
    }

    void read(const char *name, QString &value) const
    {
        const QVariant found = m_object.property(name);
        if (found.canConvert<QString>())
            value = found.toString();
    }

    void read(const char *name, std::string &value) const { value = m_object.property(name).toString().toStdString(); }

    void read(const char *name, std::vector<double> &value) const
    {
        const auto found = m_object.property(name).value<QList<qreal>>();
        value.assign(found.begin(), found.end());
    }

private:
    const QObject &m_object;
    Precision m_precision;
};

template <typename Record>
FilterRecord recordOf(const PropertyReader &reader, Record record = {})
{
    forEachField<Record>([&](const auto &field) { reader.read(field.name, record.*field.member); });
    return QSharedPointer<Record>::create(std::move(record));
}

FilterRecord recordOfItem(const QObject &item)
{
    const PropertyReader reader(item, Precision::Double);
    if (qobject_cast<const RBodeplotEqFilter *>(&item))
        return recordOf<EqFilterExtended>(reader);
    if (qobject_cast<const RBodeplotXOverFilter *>(&item))
        return recordOf<XOverFilterExtended>(reader);
    if (qobject_cast<const RBodeplotFIRFilter *>(&item))
        return recordOf<FIRFilterExtended>(reader);
    if (qobject_cast<const RBodeplotAsymmetricEqFilter *>(&item))
        return recordOf<AsymmetricEqFilterExtended>(reader);
    return {};
}

/// Any object as a band; `place` counts from 0.
FilterRecord recordOfObject(const QObject &object, qsizetype place)
{
    const PropertyReader reader(object, Precision::Single);
    int type = 0;
    reader.read("type", type);
    const auto labelled = [&](auto record) {
        record.label = QString::number(place + 1);
        return recordOf(reader, std::move(record));
    };
    return tamble::common::EqType(type) == tamble::common::EqType::Asymmetric ? labelled(AsymmetricEqFilterExtended())
                                                                              : labelled(EqFilterExtended());
}

} // namespace

ConvertedFilters calculationItemsQListToStdVector(const QList<RBodeplotCalculationItem *> &items)
{
    ConvertedFilters converted;
    for (qsizetype i = 0; i < items.size(); ++i) {
        const FilterRecord record = items[i] ? recordOfItem(*items[i]) : FilterRecord();
        if (!record) {
            qCWarning(controlLog) << "calculationItemsQListToStdVector() calculationItem at index" << i
                                  << "is not an RBodeplotEqFilter / RBodeplotXOverFilter / RBodeplotFIRFilter / "
                                     "RBodeplotAsymmetricEqFilter";
            continue;
        }
        converted.records.push_back(record);
        converted.sources.push_back(items[i]);
        converted.places.push_back(i);
    }
    return converted;
}

ConvertedFilters calculationItemsQmlListReferenceToStdVector(const QQmlListReference &reference)
{
    ConvertedFilters converted;
    converted.fromReference = true;
    if (!reference.canCount() || !reference.canAt()) {
        qCWarning(controlLog) << "calculationItemsQmlListReferenceToStdVector() count function not implemented";
        return converted;
    }
    for (qsizetype i = 0; i < reference.count(); ++i) {
        QObject *object = reference.at(i);
        if (!object)
            continue;
        converted.records.push_back(recordOfObject(*object, i));
        converted.sources.push_back(object);
        converted.places.push_back(i);
    }
    return converted;
}

FilterRecord convertedAgain(const ConvertedFilters &filters, std::size_t position)
{
    const QObject &source = *filters.sources.at(position);
    return filters.fromReference ? recordOfObject(source, filters.places.at(position)) : recordOfItem(source);
}

} // namespace tamble::client
