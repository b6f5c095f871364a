#include "input/tst_FieldValidators.h"
#include "input/tst_Screen.h"

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
    failures += runTest<FieldValidatorsTest>(argc, argv);
    failures += runTest<ScreenTest>(argc, argv);
    return failures;
}
