#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantList>

/// The pages that the application holds: every QML file in its folder of pages, in alphabetical order. A file
/// "ImageProvider.qml" is the page "image-provider" with the title "Image provider".
class PageList
{
public:
    /// Lists the pages below `folder`, a path into the resources.
    explicit PageList(const QString &folder);

    QStringList names() const;
    /// Position of the page `name`, or -1.
    qsizetype indexOf(const QString &name) const;
    /// For the page list on screen: maps with name, title and source (a URL).
    QVariantList toVariantList() const;

private:
    struct Page
    {
        QString name;
        QString title;
        QString source;
    };
    QList<Page> m_pages;
};
