#pragma once

#include <QtCore/QObject>

class FieldValidatorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decimals_data();
    void decimals();
    void integers_data();
    void integers();
    void addresses_data();
    void addresses();
    void pins_data();
    void pins();
    void pinMessages();
    void fixup_data();
    void fixup();
    void rangeChangeRevalidates();
};
