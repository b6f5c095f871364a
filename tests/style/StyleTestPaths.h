#pragma once

#include "style/language/SelectorTree.h"
#include "style/language/StyleSheetParser.h"
#include "style/resolution/StylePathPool.h"

#include <QtCore/QString>

/// The path written as "RPanel/RButton.red big::hovered pressed": class words behind the dot, state words behind the
/// colons, as a style set holds them.
inline tamble::client::StylePathRef pathFrom(tamble::client::StylePathPool &pool, const QString &text)
{
    tamble::client::StylePathRef path;
    for (const QString &element : text.split(u'/')) {
        const QString state = element.section(QStringLiteral("::"), 1);
        const QString typeAndName = element.section(QStringLiteral("::"), 0, 0);
        path = pool.child(path, typeAndName.section(u'.', 0, 0), typeAndName.section(u'.', 1), state);
    }
    return path;
}

inline tamble::client::StyleSheet sheetFrom(const QString &text)
{
    return tamble::client::parseStdString(text.toStdString());
}

/// A selector tree by hand, for what no sheet text can say.
struct HandMadeTree
{
    tamble::client::SelectorTree::Node node(std::initializer_list<const char *> keys)
    {
        tamble::client::SelectorTree::Node result = tamble::client::SelectorTree::root;
        for (const char *key : keys)
            result = tree.insert(result, names.intern(key));
        return result;
    }

    tamble::client::NameTable names;
    tamble::client::SelectorTree tree;
};
