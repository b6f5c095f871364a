#include "workspace/tst_MouseEventSpy.h"
#include "workspace/tst_StateHelper.h"
#include "workspace/tst_ThemeSelector.h"

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
    int failures = 0;
    failures += runTest<MouseEventSpyTest>(argc, argv);
    failures += runTest<StateHelperTest>(argc, argv);
    failures += runTest<ThemeSelectorTest>(argc, argv);
    return failures;
}
