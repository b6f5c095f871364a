#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQuick/QQuickWindow>

namespace tamble::client {

/// Whether an item can be seen: it is shown, and its window is neither hidden nor minimised. What moves by itself rests
/// meanwhile. Its owner deletes it before the item's own parts go.
class SeenWatch : public QObject
{
    Q_OBJECT

public:
    explicit SeenWatch(QQuickItem &item);

    bool isSeen() const { return m_isSeen; }

Q_SIGNALS:
    void seenChanged();

private:
    void follow(QQuickWindow *window);
    void update();

    QQuickItem &m_item;
    QPointer<QQuickWindow> m_window;
    bool m_isSeen = false;
};

} // namespace tamble::client
