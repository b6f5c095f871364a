#include "views/RViewContainerBase.h"

#include "base/ControlLog.h"
#include "base/PartComponents.h"
#include "views/ViewHost.h"
#include "views/ViewLoad.h"

#include <QtQml/qqml.h>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

constexpr int fadeMs = 150;
constexpr qsizetype longestHistory = 100;

QVariant withoutScript(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QJSValue>() ? value.value<QJSValue>().toVariant() : value;
}

} // namespace

RViewContainerBase::RViewContainerBase(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
    m_fade.setStartValue(0.0);
    m_fade.setEndValue(1.0);
    m_fade.setDuration(fadeMs);
    m_fade.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, &RViewContainerBase::showFade);
    connect(&m_fade, &QVariantAnimation::finished, this, &RViewContainerBase::endFade);
}

RViewContainerBase::~RViewContainerBase()
{
    m_fade.disconnect(this);
}

void RViewContainerBase::componentComplete()
{
    QQuickItem::componentComplete();
    showFirst();
}

void RViewContainerBase::setViews(const QVariant &views)
{
    const QVariant list = withoutScript(views);
    if (m_views == list)
        return;
    m_views = list;
    const QList<ViewEntry> former = std::exchange(m_entries, viewEntries(list));
    const QString formerTitle = currentTitle();
    const QPointer<RViewContainerBase> guard(this);
    for (const ViewEntry &entry : former) {
        const ViewEntry *now = entryOf(entry.key);
        if (now && now->isMadeLike(entry))
            continue;
        if (m_wanted.key == entry.key)
            cancelLoading();
        if (guard)
            drop(entry.key);
        if (!guard)
            return;
    }
    Q_EMIT viewsChanged();
    if (guard && currentTitle() != formerTitle)
        Q_EMIT currentTitleChanged();
    if (guard && isComponentComplete())
        showFirst();
}

const ViewEntry *RViewContainerBase::entryOf(const QString &key) const
{
    const auto found = std::ranges::find(m_entries, key, &ViewEntry::key);
    return found == m_entries.end() ? nullptr : &*found;
}

QQuickItem *RViewContainerBase::currentItem() const
{
    const ViewHost *host = m_hosts.value(m_currentKey);
    return host ? host->view() : nullptr;
}

QString RViewContainerBase::currentTitle() const
{
    const ViewEntry *entry = entryOf(m_currentKey);
    return entry ? entry->title : QString();
}

void RViewContainerBase::setCurrentKey(const QString &key)
{
    if (!key.isEmpty())
        show(key);
}

void RViewContainerBase::setGuard(const QJSValue &guard)
{
    if (m_guard.strictlyEquals(guard))
        return;
    m_guard = guard;
    Q_EMIT guardChanged();
}

/// Shows a view as long as there is none.
void RViewContainerBase::showFirst()
{
    if (!m_currentKey.isEmpty() || m_isBusy || m_entries.isEmpty())
        return;
    const QString wanted = std::exchange(m_firstKey, {});
    const QPointer<RViewContainerBase> guard(this);
    if (!wanted.isEmpty())
        go({wanted, m_history});
    if (guard && m_currentKey.isEmpty() && !m_isBusy && !m_entries.isEmpty())
        go({m_entries.first().key, m_history});
}

void RViewContainerBase::show(const QString &key)
{
    if (!isComponentComplete() || m_entries.isEmpty()) {
        m_firstKey = key;
        return;
    }
    QStringList history = m_history;
    if (!m_currentKey.isEmpty() && m_currentKey != key)
        history.append(m_currentKey);
    go({key, history.mid(std::max<qsizetype>(0, history.size() - longestHistory))});
}

void RViewContainerBase::back()
{
    QStringList history = m_history;
    while (!history.isEmpty() && !entryOf(history.last()))
        history.removeLast();
    if (history.isEmpty())
        return;
    const QString key = history.takeLast();
    go({key, history});
}

void RViewContainerBase::go(const Request &request)
{
    if (!entryOf(request.key)) {
        Q_EMIT viewFailed(request.key, tr("there is no view of this name"));
        return;
    }
    if (m_isBusy && m_wanted.key == request.key)
        return;
    if (m_currentKey == request.key) {
        cancelLoading();
        return;
    }
    const int number = ++m_requests;
    const QPointer<RViewContainerBase> guard(this);
    if (!isAllowed(request.key) || !guard || number != m_requests)
        return;
    cancelLoading();
    if (!guard || number != m_requests)
        return;
    const ViewEntry *entry = entryOf(request.key);
    if (!entry) // taken away by the page meanwhile
        return;
    m_wanted = request;
    ViewHost *host = m_hosts.value(request.key);
    if (host)
        enter(host);
    else
        load(*entry);
}

bool RViewContainerBase::isAllowed(const QString &key)
{
    if (m_currentKey.isEmpty() || !m_guard.isCallable())
        return true;
    QJSValue function = m_guard; // which it may replace
    const QJSValue answer = function.call(QJSValueList{key});
    if (answer.isError())
        warnOfPage(this, QStringLiteral("guard: ") + answer.toString());
    return !answer.isError() && (!answer.isBool() || answer.toBool());
}

// A copy, since the page may change its views as soon as it hears of a failure.
void RViewContainerBase::load(ViewEntry entry) // NOLINT(performance-unnecessary-value-param)
{
    m_coming = new ViewHost(*this);
    auto *loading = new ViewLoad(*m_coming, m_isAsynchronous);
    connect(loading, &ViewLoad::finished, this, [this] { enter(m_coming); });
    connect(loading, &ViewLoad::failed, this, &RViewContainerBase::onFailed);
    const QPointer<ViewHost> coming = m_coming;
    const QPointer<RViewContainerBase> guard(this);
    loading->start(entry, *qmlContext(this));
    if (guard && coming && m_coming == coming)
        setBusy(true);
}

void RViewContainerBase::cancelLoading()
{
    m_wanted = {};
    if (const ViewHost *host = std::exchange(m_coming, nullptr))
        host->findChild<ViewLoad *>(QString(), Qt::FindDirectChildrenOnly)->cancel();
    setBusy(false);
}

void RViewContainerBase::onFailed(const QString &error)
{
    const QString key = m_wanted.key;
    const QPointer<RViewContainerBase> guard(this);
    cancelLoading();
    if (guard)
        Q_EMIT viewFailed(key, error);
}

/// The wanted view is there.
void RViewContainerBase::enter(ViewHost *host)
{
    if (m_leaving == host) // comes back before it has gone
        m_leaving = nullptr;
    endFade();
    const bool isActive = hasActiveFocus();
    const Request request = std::exchange(m_wanted, {});
    const QString formerTitle = currentTitle();
    const bool isOtherHistory = std::exchange(m_history, request.history) != request.history;
    const QString formerKey = std::exchange(m_currentKey, request.key);
    ViewHost *former = m_hosts.value(formerKey);
    if (former == host)
        former = nullptr;
    m_hosts.insert(request.key, host);
    m_coming = nullptr;

    m_leavingKey = former ? formerKey : QString();
    m_leaving = former;
    if (former)
        former->rememberFocus();
    host->setBlurred(false);
    host->setReachable(true);
    host->setOpacity(1.0);
    host->setVisible(true);
    host->focusView(isActive);
    fade(former, host);

    const QPointer<RViewContainerBase> guard(this);
    setBusy(false);
    if (guard && isOtherHistory)
        Q_EMIT historyChanged();
    if (guard && formerKey != request.key)
        Q_EMIT currentKeyChanged();
    if (guard)
        Q_EMIT currentItemChanged();
    if (guard && currentTitle() != formerTitle)
        Q_EMIT currentTitleChanged();
    if (guard)
        Q_EMIT viewShown(request.key);
}

void RViewContainerBase::fade(ViewHost *from, ViewHost *to)
{
    to->setZ(1);
    if (!from || !m_isAnimated || !isVisible()) {
        endFade();
        return;
    }
    from->setZ(0);
    from->setReachable(false);
    to->setOpacity(0.0);
    m_fade.start();
}

void RViewContainerBase::showFade(const QVariant &part)
{
    if (!m_leaving)
        return;
    m_leaving->setOpacity(1.0 - part.toReal());
    m_hosts.value(m_currentKey)->setOpacity(part.toReal());
}

/// The view that has left is hidden, or goes.
void RViewContainerBase::endFade()
{
    m_fade.stop();
    if (ViewHost *current = m_hosts.value(m_currentKey))
        current->setOpacity(1.0);
    ViewHost *leaving = std::exchange(m_leaving, nullptr);
    const QString key = std::exchange(m_leavingKey, {});
    if (!leaving)
        return;
    leaving->setBlurred(false);
    leaving->setVisible(false);
    leaving->setOpacity(1.0);
    const ViewEntry *entry = entryOf(key);
    if (!entry || !entry->keepAlive)
        drop(key);
}

void RViewContainerBase::setBusy(bool busy)
{
    if (std::exchange(m_isBusy, busy) == busy)
        return;
    ViewHost *current = m_hosts.value(m_currentKey);
    if (current && (!busy || m_blursWhenBusy))
        current->setBlurred(busy);
    if (busy && !m_busyMark) {
        const QVariantMap properties{{QStringLiteral("container"), QVariant::fromValue(this)},
                                     {QStringLiteral("parent"), QVariant::fromValue<QQuickItem *>(this)}};
        m_busyMark = PartComponents::of(qmlEngine(this)).make(Part::ViewBusy, this, properties);
    }
    Q_EMIT busyChanged();
}

/// Destroys a view, whichever it is.
void RViewContainerBase::drop(const QString &key)
{
    ViewHost *host = m_hosts.take(key);
    if (!host)
        return;
    if (m_leaving == host) {
        m_leaving = nullptr;
        endFade();
    }
    host->setVisible(false);
    host->deleteLater();
    if (m_currentKey != key)
        return;
    m_currentKey.clear();
    const QPointer<RViewContainerBase> guard(this);
    Q_EMIT currentKeyChanged();
    if (guard)
        Q_EMIT currentItemChanged();
}

void RViewContainerBase::unload(const QString &key)
{
    if (m_isBusy && m_wanted.key == key)
        cancelLoading();
    else if (key != m_currentKey)
        drop(key);
}

void RViewContainerBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    for (ViewHost *host : std::as_const(m_hosts))
        host->setSize(newGeometry.size());
    if (m_coming)
        m_coming->setSize(newGeometry.size());
}

} // namespace tamble::client
