#include "input/RScreen.h"
#include "input/ScreenZoom.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <limits>

using namespace tamble::client;

class tst_Screen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zoomFactor_data();
    void zoomFactor();
    void followsItsWindow();
};

void tst_Screen::zoomFactor_data()
{
    QTest::addColumn<double>("logicalDpi");
    QTest::addColumn<double>("designDpi");
    QTest::addColumn<double>("factor");

    QTest::newRow("same") << 96.0 << 96.0 << 1.0;
    QTest::newRow("rounded up") << 110.0 << 96.0 << 1.15;
    QTest::newRow("rounded down") << 120.0 << 98.0 << 1.2;
    QTest::newRow("not below a half") << 30.0 << 96.0 << 0.5;
    QTest::newRow("not above three") << 500.0 << 96.0 << 3.0;
    QTest::newRow("no design density") << 96.0 << 0.0 << 1.0;
    QTest::newRow("negative design density") << 96.0 << -96.0 << 1.0;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 96.0 << 1.0;
}

void tst_Screen::zoomFactor()
{
    QFETCH(double, logicalDpi);
    QFETCH(double, designDpi);
    QFETCH(double, factor);
    QCOMPARE(autoZoomFactor(logicalDpi, designDpi), factor);
}

void tst_Screen::followsItsWindow()
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

template struct TestClass<tst_Screen>;
#include "tst_Screen.moc"
