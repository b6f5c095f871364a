#include "meter/RMeterBar.h"

#include "scenegraph/SoftwarePicture.h"

#include <QtQuick/QQuickWindow>

#include <utility>

namespace tamble::client {

RMeterBar::RMeterBar(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void RMeterBar::setMeter(RMeterBase *meter)
{
    if (m_meter == meter)
        return;
    if (m_meter)
        m_meter->disconnect(this);
    m_meter = meter;
    m_announcer.reset();
    if (m_meter) {
        m_announcer = std::make_unique<MeterAnnouncer>(*m_meter);
        m_announcer->setUnit(m_unit);
        for (const auto changed :
             {&RMeterBase::currentValueFactorChanged, &RMeterBase::splitChanged, &RMeterBase::valueMinChanged,
              &RMeterBase::valueMaxChanged, &RMeterBase::valueSplitChanged})
            connect(m_meter, changed, this, &RMeterBar::follow);
    }
    follow();
    Q_EMIT meterChanged();
}

void RMeterBar::setHorizontal(bool horizontal)
{
    if (m_layout.horizontal == horizontal)
        return;
    m_layout.horizontal = horizontal;
    repaint();
    Q_EMIT horizontalChanged();
}

void RMeterBar::setReverse(bool reverse)
{
    if (m_layout.reverse == reverse)
        return;
    m_layout.reverse = reverse;
    repaint();
    Q_EMIT reverseChanged();
}

void RMeterBar::setColor(MeterZone zone, const QColor &color, void (RMeterBar::*changed)())
{
    QColor &stored = m_colors.at(std::size_t(zone));
    if (stored == color)
        return;
    stored = color;
    repaint();
    Q_EMIT(this->*changed)();
}

void RMeterBar::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        repaint();
}

void RMeterBar::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged || change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        repaint();
}

void RMeterBar::setUnit(const QString &unit)
{
    if (m_unit == unit)
        return;
    m_unit = unit;
    if (m_announcer)
        m_announcer->setUnit(unit);
    Q_EMIT unitChanged();
}

// The level or the range has changed.
void RMeterBar::follow()
{
    // Without a window there is nothing to show, and the meter may be half destroyed.
    if (!window())
        return;
    if (m_announcer)
        m_announcer->announceLevel();
    if (!m_meter || !isVisible() || width() <= 0.0 || height() <= 0.0)
        return;
    const bool fell = m_meter->getCurrentValue() < std::exchange(m_level, m_meter->getCurrentValue());
    const MeterSegments segments = currentSegments();
    if (segments == m_segments)
        return;
    m_segments = segments;
    m_barDirty = true;
    if (fell)
        BarRedraws::instance().fall(*this);
    else
        BarRedraws::instance().rise(*this);
}

// Something else than the segments has changed.
void RMeterBar::repaint()
{
    follow();
    m_barDirty = true;
    if (isVisible())
        update();
}

bool RMeterBar::liesDown() const
{
    return m_layout.horizontal && !(m_meter && m_meter->getSplit());
}

double RMeterBar::pixelRatio() const
{
    return window() ? window()->effectiveDevicePixelRatio() : 1.0;
}

MeterSegments RMeterBar::currentSegments() const
{
    const SectionFactors section = {m_meter->getCurrentValueFactor(), m_meter->getCurrentValueYellowFactor(),
                                    m_meter->getCurrentValueRedFactor()};
    if (!m_meter->getSplit())
        return barSegments(section, m_layout.horizontal ? width() : height(), pixelRatio(), m_layout);
    const SectionFactors upper = {m_meter->getCurrentValueFactorMax(), m_meter->getCurrentValueYellowFactorMax(),
                                  m_meter->getCurrentValueRedFactorMax()};
    // The sections are in proportion only while the split point is 0; pages rely on this division as it is.
    const double upperShare = m_meter->getValueMax() / ((m_meter->getValueMax() - m_meter->getValueSplit()) +
                                                        (m_meter->getValueSplit() - m_meter->getValueMin()));
    return splitSegments(upper, section, upperShare, height(), pixelRatio());
}

QSGNode *RMeterBar::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    return SoftwarePicture::updated(*this, oldNode, [this](QSGNode *old) { return updateBar(old); });
}

QSGNode *RMeterBar::updateBar(QSGNode *oldNode)
{
    if (!m_meter || width() <= 0.0 || height() <= 0.0) {
        delete oldNode;
        m_barDirty = true;
        return nullptr;
    }
    auto *node = static_cast<MeterBarNode *>(oldNode);
    if (!node) {
        node = new MeterBarNode;
        m_barDirty = true;
    }
    if (std::exchange(m_barDirty, false)) {
        const bool lies = liesDown();
        node->setBar(m_segments, float(lies ? height() : width()), lies, m_colors);
    }
    return node;
}

} // namespace tamble::client
