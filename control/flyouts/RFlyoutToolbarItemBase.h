#pragma once

#include "base/LateToolTip.h"
#include "controls/RButtonBase.h"

#include <QtCore/QPointer>

namespace tamble::client {

/// The behaviour of tools in a floating bar, which may open a flyout of their own.
class TAMBLE_CLIENT_CONTROL_EXPORT RFlyoutToolbarItemBase : public tamble::client::RButtonBase
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFlyoutToolbarItemBase)
    /// Name of the picture; empty, the default, for none.
    Q_PROPERTY(QString iconKey MEMBER m_iconKey NOTIFY iconKeyChanged FINAL)
    /// What the tool is called by assistive tools and by its tool tip; `text` does it where this is empty.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    Q_PROPERTY(QObject *flyout READ flyout WRITE setFlyout NOTIFY flyoutChanged FINAL)
    Q_PROPERTY(bool inRow READ isInRow NOTIFY inRowChanged FINAL)

public:
    explicit RFlyoutToolbarItemBase(QQuickItem *parent = nullptr);

    /// RFlyoutWindow or popup that a click opens beside the tool, and closes again; null by default.
    QObject *flyout() const { return m_flyout; }
    void setFlyout(QObject *flyout);
    /// Whether the bar is a row.
    bool isInRow() const;

    /// What a click does to the flyout.
    Q_INVOKABLE void toggleFlyout();

    /// Another tool of an exclusive bar is selected.
    void deselect();
    void editSelection(bool selected) override;

    QString spokenName() const override { return m_label.isEmpty() ? RButtonBase::spokenName() : m_label; }

Q_SIGNALS:
    void iconKeyChanged();
    void labelChanged();
    void flyoutChanged();
    void inRowChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    Qt::Edge freeEdge() const;
    bool leaveBar(bool forwards);

    QString m_iconKey;
    QString m_label;
    QPointer<QObject> m_flyout;
    LateToolTip *m_toolTip = nullptr; // a child, made when first pointed at
};

} // namespace tamble::client
