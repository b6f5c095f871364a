#include "views/ViewLoad.h"

#include "views/ViewEntry.h"
#include "views/ViewHost.h"

#include <QtCore/QStringList>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlError>

#include <utility>

namespace tamble::client {

ViewLoad::ViewLoad(ViewHost &host, bool isAsynchronous)
    : QObject(&host)
    , QQmlIncubator(isAsynchronous ? Asynchronous : Synchronous)
    , m_host(host)
{}

void ViewLoad::start(const ViewEntry &entry, QQmlContext &context)
{
    m_context = &context;
    m_component = qobject_cast<QQmlComponent *>(entry.component);
    if (m_component && m_component->creationContext())
        m_context = m_component->creationContext();
    if (!m_component && entry.source.isEmpty()) {
        fail(tr("it has neither a component nor a source"));
        return;
    }
    if (!m_component) {
        const auto mode =
            incubationMode() == Asynchronous ? QQmlComponent::Asynchronous : QQmlComponent::PreferSynchronous;
        m_component = new QQmlComponent(context.engine(), context.resolvedUrl(QUrl(entry.source)), mode, this);
    }
    if (m_component->isLoading())
        connect(m_component.data(), &QQmlComponent::statusChanged, this, &ViewLoad::begin);
    else
        begin();
}

void ViewLoad::begin()
{
    if (m_isOver)
        return;
    if (!m_component->isReady()) {
        fail(m_component->errorString().trimmed());
        return;
    }
    m_isCreating = true;
    m_component->create(*this, m_context);
    m_isCreating = false;
    if (status() != Loading)
        finish();
}

void ViewLoad::cancel()
{
    m_isOver = true;
    m_isCancelled = true;
    if (status() != Loading)
        m_host.deleteLater();
}

void ViewLoad::setInitialState(QObject *object)
{
    if (auto *view = qobject_cast<QQuickItem *>(object))
        m_host.setView(view);
}

void ViewLoad::statusChanged(Status status)
{
    // While it is being created, the component must not go, as it may when somebody hears that it is.
    if (status != Loading && !m_isCreating)
        finish();
}

void ViewLoad::finish()
{
    if (m_isCancelled)
        m_host.deleteLater();
    if (m_isOver)
        return;
    if (isError()) {
        QStringList texts;
        for (const QQmlError &error : errors())
            texts.append(error.toString());
        fail(texts.join(u'\n'));
    } else if (!m_host.view()) {
        if (QObject *other = object())
            other->deleteLater();
        fail(tr("it is not an item"));
    } else {
        m_isOver = true;
        m_host.setView(m_host.view()); // the size that the page gives it
        Q_EMIT finished();
    }
}

void ViewLoad::fail(const QString &error)
{
    if (!std::exchange(m_isOver, true))
        Q_EMIT failed(error);
}

} // namespace tamble::client
