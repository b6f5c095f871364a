#include "tst_MeterFractions.h"
#include "tst_MeterSegments.h"
#include "tst_RMeterBase.h"

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    tst_MeterFractions fractions;
    tst_MeterSegments segments;
    tst_RMeterBase meter;
    return QTest::qExec(&fractions, argc, argv) + QTest::qExec(&segments, argc, argv) +
           QTest::qExec(&meter, argc, argv);
}
