#include "fields/RTextFieldDoubleValidator.h"

#include "fields/FieldChecks.h"

#include <QtCore/QLocale>

#include <cmath>

namespace tamble::client {

namespace {

/// Pages also write the greatest double for "no bound"; what takes more digits than a field does is none either.
bool isBound(double value)
{
    return std::abs(value) < 1e15;
}

/// As it would be typed: without exponent and group separators.
QString boundText(double value)
{
    return QString::number(value + 0.0, 'f', QLocale::FloatingPointShortest);
}

} // namespace

RTextFieldDoubleValidator::RTextFieldDoubleValidator(QObject *parent)
    : QDoubleValidator(parent)
{}

QValidator::State RTextFieldDoubleValidator::validate(QString &text, int &) const
{
    return checkDecimal(text, bottom(), top(), decimals());
}

void RTextFieldDoubleValidator::fixup(QString &text) const
{
    text = tidyDecimal(text);
}

QString RTextFieldDoubleValidator::message(const QString &text) const
{
    if (checkDecimal(text, bottom(), top(), decimals()) == Acceptable)
        return {};
    if (isBound(bottom()) && isBound(top()))
        return tr("Enter a number from %1 to %2").arg(boundText(bottom()), boundText(top()));
    if (isBound(bottom()))
        return tr("Enter a number of at least %1").arg(boundText(bottom()));
    if (isBound(top()))
        return tr("Enter a number of at most %1").arg(boundText(top()));
    return tr("Enter a number");
}

} // namespace tamble::client
