#include "dialogs/MessageBoxQueue.h"

#include "base/PartComponents.h"
#include "dialogs/RDialogBase.h"
#include "dialogs/RMessageBox.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPointerEvent>
#include <QtGui/QStyleHints>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>

#include <utility>

namespace tamble::client {

namespace {

// Help is read beside the question.
bool closesBox(int button)
{
    return button != QPlatformDialogHelper::Help;
}

} // namespace

MessageBoxQueue::MessageBoxQueue(QQuickWindow &window)
    : QObject(&window)
    , m_window(window)
{}

MessageBoxQueue::~MessageBoxQueue()
{
    if (m_dialog)
        m_dialog->disconnect(this);
    for (RMessageBox *box : std::exchange(m_boxes, {}))
        box->conclude(0, false);
}

MessageBoxQueue &MessageBoxQueue::of(QQuickWindow &window)
{
    for (QObject *child : window.children()) {
        if (auto *queue = dynamic_cast<MessageBoxQueue *>(child))
            return *queue;
    }
    return *new MessageBoxQueue(window);
}

QQmlEngine *MessageBoxQueue::engineOf(const RMessageBox &box, QQuickWindow &window)
{
    if (QQmlEngine *engine = qmlEngine(&box))
        return engine;
    if (QQmlEngine *engine = qmlEngine(&window))
        return engine;
    // A window that C++ has made shows what an engine has.
    const QList<QQuickItem *> shown = window.contentItem()->childItems();
    for (const QQuickItem *item : shown) {
        if (QQmlEngine *engine = qmlEngine(item))
            return engine;
    }
    return nullptr;
}

void MessageBoxQueue::add(RMessageBox &box)
{
    m_boxes.append(&box);
    if (m_boxes.size() == 1)
        showNext();
}

void MessageBoxQueue::remove(RMessageBox &box)
{
    const bool isShown = !m_boxes.isEmpty() && m_boxes.constFirst() == &box;
    m_boxes.removeOne(&box);
    if (!isShown)
        return;
    dropDialog();
    showNext();
}

void MessageBoxQueue::showNext()
{
    if (m_boxes.isEmpty() || m_dialog)
        return;
    RMessageBox &box = *m_boxes.constFirst();
    QQmlEngine *engine = engineOf(box, m_window);
    QObject *made =
        engine ? PartComponents::of(engine).make(Part::MessageBoxDialog, this, box.dialogProperties()) : nullptr;
    m_dialog = qobject_cast<RDialogBase *>(made);
    if (!m_dialog) {
        m_boxes.removeFirst();
        box.conclude(0, false);
        return;
    }
    m_button = 0;
    m_isOfWindow = engine == qmlEngine(&m_window);
    connect(m_dialog, &RDialogBase::buttonClicked, this, [this](int button) {
        if (!closesBox(button))
            return;
        m_button = button;
        m_dialog->close();
    });
    connect(m_dialog, &QQuickPopup::closed, this, &MessageBoxQueue::onClosed);
    connect(engine, &QObject::destroyed, this, &MessageBoxQueue::onEngineGone, Qt::UniqueConnection);
    m_dialog->setParentItem(QQuickOverlay::overlay(&m_window));
    m_dialog->open();
    // Anew, since the overlay takes the presses of whoever was there before it.
    m_window.installEventFilter(this);
    box.setOpened(true);
}

void MessageBoxQueue::dropDialog()
{
    if (!m_dialog)
        return;
    m_dialog->disconnect(this);
    m_dialog->close();
    m_dialog->deleteLater();
    m_dialog = nullptr;
}

void MessageBoxQueue::onClosed()
{
    const bool isKept = m_dialog->property("keepsAnswer").toBool();
    dropDialog();
    RMessageBox *box = m_boxes.takeFirst();
    // The next one begins with a turn of its own: whoever is told of the answer may close windows.
    QMetaObject::invokeMethod(this, &MessageBoxQueue::showNext, Qt::QueuedConnection);
    box->conclude(m_button, isKept);
}

/// The second press of a double click must not answer a question that its first one has brought up.
bool MessageBoxQueue::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick &&
        event->type() != QEvent::TouchBegin)
        return false;
    const quint64 now = static_cast<const QPointerEvent *>(event)->timestamp();
    const auto interval = quint64(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    if (m_dialog && m_dialog != m_pressed && now - m_pressedAt < interval)
        return true;
    m_pressed = m_dialog;
    m_pressedAt = now;
    return false;
}

void MessageBoxQueue::onEngineGone()
{
    if (m_dialog) {
        m_dialog->disconnect(this);
        // Hiding it would move the focus in a window whose bindings cannot be evaluated any more.
        if (!m_isOfWindow)
            delete m_dialog;
    }
    if (!m_boxes.isEmpty())
        m_boxes.takeFirst()->conclude(0, false);
    showNext();
}

} // namespace tamble::client
