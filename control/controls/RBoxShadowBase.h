#pragma once

#include "base/ControlExport.h"

#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include <optional>

namespace tamble::client {

/// Paints a soft shadow and follows what casts it, its target.
///
/// Below a sibling of the same z it is stacked directly below that one, whichever was declared first: a lower z would
/// put it below what their parent paints as well. It takes no place in a row, a column or another positioner.
class TAMBLE_CLIENT_CONTROL_EXPORT RBoxShadowBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBoxShadowBase)
    Q_PROPERTY(QQuickItem *target READ target WRITE setTarget NOTIFY targetChanged FINAL)
    Q_PROPERTY(qreal spread READ spread WRITE setSpread NOTIFY spreadChanged FINAL)
    Q_PROPERTY(qreal darkness READ darkness WRITE setDarkness NOTIFY darknessChanged FINAL)
    Q_PROPERTY(qreal offsetX READ offsetX WRITE setOffsetX NOTIFY offsetXChanged FINAL)
    Q_PROPERTY(qreal offsetY READ offsetY WRITE setOffsetY NOTIFY offsetYChanged FINAL)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)
    Q_PROPERTY(qreal edgeWidth READ edgeWidth WRITE setEdgeWidth NOTIFY edgeWidthChanged FINAL)
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged FINAL)
    /// Of the style: its alpha is the darkness.
    Q_PROPERTY(QColor ssShadow READ ssShadow WRITE setSsShadow NOTIFY ssShadowChanged FINAL)

public:
    explicit RBoxShadowBase(QQuickItem *parent = nullptr);
    ~RBoxShadowBase() override;

    /// What casts the shadow: the parent, which is the default, or a sibling; null for nothing.
    QQuickItem *target() const { return m_target; }
    void setTarget(QQuickItem *target);
    /// How far the shadow reaches beyond the target, in pixels.
    qreal spread() const { return m_spread; }
    void setSpread(qreal spread);
    /// From 0, no shadow, to 1, black at the edge of the target.
    qreal darkness() const { return m_darkness.value_or(qreal(m_ssShadow.alphaF())); }
    void setDarkness(qreal darkness);
    /// Shift of the shadow in pixels, `offsetX` to the right and `offsetY` downwards.
    qreal offsetX() const { return m_offset.x(); }
    void setOffsetX(qreal offset);
    qreal offsetY() const { return m_offset.y(); }
    void setOffsetY(qreal offset);
    /// False shows no shadow; true by default.
    bool isActive() const { return m_isActive; }
    void setActive(bool active);
    /// Width in pixels of the edge that stands in for the shadow where nothing draws shaders.
    qreal edgeWidth() const { return m_edgeWidth; }
    void setEdgeWidth(qreal width);
    /// Whether anything is drawn.
    bool isShown() const { return m_isShown; }
    QColor ssShadow() const { return m_ssShadow; }
    void setSsShadow(const QColor &color);

Q_SIGNALS:
    void targetChanged();
    void spreadChanged();
    void darknessChanged();
    void offsetXChanged();
    void offsetYChanged();
    void activeChanged();
    void edgeWidthChanged();
    void shownChanged();
    void ssShadowChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    void follow(QQuickItem *target);
    void stack();
    void place();
    void change();

    QPointer<QQuickItem> m_target;
    QColor m_ssShadow = Qt::transparent;
    std::optional<qreal> m_darkness; ///< What the page has set.
    QPointF m_offset;
    qreal m_spread = 0.0;
    qreal m_edgeWidth = 1.0;
    bool m_isActive = true;
    bool m_isShown = false;
    bool m_hasOwnTarget = false; ///< The page has named one.
    bool m_isPlacing = false;
};

} // namespace tamble::client
