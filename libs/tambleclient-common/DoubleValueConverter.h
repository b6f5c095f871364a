#pragma once

#include "RValueConverter.h"
#include "TambleClientCommonExport.h"

#include <limits>
#include <optional>

namespace tamble::client {

/// Shows a number scaled, rounded and with its unit, and reads typed numbers back.
///
/// The number shown is value * factor + offset, rounded half away from zero after reading it as a decimal: 0.05 gives
/// "0.1" and -2.5 gives "-3". Values that are not numbers are shown as by RValueConverter.
class TAMBLE_CLIENT_COMMON_EXPORT DoubleValueConverter : public tamble::client::RValueConverter
{
    Q_OBJECT
    /// Digits after the point, 0 to 15; other numbers count as the nearer end. Default 1.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals NOTIFY decimalsChanged)
    /// Units shown per unit of the value. Default 1. 0, NaN and infinities show nullText and leave every text unread.
    Q_PROPERTY(double factor READ factor WRITE setFactor NOTIFY factorChanged)
    /// Number shown for the value 0, in units shown. Default 0. NaN and infinities act as for factor.
    Q_PROPERTY(double offset READ offset WRITE setOffset NOTIFY offsetChanged)
    /// Value, before scaling, from which downwards minimumText is shown. Default negative infinity, as for NaN.
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum NOTIFY minimumChanged)
    /// Value, before scaling, from which upwards maximumText is shown. Default infinity, as for NaN.
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum NOTIFY maximumChanged)
    /// Text at or below minimum, read as minimum. Default empty: the number is shown there as well.
    Q_PROPERTY(QString minimumText READ minimumText WRITE setMinimumText NOTIFY minimumTextChanged)
    /// Text at or above maximum, read as maximum. Default empty: the number is shown there as well.
    Q_PROPERTY(QString maximumText READ maximumText WRITE setMaximumText NOTIFY maximumTextChanged)
    /// Whether numbers above 0 carry a "+". Default false.
    Q_PROPERTY(bool plusSign READ plusSign WRITE setPlusSign NOTIFY plusSignChanged)
    /// Whether numbers from 1000 upwards, and their negatives, are shown as "1.25 k" with up to 3 significant digits.
    /// A number that `decimals` rounds to 1000 is one of them. Default false.
    Q_PROPERTY(bool kilo READ kilo WRITE setKilo NOTIFY kiloChanged)
    /// Point written before the decimals. Default ".", which also stands in for anything but one punctuation mark.
    Q_PROPERTY(QString decimalPoint READ decimalPoint WRITE setDecimalPoint NOTIFY decimalPointChanged)

public:
    explicit DoubleValueConverter(QObject *parent = nullptr);

    int decimals() const { return m_decimals; }
    void setDecimals(int decimals);

    double factor() const { return m_factor; }
    void setFactor(double factor);

    double offset() const { return m_offset; }
    void setOffset(double offset);

    double minimum() const { return m_minimum; }
    void setMinimum(double minimum);

    double maximum() const { return m_maximum; }
    void setMaximum(double maximum);

    QString minimumText() const { return m_minimumText; }
    void setMinimumText(const QString &minimumText);

    QString maximumText() const { return m_maximumText; }
    void setMaximumText(const QString &maximumText);

    bool plusSign() const { return m_plusSign; }
    void setPlusSign(bool plusSign);

    bool kilo() const { return m_kilo; }
    void setKilo(bool kilo);

    QString decimalPoint() const { return m_decimalPoint; }
    void setDecimalPoint(const QString &decimalPoint);

    /// Text of a number. The first that applies: nullText for NaN or an unusable scale; the entry of texts; minimumText
    /// or maximumText; the rounded number between prefix and unit, infinities as a sign alone. Zero has no sign.
    QString toText(const QVariant &value) const override;

    /// Number meant by `text`, before scaling and never clamped to the bounds; undefined when there is none.
    ///
    /// The first that applies: the value of an entry of texts; minimumText or maximumText; "-inf" or "inf", also with
    /// U+221E, for minimum or maximum, which change places while factor is negative; a number with ".", "," or
    /// decimalPoint. Prefix, a "k" for thousands, and unit are optional, blanks around each do not count, case does not
    /// matter.
    ///
    /// A number that toText() wrote is read as a value with that same text, unless an entry or a bound takes it.
    QVariant fromText(const QString &text) const override;

Q_SIGNALS:
    void decimalsChanged();
    void factorChanged();
    void offsetChanged();
    void minimumChanged();
    void maximumChanged();
    void minimumTextChanged();
    void maximumTextChanged();
    void plusSignChanged();
    void kiloChanged();
    void decimalPointChanged();

private:
    bool isScaleUsable() const;
    double lowerBound() const;
    double upperBound() const;
    QChar point() const;
    QString boundText(double value) const;
    double shownNumber(double value) const;
    QString numberText(double shown) const;
    double valueShownAs(double shown) const;
    std::optional<double> boundValue(QStringView text) const;

    int m_decimals = 1;
    double m_factor = 1;
    double m_offset = 0;
    double m_minimum = -std::numeric_limits<double>::infinity();
    double m_maximum = std::numeric_limits<double>::infinity();
    QString m_minimumText;
    QString m_maximumText;
    bool m_plusSign = false;
    bool m_kilo = false;
    QString m_decimalPoint;
};

} // namespace tamble::client
