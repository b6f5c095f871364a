#pragma once

#include "base/ControlExport.h"

#include <QtCore/QPointF>
#include <QtCore/QUrl>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Cursor shape for its parent's area. It takes no events.
///
/// `shape` is a `Qt::CursorShape`; a readable `source` picture wins over it. `overrideAll` applies the cursor to the
/// whole application. `position` is global.
class TAMBLE_CLIENT_CONTROL_EXPORT RMouseCursor : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMouseCursor)
    Q_PROPERTY(int shape MEMBER m_shape NOTIFY shapeChanged)
    Q_PROPERTY(QUrl source MEMBER m_source NOTIFY sourceChanged)
    Q_PROPERTY(QPointF hotSpot MEMBER m_hotSpot NOTIFY hotSpotChanged)
    Q_PROPERTY(bool active MEMBER m_active NOTIFY activeChanged)
    Q_PROPERTY(bool overrideAll MEMBER m_overrideAll NOTIFY overrideAllChanged)
    Q_PROPERTY(QPointF position READ position NOTIFY positionChanged)

public:
    explicit RMouseCursor(QQuickItem *parent = nullptr);

    QPointF position() const { return m_position; }

Q_SIGNALS:
    void shapeChanged();
    void sourceChanged();
    void hotSpotChanged();
    void activeChanged();
    void overrideAllChanged();
    void positionChanged();

private:
    int m_shape = Qt::ArrowCursor;
    QUrl m_source;
    QPointF m_hotSpot;
    bool m_active = true;
    bool m_overrideAll = false;
    QPointF m_position;
};

} // namespace tamble::client
