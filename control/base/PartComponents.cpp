#include "base/PartComponents.h"

#include <QtCore/QUrl>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>

namespace tamble::client {

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

QQmlComponent &PartComponents::component(const QString &file)
{
    QQmlComponent *&component = m_components[file];
    if (!component)
        component = new QQmlComponent(m_engine, QUrl(QStringLiteral("qrc:/qml/") + file), this);
    return *component;
}

} // namespace tamble::client
