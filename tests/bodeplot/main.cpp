#include "bodeplot/tst_BodeplotFrame.h"
#include "bodeplot/tst_FilterItems.h"

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
    failures += runTest<BodeplotFrameTest>(argc, argv);
    failures += runTest<FilterItemsTest>(argc, argv);
    return failures;
}
