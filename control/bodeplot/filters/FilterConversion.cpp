#include "bodeplot/filters/FilterConversion.h"

#include "base/ControlLog.h"
#include "bodeplot/filters/RBodeplotAsymmetricEqFilter.h"
#include "bodeplot/filters/RBodeplotEqFilter.h"
#include "bodeplot/filters/RBodeplotFIRFilter.h"
#include "bodeplot/filters/RBodeplotXOverFilter.h"

#include <QtCore/QDebug>
#include <QtCore/QVariant>

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

    template <typename Value>
    Value value(const char *name) const
    {
        return m_object.property(name).value<Value>();
    }

private:
    const QObject &m_object;
    Precision m_precision;
};

template <typename Record>
void readDisplay(const PropertyReader &reader, Record &record)
{
    reader.read("visible", record.visible);
    reader.read("errorFlag", record.errorFlag);
    reader.read("label", record.label);
}

template <typename Record>
void readBand(const PropertyReader &reader, Record &record)
{
    reader.read("bypass", record.bypass);
    reader.read("type", record.type);
    reader.read("freq", record.freq);
    reader.read("gain", record.gain);
    reader.read("quality", record.quality);
    reader.read("slope", record.slope);
    readDisplay(reader, record);
}

FilterRecord eqRecord(const PropertyReader &reader, const QString &label = {})
{
    auto record = QSharedPointer<EqFilterExtended>::create();
    record->label = label;
    readBand(reader, *record);
    return record;
}

FilterRecord asymmetricRecord(const PropertyReader &reader, const QString &label = {})
{
    auto record = QSharedPointer<AsymmetricEqFilterExtended>::create();
    record->label = label;
    readBand(reader, *record);
    reader.read("freq2", record->freq2);
    reader.read("quality2", record->quality2);
    return record;
}

FilterRecord xOverRecord(const PropertyReader &reader)
{
    auto record = QSharedPointer<XOverFilterExtended>::create();
    reader.read("bypass", record->bypass);
    reader.read("type", record->type);
    reader.read("freq", record->freq);
    reader.read("category", record->category);
    readDisplay(reader, *record);
    return record;
}

FilterRecord firRecord(const PropertyReader &reader)
{
    auto record = QSharedPointer<FIRFilterExtended>::create();
    reader.read("bypass", record->bypass);
    reader.read("type", record->type);
    reader.read("order", record->order);
    reader.read("freqHP", record->freqHP);
    reader.read("freqLP", record->freqLP);
    reader.read("slope", record->slope);
    reader.read("generateCoefficients", record->generateCoefficients);
    reader.read("visible", record->visible);
    reader.read("errorFlagHP", record->errorFlagHP);
    reader.read("errorFlagLP", record->errorFlagLP);
    reader.read("labelHP", record->labelHP);
    reader.read("labelLP", record->labelLP);
    record->header = reader.value<QString>("header").toStdString();
    const auto coefficients = reader.value<QList<qreal>>("coefficients");
    record->coefficients.assign(coefficients.begin(), coefficients.end());
    return record;
}

FilterRecord recordOfItem(const QObject &item)
{
    const PropertyReader reader(item, Precision::Double);
    if (qobject_cast<const RBodeplotEqFilter *>(&item))
        return eqRecord(reader);
    if (qobject_cast<const RBodeplotXOverFilter *>(&item))
        return xOverRecord(reader);
    if (qobject_cast<const RBodeplotFIRFilter *>(&item))
        return firRecord(reader);
    if (qobject_cast<const RBodeplotAsymmetricEqFilter *>(&item))
        return asymmetricRecord(reader);
    return {};
}

/// Any object as a band; `place` counts from 0.
FilterRecord recordOfObject(const QObject &object, qsizetype place)
{
    constexpr int asymmetricType = RBodeplotEqTypeEnum::ASYMMETRIC;
    const PropertyReader reader(object, Precision::Single);
    const QString label = QString::number(place + 1);
    int type = 0;
    reader.read("type", type);
    return type == asymmetricType ? asymmetricRecord(reader, label) : eqRecord(reader, label);
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
