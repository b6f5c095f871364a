#pragma once

#include "base/ControlExport.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>
#include <QtQuick/private/qquickitemchangelistener_p.h>

namespace tamble::client {

/// What a page puts into a dialog. Its implicit size, in pixels, is what its children ask for: their place and implicit
/// size, or their size where they have none. A text that wraps asks for no width.
class TAMBLE_CLIENT_CONTROL_EXPORT RDialogBody : public QQuickItem, private QQuickItemChangeListener
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RDialogBody)
    Q_PROPERTY(qreal reach READ reach NOTIFY reachChanged FINAL)

public:
    explicit RDialogBody(QQuickItem *parent = nullptr);
    ~RDialogBody() override;

    /// Where the rightmost child ends, in pixels: beyond the width where that is less than the children can do with.
    qreal reach() const { return m_reach; }

Q_SIGNALS:
    void reachChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void itemGeometryChanged(QQuickItem *, QQuickGeometryChange, const QRectF &) override { measure(); }
    void itemImplicitWidthChanged(QQuickItem *) override { measure(); }
    void itemImplicitHeightChanged(QQuickItem *) override { measure(); }
    void itemVisibilityChanged(QQuickItem *) override { measure(); }
    void watch(QQuickItem &child, bool watched);
    void measure();

    qreal m_reach = 0.0;
};

} // namespace tamble::client
