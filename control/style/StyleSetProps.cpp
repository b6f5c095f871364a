#include "style/StyleSetProps.h"

#include "style/StyleEngine.h"
#include "style/language/RulePrinter.h"
#include "style/language/TextExcerpt.h"
#include "style/loading/StyleLog.h"
#include "style/resolution/StyleResolver.h"
#include "style/values/ConvertException.h"
#include "style/values/ValueConversions.h"
#include "style/values/ValueFunctions.h"

namespace tamble::client {

namespace {

template <typename T, T (*Convert)(const StyleValue &)>
T onlyValue(const PropertySpec &spec)
{
    if (spec.values.size() != 1)
        throw ConvertException("exactly one value expected");
    return Convert(spec.values.front());
}

// A colour or an address for a function call, the call's name for one that cannot be evaluated, otherwise the text.
QVariant plainValue(const StyleValue &value)
{
    const auto *call = boost::get<Expression>(&value);
    if (!call)
        return stringFrom(value);
    try {
        const EvaluationResult result = evaluate(*call);
        if (const auto *color = boost::get<QColor>(&result))
            return *color;
        if (const auto *address = boost::get<QUrl>(&result))
            return *address;
        return {};
    } catch (const ConvertException &) {
        return QString::fromStdString(call->name);
    }
}

} // namespace

StyleSetProps::StyleSetProps(StylePathRef path)
    : m_path(std::move(path))
{}

StyleSetProps::~StyleSetProps() = default;

bool StyleSetProps::isValid() const
{
    return !StyleEngine::instance()->resolve(m_path.get()).isEmpty();
}

bool StyleSetProps::isSet(const QString &key) const
{
    return find(key) != nullptr;
}

QVariant StyleSetProps::get(const QString &key)
{
    const QVariantList all = values(key).toList();
    if (all.isEmpty())
        noteMissing(key);
    return all.size() > 1 ? QVariant(all) : all.value(0);
}

QVariant StyleSetProps::values(const QString &key)
{
    QVariantList all;
    if (const PropertySpec *spec = find(key)) {
        for (const StyleValue &value : spec->values)
            all.append(plainValue(value));
    }
    return all;
}

QColor StyleSetProps::color(const QString &key)
{
    return converted<QColor>(key, {"QColor", "colour"}, onlyValue<QColor, colorFrom>);
}

bool StyleSetProps::boolean(const QString &key)
{
    return converted<bool>(key, {"bool", "boolean (true or false)"}, onlyValue<bool, booleanFrom>);
}

double StyleSetProps::number(const QString &key)
{
    return converted<double>(key, {"double", "number"}, onlyValue<double, numberFrom>);
}

QFont StyleSetProps::font(const QString &key)
{
    return converted<QFont>(key, {"QFont", "font"}, onlyValue<QFont, fontFrom>);
}

QString StyleSetProps::string(const QString &key)
{
    return converted<QString>(key, {"QString", "text"}, onlyValue<QString, stringFrom>);
}

QUrl StyleSetProps::url(const QString &key)
{
    return converted<QUrl>(key, {"QUrl", "address"}, onlyValue<QUrl, urlFrom>);
}

void StyleSetProps::invalidate()
{
    m_resolved = nullptr;
    m_inconvertible.clear();
}

void StyleSetProps::noteMissing(const QString &) {}

const ResolvedMap &StyleSetProps::resolved() const
{
    if (!m_resolved)
        m_resolved = &StyleEngine::instance()->resolve(m_path.get());
    return *m_resolved;
}

const PropertySpec *StyleSetProps::find(const QString &key) const
{
    return resolved().find(key);
}

template <typename T>
T StyleSetProps::converted(const QString &key, const ValueType &type, T (*convert)(const PropertySpec &))
{
    const std::pair<QString, const char *> cacheKey(key, type.name);
    ResolvedMap::Values &values = resolved().convertedValues();
    if (const auto known = values.constFind(cacheKey); known != values.constEnd())
        return known->template value<T>();

    const PropertySpec *spec = find(key);
    if (!spec) {
        noteMissing(key);
        return T();
    }
    if (m_inconvertible.contains(cacheKey))
        return T();
    try {
        const T value = convert(*spec);
        values.insert(cacheKey, QVariant::fromValue(value));
        return value;
    } catch (const ConvertException &fault) {
        m_inconvertible.insert(cacheKey);
        reportInconvertible(*spec, type, fault.what());
        return T();
    }
}

void StyleSetProps::reportInconvertible(const PropertySpec &spec, const ValueType &type, const char *reason) const
{
    // A single text is shown as it is; of a list or a call the reason tells which part of it is meant.
    const auto *text = spec.values.size() == 1 ? boost::get<std::string>(&spec.values.front()) : nullptr;
    const std::string shown = cutAround(text ? *text : valuesText(spec.values), 0);
    qCWarning(styleLog).noquote().nospace()
        << "WARN: Property " << QString::fromStdString(spec.name) << " is not convertible to a '" << type.name << "' ("
        << (m_path ? m_path->text() : QString()) << "): " << QString::fromStdString(shown) << " is no " << type.noun
        << (text ? QString() : QStringLiteral(", ") + QString::fromUtf8(reason)) << " ("
        << StyleEngine::instance()->pathInForce(spec.origin) << " at line " << spec.position.line << " column "
        << spec.position.column << ")";
}

} // namespace tamble::client
