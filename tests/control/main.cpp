#include "tst_ControlImageProvider.h"
#include "tst_ModuleFrame.h"
#include "tst_TypeCatalogue.h"

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    tst_ModuleFrame moduleFrame;
    tst_TypeCatalogue typeCatalogue;
    tst_ControlImageProvider controlImageProvider;
    int failures = 0;
    for (QObject *test : {static_cast<QObject *>(&moduleFrame), static_cast<QObject *>(&typeCatalogue),
                          static_cast<QObject *>(&controlImageProvider)})
        failures += QTest::qExec(test, argc, argv);
    return failures;
}
