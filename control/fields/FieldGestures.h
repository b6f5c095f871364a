#pragma once

#include <QtCore/Qt>

class QDropEvent;
class QEvent;
class QKeyEvent;

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

private:
    bool onKey(EditedText &text, QKeyEvent &key);
    bool onTypingKey(EditedText &text, QKeyEvent &key);
    bool onDrag(EditedText &text, QDropEvent &drag);
    bool onFirstClick(EditedText &text, QEvent &release);
    void onFocusLost(Qt::FocusReason reason);

    FieldEdit &m_edit;
    bool m_focusedByPress = false;
};

} // namespace tamble::client
