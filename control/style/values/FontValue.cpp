#include "style/values/FontValue.h"

#include "style/values/StrictNumber.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace tamble::client {

namespace {

template <typename Value, std::size_t Count>
using Words = std::array<std::pair<const char *, Value>, Count>;

constexpr Words<QFont::Style, 3> styles = {{
    {"italic", QFont::StyleItalic},
    {"upright", QFont::StyleNormal},
    {"oblique", QFont::StyleOblique},
}};

constexpr Words<QFont::Capitalization, 5> capitalizations = {{
    {"mixedcase", QFont::MixedCase},
    {"alluppercase", QFont::AllUppercase},
    {"alllowercase", QFont::AllLowercase},
    {"smallcaps", QFont::SmallCaps},
    {"capitalize", QFont::Capitalize},
}};

constexpr Words<QFont::Weight, 4> weights = {{
    {"bold", QFont::Bold},
    {"demibold", QFont::DemiBold},
    {"black", QFont::Black},
    {"regular", QFont::Normal},
}};

constexpr Words<QFont::HintingPreference, 4> hintings = {{
    {"defaulthinting", QFont::PreferDefaultHinting},
    {"nohinting", QFont::PreferNoHinting},
    {"verticalhinting", QFont::PreferVerticalHinting},
    {"fullhinting", QFont::PreferFullHinting},
}};

/// Takes the first token out that is one of `words`.
template <typename Value, std::size_t Count>
std::optional<Value> takeWord(QStringList &tokens, const Words<Value, Count> &words)
{
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const auto word = std::find_if(words.begin(), words.end(), [&token = tokens.at(i)](const auto &entry) {
            return token == QLatin1String(entry.first);
        });
        if (word != words.end()) {
            tokens.removeAt(i);
            return word->second;
        }
    }
    return std::nullopt;
}

/// Takes the first token out that matches `pattern`, and gives its number, without the unit of two letters.
std::optional<double> takeSize(QStringList &tokens, const QRegularExpression &pattern)
{
    const qsizetype index = tokens.indexOf(pattern);
    if (index < 0)
        return std::nullopt;
    return strictDouble(tokens.takeAt(index).chopped(2).toStdString());
}

} // namespace

QFont fontFromText(const std::string &text)
{
    static const QRegularExpression blanks(QStringLiteral("\\s* \\s*"));
    static const QRegularExpression pixels(QStringLiteral("^\\d+px$"));
    static const QRegularExpression points(QStringLiteral("^\\d+(\\.\\d+)?pt$"));
    constexpr int systemSize = 0;
    constexpr int systemWeight = -1;

    QStringList tokens = QString::fromStdString(text).split(blanks, Qt::SkipEmptyParts);
    const auto style = takeWord(tokens, styles);
    const auto capitalization = takeWord(tokens, capitalizations);
    const auto weight = takeWord(tokens, weights);
    const auto hinting = takeWord(tokens, hintings);
    const double pixelSize = takeSize(tokens, pixels).value_or(0.0);
    const double pointSize = takeSize(tokens, points).value_or(0.0);

    QFont font(tokens.join(QLatin1Char(' ')), systemSize, weight ? int(*weight) : systemWeight, false);
    if (pointSize > 0.0)
        font.setPointSizeF(pointSize);
    if (pixelSize >= 1.0 && pixelSize <= 1e6)
        font.setPixelSize(int(pixelSize));
    if (capitalization)
        font.setCapitalization(*capitalization);
    if (style)
        font.setStyle(*style);
    if (hinting)
        font.setHintingPreference(*hinting);
    return font;
}

} // namespace tamble::client
