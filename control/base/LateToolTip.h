#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>
#include <QtCore/QString>

class QQuickItem;

namespace tamble::client {

/// The tool tip of an item. It is made when it appears for the first time: the mouse passes over far more items than it
/// rests on, and a window often opens below it.
class LateToolTip : public QObject
{
public:
    /// A child of `owner`.
    explicit LateToolTip(QQuickItem &owner);

    /// Shows `text` after the usual wait, or at once in place of another text.
    void show(const QString &text);
    void hide();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void make();

    QQuickItem &m_owner;
    QBasicTimer m_wait;
    QString m_text;
    QObject *m_popup = nullptr; // a child
};

} // namespace tamble::client
