#include "bodeplot/response/CurvePixels.h"

#include "scenegraph/FrameClip.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

/// The curve in pixels, not cut, in pieces without interruption.
QList<QList<QPointF>> unbrokenPieces(const SampledCurve &curve, const PlotAxes &axes, const QSizeF &size)
{
    QList<QList<QPointF>> pieces(1);
    for (qsizetype i = 0; i < curve.points.size(); ++i) {
        const QPointF place = axes.toNormalised(curve.at(i));
        if (std::isfinite(place.x()) && std::isfinite(place.y()))
            pieces.last().append({place.x() * size.width(), place.y() * size.height()});
        else if (!pieces.last().isEmpty())
            pieces.append(QList<QPointF>());
    }
    return pieces;
}

/// Appends the points from `first` to before `last`, which share a column.
void appendColumn(QList<QPointF> &reduced, QList<QPointF>::const_iterator first, QList<QPointF>::const_iterator last)
{
    if (last - first <= 2) {
        std::copy(first, last, std::back_inserter(reduced));
        return;
    }
    const auto isAbove = [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); };
    const auto [highest, lowest] = std::minmax_element(first, last, isAbove);
    reduced.append(highest < lowest ? *highest : *lowest);
    reduced.append(highest < lowest ? *lowest : *highest);
}

} // namespace

int visibleCount(const SampledCurve &curve, const PlotAxes &axes)
{
    int count = 0;
    for (qsizetype i = 0; axes.isShowable() && i < curve.points.size(); ++i)
        count += axes.contains(curve.at(i)) ? 1 : 0;
    return count;
}

QList<QPointF> reducedToColumns(const QList<QPointF> &pixels)
{
    QList<QPointF> reduced;
    reduced.reserve(pixels.size());
    for (auto first = pixels.cbegin(); first != pixels.cend();) {
        const double column = std::floor(first->x());
        const auto last = std::find_if(first, pixels.cend(),
                                       [column](const QPointF &point) { return std::floor(point.x()) != column; });
        appendColumn(reduced, first, last);
        first = last;
    }
    return reduced;
}

QList<QList<QPointF>> curvePixels(const SampledCurve &curve, const PlotAxes &axes, const QSizeF &size)
{
    QList<QList<QPointF>> lines;
    if (!axes.isShowable() || size.isEmpty())
        return lines;
    const QRectF area(QPointF(), size);
    for (const QList<QPointF> &piece : unbrokenPieces(curve, axes, size))
        lines += clipPolyline(reducedToColumns(piece), area);
    return lines;
}

} // namespace tamble::client
