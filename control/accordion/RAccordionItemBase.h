#pragma once

#include "accordion/RAccordionHeader.h"
#include "base/ControlExport.h"
#include "style/SheetColors.h"

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVariantAnimation>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include <array>
#include <optional>

namespace tamble::client {

class RAccordionColumn;

/// A section of an accordion: a header, and a body that it opens. The body and what few headers show are made when they
/// are first seen.
///
/// Keys: Space and Enter on the header open and close the body, Right opens it, Left closes it. Up, Down, Home and End
/// lead to other headers. Alt+Up and Alt+Down ask for another place of the item. Menu or Shift+F10: context menu.
class TAMBLE_CLIENT_CONTROL_EXPORT RAccordionItemBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAccordionItemBase)
    Q_CLASSINFO("DefaultProperty", "content")
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString subtitle READ subtitle WRITE setSubtitle NOTIFY subtitleChanged)
    Q_PROPERTY(QString iconKey READ iconKey WRITE setIconKey NOTIFY iconKeyChanged)
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded NOTIFY expandedChanged)
    Q_PROPERTY(bool expandable READ isExpandable WRITE setExpandable NOTIFY expandableChanged)
    Q_PROPERTY(bool draggable READ isDraggable WRITE setDraggable RESET resetDraggable NOTIFY draggableChanged)
    /// What stands in the body.
    Q_PROPERTY(QQmlListProperty<QObject> content READ content)
    Q_PROPERTY(QQmlComponent *lazyContent READ lazyContent WRITE setLazyContent NOTIFY lazyContentChanged)
    Q_PROPERTY(QQuickItem *lazyItem READ lazyItem NOTIFY lazyItemChanged)
    /// What stands at the end of the header, such as a mute switch, and takes its own clicks.
    Q_PROPERTY(QQmlListProperty<QObject> headerContent READ headerContent)
    Q_PROPERTY(tamble::client::RAccordionHeader *header READ header WRITE setHeader NOTIFY headerChanged)
    /// Pixels per density-independent unit.
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged)
    /// Of the style: the header's ground (`ssBackground`), its text, icon and chevron (`ssColor`) and the dots of its
    /// grip (`ssForegroundDragHandle`).
    Q_PROPERTY(QColor ssBackground READ ssBackground WRITE setSsBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssColor READ ssColor WRITE setSsColor NOTIFY ssColorChanged)
    Q_PROPERTY(QColor ssForegroundDragHandle READ ssForegroundDragHandle WRITE setSsForegroundDragHandle NOTIFY
                   ssForegroundDragHandleChanged)

public:
    explicit RAccordionItemBase(QQuickItem *parent = nullptr);
    ~RAccordionItemBase() override;

    /// What the section is called.
    QString title() const { return m_title; }
    void setTitle(const QString &title);
    /// A second, smaller line in the header; none by default.
    QString subtitle() const { return m_subtitle; }
    void setSubtitle(const QString &subtitle);
    /// Name of an icon in front of the title; none by default.
    QString iconKey() const { return m_iconKey; }
    void setIconKey(const QString &key);
    /// Whether the body is open; false by default.
    bool isExpanded() const { return m_isExpanded; }
    void setExpanded(bool expanded);
    /// Whether the user can open and close the body; true by default.
    bool isExpandable() const { return m_isExpandable; }
    void setExpandable(bool expandable);
    /// Whether the header has a grip to drag the item elsewhere; as the accordion's `reorderable` unless it is set.
    bool isDraggable() const;
    void setDraggable(bool draggable);
    void resetDraggable();
    /// What is made in the body when it is first opened, and kept then; null by default. It is as wide as the body has
    /// room, unless it sets a width.
    QQmlComponent *lazyContent() const { return m_lazyContent; }
    void setLazyContent(QQmlComponent *component);
    /// What was made of `lazyContent`; null before.
    QQuickItem *lazyItem() const { return m_lazyItem; }
    /// The button that opens and closes the body. The colours are those of its style set, so that the sheets' rules for
    /// what the pointer does end at the header.
    RAccordionHeader *header() const { return m_header; }
    void setHeader(RAccordionHeader *header);
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);

    QQmlListProperty<QObject> content();
    QQmlListProperty<QObject> headerContent();

    QColor ssBackground() const { return m_colors.color(Background); }
    void setSsBackground(const QColor &color) { m_colors.setColor(Background, color); }
    QColor ssColor() const { return m_colors.color(Color); }
    void setSsColor(const QColor &color) { m_colors.setColor(Color, color); }
    QColor ssForegroundDragHandle() const { return m_colors.color(DragHandle); }
    void setSsForegroundDragHandle(const QColor &color) { m_colors.setColor(DragHandle, color); }

    /// Opens or closes the body for the user.
    void toggle();
    /// Whether the page answers a context menu.
    bool hasContextMenu() const;

    // What the accordion says.
    /// Its `reorderable` may have changed.
    void followAccordion();
    /// A caption hides the item, or shows it again.
    void setHiddenByCaption(bool hidden);
    bool isHiddenByCaption() const { return m_isHiddenByCaption; }
    /// Whether the body is on its way.
    bool isMoving() const { return m_motion && m_motion->state() == QAbstractAnimation::Running; }

Q_SIGNALS:
    void titleChanged();
    void subtitleChanged();
    void iconKeyChanged();
    void expandedChanged();
    void expandableChanged();
    void draggableChanged();
    void lazyContentChanged();
    void lazyItemChanged();
    void headerChanged();
    void unitChanged();
    void ssBackgroundChanged();
    void ssColorChanged();
    void ssForegroundDragHandleChanged();
    /// The user has opened or closed the body.
    void toggled(bool expanded);
    /// A right click, a long press or the Menu key on the header; `position` is in the header's coordinates.
    void headerContextMenuRequested(const QPointF &position);

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    enum ColorName : std::size_t { Background, Color, DragHandle, ColorCount };
    static const std::array<SheetColors::Source, ColorCount> colorSources;

    RAccordionColumn *accordion() const;
    QQuickItem &body();
    void makeLazyItem();
    void tellColors(std::size_t begin, std::size_t end);
    void move();
    void setOpenness(qreal openness);
    void placeBody();
    void giveFocusToHeader();

    QString m_title;
    QString m_subtitle;
    QString m_iconKey;
    SheetColors m_colors;
    RAccordionHeader *m_header = nullptr;
    QQuickItem *m_frame = nullptr; ///< Cuts the body off while it opens; a child, like the body in it made when needed.
    QQuickItem *m_body = nullptr;
    QPointer<QQmlComponent> m_lazyContent;
    QPointer<QQuickItem> m_lazyItem;
    QVariantAnimation *m_motion = nullptr; ///< A child, made with the first motion.
    qreal m_unit = 1.0;
    qreal m_openness = 0.0; ///< 0 closed, 1 open.
    std::optional<bool> m_givenDraggable;
    bool m_wasDraggable = false;
    bool m_isExpanded = false;
    bool m_isExpandable = true;
    bool m_isHiddenByCaption = false;
    bool m_lazyItemFillsWidth = false;
};

} // namespace tamble::client
