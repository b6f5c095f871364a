#include "tst_Calculators.h"
#include "tst_HandleRules.h"
#include "tst_TransferCurves.h"

#include <QtTest/QtTest>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    tst_TransferCurves curves;
    tst_HandleRules handles;
    tst_Calculators calculators;
    return QTest::qExec(&curves, argc, argv) + QTest::qExec(&handles, argc, argv) +
           QTest::qExec(&calculators, argc, argv);
}
