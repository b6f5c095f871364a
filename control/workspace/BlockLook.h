#pragma once

#include <QtQuick/QQuickItem>

namespace tamble::client {

class RTintedImage;
class RWorkspaceBlock;

/// What an item of a workspace shows around its content: ground, border and marks, header and value bar. Made when the
/// item first comes into view, and hidden out of it. The workspace draws the frame of the keyboard focus.
///
/// It is placed natively and painted as one node, since a zoomed-out view shows hundreds.
class BlockLook : public QQuickItem
{
    Q_OBJECT

public:
    /// In density-independent units.
    static constexpr qreal headerHeight = 24.0;

    /// A child of its item.
    explicit BlockLook(RWorkspaceBlock &block);

    /// Brings everything in line with the item.
    void refresh();
    /// Null until there is one to be seen.
    QQuickItem *valueBar() const { return m_valueBar; }
    /// The item has another component for it.
    void dropValueBar();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) override;

private:
    QSGNode *updateFrame(QSGNode *oldNode) const;
    void showValueBar();
    void showTitle();
    void showIcon(RTintedImage *&icon, const QString &key, qreal size);
    void layOut();
    void layOutHeader();
    void layOutOverview();

    RWorkspaceBlock &m_block;
    QQuickItem *m_title = nullptr; // all of these are children, made when first needed; icons go with their keys
    RTintedImage *m_icon = nullptr;
    RTintedImage *m_statusIcon = nullptr;
    RTintedImage *m_lockIcon = nullptr;
    QQuickItem *m_valueBar = nullptr;
    bool m_hasAskedForBar = false;
};

} // namespace tamble::client
