#include "scenegraph/tst_PictureCanvas.h"
#include "tst_AreaStrip.h"
#include "tst_AxisTicks.h"
#include "tst_CustomMaterial.h"
#include "tst_GridValues.h"
#include "tst_PlotHelpers.h"
#include "tst_Plotters.h"
#include "tst_StrokeGeometry.h"

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    tst_AreaStrip areaStrip;
    tst_PictureCanvas pictureCanvas;
    tst_AxisTicks axisTicks;
    tst_GridValues gridValues;
    tst_StrokeGeometry strokeGeometry;
    tst_PlotHelpers plotHelpers;
    tst_Plotters plotters;
    tst_CustomMaterial customMaterial;
    int failures = 0;
    for (QObject *test : std::initializer_list<QObject *>{&areaStrip, &pictureCanvas, &axisTicks, &gridValues,
                                                          &strokeGeometry, &plotHelpers, &plotters, &customMaterial})
        failures += QTest::qExec(test, argc, argv);
    return failures;
}
