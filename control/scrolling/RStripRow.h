#pragma once

#include "base/ControlExport.h"
#include "scrolling/EnclosingView.h"
#include "scrolling/Positioners.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QVariantAnimation>
#include <QtQml/qqmlregistration.h>

class QQuickWindow;

namespace tamble::client {

/// A row of items in a view that scrolls sideways: which of them are seen, and how to see others.
class TAMBLE_CLIENT_CONTROL_EXPORT RStripRow : public QQuickRow
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStripRow)
    /// Whether scrolling ends with an item at the beginning of the view; false by default.
    Q_PROPERTY(bool snapToItems MEMBER m_snapsToItems NOTIFY snapToItemsChanged FINAL)
    /// Which of the row's items is the first (`firstVisibleIndex`) and the last one (`lastVisibleIndex`) of which at
    /// least a part is seen; −1 for none. Hidden items are not counted.
    Q_PROPERTY(int firstVisibleIndex READ firstVisibleIndex NOTIFY visibleIndexesChanged FINAL)
    Q_PROPERTY(int lastVisibleIndex READ lastVisibleIndex NOTIFY visibleIndexesChanged FINAL)
    /// Whether there is more to the left (`moreAtLeft`), to the right (`moreAtRight`).
    Q_PROPERTY(bool moreAtLeft READ hasMoreAtLeft NOTIFY visibleIndexesChanged FINAL)
    Q_PROPERTY(bool moreAtRight READ hasMoreAtRight NOTIFY visibleIndexesChanged FINAL)

public:
    /// The base attaches a type that Qt's library does not export.
    using QmlAttachedType = void;

    explicit RStripRow(QQuickItem *parent = nullptr);
    ~RStripRow() override;

    int firstVisibleIndex() const { return m_seen.first; }
    int lastVisibleIndex() const { return m_seen.last; }
    bool hasMoreAtLeft() const { return m_seen.moreAtLeft; }
    bool hasMoreAtRight() const { return m_seen.moreAtRight; }

    /// Scrolls so far that an item is seen, be it one of the row or something in one.
    Q_INVOKABLE void ensureVisible(QQuickItem *item);
    /// Scrolls on by so many widths of the view, back for negative ones.
    Q_INVOKABLE void scrollBy(qreal pages);
    /// Scrolls to the next item, or so many items on; back for negative numbers.
    Q_INVOKABLE void step(int items);
    /// Brings the nearest item to the beginning of the view, if the row snaps to items.
    Q_INVOKABLE void snap();

Q_SIGNALS:
    void snapToItemsChanged();
    void visibleIndexesChanged();

protected:
    void componentComplete() override;
    void updatePolish() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    struct Seen
    {
        int first = -1;
        int last = -1;
        bool moreAtLeft = false;
        bool moreAtRight = false;

        bool operator==(const Seen &) const = default;
    };

    QList<QQuickItem *> strips() const;
    qreal beginOf(const QQuickItem &strip) const;
    qreal sideSign() const;
    void findVisible();
    void followFocus(QQuickItem *focused);
    void scrollTo(qreal begin);
    qreal viewBegin() const;
    qreal target() const;

    EnclosingView m_view;
    QPointer<QQuickWindow> m_window; ///< Whose focus is followed.
    QPointer<QQuickItem> m_toReveal; ///< Once the items have their places.
    QVariantAnimation m_motion;
    Seen m_seen;
    bool m_snapsToItems = false;
    bool m_hasBegun = false; ///< Whether the first item has been brought into view.
};

} // namespace tamble::client
