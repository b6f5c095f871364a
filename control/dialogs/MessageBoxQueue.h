#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>

class QQmlEngine;
class QQuickWindow;

namespace tamble::client {

class RDialogBase;
class RMessageBox;

/// The message boxes of a window, which shows them one after the other. A child of the window.
class MessageBoxQueue : public QObject
{
public:
    static MessageBoxQueue &of(QQuickWindow &window);
    /// The engine that can make a dialog for `box`; null for none.
    static QQmlEngine *engineOf(const RMessageBox &box, QQuickWindow &window);
    ~MessageBoxQueue() override;

    /// Shows the box at once, or after those before it.
    void add(RMessageBox &box);
    /// Takes the box away without a word.
    void remove(RMessageBox &box);

protected:
    bool eventFilter(QObject *window, QEvent *event) override;

private:
    explicit MessageBoxQueue(QQuickWindow &window);

    void showNext();
    void dropDialog();
    void onClosed();
    void onEngineGone();

    QQuickWindow &m_window;
    QList<RMessageBox *> m_boxes; ///< The first one is shown, the others wait.
    QPointer<RDialogBase> m_dialog;
    QPointer<RDialogBase> m_pressed; ///< What was shown at the last press, and when that was, in ms.
    quint64 m_pressedAt = 0;
    bool m_isOfWindow = false; ///< The window is from the engine of `m_dialog`.
    int m_button = 0;          ///< Flag of the button that was pressed; 0 for none.
};

} // namespace tamble::client
