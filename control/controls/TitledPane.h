#pragma once

#include "base/ControlExport.h"
#include "base/PartComponents.h"
#include "base/SpokenControl.h"
#include "style/SheetColors.h"

#include <QtCore/QPointer>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickpane_p.h>

#include <array>

namespace tamble::client {

/// Surface that may have a header, with a title, an icon and items of the page, and be collapsed to that.
///
/// The header is made from its QML file when it is first needed: most panes have none, and most flyouts of a page are
/// never opened.
class TAMBLE_CLIENT_CONTROL_EXPORT TitledPane : public QQuickPane, public SpokenControl
{
    Q_OBJECT
    QML_ANONYMOUS
    /// What the header says; assistive tools know the pane by it.
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged FINAL)
    /// Name of the picture before the title; empty, the default, for none.
    Q_PROPERTY(QString iconKey MEMBER m_iconKey NOTIFY iconKeyChanged FINAL)
    Q_PROPERTY(QQmlListProperty<QObject> headerContent READ headerContent FINAL)
    Q_PROPERTY(bool collapsed READ isCollapsed WRITE setCollapsed NOTIFY collapsedChanged FINAL)
    Q_PROPERTY(bool borderVisible READ isBorderVisible WRITE setBorderVisible NOTIFY borderVisibleChanged FINAL)
    Q_PROPERTY(bool borderShown READ isBorderShown NOTIFY borderShownChanged FINAL)
    Q_PROPERTY(qreal headerHeight READ headerHeight NOTIFY headerSizeChanged FINAL)
    Q_PROPERTY(qreal headerWidth READ headerWidth NOTIFY headerSizeChanged FINAL)
    /// Of the style: `ssBackground`, and `ssBorderColor`, transparent where a sheet gives none.
    Q_PROPERTY(QColor ssBackground READ ssBackground WRITE setSsBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssBorderColor READ ssBorderColor WRITE setSsBorderColor NOTIFY ssBorderColorChanged)

public:
    explicit TitledPane(QQuickItem *parent = nullptr);

    QString title() const { return m_title; }
    void setTitle(const QString &title);
    /// Items at the end of the header, such as a switch; they take their own clicks.
    QQmlListProperty<QObject> headerContent();
    /// Whether only the header shows; false by default.
    bool isCollapsed() const { return m_isCollapsed; }
    void setCollapsed(bool collapsed);
    /// Whether there may be a border; true by default. Some sheets give it none.
    bool isBorderVisible() const { return m_isBorderVisible; }
    void setBorderVisible(bool visible);
    /// Whether there is one.
    bool isBorderShown() const { return m_isBorderVisible && ssBorderColor().alpha() > 0; }
    /// Height of the header in pixels; 0 while there is none.
    qreal headerHeight() const;
    /// Width in pixels that shows all of the header; 0 while there is none.
    qreal headerWidth() const;
    QColor ssBackground() const { return m_colors.color(Background); }
    void setSsBackground(const QColor &color) { m_colors.setColor(Background, color); }
    QColor ssBorderColor() const { return m_colors.color(BorderColor); }
    void setSsBorderColor(const QColor &color) { m_colors.setColor(BorderColor, color); }

    QAccessible::Role spokenRole() const override { return QAccessible::Pane; }
    QString spokenName() const override { return m_title; }
    QString spokenDescription(const QString &given) const override;

    /// What is below the header of a collapsed pane is not there for the pointer.
    bool contains(const QPointF &point) const override;

Q_SIGNALS:
    void titleChanged();
    void iconKeyChanged();
    void collapsedChanged();
    void borderVisibleChanged();
    void borderShownChanged();
    void headerSizeChanged();
    void ssBackgroundChanged();
    void ssBorderColorChanged();

protected:
    virtual Part headerPart() const = 0;
    /// Whether the header is to show. With a title or with items in it, it always does.
    virtual bool wantsHeader() const;
    /// `collapsed` has changed.
    virtual void collapsedChange() {}
    /// One of the colours, or `borderShown`, has changed.
    virtual void lookChange() {}
    /// The header is there or not, or has another size.
    virtual void headerChange() {}
    /// Makes the header where it is wanted now, and shows it or not.
    void updateHeader();
    /// Null before it is first needed, and outside of QML.
    QQuickItem *header() const { return m_header; }

    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void contentItemChange(QQuickItem *newItem, QQuickItem *oldItem) override;
    void accessibilityActiveChanged(bool active) override;

private:
    enum ColorName : std::size_t { Background, BorderColor };
    static const std::array<SheetColors::Source, 2> colorSources;

    bool isHeaderShown() const;
    QQuickItem *makeHeader();
    void tellHeaderSize();
    void showBody();
    void updateInset();

    SheetColors m_colors;
    QString m_title;
    QString m_iconKey;
    QQuickItem *m_header = nullptr; // a child
    QPointer<QQuickItem> m_itemRow; // in it: what the page has put there
    bool m_isCollapsed = false;
    bool m_isBorderVisible = true;
};

} // namespace tamble::client
