#include "BenchSheets.h"

#include "GeneratedSheet.h"

#include "style/StyleEngine.h"

#include <QtCore/QFile>

#include <array>
#include <cstddef>
#include <string>

using tamble::client::StyleEngine;

namespace {

std::string sheet(const std::array<const char *, 3> &colors)
{
    constexpr std::array keys = {"background", "foreground", "line"};
    constexpr std::array selectors = {"StyledItem",
                                      "StyledItem.red",
                                      "StyledItem.red::hovered",
                                      "StyledItem::pressed",
                                      "StyledControl",
                                      "StyledControl.red::hovered",
                                      "StyledControl StyledPart.label",
                                      "StyledControl::hovered StyledPart.label",
                                      "StyledPart",
                                      "StyledControl.red::hovered StyledPart.border"};

    std::string text = generatedSheet(10);
    for (std::size_t rule = 0; rule < selectors.size(); ++rule) {
        for (std::size_t key = 0; key < keys.size(); ++key) {
            text.append(selectors[rule]).append(" { ").append(keys[key]).append(": \"");
            text.append(colors[(rule + key) % colors.size()]).append("\"; } \r\n");
        }
    }
    return text;
}

} // namespace

BenchSheets::BenchSheets()
{
    const auto write = [this](const char *name, const std::string &text) {
        QFile file(m_directory.filePath(QString::fromLatin1(name)));
        if (!file.open(QFile::WriteOnly) || file.write(text.data(), qint64(text.size())) != qint64(text.size()))
            qFatal("cannot write a sheet");
        return QUrl::fromLocalFile(file.fileName());
    };
    m_current = write("dark.style", sheet({"#191919", "#E0E0E0", "#005691"}));
    m_other = write("light.style", sheet({"#FFFFFF", "#101010", "#008CCD"}));
    swap();
}

void BenchSheets::swap()
{
    std::swap(m_current, m_other);
    StyleEngine::instance()->setDefaultStyleSheetSource(m_current);
    StyleEngine::instance()->loadStyles();
}

void BenchSheets::reload()
{
    StyleEngine::instance()->loadStyles();
}
