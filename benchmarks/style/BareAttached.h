#pragma once

#include <QtCore/QObject>
#include <QtQml/qqml.h>

/// An attached object that does nothing: what the QML engine takes for one.
class BareAttached : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    QML_ATTACHED(BareAttached)

public:
    using QObject::QObject;

    static BareAttached *qmlAttachedProperties(QObject *object) { return new BareAttached(object); }
};

QML_DECLARE_TYPEINFO(BareAttached, QML_HAS_ATTACHED_PROPERTIES)
