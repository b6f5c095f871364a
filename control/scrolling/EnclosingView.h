#pragma once

#include <QtCore/QMarginsF>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRectF>

class QQuickItem;

namespace tamble::client {

/// The nearest Flickable around an item: what it shows of the item, and how to make it show more.
class EnclosingView : public QObject
{
    Q_OBJECT

public:
    explicit EnclosingView(QQuickItem *item);

    /// To be called when the item may have come into another view.
    void find();
    /// The part of the item that the view has room for, in the item's coordinates; the whole item outside of a view.
    QRectF visibleRect() const;
    /// Scrolls just so far that a part of the item is seen, within what nothing covers at the view's edges.
    void reveal(const QRectF &part, const QMarginsF &covered);
    /// Likewise for any Flickable and a part in its own coordinates.
    static void reveal(QQuickItem &view, const QRectF &part, const QMarginsF &covered);
    /// Scrolls every view around an item so that a part of it is seen. What fills a view is left as it is scrolled.
    static void revealEverywhere(const QQuickItem &item, const QRectF &part);
    static bool isView(const QQuickItem &item);
    /// Scrolls on by so many pixels, as far as there is something.
    void scrollBy(const QPointF &way);

Q_SIGNALS:
    /// Another part of the item may be seen.
    void scrolled();

private:
    QQuickItem *m_item;
    QPointer<QQuickItem> m_view;
};

} // namespace tamble::client
