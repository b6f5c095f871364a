#pragma once

#include "base/ControlExport.h"

#include <QtCore/QPointF>
#include <QtCore/QUrl>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Declared only: nothing follows from its properties yet.
///
/// Cursor shape for its parent's area. It takes no events.
///
/// `shape` is a `Qt::CursorShape`; a readable `source` picture wins over it. `overrideAll` applies the cursor to the
/// whole application. `position` is global.
class TAMBLE_CLIENT_CONTROL_EXPORT RMouseCursor : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMouseCursor)
    /// Shape of the cursor, a `Qt::CursorShape`.
    Q_PROPERTY(int shape MEMBER m_shape NOTIFY shapeChanged)
    /// Picture that takes the place of the shape; empty for none.
    Q_PROPERTY(QUrl source MEMBER m_source NOTIFY sourceChanged)
    /// Point of the picture that points, in its pixels.
    Q_PROPERTY(QPointF hotSpot MEMBER m_hotSpot NOTIFY hotSpotChanged)
    /// False leaves the cursor as it is.
    Q_PROPERTY(bool active MEMBER m_active NOTIFY activeChanged)
    /// Whether the cursor holds for the whole application, as during a drag.
    Q_PROPERTY(bool overrideAll MEMBER m_overrideAll NOTIFY overrideAllChanged)
    /// Place of the pointer on the desktop, in device-independent pixels.
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
