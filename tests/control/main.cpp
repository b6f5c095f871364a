#include "tst_ControlImageProvider.h"
#include "tst_ModuleFrame.h"
#include "tst_TypeCatalogue.h"
#include "tst_ValueRequests.h"

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    tst_ModuleFrame moduleFrame;
    tst_TypeCatalogue typeCatalogue;
    tst_ControlImageProvider controlImageProvider;
    tst_ValueRequests valueRequests;
    int failures = 0;
    for (QObject *test : {static_cast<QObject *>(&moduleFrame), static_cast<QObject *>(&typeCatalogue),
                          static_cast<QObject *>(&controlImageProvider), static_cast<QObject *>(&valueRequests)})
        failures += QTest::qExec(test, argc, argv);
    return failures;
}
