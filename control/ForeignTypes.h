#pragma once

#include <tambleclient-common/DoubleValueConverter.h>
#include <tambleclient-common/RValueConverter.h>

#include <QtCore/QObject>
#include <QtGui/QDoubleValidator>
#include <QtGui/QIntValidator>
#include <QtGui/QValidator>
#include <QtQml/qqml.h>

// Tells QML tools of the types that the module registers without owning their meta-object: those of other libraries,
// and validators that QML sees as the Qt class they derive from.

namespace tamble::client {

struct ForeignDoubleValidator
{
    Q_GADGET
    QML_FOREIGN(QDoubleValidator)
    QML_NAMED_ELEMENT(RTextFieldDoubleValidator)
};

struct ForeignIntValidator
{
    Q_GADGET
    QML_FOREIGN(QIntValidator)
    QML_NAMED_ELEMENT(RTextFieldIntValidator)
};

struct ForeignIpAddressValidator
{
    Q_GADGET
    QML_FOREIGN(QValidator)
    QML_NAMED_ELEMENT(RTextFieldIpAddressValidator)
};

struct ForeignValueConverter
{
    Q_GADGET
    QML_FOREIGN(tamble::client::RValueConverter)
    QML_NAMED_ELEMENT(RValueConverter)
};

struct ForeignDoubleValueConverter
{
    Q_GADGET
    QML_FOREIGN(tamble::client::DoubleValueConverter)
    QML_NAMED_ELEMENT(RDoubleValueConverter)
};

} // namespace tamble::client
