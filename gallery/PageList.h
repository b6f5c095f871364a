#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantList>

/// The pages that the application holds: those of the sample client in the order of its bar, then the catalogue, which
/// is every QML file in its folder in alphabetical order. A file "ImageProvider.qml" is the page "image-provider" with
/// the title "Image provider".
class PageList
{
public:
    /// `folder` is a path into the resources with the folders "festival/pages" and "pages".
    explicit PageList(const QString &folder);

    QStringList names() const;
    /// Position of the page `name`, or -1.
    qsizetype indexOf(const QString &name) const;
    /// The sample client's pages, as maps with key (the name), title, source (a URL), icon (a key) and
    /// keepAlive (true).
    QVariantList festival() const;
    /// Likewise of the catalogue, without icons.
    QVariantList catalogue() const;

private:
    struct Page
    {
        QString name;
        QString title;
        QString source;
        QString icon;
    };

    static QVariantList toVariantList(const QList<Page> &pages);

    QList<Page> m_festival;
    QList<Page> m_catalogue;
};
