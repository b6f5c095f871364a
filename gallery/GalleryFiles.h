#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

/// Files that pages show: those of the module, and those beside the gallery.
class GalleryFiles : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The keys of the whole icon set.
    Q_PROPERTY(QStringList iconKeys READ iconKeys CONSTANT FINAL)
    /// A directory of style sheets to choose from and to edit.
    Q_PROPERTY(QUrl styleDirectory READ styleDirectory CONSTANT FINAL)

public:
    using QObject::QObject;

    QStringList iconKeys() const;
    QUrl styleDirectory() const;
};
