#pragma once

#include "TambleClientCommonExport.h"

#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace tamble::client {

/// Turns a device value into the text that a control shows, and a typed text back into a value.
///
/// A control uses it in one of two ways: it binds `value` and shows `displayText`, or it calls toText() and fromText()
/// with values of its own; the functions do not depend on `value`. Texts do not depend on the locale of the process.
class TAMBLE_CLIENT_COMMON_EXPORT RValueConverter : public QObject
{
    Q_OBJECT
    /// The value to show, of any type. Default undefined. C++ code unwraps a QJSValue that does not hold an array.
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged)
    /// toText(value).
    Q_PROPERTY(QString displayText READ displayText NOTIFY displayTextChanged)
    /// Unit written after a number, separated by a no-break space. Default empty: none.
    Q_PROPERTY(QString unit READ unit WRITE setUnit NOTIFY unitChanged)
    /// Text written directly before a number. Default empty.
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix NOTIFY prefixChanged)
    /// Text for a value that is undefined, null, NaN, an empty list or of a type without text. Default U+2013, a dash.
    Q_PROPERTY(QString nullText READ nullText WRITE setNullText NOTIFY nullTextChanged)
    /// Texts for single values, shown without prefix and unit: { "0": "Off", "true": "Yes", "-3.5": "Low" }.
    /// A number's key has as many digits as tell it apart, without unit and exponent. Default empty.
    Q_PROPERTY(QVariantMap texts READ texts WRITE setTexts NOTIFY textsChanged)

public:
    explicit RValueConverter(QObject *parent = nullptr);

    QVariant value() const { return m_value; }
    void setValue(const QVariant &value);

    QString displayText() const { return m_displayText; }

    QString unit() const { return m_unit; }
    void setUnit(const QString &unit);

    QString prefix() const { return m_prefix; }
    void setPrefix(const QString &prefix);

    QString nullText() const { return m_nullText; }
    void setNullText(const QString &nullText);

    QVariantMap texts() const { return m_texts; }
    void setTexts(const QVariantMap &texts);

    /// Text of `value`. The first that applies: nullText; the entry of texts; "On" or "Off" for a bool; a number with 6
    /// significant digits between prefix and unit, infinities as a sign alone; a text as it is; the texts of a list's
    /// elements joined with ", ", those behind 100,000 characters as "…".
    Q_INVOKABLE virtual QString toText(const QVariant &value) const;

    /// Value meant by `text`, undefined when there is none. Blanks around the text do not count, nor does the case of
    /// entries, prefix and unit.
    ///
    /// The first that applies: the value of an entry of texts; "On", "Off"; a number with "." or ",", prefix and unit
    /// being optional; the text itself, unless it is empty or nullText, or a prefix or unit says that values are
    /// numbers.
    Q_INVOKABLE virtual QVariant fromText(const QString &text) const;

    /// Whether fromText() finds a value in `text`.
    Q_INVOKABLE virtual bool accepts(const QString &text) const;

Q_SIGNALS:
    void valueChanged();
    void displayTextChanged();
    void unitChanged();
    void prefixChanged();
    void nullTextChanged();
    void textsChanged();

protected:
    /// Computes displayText again and notifies when it differs. To be called by a derived class whenever a property of
    /// its own that takes part in the text has changed, and in its constructor when it shows undefined differently.
    void updateDisplayText();

    /// Entry of texts for `value`, if there is one.
    std::optional<QString> entryText(const QVariant &value) const;

    /// Value whose entry of texts is `text`, ignoring case; undefined when there is none.
    QVariant entryValue(QStringView text) const;

    /// `number` between prefix and unit, `multiplier` ("k") being written together with the unit.
    QString withPrefixAndUnit(const QString &number, const QString &multiplier = {}) const;

    /// `text` without prefix, unit and the blanks around the rest. Each of the two may be missing.
    QStringView withoutPrefixAndUnit(QStringView text) const;

private:
    QString listText(const QVariantList &list) const;

    QVariant m_value;
    QString m_displayText;
    QString m_unit;
    QString m_prefix;
    QString m_nullText;
    QVariantMap m_texts;
};

} // namespace tamble::client
