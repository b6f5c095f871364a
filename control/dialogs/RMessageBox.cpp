#include "dialogs/RMessageBox.h"

#include "base/ControlLog.h"
#include "dialogs/MessageBoxQueue.h"

#include <QtCore/QHash>
#include <QtGui/QGuiApplication>
#include <QtGui/qpa/qplatformdialoghelper.h>

#include <array>
#include <initializer_list>
#include <utility>

namespace tamble::client {

namespace {

QHash<QString, int> &keptAnswers()
{
    static QHash<QString, int> answers;
    return answers;
}

enum class Answer { None, Accept, Reject };

Answer answerOf(int button)
{
    switch (QPlatformDialogHelper::buttonRole(QPlatformDialogHelper::StandardButton(button))) {
    case QPlatformDialogHelper::AcceptRole:
    case QPlatformDialogHelper::YesRole:
    case QPlatformDialogHelper::ApplyRole:
        return Answer::Accept;
    case QPlatformDialogHelper::RejectRole:
    case QPlatformDialogHelper::NoRole:
        return Answer::Reject;
    default:
        return Answer::None;
    }
}

} // namespace

RMessageBox::RMessageBox(QObject *parent)
    : QObject(parent)
{}

RMessageBox::~RMessageBox()
{
    if (m_queue)
        m_queue->remove(*this);
}

QString RMessageBox::dontAskText() const
{
    return m_dontAskText.isNull() ? tr("Do not ask again") : m_dontAskText;
}

void RMessageBox::setDontAskText(const QString &text)
{
    if (std::exchange(m_dontAskText, text) != text)
        Q_EMIT dontAskTextChanged();
}

void RMessageBox::open()
{
    if (m_queue)
        return;
    const auto kept = keptAnswers().constFind(m_dontAskKey);
    if (!m_dontAskKey.isEmpty() && kept != keptAnswers().cend()) {
        conclude(*kept, false);
        return;
    }
    QQuickWindow *window = usedWindow();
    if (window && MessageBoxQueue::engineOf(*this, *window)) {
        m_queue = &MessageBoxQueue::of(*window);
        m_queue->add(*this);
        return;
    }
    warnOfPage(this, QStringLiteral("There is no window to show this in: %1 %2 %3")
                         .arg(m_title, m_text, m_informativeText)
                         .simplified());
    // Whoever opens it again whenever it is rejected would do so for ever.
    if (!m_isConcluding)
        conclude(0, false);
}

void RMessageBox::close()
{
    if (!m_queue)
        return;
    std::exchange(m_queue, nullptr)->remove(*this);
    const QPointer<RMessageBox> guard(this);
    setOpened(false);
    if (guard)
        Q_EMIT closed();
}

// While another program has the focus, a message must not be lost.
QQuickWindow *RMessageBox::usedWindow() const
{
    // One that is being destroyed has no content.
    const auto isThere = [](const QQuickWindow *window) { return window && window->contentItem(); };
    if (isThere(m_window))
        return m_window;
    if (auto *focused = qobject_cast<QQuickWindow *>(QGuiApplication::focusWindow()); isThere(focused))
        return focused;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        auto *candidate = qobject_cast<QQuickWindow *>(window);
        if (isThere(candidate) && candidate->isVisible() && candidate->type() == Qt::Window)
            return candidate;
    }
    return nullptr;
}

int RMessageBox::usedDefaultButton() const
{
    using Helper = QPlatformDialogHelper;
    const bool isGrave = m_icon == Warning || m_icon == Critical;
    const bool accepts = (m_standardButtons & (int(Helper::Yes) | int(Helper::Ok))) != 0;
    if (m_defaultButton != 0 || !isGrave || !accepts)
        return m_defaultButton;
    for (const int button : {Helper::Cancel, Helper::No, Helper::Close, Helper::Abort, Helper::NoToAll}) {
        if (m_standardButtons & button)
            return button;
    }
    return 0;
}

QVariantMap RMessageBox::dialogProperties() const
{
    static constexpr std::array<const char *, 5> iconKeys = {"", "info", "question", "warning", "error"};
    const std::size_t kind = std::size_t(m_icon);
    return {{QStringLiteral("title"), m_title},
            {QStringLiteral("text"), m_text},
            {QStringLiteral("informativeText"), m_informativeText},
            {QStringLiteral("detailedText"), m_detailedText},
            {QStringLiteral("kindIcon"), QString::fromLatin1(kind < iconKeys.size() ? iconKeys[kind] : "")},
            {QStringLiteral("standardButtons"), m_standardButtons},
            {QStringLiteral("defaultButton"), usedDefaultButton()},
            {QStringLiteral("keepText"), m_dontAskKey.isEmpty() ? QString() : dontAskText()}};
}

void RMessageBox::setOpened(bool opened)
{
    if (std::exchange(m_opened, opened) != opened)
        Q_EMIT openedChanged();
}

/// `button` 0 is none: the box was dismissed.
void RMessageBox::conclude(int button, bool isKept)
{
    if (isKept && button != 0 && !m_dontAskKey.isEmpty())
        keptAnswers().insert(m_dontAskKey, button);
    m_queue = nullptr;
    const Answer answer = button == 0 ? Answer::Reject : answerOf(button);
    const QPointer<RMessageBox> guard(this);
    m_isConcluding = true;
    setOpened(false);
    if (guard && button != 0)
        Q_EMIT buttonClicked(button);
    if (guard && answer == Answer::Accept)
        Q_EMIT accepted();
    if (guard && answer == Answer::Reject)
        Q_EMIT rejected();
    if (guard)
        Q_EMIT closed();
    if (guard)
        m_isConcluding = false;
}

} // namespace tamble::client
