#include "TambleClientControlModule.h"
#include "tst_SheetReload.h"
#include "tst_StateHelper.h"
#include "tst_StyleEngine.h"
#include "tst_StyleEngineSetup.h"
#include "tst_ThemeSelector.h"

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

namespace {

template <typename Test>
int runTest(int argc, char **argv)
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    tamble::client::TambleClientControlModule().registerTypes("TambleClient.Control");
    return runTest<StateHelperTest>(argc, argv) + runTest<ThemeSelectorTest>(argc, argv) +
           runTest<tst_StyleEngine>(argc, argv) + runTest<tst_StyleEngineSetup>(argc, argv) +
           runTest<tst_SheetReload>(argc, argv);
}
