#include "bodeplot/tst_BodeplotFrame.h"
#include "bodeplot/tst_CurveDrawing.h"
#include "bodeplot/tst_CurveItem.h"
#include "bodeplot/tst_FilterItems.h"
#include "bodeplot/tst_FilterSet.h"
#include "bodeplot/tst_FrameItems.h"
#include "bodeplot/tst_FrameLines.h"
#include "bodeplot/tst_ResponseLines.h"

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
    failures += runTest<CurveDrawingTest>(argc, argv);
    failures += runTest<CurveItemTest>(argc, argv);
    failures += runTest<FilterItemsTest>(argc, argv);
    failures += runTest<FilterSetTest>(argc, argv);
    failures += runTest<FrameItemsTest>(argc, argv);
    failures += runTest<FrameLinesTest>(argc, argv);
    failures += runTest<ResponseLinesTest>(argc, argv);
    return failures;
}
