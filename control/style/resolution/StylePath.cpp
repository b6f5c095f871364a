#include "style/resolution/StylePath.h"

namespace tamble::client {

namespace {

void appendWords(QString &text, QLatin1StringView mark, const QStringList &words)
{
    if (words.isEmpty())
        return;
    text += mark;
    if (words.size() == 1)
        text += words.first();
    else
        text += u'{' + words.join(u',') + u'}';
}

} // namespace

QString StyleElement::text() const
{
    QString result = typeName;
    appendWords(result, QLatin1StringView("."), classes);
    appendWords(result, QLatin1StringView("::"), states);
    return result;
}

StylePath::StylePath(const StylePath *parent, const StyleElement *element)
    : m_parent(parent)
    , m_element(element)
    , m_depth(parent ? parent->m_depth + 1 : 1)
{}

const StylePath &StylePath::outermost() const
{
    const StylePath *path = this;
    while (path->parent())
        path = path->parent();
    return *path;
}

QString StylePath::text() const
{
    QStringList elements(depth());
    for (const StylePath *path = this; path; path = path->parent())
        elements[path->depth() - 1] = path->element().text();
    return elements.join(u'/');
}

} // namespace tamble::client
