#pragma once

#include "accordion/AccordionDrag.h"
#include "accordion/RAccordionItemBase.h"
#include "base/ControlExport.h"
#include "scrolling/EnclosingView.h"
#include "scrolling/Positioners.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>

#include <functional>

class QQuickWindow;

namespace tamble::client {

class AccordionHeading;

/// The sections of an accordion, one below the other, and what they know of each other. Its headings are one stop of
/// the Tab key.
class TAMBLE_CLIENT_CONTROL_EXPORT RAccordionColumn : public QQuickColumn
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAccordionColumn)
    Q_PROPERTY(bool exclusive READ isExclusive WRITE setExclusive NOTIFY exclusiveChanged FINAL)
    Q_PROPERTY(bool reorderable READ isReorderable WRITE setReorderable NOTIFY reorderableChanged FINAL)
    /// Whether bodies open and close in 150 ms rather than at once; true by default.
    Q_PROPERTY(bool animated MEMBER m_isAnimated NOTIFY animatedChanged FINAL)
    /// How many sections there are.
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)
    /// The sections that are open, from above.
    Q_PROPERTY(QQmlListProperty<tamble::client::RAccordionItemBase> expandedItems READ expandedItems NOTIFY
                   expandedItemsChanged FINAL)

public:
    /// The base attaches a type that Qt's library does not export.
    using QmlAttachedType = void;

    explicit RAccordionColumn(QQuickItem *parent = nullptr);
    ~RAccordionColumn() override;

    /// The accordion that an item is a section of; null for none.
    static RAccordionColumn *of(const QQuickItem *item);

    /// Whether opening a section closes the others; false by default.
    bool isExclusive() const { return m_isExclusive; }
    void setExclusive(bool exclusive);
    /// Whether the user can ask for another order of the sections; false by default.
    bool isReorderable() const { return m_isReorderable; }
    void setReorderable(bool reorderable);
    bool isAnimated() const { return m_isAnimated; }
    int count() const { return int(sections().size()); }
    QQmlListProperty<RAccordionItemBase> expandedItems();
    QList<RAccordionItemBase *> openSections() const;
    /// All sections, from above.
    QList<RAccordionItemBase *> sections() const;

    /// Opens all sections that can be opened; nothing in an exclusive accordion.
    Q_INVOKABLE void expandAll();
    /// Closes all sections that can be closed.
    Q_INVOKABLE void collapseAll();
    /// Scrolls so far that an item is seen, be it a section or something in one.
    Q_INVOKABLE void ensureVisible(QQuickItem *item);

    // What sections and headings say.
    /// A section is open now, or closed.
    void tellExpanded(RAccordionItemBase &item);
    /// A caption hides its items, or shows them again.
    void regroup() { polish(); }
    /// A key moves the focus between headings. Whether it is such a key.
    bool moveFocus(const AccordionHeading &from, int key);
    /// A key asks for another place of a section. Whether there is one.
    bool requestMove(RAccordionItemBase &item, int way);
    /// A section is dragged: the pointer is there in the scene.
    void dragTo(RAccordionItemBase &item, const QPointF &scenePoint);
    /// It is dropped where it was dragged to. Whether this is a place in the accordion.
    bool drop(const RAccordionItemBase &item);
    /// The drag is over.
    void endDrag();

Q_SIGNALS:
    void exclusiveChanged();
    void reorderableChanged();
    void animatedChanged();
    void countChanged();
    void expandedItemsChanged();
    /// A section has been opened (`itemExpanded`) or closed (`itemCollapsed`), by whomever.
    void itemExpanded(QQuickItem *item);
    void itemCollapsed(QQuickItem *item);
    /// The user wants a section elsewhere: its number among the sections and the one it is to have, as in
    /// ListModel.move(). Whoever owns the sections moves it.
    void itemMoved(int from, int to);

protected:
    void componentComplete() override;
    void updatePolish() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    QList<AccordionHeading *> stops() const;
    void fitWidth(QQuickItem &child);
    void hideByCaptions();
    void closeOthers(const RAccordionItemBase *open);
    void forEachSection(const std::function<void(RAccordionItemBase &)> &act);

    void followFocus(QQuickItem *focused);
    void keepTabStop();
    void reveal(const QQuickItem &item);

    EnclosingView m_view;
    QPointer<QQuickWindow> m_window; ///< Whose focus is followed.
    QPointer<AccordionHeading> m_tabStop;
    QPointer<QQuickItem> m_toReveal; ///< Once the sections have their places.
    AccordionDrag m_drag;
    bool m_isExclusive = false;
    bool m_isReorderable = false;
    bool m_isAnimated = true;
};

} // namespace tamble::client
