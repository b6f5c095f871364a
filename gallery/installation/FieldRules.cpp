#include "FieldRules.h"

#include "NetworkSources.h"
#include "RandomSource.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr double minusInfinity = -std::numeric_limits<double>::infinity();

QString forPeople(const char *text)
{
    return QCoreApplication::translate("FieldRules", text);
}

Judgement refused(const QString &reason)
{
    return {{}, reason};
}

Judgement judgedLength(const FieldSpec &field, const QString &text, bool clamps)
{
    const auto least = qsizetype(field.minimum);
    const auto most = qsizetype(field.maximum);
    if (text.size() < least)
        return refused(forPeople("The text is too short"));
    if (text.size() > most && !clamps)
        return refused(forPeople("The text is longer than %1 characters").arg(most));
    return {text.left(most), {}};
}

Judgement judgedLine(const FieldSpec &field, const QVariant &value, bool clamps)
{
    const QString text = value.toString();
    const bool isPlain = std::all_of(text.begin(), text.end(), [](QChar c) { return c.isPrint(); });
    return isPlain ? judgedLength(field, text, clamps)
                   : refused(forPeople("The text has characters that cannot be shown"));
}

Judgement judgedLines(const FieldSpec &field, const QVariant &value, bool clamps)
{
    return judgedLength(field, value.toString(), clamps);
}

Judgement judgedDigits(const FieldSpec &field, const QVariant &value, bool)
{
    const QString text = value.toString();
    const bool isRight = text.size() >= qsizetype(field.minimum) && text.size() <= qsizetype(field.maximum) &&
                         std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return isRight ? Judgement{text, {}}
                   : refused(forPeople("The PIN must have %1 to %2 digits").arg(field.minimum).arg(field.maximum));
}

Judgement judgedAddress(const FieldSpec &, const QVariant &value, bool)
{
    const qint64 number = addressNumber(value.toString());
    if (number < 0)
        return refused(forPeople("This is no address"));
    const int net = int(number >> 24);
    return net >= 1 && net <= 223 && net != 127 ? Judgement{value.toString(), {}}
                                                : refused(forPeople("No device can have this address"));
}

Judgement judgedMask(const FieldSpec &, const QVariant &value, bool)
{
    const qint64 number = addressNumber(value.toString());
    const qint64 hosts = 0xffffffff - number;
    const bool isMask = number > 0 && (hosts & (hosts + 1)) == 0;
    return isMask ? Judgement{value.toString(), {}} : refused(forPeople("This is no subnet mask"));
}

Judgement judgedFlag(const FieldSpec &, const QVariant &value, bool)
{
    return {value.toBool(), {}};
}

Judgement judgedSource(const FieldSpec &field, const QVariant &value, bool)
{
    bool isNumber = false;
    const int id = value.toInt(&isNumber);
    return isNumber && id >= int(field.minimum) && id <= int(field.maximum)
               ? Judgement{id, {}}
               : refused(forPeople("There is no such source"));
}

Judgement judgedNumber(const FieldSpec &field, const QVariant &value, bool clamps)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber || std::isnan(number))
        return refused(forPeople("This is no number"));
    if (!clamps && (number < field.minimum || number > field.maximum))
        return refused(forPeople("The value must be from %1 to %2").arg(field.minimum).arg(field.maximum));
    return {std::clamp(number, field.minimum, field.maximum), {}};
}

Judgement judgedGain(const FieldSpec &field, const QVariant &value, bool clamps)
{
    if (value.toDouble() == minusInfinity)
        return {minusInfinity, {}};
    Judgement judgement = judgedNumber(field, value, clamps);
    if (judgement.reason.isEmpty()) {
        const double steps = clamps ? 1.0 : 10.0; // per dB
        judgement.value = std::round(judgement.value.toDouble() * steps) / steps;
    }
    return judgement;
}

Judgement judgedSamples(const FieldSpec &field, const QVariant &value, bool clamps)
{
    Judgement judgement = judgedNumber(field, value, clamps);
    if (judgement.reason.isEmpty())
        judgement.value = int(std::lround(judgement.value.toDouble()));
    return judgement;
}

Judgement judgedReading(const FieldSpec &, const QVariant &, bool)
{
    return refused(forPeople("The device measures this value"));
}

QVariant sampleLine(const FieldSpec &, RandomSource &random)
{
    static const QStringList words{QStringLiteral("Main left"),  QStringLiteral("Main right"), QStringLiteral("Delay"),
                                   QStringLiteral("Front fill"), QStringLiteral("Balcony"),    QStringLiteral("Foyer"),
                                   QStringLiteral("Sub"),        QStringLiteral("Büro"),       QStringLiteral("舞台")};
    return QStringLiteral("%1 %2").arg(words[random.below(int(words.size()))]).arg(random.below(99));
}

QVariant sampleLines(const FieldSpec &field, RandomSource &random)
{
    return QStringLiteral("%1\n%2").arg(sampleLine(field, random).toString(), sampleLine(field, random).toString());
}

QVariant sampleDigits(const FieldSpec &, RandomSource &random)
{
    return QString::number(1000 + random.below(9000));
}

QVariant sampleAddress(const FieldSpec &, RandomSource &random)
{
    return QStringLiteral("192.168.10.%1").arg(1 + random.below(254));
}

QVariant sampleMask(const FieldSpec &, RandomSource &random)
{
    return random.chance(0.5) ? QStringLiteral("255.255.255.0") : QStringLiteral("255.255.0.0");
}

QVariant sampleFlag(const FieldSpec &, RandomSource &random)
{
    return random.chance(0.5);
}

QVariant sampleSource(const FieldSpec &, RandomSource &random)
{
    return networkSources().at(random.below(int(networkSources().size()))).id;
}

QVariant sampleNumber(const FieldSpec &field, RandomSource &random)
{
    return std::round(random.between(field.minimum, field.maximum) * 10.0) / 10.0;
}

QVariant sampleSamples(const FieldSpec &field, RandomSource &random)
{
    return int(random.between(field.minimum, field.maximum));
}

struct Rule
{
    ValueKind kind;
    QMetaType::Type type;
    Judgement (*judged)(const FieldSpec &field, const QVariant &value, bool clamps);
    QVariant (*sample)(const FieldSpec &field, RandomSource &random);
};

constexpr std::array rules{
    Rule{ValueKind::Line, QMetaType::QString, judgedLine, sampleLine},
    Rule{ValueKind::Lines, QMetaType::QString, judgedLines, sampleLines},
    Rule{ValueKind::Digits, QMetaType::QString, judgedDigits, sampleDigits},
    Rule{ValueKind::Address, QMetaType::QString, judgedAddress, sampleAddress},
    Rule{ValueKind::SubnetMask, QMetaType::QString, judgedMask, sampleMask},
    Rule{ValueKind::Flag, QMetaType::Bool, judgedFlag, sampleFlag},
    Rule{ValueKind::Source, QMetaType::Int, judgedSource, sampleSource},
    Rule{ValueKind::Gain, QMetaType::Double, judgedGain, sampleNumber},
    Rule{ValueKind::Samples, QMetaType::Int, judgedSamples, sampleSamples},
    Rule{ValueKind::Milliseconds, QMetaType::Double, judgedNumber, sampleNumber},
    Rule{ValueKind::Reading, QMetaType::Double, judgedReading, sampleNumber},
};

const Rule &ruleOf(const FieldSpec &field)
{
    return *std::find_if(rules.begin(), rules.end(), [&](const Rule &rule) { return rule.kind == field.kind; });
}

} // namespace

Judgement judgedValue(const FieldSpec &field, const QVariant &value, bool clamps)
{
    return ruleOf(field).judged(field, value, clamps);
}

QVariant emptyValue(const FieldSpec &field)
{
    return QVariant(QMetaType(ruleOf(field).type));
}

QVariant sampleValue(const FieldSpec &field, RandomSource &random)
{
    return ruleOf(field).sample(field, random);
}

bool isEditable(const FieldSpec &field)
{
    return field.kind != ValueKind::Reading;
}

qint64 addressNumber(const QString &text)
{
    const QStringList parts = text.split(u'.');
    qint64 number = 0;
    for (const QString &part : parts) {
        bool isNumber = false;
        const int byte = part.toInt(&isNumber);
        if (!isNumber || byte < 0 || byte > 255 || QString::number(byte) != part)
            return -1;
        number = number * 256 + byte;
    }
    return parts.size() == 4 ? number : -1;
}
