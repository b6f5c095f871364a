#include "DoubleValueConverter.h"

#include "DecimalText.h"
#include "PlainValue.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

constexpr int maximumDecimals = 15;
constexpr int kiloDigits = 3;

template <typename T>
bool replace(T &member, const T &value)
{
    if (member == value)
        return false;
    member = value;
    return true;
}

bool replace(double &member, double value)
{
    if (member == value || (std::isnan(member) && std::isnan(value)))
        return false;
    member = value;
    return true;
}

bool isWrittenZero(const QString &number)
{
    return std::all_of(number.begin(), number.end(), [](QChar c) { return c == u'0' || c == u'.'; });
}

bool reachesThousand(const QString &number)
{
    const qsizetype point = number.indexOf(u'.');
    return (point < 0 ? number.size() : point) > 3;
}

/// Removes a "k" from the end of `text` and returns the power of ten that it stands for.
int takeKilo(QStringView &text)
{
    if (!text.endsWith(u'k', Qt::CaseInsensitive))
        return 0;
    text = text.chopped(1).trimmed();
    return 3;
}

} // namespace

DoubleValueConverter::DoubleValueConverter(QObject *parent)
    : RValueConverter(parent)
    , m_decimalPoint(u'.')
{}

void DoubleValueConverter::setDecimals(int decimals)
{
    if (!replace(m_decimals, std::clamp(decimals, 0, maximumDecimals)))
        return;
    updateDisplayText();
    Q_EMIT decimalsChanged();
}

void DoubleValueConverter::setFactor(double factor)
{
    if (!replace(m_factor, factor))
        return;
    updateDisplayText();
    Q_EMIT factorChanged();
}

void DoubleValueConverter::setOffset(double offset)
{
    if (!replace(m_offset, offset))
        return;
    updateDisplayText();
    Q_EMIT offsetChanged();
}

void DoubleValueConverter::setMinimum(double minimum)
{
    if (!replace(m_minimum, minimum))
        return;
    updateDisplayText();
    Q_EMIT minimumChanged();
}

void DoubleValueConverter::setMaximum(double maximum)
{
    if (!replace(m_maximum, maximum))
        return;
    updateDisplayText();
    Q_EMIT maximumChanged();
}

void DoubleValueConverter::setMinimumText(const QString &minimumText)
{
    if (!replace(m_minimumText, minimumText))
        return;
    updateDisplayText();
    Q_EMIT minimumTextChanged();
}

void DoubleValueConverter::setMaximumText(const QString &maximumText)
{
    if (!replace(m_maximumText, maximumText))
        return;
    updateDisplayText();
    Q_EMIT maximumTextChanged();
}

void DoubleValueConverter::setPlusSign(bool plusSign)
{
    if (!replace(m_plusSign, plusSign))
        return;
    updateDisplayText();
    Q_EMIT plusSignChanged();
}

void DoubleValueConverter::setKilo(bool kilo)
{
    if (!replace(m_kilo, kilo))
        return;
    updateDisplayText();
    Q_EMIT kiloChanged();
}

void DoubleValueConverter::setDecimalPoint(const QString &decimalPoint)
{
    if (!replace(m_decimalPoint, decimalPoint))
        return;
    updateDisplayText();
    Q_EMIT decimalPointChanged();
}

QString DoubleValueConverter::toText(const QVariant &value) const
{
    const PlainValue plain = plainValue(value);
    const double *number = std::get_if<double>(&plain);
    if (!number)
        return RValueConverter::toText(value);
    if (!isScaleUsable())
        return nullText();
    if (const std::optional<QString> entry = entryText(value))
        return *entry;
    if (const QString bound = boundText(*number); !bound.isEmpty())
        return bound;
    return numberText(shownNumber(*number));
}

QVariant DoubleValueConverter::fromText(const QString &text) const
{
    if (!isScaleUsable())
        return {};
    const QStringView trimmed = QStringView(text).trimmed();
    if (const QVariant entry = entryValue(trimmed); entry.isValid())
        return entry;
    // Read as a whole first: the unit may be a letter with which "inf" ends.
    if (const std::optional<double> bound = boundValue(trimmed))
        return *bound;
    QStringView bare = withoutPrefixAndUnit(trimmed);
    if (const std::optional<double> bound = boundValue(bare))
        return *bound;

    const int shift = takeKilo(bare);
    const std::optional<double> shown = readDecimal(bare, point(), shift, Exponent::Forbidden);
    if (!shown)
        return {};
    if (m_factor == 1 && m_offset == 0)
        return *shown;
    const double value = valueShownAs(*shown);
    return std::isfinite(value) ? QVariant(value) : QVariant();
}

// The quotient is rounded, and without noise to 15 digits. Shown again it may differ in the last digit of a long text,
// or in more where the offset leaves little of the number; then one of its neighbours is meant.
double DoubleValueConverter::valueShownAs(double shown) const
{
    constexpr int farthestNeighbour = 4;
    const QString text = numberText(shown);
    const auto isShown = [this, &text](double value) { return numberText(shownNumber(value)) == text; };

    double above = (shown - m_offset) / m_factor;
    double below = above;
    const double tidy = withoutNoise(above);
    if (isShown(tidy))
        return tidy;
    for (int i = 0; i <= farthestNeighbour; ++i) {
        for (const double value : {above, below}) {
            if (isShown(value))
                return value;
        }
        above = std::nextafter(above, std::numeric_limits<double>::infinity());
        below = std::nextafter(below, -std::numeric_limits<double>::infinity());
    }
    return tidy;
}

bool DoubleValueConverter::isScaleUsable() const
{
    return m_factor != 0 && std::isfinite(m_factor) && std::isfinite(m_offset);
}

double DoubleValueConverter::lowerBound() const
{
    return std::isnan(m_minimum) ? -std::numeric_limits<double>::infinity() : m_minimum;
}

double DoubleValueConverter::upperBound() const
{
    return std::isnan(m_maximum) ? std::numeric_limits<double>::infinity() : m_maximum;
}

QChar DoubleValueConverter::point() const
{
    const QChar first = m_decimalPoint.size() == 1 ? m_decimalPoint.front() : QChar(u'.');
    const bool isUsable = first.isPunct() && first.category() != QChar::Punctuation_Dash;
    return isUsable ? first : QChar(u'.');
}

QString DoubleValueConverter::boundText(double value) const
{
    if (value <= lowerBound() && !m_minimumText.isEmpty())
        return m_minimumText;
    return value >= upperBound() ? m_maximumText : QString();
}

double DoubleValueConverter::shownNumber(double value) const
{
    return value * m_factor + m_offset;
}

QString DoubleValueConverter::numberText(double shown) const
{
    if (std::isinf(shown))
        return infinityText(shown < 0);

    const double magnitude = std::abs(shown);
    QString number = fixedText(magnitude, m_decimals);
    // Decided on the rounded number: "1000.0" would turn into "1 k" as soon as it is read back.
    const bool isKilo = m_kilo && reachesThousand(number);
    if (isKilo)
        number = significantText(magnitude / 1000, kiloDigits);

    const bool isZero = isWrittenZero(number);
    number.replace(u'.', point());
    if (shown < 0 && !isZero)
        number.prepend(u'-');
    else if (m_plusSign && !isZero)
        number.prepend(u'+');
    return withPrefixAndUnit(number, isKilo ? QStringLiteral("k") : QString());
}

std::optional<double> DoubleValueConverter::boundValue(QStringView text) const
{
    const auto isShownAs = [text](const QString &bound) {
        return !bound.isEmpty() && text.compare(QStringView(bound).trimmed(), Qt::CaseInsensitive) == 0;
    };
    if (isShownAs(m_minimumText))
        return lowerBound();
    if (isShownAs(m_maximumText))
        return upperBound();
    // Meant is the end of what is shown; a negative factor shows the maximum at the lower end.
    if (const std::optional<int> sign = readInfinity(text))
        return (*sign < 0) == (m_factor > 0) ? lowerBound() : upperBound();
    return std::nullopt;
}

} // namespace tamble::client
