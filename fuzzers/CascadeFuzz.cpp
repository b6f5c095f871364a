#include "FuzzBodies.h"

#include "ReferenceCascade.h"

#include "style/language/StyleSheetParser.h"
#include "style/resolution/StylePathPool.h"
#include "style/resolution/StyleResolver.h"

#include <boost/variant/get.hpp>

#include <stdexcept>

using namespace tamble::client;

namespace {

QString joined(const std::vector<std::string> &words)
{
    QStringList list;
    for (const std::string &word : words)
        list.append(QString::fromStdString(word));
    return list.join(u' ');
}

StylePathRef pathOf(StylePathPool &pool, const std::vector<PathElement> &elements)
{
    StylePathRef path;
    for (const PathElement &element : elements)
        path =
            pool.child(path, QString::fromStdString(element.typeName), joined(element.classes), joined(element.states));
    return path;
}

ReferenceCascade::Result resultOf(const ResolvedMap &map)
{
    ReferenceCascade::Result result;
    for (const PropertySpec *declaration : map.all())
        result.emplace(declaration->name, boost::get<std::string>(declaration->values.front()));
    return result;
}

std::string text(const ReferenceCascade::Result &result)
{
    std::string list;
    for (const auto &[name, value] : result)
        list += ' ' + name + '=' + value;
    return list;
}

} // namespace

void fuzzCascade(std::span<const std::uint8_t> bytes)
{
    const CascadeCase given = cascadeCase(bytes);
    const ReferenceCascade reference(given.defaultSheet, given.userSheet);
    const StyleSheet sheet = StyleSheet::merged(parseSheet(given.defaultSheet.text), parseSheet(given.userSheet.text));
    StylePathPool pool;
    StyleResolver resolver(sheet);
    for (const std::vector<PathElement> &elements : given.paths) {
        const StylePathRef path = pathOf(pool, elements);
        const ReferenceCascade::Result expected = reference.resolve(elements);
        const ReferenceCascade::Result found = resultOf(resolver.resolve(*path));
        if (found != expected)
            throw std::logic_error(path->text().toStdString() + " gives" + text(found) + ", expected" + text(expected) +
                                   "\ndefault sheet:\n" + given.defaultSheet.text + "\nuser sheet:\n" +
                                   given.userSheet.text);
    }
}
