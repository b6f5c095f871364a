#pragma once

#include "base/ControlExport.h"
#include "base/LateToolTip.h"
#include "controls/RButtonBase.h"

#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tamble::client {

/// What the buttons of an app bar have in common: a name, a badge, a border, and a tool tip for what has no room.
class TAMBLE_CLIENT_CONTROL_EXPORT RBarButtonBase : public tamble::client::RButtonBase
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBarButtonBase)
    Q_PROPERTY(QString label READ label WRITE setLabel NOTIFY labelChanged FINAL)
    Q_PROPERTY(QString iconKey READ iconKey WRITE setIconKey NOTIFY iconKeyChanged FINAL)
    Q_PROPERTY(QString badge READ badge WRITE setBadge NOTIFY badgeChanged FINAL)
    Q_PROPERTY(QString shortBadge READ shortBadge NOTIFY badgeChanged FINAL)
    Q_PROPERTY(bool shortened READ isShortened WRITE setShortened NOTIFY shortenedChanged FINAL)
    /// Of the style: `ssBorderColor` and `ssBorderVisible` of the frame along the edges; transparent and false where no
    /// sheet says it.
    Q_PROPERTY(QColor ssBorderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged FINAL)
    Q_PROPERTY(bool ssBorderVisible READ borderVisible WRITE setBorderVisible NOTIFY borderVisibleChanged FINAL)

public:
    explicit RBarButtonBase(QQuickItem *parent = nullptr);

    /// Name for assistive tools and the tool tip, where `text` does not say enough; empty by default.
    QString label() const { return m_label; }
    void setLabel(const QString &label);
    /// Name of the picture in the icon set; empty, the default, for none.
    QString iconKey() const { return m_iconKey; }
    void setIconKey(const QString &key);
    /// A short text in a frame in the upper corner, such as a number of messages; empty, the default, for none. There
    /// is room for three characters.
    QString badge() const { return m_badge; }
    void setBadge(const QString &badge);
    /// What the frame shows of `badge`.
    QString shortBadge() const;
    /// Whether the button shows less than its name, which a tool tip then tells; false by default.
    bool isShortened() const { return m_isShortened; }
    void setShortened(bool shortened);

    QColor borderColor();
    void setBorderColor(const QColor &color);
    bool borderVisible();
    void setBorderVisible(bool visible);

    QString spokenName() const override;
    QString spokenDescription(const QString &given) const override;

Q_SIGNALS:
    void labelChanged();
    void iconKeyChanged();
    void badgeChanged();
    void shortenedChanged();
    void borderColorChanged();
    void borderVisibleChanged();

protected:
    /// `iconKey` has changed.
    virtual void iconChange() {}
    void styleChange() override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void buttonChange(ButtonChange change) override;

private:
    void updateToolTip();

    QString m_label;
    QString m_iconKey;
    QString m_badge;
    QColor m_borderColor; // what the page has set; invalid for what the sheets say
    std::optional<bool> m_borderVisible;
    QQuickItem *m_badgeFrame = nullptr; // a child, made for the first badge
    LateToolTip *m_toolTip = nullptr;   // likewise, when it is first needed
    bool m_isShortened = false;
};

} // namespace tamble::client
