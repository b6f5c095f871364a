#pragma once

#include "style/language/RulePrinter.h"
#include "style/language/StyleSheetParser.h"

#include <QtCore/QStringList>

#include <algorithm>

// Sheets as texts that tests can compare.

namespace tamble::client {

inline std::string dumpOf(const StyleValue &value)
{
    if (const auto *text = boost::get<std::string>(&value))
        return '[' + *text + ']';
    const auto &call = boost::get<Expression>(value);
    std::string result = call.name + '(';
    for (const std::string &argument : call.arguments)
        result += '<' + argument + '>';
    return result + ')';
}

/// The keys from the root to a node, divided by blanks.
inline std::string chainOf(const StyleSheet &sheet, SelectorTree::Node node)
{
    std::string result;
    for (; node != SelectorTree::root; node = sheet.tree().parent(node))
        result = std::string(sheet.names().text(sheet.tree().key(node))) + (result.empty() ? "" : " ") + result;
    return result;
}

/// "keys name=[value]…", a line for each declaration at each node, sorted by keys.
inline QStringList dumpOf(const StyleSheet &sheet)
{
    QStringList result;
    for (SelectorTree::Node node = 0; node < sheet.tree().nodeCount(); ++node) {
        for (const PropertySpec *declaration : sheet.tree().declarations(node)) {
            std::string line = chainOf(sheet, node) + " | " + declaration->name + "=";
            for (const StyleValue &value : declaration->values)
                line += dumpOf(value);
            result.append(QString::fromStdString(line));
        }
    }
    std::stable_sort(result.begin(), result.end(), [](const QString &a, const QString &b) {
        return a.section(QStringLiteral(" | "), 0, 0) < b.section(QStringLiteral(" | "), 0, 0);
    });
    return result;
}

// Written like the library's own sheets: CR LF, trailing blanks, missing semicolons, the misspelt state word.
inline const std::string shippedSheet =
    "// GENERATED \r\n"
    "@blue = \"#005691\"; \r\n"
    "@font-face { src: url(\"qrc:/fonts/Brack.ttf\") } \r\n"
    "RButton { \r\n"
    "    background: @blue; \r\n"
    "    foreground-dragHandle: #FFFFFF \r\n"
    "    line-visible: false } \r\n"
    "RButton::inconsistend::pressed, RButton.red { background: rgba(0, 86, 145, 0.5); } \r\n"
    "RAppBarButton::hovered RIcon { foreground: '#FFF'; } \r\n"
    "RFlyoutWindow > RText { font: \"Brack Office Sans bold 14px\"; } /* end */ \r\n";

} // namespace tamble::client
