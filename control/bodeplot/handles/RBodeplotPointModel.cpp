#include "bodeplot/handles/RBodeplotPointModel.h"

namespace tamble::client {

RBodeplotPointModel::RBodeplotPointModel(QObject *parent)
    : QObject(parent)
{}

template <typename Value>
void RBodeplotPointModel::assign(Value &member, const Value &value, void (RBodeplotPointModel::*changed)())
{
    if (member == value)
        return;
    member = value;
    Q_EMIT(this->*changed)();
}

void RBodeplotPointModel::update(const FilterHandle &handle, int index, bool selected)
{
    assign(m_moveMode, handle.motion, &RBodeplotPointModel::moveModeChanged);
    assign(m_frequency, handle.frequencyHz, &RBodeplotPointModel::frequencyChanged);
    assign(m_gain, handle.gainDb, &RBodeplotPointModel::gainChanged);
    assign(m_quality, handle.quality, &RBodeplotPointModel::qualityChanged);
    assign(m_hasQuality, handle.hasQuality, &RBodeplotPointModel::hasQualityChanged);
    assign(m_dragsQuality, handle.qualityLimit.has_value(), &RBodeplotPointModel::dragsQualityChanged);
    setPoint(handle.point);
    assign(m_index, index, &RBodeplotPointModel::indexChanged);
    assign(m_label, handle.label, &RBodeplotPointModel::labelChanged);
    assign(m_errorFlag, handle.errorFlag, &RBodeplotPointModel::errorFlagChanged);
    assign(m_visiblePoint, !handle.bypass, &RBodeplotPointModel::visiblePointChanged);
    setSelected(selected);
}

void RBodeplotPointModel::setSelected(bool selected)
{
    assign(m_selected, selected, &RBodeplotPointModel::selectedChanged);
}

void RBodeplotPointModel::setPoint(const QPointF &point)
{
    assign(m_point, point, &RBodeplotPointModel::pointChanged);
}

} // namespace tamble::client
