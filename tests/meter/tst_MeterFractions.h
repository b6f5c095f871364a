#pragma once

#include <QtCore/QObject>

class tst_MeterFractions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void displayedLevel_data();
    void displayedLevel();
    void fractions_data();
    void fractions();
};
