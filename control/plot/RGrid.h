#pragma once

#include "base/ControlExport.h"
#include "plot/RGridLayout.h"

#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Draws the lines of up to two grid layouts and, if wanted, a frame; one scene-graph node per colour.
class TAMBLE_CLIENT_CONTROL_EXPORT RGrid : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RGrid)
    Q_PROPERTY(tamble::client::RGridLayout *horizontal READ horizontal WRITE setHorizontal NOTIFY horizontalChanged)
    Q_PROPERTY(tamble::client::RGridLayout *vertical READ vertical WRITE setVertical NOTIFY verticalChanged)
    Q_PROPERTY(bool frameVisible READ isFrameVisible WRITE setFrameVisible NOTIFY frameVisibleChanged)

public:
    explicit RGrid(QQuickItem *parent = nullptr);

    /// Level lines, positions counted from the bottom; null (the default) for none. Not owned.
    RGridLayout *horizontal() const { return m_horizontal; }
    void setHorizontal(RGridLayout *horizontal);
    /// Upright lines, positions counted from the left; null (the default) for none. Not owned.
    RGridLayout *vertical() const { return m_vertical; }
    void setVertical(RGridLayout *vertical);
    /// Frame in the colour and width of the major lines; default false.
    bool isFrameVisible() const { return m_frameVisible; }
    void setFrameVisible(bool frameVisible);

Q_SIGNALS:
    void horizontalChanged();
    void verticalChanged();
    void frameVisibleChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    void assignLayout(QPointer<RGridLayout> &stored, RGridLayout *layout, void (RGrid::*changed)());
    QSGNode *updateLines(QSGNode *oldNode);
    void invalidateLines();

    QPointer<RGridLayout> m_horizontal;
    QPointer<RGridLayout> m_vertical;
    bool m_frameVisible = false;
    bool m_linesStale = true;
};

} // namespace tamble::client
