#pragma once

#include "base/ControlExport.h"
#include "meter/BarRedraws.h"
#include "meter/MeterAnnouncer.h"
#include "meter/MeterBarNode.h"
#include "meter/RMeterBase.h"

#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include <memory>

namespace tamble::client {

/// Draws the bar of a meter: its ground and lit zones, as rectangles of one scene-graph node.
///
/// It follows the meter itself rather than by bindings, since walls of hundreds of meters move several times a second.
/// A hidden or empty bar does nothing and reads no factor; a level that lights the same pixels repaints nothing; what
/// falls may wait for others, see BarRedraws.
class TAMBLE_CLIENT_CONTROL_EXPORT RMeterBar : public QQuickItem, private WaitingBar
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMeterBar)
    /// The meter whose level is drawn; null for none. Not owned.
    Q_PROPERTY(tamble::client::RMeterBase *meter READ meter WRITE setMeter NOTIFY meterChanged FINAL)
    Q_PROPERTY(bool horizontal READ isHorizontal WRITE setHorizontal NOTIFY horizontalChanged FINAL)
    Q_PROPERTY(bool reverse READ isReverse WRITE setReverse NOTIFY reverseChanged FINAL)
    /// Colours: `ground` of the unlit part, `green`, `yellow` and `red` of the lit zones.
    Q_PROPERTY(QColor ground READ ground WRITE setGround NOTIFY groundChanged FINAL)
    Q_PROPERTY(QColor green READ green WRITE setGreen NOTIFY greenChanged FINAL)
    Q_PROPERTY(QColor yellow READ yellow WRITE setYellow NOTIFY yellowChanged FINAL)
    Q_PROPERTY(QColor red READ red WRITE setRed NOTIFY redChanged FINAL)
    Q_PROPERTY(QString unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)

public:
    explicit RMeterBar(QQuickItem *parent = nullptr);

    RMeterBase *meter() const { return m_meter; }
    void setMeter(RMeterBase *meter);
    /// Whether the bar lies and grows to the right rather than upwards; a split meter always stands.
    bool isHorizontal() const { return m_layout.horizontal; }
    void setHorizontal(bool horizontal);
    /// Whether the bar grows from its other end; a split meter ignores it.
    bool isReverse() const { return m_layout.reverse; }
    void setReverse(bool reverse);
    QColor ground() const { return color(MeterZone::Ground); }
    void setGround(const QColor &color) { setColor(MeterZone::Ground, color, &RMeterBar::groundChanged); }
    QColor green() const { return color(MeterZone::Green); }
    void setGreen(const QColor &color) { setColor(MeterZone::Green, color, &RMeterBar::greenChanged); }
    QColor yellow() const { return color(MeterZone::Yellow); }
    void setYellow(const QColor &color) { setColor(MeterZone::Yellow, color, &RMeterBar::yellowChanged); }
    QColor red() const { return color(MeterZone::Red); }
    void setRed(const QColor &color) { setColor(MeterZone::Red, color, &RMeterBar::redChanged); }

    /// Unit of the levels for assistive tools; "dB" by default.
    QString unit() const { return m_unit; }
    void setUnit(const QString &unit);

    const MeterSegments &segments() const { return m_segments; }

Q_SIGNALS:
    void meterChanged();
    void horizontalChanged();
    void reverseChanged();
    void groundChanged();
    void greenChanged();
    void yellowChanged();
    void redChanged();
    void unitChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    QColor color(MeterZone zone) const { return m_colors.at(std::size_t(zone)); }
    void setColor(MeterZone zone, const QColor &color, void (RMeterBar::*changed)());
    void draw() override { update(); }
    void follow();
    void repaint();
    QSGNode *updateBar(QSGNode *oldNode);
    bool liesDown() const;
    double pixelRatio() const;
    MeterSegments currentSegments() const;

    QPointer<RMeterBase> m_meter;
    std::unique_ptr<MeterAnnouncer> m_announcer; // while there is a meter
    QString m_unit = QStringLiteral("dB");
    MeterLayout m_layout;
    MeterColors m_colors;
    MeterSegments m_segments; // as last followed
    double m_level = 0.0;     // dB, as last followed
    bool m_barDirty = false;  // the node does not show these segments and colours
};

} // namespace tamble::client
