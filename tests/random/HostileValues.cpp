#include "HostileValues.h"

#include <array>
#include <span>

namespace {

using Expressions = std::span<const char *const>;

constexpr std::array numbers{"NaN",    "Infinity",   "-Infinity",  "0",           "-0",         "-1",    "1",
                             "2",      "7.5",        "0.001",      "-60",         "20000",      "100",   "1e9",
                             "-1e9",   "4294967296", "2147483647", "-2147483648", "2147483648", "1e17",  "1e308",
                             "-1e308", "5e-324",     "16385",      "12",          "3",          "0.5",   "-0.001",
                             "4",      "5",          "6",          "10",          "1e-9",       "65536", "48000"};

constexpr std::array texts{"''",
                           "'abc'",
                           "'-80.5 dB'",
                           "'a'.repeat(100000)",
                           "'a b_'.repeat(10000)",
                           "'&'.repeat(1001)",
                           "'&a'",
                           "'<b>x<'",
                           "'\\u0000'",
                           "'\\ud800'",
                           "'red'",
                           "'#12345'",
                           "'%1%2'",
                           "'/nowhere/'",
                           "'qrc:/qml/RButton/RButton.qml'",
                           "'image://tamble/ui/a_b'",
                           "'RButton'"};

constexpr std::array lists{"[]",
                           "[NaN, Infinity, -Infinity]",
                           "[null, undefined, {}]",
                           "[0, 1, 1e9, -1, 4294967296]",
                           "Array(1000).fill(NaN)",
                           "Array.from({length: 20000}, (_, i) => i * 1e-3)",
                           "Array.from({length: 1000}, (_, i) => Qt.point(i / 1000, Math.sin(i)))",
                           "[Qt.point(NaN, 1e9), Qt.point(0, 1), 'x', Qt.point(1e308, -1e308)]",
                           "[[0, 1], [NaN, 2], []]",
                           "[objects[0], objects[1], null]",
                           "objects"};

constexpr std::array others{"null",
                            "undefined",
                            "true",
                            "false",
                            "{}",
                            "function() { return NaN }",
                            "Symbol('x')",
                            "new Date(NaN)",
                            "Qt.point(1e9, NaN)",
                            "Qt.size(-1, 1e9)",
                            "Qt.rect(0, 0, NaN, 1e308)",
                            "Qt.rgba(NaN, 2, -1, 0.5)",
                            "({ value: 1, text: 'x', position: NaN, frequency: 1e9, gain: Infinity })"};

constexpr std::array flags{"true", "false"};

constexpr std::array sizes{"0", "1", "0.5", "40", "100", "300", "16385", "1e9", "4294967296", "-5", "NaN", "Infinity"};

QString object(Random &random, std::size_t objectCount)
{
    return QStringLiteral("objects[%1]").arg(random.below(objectCount));
}

/// The values of the property's kind; empty for objects.
Expressions fitting(const QMetaProperty &property)
{
    const QMetaType type = property.metaType();
    switch (type.id()) {
    case QMetaType::Bool:
        return flags;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Float:
    case QMetaType::Double:
        return numbers;
    case QMetaType::QString:
    case QMetaType::QUrl:
    case QMetaType::QColor:
        return texts;
    default:
        break;
    }
    if (type.flags().testFlag(QMetaType::PointerToQObject))
        return {};
    return QByteArray(type.name()).contains("List") ? Expressions(lists) : Expressions(others);
}

} // namespace

QString hostileValue(Random &random, const QMetaProperty &property, std::size_t objectCount)
{
    if (random.oneIn(2)) {
        const Expressions values = fitting(property);
        return values.empty() ? object(random, objectCount) : QString::fromLatin1(random.oneOf(values));
    }
    const std::array<Expressions, 4> kinds{numbers, texts, lists, others};
    const std::size_t kind = random.below(kinds.size() + 1);
    return kind == kinds.size() ? object(random, objectCount) : QString::fromLatin1(random.oneOf(kinds.at(kind)));
}

QString hostileSize(Random &random)
{
    return QString::fromLatin1(random.oneOf(sizes));
}
