#include "pointer/RMouseCursor.h"

#include "base/SeenWatch.h"
#include "pointer/OverrideCursors.h"
#include "pointer/PictureCursor.h"
#include "pointer/RMouseEventSpy.h"

#include <QtCore/QMetaMethod>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlFile>
#include <QtQuick/QQuickWindow>

#include <limits>

namespace tamble::client {

RMouseCursor::RMouseCursor(QQuickItem *parent)
    : QQuickItem(parent)
{
    // Behind its siblings, whose own cursors are looked for first.
    setZ(std::numeric_limits<qreal>::lowest());
    if (parent)
        updateCursor();
}

RMouseCursor::~RMouseCursor()
{
    m_seen.reset();
    OverrideCursors::instance().remove(this);
}

void RMouseCursor::setShape(int shape)
{
    if (m_shape == shape)
        return;
    m_shape = shape;
    updateCursor();
    Q_EMIT shapeChanged();
}

void RMouseCursor::setSource(const QUrl &source)
{
    if (m_source == source)
        return;
    m_source = source;
    updateCursor();
    Q_EMIT sourceChanged();
}

void RMouseCursor::setHotSpot(const QPointF &hotSpot)
{
    if (m_hotSpot == hotSpot)
        return;
    m_hotSpot = hotSpot;
    updateCursor();
    Q_EMIT hotSpotChanged();
}

void RMouseCursor::setActive(bool active)
{
    if (m_isActive == active)
        return;
    m_isActive = active;
    apply();
    Q_EMIT activeChanged();
}

void RMouseCursor::setOverrideAll(bool overrideAll)
{
    if (m_overridesAll == overrideAll)
        return;
    m_overridesAll = overrideAll;
    m_seen.reset();
    if (overrideAll) {
        m_seen = std::make_unique<SeenWatch>(*this);
        connect(m_seen.get(), &SeenWatch::seenChanged, this, &RMouseCursor::applyToAll);
    }
    applyToAll();
    Q_EMIT overrideAllChanged();
}

QPointF RMouseCursor::position() const
{
    return RMouseEventSpy::instance()->position();
}

/// Has the parent's shape. A size of its own would give it a place in rows and columns.
bool RMouseCursor::contains(const QPointF &point) const
{
    return parentItem() && parentItem()->contains(point + QPointF(x(), y()));
}

void RMouseCursor::componentComplete()
{
    QQuickItem::componentComplete();
    updateCursor();
}

void RMouseCursor::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemDevicePixelRatioHasChanged || (change == ItemSceneChange && data.window))
        updateCursor();
    else if (change == ItemEnabledHasChanged)
        applyToAll();
    QQuickItem::itemChange(change, data);
}

void RMouseCursor::connectNotify(const QMetaMethod &signal)
{
    if (signal == QMetaMethod::fromSignal(&RMouseCursor::positionChanged))
        connect(RMouseEventSpy::instance(), &RMouseEventSpy::positionChanged, this, &RMouseCursor::tellPosition,
                Qt::UniqueConnection);
}

// Found out here and not as soon as somebody stops listening: Qt then holds locks that the question would wait for.
void RMouseCursor::tellPosition()
{
    if (isSignalConnected(QMetaMethod::fromSignal(&RMouseCursor::positionChanged)))
        Q_EMIT positionChanged();
    else
        disconnect(RMouseEventSpy::instance(), nullptr, this, nullptr);
}

void RMouseCursor::updateCursor()
{
    if (!isComponentComplete())
        return;
    const QQmlContext *context = qmlContext(this);
    const QString file = QQmlFile::urlToLocalFileOrQrc(context ? context->resolvedUrl(m_source) : m_source);
    const qreal ratio = window() ? window()->effectiveDevicePixelRatio() : qGuiApp->devicePixelRatio();
    const auto picture = m_source.isEmpty() ? std::nullopt : pictureCursor(file, m_hotSpot, ratio);
    m_cursor = picture.value_or(QCursor(Qt::CursorShape(m_shape)));
    apply();
}

void RMouseCursor::apply()
{
    if (!isComponentComplete())
        return;
    if (m_isActive)
        setCursor(m_cursor);
    else
        unsetCursor();
    applyToAll();
}

void RMouseCursor::applyToAll()
{
    if (isComponentComplete() && m_isActive && isEnabled() && m_seen && m_seen->isSeen())
        OverrideCursors::instance().set(this, m_cursor);
    else
        OverrideCursors::instance().remove(this);
}

} // namespace tamble::client
