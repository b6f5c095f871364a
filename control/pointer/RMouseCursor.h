#pragma once

#include "base/ControlExport.h"

#include <QtCore/QPointF>
#include <QtCore/QUrl>
#include <QtGui/QCursor>
#include <QtQuick/QQuickItem>

#include <memory>

namespace tamble::client {

class SeenWatch;

/// Cursor for the area of its parent, whatever size it has itself. It takes no events, and cursors of the parent's
/// other children, such as text fields, stay as they are. Of several in one parent the last one holds.
class TAMBLE_CLIENT_CONTROL_EXPORT RMouseCursor : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMouseCursor)
    /// Shape of the cursor, a `Qt::CursorShape`; an arrow by default.
    Q_PROPERTY(int shape READ shape WRITE setShape NOTIFY shapeChanged)
    /// File or resource of a picture that takes the place of the shape, in device-independent pixels, at most 256 ×
    /// 256. The shape holds while it is empty (the default) or cannot be read.
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged)
    /// Point of the picture that points, in its pixels; its top left corner by default.
    Q_PROPERTY(QPointF hotSpot READ hotSpot WRITE setHotSpot NOTIFY hotSpotChanged)
    /// False leaves the cursor as it is. True by default.
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    /// Whether the cursor holds for the whole application, as during a drag, while it is active, enabled and can be
    /// seen. False by default.
    Q_PROPERTY(bool overrideAll READ overridesAll WRITE setOverrideAll NOTIFY overrideAllChanged)
    /// Place of the pointer on the desktop, in device-independent pixels.
    Q_PROPERTY(QPointF position READ position NOTIFY positionChanged)

public:
    explicit RMouseCursor(QQuickItem *parent = nullptr);
    ~RMouseCursor() override;

    int shape() const { return m_shape; }
    void setShape(int shape);
    QUrl source() const { return m_source; }
    void setSource(const QUrl &source);
    QPointF hotSpot() const { return m_hotSpot; }
    void setHotSpot(const QPointF &hotSpot);
    bool isActive() const { return m_isActive; }
    void setActive(bool active);
    bool overridesAll() const { return m_overridesAll; }
    void setOverrideAll(bool overrideAll);
    QPointF position() const;

    bool contains(const QPointF &point) const override;

Q_SIGNALS:
    void shapeChanged();
    void sourceChanged();
    void hotSpotChanged();
    void activeChanged();
    void overrideAllChanged();
    void positionChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void connectNotify(const QMetaMethod &signal) override;

private:
    void tellPosition();
    void updateCursor();
    void apply();
    void applyToAll();

    int m_shape = Qt::ArrowCursor;
    QUrl m_source;
    QPointF m_hotSpot;
    bool m_isActive = true;
    bool m_overridesAll = false;
    QCursor m_cursor;
    std::unique_ptr<SeenWatch> m_seen; ///< while the cursor is to hold for the whole application
};

} // namespace tamble::client
