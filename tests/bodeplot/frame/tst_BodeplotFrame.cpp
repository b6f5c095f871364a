#include "bodeplot/frame/RBodeplot.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>
#include <limits>

using namespace tamble::client;

namespace {

constexpr int out = RBodeplotZoomEnum::ZOOM_OUT;
constexpr int in = RBodeplotZoomEnum::ZOOM_IN;

/// A frame as the component of the module sets it up, 300 pixels wide.
struct Frame : RBodeplot
{
    Frame()
    {
        setXMinimum(20.0);
        setXMaximum(20000.0);
        setYMinimum(-25.0);
        setYMaximum(25.0);
        setDefaultXMinimum(20.0);
        setDefaultXMaximum(20000.0);
        setDeltaX(1.15);
        setMinLogDistance(1.5);
        setDeltaY(2.5);
        setMinYAxis(12.5);
        setMaxYAxis(40.0);
        setProperty("zoomAreaWidth", 300.0);
    }

    void show(double minimum, double maximum)
    {
        setXMinimum(minimum);
        setXMaximum(maximum);
    }
};

} // namespace

class tst_BodeplotFrame : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void levelZoom_data()
    {
        const auto row = rowsOf([](int direction, int steps, double bound) {
            Frame frame;
            for (int i = 0; i < steps; ++i)
                frame.zoomYAxis(direction);
            QCOMPARE(frame.yMaximum(), bound);
            QCOMPARE(frame.yMinimum(), -bound);
        });
        row("one step in", in, 1, 22.5);
        row("in stops at the smallest bound", in, 9, 12.5);
        row("one step out", out, 1, 27.5);
        row("out stops at the largest bound", out, 9, 40.0);
        row("other directions do nothing", 2, 1, 25.0);
    }
    void levelZoom() { checkRow(); }

    void frequencyZoom()
    {
        Frame frame;
        QSignalSpy spy(&frame, &RBodeplot::xMaximumChanged);
        frame.zoomXAxis(out);
        QCOMPARE(frame.xMinimum(), 20.0);
        QCOMPARE(frame.xMaximum(), 20000.0);
        QCOMPARE(spy.count(), 0);

        frame.zoomXAxis(in);
        QCOMPARE(frame.xMinimum(), 23.0);
        QCOMPARE(frame.xMaximum(), 20000.0 / 1.15);
        QCOMPARE(spy.count(), 1);

        frame.zoomXAxis(out);
        QCOMPARE(frame.xMinimum(), 20.0);
        QCOMPARE(frame.xMaximum(), 20000.0);
    }

    void spanGuard()
    {
        Frame frame;
        frame.zoomXAxis(in); // only measures
        QCOMPARE(frame.xMinimum(), 20.0);

        // A span of 1.53 decades is still above the limit of 1.5, so the next step is taken and goes below it.
        frame.show(100.0, 100.0 * std::pow(10.0, 1.53));
        frame.zoomXAxis(2);
        frame.zoomXAxis(in);
        QCOMPARE(frame.xMinimum(), 115.0);
        frame.zoomXAxis(in);
        QCOMPARE(frame.xMinimum(), 115.0);
    }

    void panning_data()
    {
        const auto row =
            rowsOf([](double minimum, double maximum, double press, double move, double newMinimum, double newMaximum) {
                Frame frame;
                frame.show(minimum, maximum);
                frame.onMousePressed(press);
                frame.onMousePositionChanged(move);
                QCOMPARE(frame.xMinimum(), newMinimum);
                QCOMPARE(frame.xMaximum(), newMaximum);
            });
        // Two decades on 300 pixels: 150 pixels are one decade.
        row("left", 50.0, 5000.0, 200.0, 185.0, 50.0 * std::pow(10.0, 0.1), 5000.0 * std::pow(10.0, 0.1));
        row("right", 200.0, 20000.0 / 2, 50.0, 50.0 + 150.0 * std::log10(2.0),
            200.0 / std::pow(50.0, std::log10(2.0) / 2.0), 10000.0 / std::pow(50.0, std::log10(2.0) / 2.0));
        row("right stops at the lower end", 50.0, 5000.0, 0.0, 150.0, 20.0, 2000.0);
        row("left at the upper end stays", 200.0, 20000.0, 150.0, 0.0, 200.0, 20000.0);
        row("left of the area", 50.0, 5000.0, 10.0, -1.0, 50.0, 5000.0);
        row("right of the area", 50.0, 5000.0, 290.0, 301.0, 50.0, 5000.0);
        row("whole range shown", 20.0, 20000.0, 200.0, 100.0, 20.0, 20000.0);
    }
    void panning() { checkRow(); }

    void panStartsAfreshAtTheEdge()
    {
        Frame frame;
        frame.show(50.0, 5000.0);
        frame.onMousePressed(0.0);
        frame.onMousePositionChanged(150.0);
        QCOMPARE(frame.xMinimum(), 20.0);

        // 15 pixels back are a tenth of a decade, although the pointer is still right of where it was pressed.
        frame.onMousePositionChanged(135.0);
        QCOMPARE(frame.xMinimum(), 20.0 * std::pow(10.0, 0.1));
    }

    void disabledFrameIgnoresAll()
    {
        Frame frame;
        frame.show(50.0, 5000.0);
        frame.zoomXAxis(2);
        frame.setProperty("enableZooming", false);
        frame.zoomXAxis(in);
        frame.zoomYAxis(in);
        frame.onMousePressed(200.0);
        frame.onMousePositionChanged(100.0);
        QCOMPARE(frame.xMinimum(), 50.0);
        QCOMPARE(frame.xMaximum(), 5000.0);
        QCOMPARE(frame.yMaximum(), 25.0);
    }

    void notANumberIsIgnored()
    {
        Frame frame;
        QSignalSpy spy(&frame, &RBodeplot::xMinimumChanged);
        frame.setXMinimum(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(frame.xMinimum(), 20.0);
        QCOMPARE(spy.count(), 0);
    }
};

template struct TestClass<tst_BodeplotFrame>;
#include "tst_BodeplotFrame.moc"
