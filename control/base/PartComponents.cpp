#include "base/PartComponents.h"

#include "base/ControlLog.h"

#include <QtCore/QHash>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

namespace {

std::array<QUrl, partCount> &partSources()
{
    static std::array<QUrl, partCount> sources;
    return sources;
}

} // namespace

void setPartSource(Part part, const QUrl &file)
{
    partSources()[std::size_t(part)] = file;
}

PartComponents::PartComponents(QQmlEngine *engine)
    : QObject(engine)
    , m_engine(engine)
{}

PartComponents &PartComponents::of(QQmlEngine *engine)
{
    static QHash<QQmlEngine *, PartComponents *> all;
    PartComponents *&components = all[engine];
    if (!components) {
        components = new PartComponents(engine);
        connect(components, &QObject::destroyed, [engine] { all.remove(engine); });
    }
    return *components;
}

QObject *PartComponents::make(Part part, QObject *owner, const QVariantMap &initialProperties)
{
    QQmlComponent *&component = m_components[std::size_t(part)];
    if (!component)
        component = new QQmlComponent(m_engine, partSources()[std::size_t(part)], this);
    // Qt 6.4 crashes on one that is not.
    QObject *made = component->isReady() ? component->createWithInitialProperties(initialProperties) : nullptr;
    if (made)
        made->setParent(owner);
    else
        qCWarning(controlLog).noquote() << component->errorString();
    return made;
}

QQuickItem *PartComponents::makeItem(Part part, QQuickItem &parent, QVariantMap properties)
{
    // Parts of native items that no page has made belong to what is around them.
    QQmlEngine *engine = nullptr;
    for (const QQuickItem *item = &parent; item && !engine; item = item->parentItem())
        engine = qmlEngine(item);
    properties.insert(QStringLiteral("parent"), QVariant::fromValue(&parent));
    return engine ? qobject_cast<QQuickItem *>(of(engine).make(part, &parent, properties)) : nullptr;
}

void PartComponents::show(QQuickItem *&item, Part part, QQuickItem &parent, bool shown)
{
    if (shown && !item)
        item = makeItem(part, parent);
    if (item)
        item->setVisible(shown);
}

} // namespace tamble::client
