#include "screen/RScreen.h"
#include "screen/ScreenZoom.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <limits>

using namespace tamble::client;

class tst_Screen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zoomFactor_data()
    {
        const auto row = rowsOf([](double logicalDpi, double designDpi, double factor) {
            QCOMPARE(autoZoomFactor(logicalDpi, designDpi), factor);
        });
        row("same", 96.0, 96.0, 1.0);
        row("rounded up", 110.0, 96.0, 1.15);
        row("rounded down", 120.0, 98.0, 1.2);
        row("not below a half", 30.0, 96.0, 0.5);
        row("not above three", 500.0, 96.0, 3.0);
        row("no design density", 96.0, 0.0, 1.0);
        row("negative design density", 96.0, -96.0, 1.0);
        row("not a number", std::numeric_limits<double>::quiet_NaN(), 96.0, 1.0);
    }
    void zoomFactor() { checkRow(); }

    void followsItsWindow()
    {
        QQuickWindow window;
        RScreen page;
        QCOMPARE(page.screenSize(), QSizeF(0.0, 0.0));

        QSignalSpy sizeSpy(&page, &RScreen::screenSizeChanged);
        page.setParentItem(window.contentItem());
        QCOMPARE(page.screenSize(), QSizeF(window.screen()->size()));
        QCOMPARE(page.logicalDpi(), window.screen()->logicalDotsPerInch());
        QCOMPARE(sizeSpy.count(), 1);

        QSignalSpy factorSpy(&page, &RScreen::autoZoomFactorChanged);
        page.setDesignDpi(page.logicalDpi() / 2.0);
        QCOMPARE(page.autoZoomFactor(), 2.0);
        page.setParentItem(nullptr);
        QCOMPARE(page.autoZoomFactor(), 1.0);
        QCOMPARE(page.screenSize(), QSizeF(0.0, 0.0));
        QCOMPARE(factorSpy.count(), 2);
    }
};

template struct TestClass<tst_Screen>;
#include "tst_Screen.moc"
