#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtQml/qqmlregistration.h>

/// The keys of the module's icons, as found in its resources, for pages that show the whole set.
class IconKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QStringList keys READ keys CONSTANT)

public:
    using QObject::QObject;

    QStringList keys() const;
};
