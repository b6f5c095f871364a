#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QPointF>

#include <utility>

class QDropEvent;
class QEvent;
class QKeyEvent;
class QMouseEvent;
class QTimerEvent;

namespace tamble::client {

class EditedText;
class FieldEdit;

/// What keys, presses and the focus do to a field's text, before its editor hears of them.
class FieldGestures
{
public:
    explicit FieldGestures(FieldEdit &edit);

    /// True when the editor shall not hear of the event.
    bool handle(EditedText &text, QEvent &event);
    /// A timer of the conversation has run out.
    void onTimer(EditedText &text, const QTimerEvent &event);

private:
    bool isOfThePage(const QKeyEvent &key) const;
    bool onKey(EditedText &text, QKeyEvent &key);
    bool onTypingKey(EditedText &text, QKeyEvent &key);
    bool onDrag(EditedText &text, QDropEvent &drag);
    bool onPress(EditedText &text, const QMouseEvent &press);
    bool onMove(const QMouseEvent &move);
    bool onRelease(EditedText &text, QEvent &release);
    void onFocusLost(Qt::FocusReason reason);

    FieldEdit &m_edit;
    QBasicTimer m_longPress;
    QPointF m_pressedAt;
    std::pair<int, int> m_selectionAtPress; ///< Begin and end.
    bool m_focusedByPress = false;
    bool m_wasLongPress = false;
};

} // namespace tamble::client
