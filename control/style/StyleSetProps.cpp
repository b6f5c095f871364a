#include "style/StyleSetProps.h"

namespace tamble::client {

StyleSetProps::StyleSetProps(QObject *parent)
    : QObject(parent)
{}

bool StyleSetProps::isValid() const
{
    return false;
}

bool StyleSetProps::isSet(const QString &) const
{
    return false;
}

QVariant StyleSetProps::get(const QString &) const
{
    return {};
}

QVariant StyleSetProps::values(const QString &) const
{
    return {};
}

QColor StyleSetProps::color(const QString &) const
{
    return {};
}

bool StyleSetProps::boolean(const QString &) const
{
    return false;
}

double StyleSetProps::number(const QString &) const
{
    return 0.0;
}

QFont StyleSetProps::font(const QString &) const
{
    return {};
}

QString StyleSetProps::string(const QString &) const
{
    return {};
}

QUrl StyleSetProps::url(const QString &) const
{
    return {};
}

} // namespace tamble::client
