#pragma once

#include <tamblecommon-math/CalculationItem.h>

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <vector>

namespace tamble::client {

// What a curve keeps of each filter: the record that is evaluated, and what only its display needs.

struct EqFilterExtended : tamble::common::EqFilter
{
    bool visible = true;
    bool errorFlag = false;
    QString label;
};

struct AsymmetricEqFilterExtended : tamble::common::AsymmetricEqFilter
{
    bool visible = true;
    bool errorFlag = false;
    QString label;
};

struct XOverFilterExtended : tamble::common::XOverFilter
{
    bool visible = true;
    bool errorFlag = false;
    QString label;
};

struct FIRFilterExtended : tamble::common::FIRFilter
{
    bool visible = true;
    bool errorFlagHP = false;
    bool errorFlagLP = false;
    QString labelHP;
    QString labelLP;
};

using FilterRecord = QSharedPointer<tamble::common::CalculationItem>;
using FilterRecords = std::vector<FilterRecord>;

/// How the curve of one record is drawn.
struct RecordDisplay
{
    bool visible = false; ///< False for null records and for those of no known kind, too.
    bool bypass = false;
};
RecordDisplay recordDisplay(const tamble::common::CalculationItem *record);

/// Whether a band of an equaliser has a slope that RBodeplotSlopeTypeEnum does not know; false for other records.
bool hasUnknownSlope(const tamble::common::CalculationItem *record);

/// Whether an equaliser type has no gain: high pass, low pass, all pass, band pass and notch.
bool isWithoutGain(int eqType);

/// Brings a record in the form in which it is evaluated and shown: pass bands, all passes and notches have no gain, and
/// a crossover is labelled by its side.
void settleRecord(tamble::common::CalculationItem &record);

/// A copy with its display fields, null for null and for a record of no known kind.
FilterRecord copyRecord(const tamble::common::CalculationItem *record);

/// Whether both records are of one kind and have the same response.
bool sameResponse(const tamble::common::CalculationItem *a, const tamble::common::CalculationItem *b);

} // namespace tamble::client
