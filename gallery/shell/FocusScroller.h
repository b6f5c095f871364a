#pragma once

#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>

/// Scrolls a Flickable so that the item with the keyboard focus is seen. Stands in the Flickable.
class FocusScroller : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The Flickable.
    Q_PROPERTY(QQuickItem *view MEMBER m_view NOTIFY viewChanged REQUIRED FINAL)
    /// Room in pixels that is kept around the item.
    Q_PROPERTY(qreal margin MEMBER m_margin NOTIFY marginChanged FINAL)

public:
    explicit FocusScroller(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void viewChanged();
    void marginChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;

private:
    void reveal(const QQuickItem &item, const QQuickItem &content);

    QPointer<QQuickItem> m_view;
    qreal m_margin = 8.0;
    QMetaObject::Connection m_connection;
};
