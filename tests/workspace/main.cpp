#include "workspace/tst_MouseEventSpy.h"

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
    return failures;
}
