#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>

class QQmlComponent;
class QQmlEngine;

namespace tamble::client {

/// The QML files from which native items make parts of themselves, each compiled once per engine, which owns this.
class PartComponents : public QObject
{
public:
    static PartComponents &of(QQmlEngine *engine);

    /// The component of a file below qrc:/qml/.
    QQmlComponent &component(const QString &file);

private:
    explicit PartComponents(QQmlEngine *engine);

    QQmlEngine *m_engine;
    QHash<QString, QQmlComponent *> m_components; // children
};

} // namespace tamble::client
