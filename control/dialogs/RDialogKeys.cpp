#include "dialogs/RDialogBase.h"

#include "base/InputMeaning.h"
#include "controls/RButtonBase.h"

#include <QtGui/QKeyEvent>
#include <QtQuick/QQuickWindow>

#include <utility>

// The part of RDialogBase that answers keys.

namespace tamble::client {

namespace {

/// How far a key scrolls the body, downwards.
double scrolledLines(int key)
{
    constexpr double page = 8.0;
    switch (key) {
    case Qt::Key_Up:
        return -1.0;
    case Qt::Key_Down:
        return 1.0;
    case Qt::Key_PageUp:
        return -page;
    case Qt::Key_PageDown:
        return page;
    case Qt::Key_Home:
        return -1e6;
    case Qt::Key_End:
        return 1e6;
    default:
        return 0.0;
    }
}

bool pressesByEnter(const QQuickItem *item)
{
    const auto *button = qobject_cast<const RButtonBase *>(item);
    return button && button->enterClicks();
}

} // namespace

void RDialogBase::keyPressEvent(QKeyEvent *event)
{
    if (const double lines = scrolledLines(event->key()); lines != 0.0) {
        event->accept();
        if (m_frame)
            m_frame->scrollBy(lines);
        return;
    }
    if (!isEnterKey(*event)) {
        QQuickDialog::keyPressEvent(event);
        return;
    }
    event->accept();
    // With the release, as buttons do: whoever gets the focus back must not hear that of a key that closed the dialog.
    if (!event->isAutoRepeat())
        m_isEnterDown = !pressesByEnter(window() ? window()->activeFocusItem() : nullptr);
}

void RDialogBase::keyReleaseEvent(QKeyEvent *event)
{
    if (!isEnterKey(*event) || event->isAutoRepeat()) {
        QQuickDialog::keyReleaseEvent(event);
        return;
    }
    event->accept();
    auto *button = qobject_cast<RButtonBase *>(m_buttons.ofEnter(m_defaultButton));
    if (std::exchange(m_isEnterDown, false) && button && !m_isBusy)
        button->click();
}

} // namespace tamble::client
