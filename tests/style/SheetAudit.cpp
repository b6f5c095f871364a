#include "SheetAudit.h"

#include "StyleTestPaths.h"
#include "style/language/RulePrinter.h"
#include "style/language/StyleSheetParser.h"
#include "style/values/ValueConversions.h"
#include "support/ColourMetrics.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

using namespace tamble::client;

std::vector<QStringList> dataRows(const QString &file)
{
    QFile data(file);
    if (!data.open(QFile::ReadOnly | QFile::Text))
        return {};
    std::vector<QStringList> rows;
    for (const QString &line : QString::fromUtf8(data.readAll()).split(u'\n'))
        if (!line.isEmpty() && !line.startsWith(u'#'))
            rows.push_back(line.split(u';'));
    return rows;
}

ContrastPairs contrastPairs(const QString &file)
{
    ContrastPairs result;
    for (const QStringList &fields : dataRows(file)) {
        if (fields.first() == "page")
            result.pages = fields.value(1).split(u',');
        else
            result.pairs.push_back({fields.join(u';'), fields[0], fields.value(1), fields.value(2),
                                    fields.value(3).split(u','), fields.value(4), fields.value(5) == "contrast"});
    }
    return result;
}

SheetAudit::SheetAudit(const QByteArray &text)
    : m_sheet(parseStdString(text.toStdString()))
{
    static const QRegularExpression plainSelector(QStringLiteral("^\\w+$"));
    const SelectorTree &tree = m_sheet.tree();
    for (SelectorTree::Node node = 0; node < tree.nodeCount(); ++node) {
        if (tree.declarations(node).empty())
            continue;
        const QString selector = QString::fromStdString(selectorText(m_sheet.names(), tree, node));
        for (const PropertySpec *spec : tree.declarations(node)) {
            m_declaredKeys[selector].append(QString::fromStdString(spec->name));
            if (plainSelector.match(selector).hasMatch())
                m_plainDeclarations.insert(spec);
        }
    }
}

qsizetype SheetAudit::declarationCount() const
{
    qsizetype count = 0;
    for (const QStringList &keys : m_declaredKeys)
        count += keys.size();
    return count;
}

const PropertySpec *SheetAudit::declaration(const QString &path, const QString &key)
{
    return m_resolver.resolve(*pathFrom(m_pool, path)).find(key);
}

std::optional<QString> SheetAudit::value(const QString &path, const QString &key)
{
    if (const PropertySpec *spec = declaration(path, key))
        return stringFrom(spec->values.front());
    return {};
}

QColor SheetAudit::colour(const QString &path, const QString &key)
{
    return colorFrom(declaration(path, key)->values.front());
}

std::optional<SheetAudit::Layer> SheetAudit::layer(const QString &path, const QString &key)
{
    if (key.startsWith(u'='))
        return Layer{QColor(key.mid(1)), true};
    const bool otherControl = key.contains(u'.');
    const PropertySpec *spec =
        otherControl ? declaration(key.section(u'.', 0, 0), key.section(u'.', 1)) : declaration(path, key);
    if (!spec)
        return {};
    return Layer{colorFrom(spec->values.front()), m_plainDeclarations.contains(spec)};
}

/// The element of a path with each class and each set of states that selectors write behind its type.
QStringList SheetAudit::combinations(const QString &element) const
{
    if (!element.endsWith(u'*'))
        return {element};
    static const QRegularExpression pieces(QStringLiteral("(\\.|::)(\\w+)"));
    const QString type = element.chopped(1);
    QStringList names = {type};
    QStringList states;
    for (auto it = m_declaredKeys.keyBegin(); it != m_declaredKeys.keyEnd(); ++it) {
        for (const QString &part : it->split(u' ')) {
            if (part.section(QRegularExpression(QStringLiteral("[.:]")), 0, 0) != type)
                continue;
            for (const QRegularExpressionMatch &piece : pieces.globalMatch(part)) {
                const QString word = piece.captured(2);
                const bool isClass = piece.captured(1) == ".";
                const QString entry = isClass ? type + u'.' + word : word;
                QStringList &list = isClass ? names : states;
                if (word != "disabled" && !list.contains(entry))
                    list.append(entry);
            }
        }
    }
    states.sort();
    QStringList result;
    for (const QString &name : names) {
        for (uint subset = 0; subset < 1u << states.size(); ++subset) {
            QStringList words;
            for (qsizetype i = 0; i < states.size(); ++i)
                if (subset >> i & 1)
                    words.append(states[i]);
            result.append(words.isEmpty() ? name : name + "::" + words.join(u' '));
        }
    }
    return result;
}

QStringList SheetAudit::combinedPaths(const QString &path) const
{
    QStringList paths = {QString()};
    for (const QString &element : path.split(u'/')) {
        QStringList longer;
        for (const QString &outer : paths)
            for (const QString &inner : combinations(element))
                longer.append(outer.isEmpty() ? inner : outer + u'/' + inner);
        paths = longer;
    }
    return paths;
}

bool SheetAudit::holds(const QString &condition, const QString &path)
{
    if (condition.isEmpty())
        return true;
    if (!condition.contains(QStringLiteral("::")))
        return value(path, condition) == QStringLiteral("true");
    const QString state = condition.section(QStringLiteral("::"), 1);
    const bool on = path.contains(QRegularExpression("::([^/]* )?" + state + "\\b"));
    return on != condition.startsWith(u'!');
}

std::vector<ContrastReading> SheetAudit::readings(const ContrastPair &pair, const QStringList &pages)
{
    std::vector<ContrastReading> result;
    for (const QString &path : combinedPaths(pair.path)) {
        const std::optional<Layer> front = layer(path, pair.key);
        if (!front || front->colour.alpha() == 0 || !holds(pair.condition, path))
            continue;
        std::vector<QColor> seeThrough;
        bool plain = front->plain;
        for (const QString &key : pair.layers) {
            std::vector<QColor> grounds;
            if (key == "page") {
                for (const QString &page : pages)
                    grounds.push_back(colour(page, QStringLiteral("background")));
            } else if (const std::optional<Layer> behind = layer(path, key)) {
                grounds.push_back(behind->colour);
                plain = plain && behind->plain;
            } else {
                break;
            }
            if (grounds.front().alpha() < 255) {
                seeThrough.push_back(grounds.front());
                continue;
            }
            for (QColor ground : grounds) {
                for (auto it = seeThrough.rbegin(); it != seeThrough.rend(); ++it)
                    ground = composed(*it, ground);
                const QColor seen = composed(front->colour, ground);
                result.push_back(
                    {path + u' ' + seen.name() + " on " + ground.name(), contrastRatio(seen, ground), plain});
            }
            break;
        }
    }
    return result;
}
