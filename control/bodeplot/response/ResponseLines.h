#pragma once

#include "bodeplot/response/ResponseColumns.h"
#include "scenegraph/FrameClip.h"

#include <tamblecommon-math/BodePlotCalculation.h>

#include <optional>
#include <vector>

namespace tamble::client {

/// One line of a curve in pixels, cut to the frame.
struct ResponseLine
{
    std::vector<double> columns; ///< Pixel y of each pixel column, NaN where nothing was computed.
    PolylineRuns points;
    unsigned revision = 0; ///< Another number for every change, so that a node can tell whether it is up to date.
    bool stale = true;
};

/// The lines of all records and of their sum, each kept until something that it shows has changed.
class ResponseLines
{
public:
    /// What is shown of the results.
    struct Settings
    {
        ResponseView view;
        bool phase = false;
        double trim = 0.0; ///< Added to the sum, not to the records' own curves.

        bool operator==(const Settings &) const = default;
    };

    /// Line of the sum, and the upper edge of its area in the frame.
    const ResponseLine &aggregated() const { return m_aggregated; }
    const PolylineRuns &area() const { return m_area; }
    /// Pixel y of 0 dB, held within the frame.
    double axisY() const { return m_axisY; }
    const std::vector<ResponseLine> &records() const { return m_records; }

    void recordChanged(int record);
    void allChanged();

    /// Brings the sum and the records that are asked for up to date; the lines of others become empty. Returns the
    /// first column index that the results have no value for, if there is one.
    std::optional<int> update(const tamble::common::BodePlotCalculationResults &results, const Settings &settings,
                              const std::vector<bool> &shownRecords);

private:
    void updateAggregated(const tamble::common::FilterResponse &response);
    void updateLine(ResponseLine &line, const std::vector<double> &values, double offset);
    void clear(ResponseLine &line);

    Settings m_settings;
    std::vector<int> m_samples;
    std::vector<ResponseLine> m_records;
    ResponseLine m_aggregated;
    PolylineRuns m_outline;
    PolylineRuns m_area;
    double m_axisY = 0.0;
    unsigned m_lastRevision = 0;
};

} // namespace tamble::client
