#include "meter/BarRedraws.h"
#include "meter/MeterSegments.h"
#include "meter/RMeterBar.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QTimer>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>

#include <array>
#include <utility>

using namespace tamble::client;

namespace {

// The lit segments as "G0-10 Y10-12", in the order of the zones.
QString textOf(const MeterSegments &segments)
{
    QStringList parts;
    for (const MeterSegment &segment : segments) {
        if (segment.from < segment.to)
            parts += QStringLiteral("%1%2-%3").arg(QChar(u"-GYR"[int(segment.zone)])).arg(segment.from).arg(segment.to);
    }
    return parts.join(u' ');
}

} // namespace

class tst_MeterSegments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bar_data()
    {
        // factors: green, yellow, red
        const auto row = rowsOf(
            [](const QList<double> &factors, bool horizontal, bool reverse, double pixelRatio, const QString &lit) {
                const MeterSegments segments =
                    barSegments({factors[0], factors[1], factors[2]}, 100.0, pixelRatio, {horizontal, reverse});
                QCOMPARE(textOf(segments), lit);
            });
        using Factors = QList<double>;
        row("dark", Factors{0.0, 0.0, 0.0}, false, false, 1.0, "-0-100");
        row("upwards", Factors{0.5, 0.7, 0.8}, false, false, 1.0, "G50-100 Y30-50 R20-30 -0-20");
        row("downwards", Factors{0.5, 0.7, 0.8}, false, true, 1.0, "G0-50 Y50-70 R70-80 -80-100");
        row("rightwards", Factors{0.5, 0.5, 0.5}, true, false, 1.0, "G0-50 -50-100");
        row("leftwards", Factors{0.5, 0.5, 0.5}, true, true, 1.0, "G50-100 -0-50");
        row("lower zones hide higher ones", Factors{0.8, 0.5, 0.9}, true, false, 1.0, "G0-80 R80-90 -90-100");
        row("out of range", Factors{-1.0, 0.5, 7.0}, true, false, 1.0, "Y0-50 R50-100");
        row("not a number", Factors{notANumber, notANumber, notANumber}, true, false, 1.0, "-0-100");
        row("whole pixels", Factors{0.333, 0.333, 0.333}, true, false, 1.0, "G0-33 -33-100");
        row("whole device pixels", Factors{0.333, 0.333, 0.333}, true, false, 2.0, "G0-33.5 -33.5-100");
    }
    void bar() { checkRow(); }

    void split()
    {
        const SectionFactors dark;
        QCOMPARE(textOf(splitSegments({0.5, 0.75, 0.75}, dark, 0.4, 100.0, 1.0)),
                 QStringLiteral("G20-40 Y10-20 -0-10 -40-100"));
        QCOMPARE(textOf(splitSegments(dark, {0.5, 0.5, 1.0}, 0.4, 100.0, 1.0)), QStringLiteral("-0-40 G40-70 R70-100"));
        QCOMPARE(textOf(splitSegments(dark, dark, notANumber, 100.0, 1.0)), QStringLiteral("-0-100"));
    }

    void repaintsOnlyWhatIsSeen()
    {
        QQuickWindow window;
        RMeterBase meter(window.contentItem());
        RMeterBar bar(&meter);
        bar.setSize(QSizeF(12, 100));
        bar.setMeter(&meter);
        const auto isDirty = [&] {
            return bool(QQuickItemPrivate::get(&bar)->dirtyAttributes & QQuickItemPrivate::Content);
        };
        const auto clean = [&] { QQuickItemPrivate::get(&bar)->dirtyAttributes = 0; };

        clean();
        meter.setValue(0.0);
        QVERIFY2(isDirty(), "a level lights the bar");
        clean();
        meter.setCurrentValue(0.1);
        QVERIFY2(!isDirty(), "a tenth of a decibel lights the same pixels");
        meter.setVisible(false);
        clean();
        const MeterSegments before = bar.segments();
        meter.setCurrentValue(-40.0);
        QVERIFY2(!isDirty(), "nothing is painted while hidden");
        QCOMPARE(bar.segments(), before);
        meter.setVisible(true);
        QVERIFY2(isDirty(), "shown again with the level of now");
        QCOMPARE(textOf(bar.segments()), QStringLiteral("G53-100 -0-53"));
    }

    void fallsWithTheNextRise()
    {
        QQuickWindow window;
        std::array<RMeterBase, 2> meters;
        std::array<RMeterBar, 2> bars;
        for (std::size_t i = 0; i < bars.size(); ++i) {
            meters.at(i).setParentItem(window.contentItem());
            bars.at(i).setParentItem(window.contentItem());
            bars.at(i).setSize(QSizeF(12, 100));
            bars.at(i).setMeter(&meters.at(i));
            meters.at(i).setProperty("currentValueDecreasePerSecond", 0.0);
        }
        const auto takeDirty = [](RMeterBar &bar) {
            auto &dirty = QQuickItemPrivate::get(&bar)->dirtyAttributes;
            return bool(std::exchange(dirty, 0) & QQuickItemPrivate::Content);
        };
        BarRedraws::instance();
        QTimer &timer = RMeterBase::sharedTimer();
        timer.stop();
        const auto tick = [&timer] { QMetaObject::invokeMethod(&timer, "timeout", Qt::DirectConnection); };
        RMeterBar &falling = bars.front();

        meters.front().setCurrentValue(0.0);
        meters.back().setCurrentValue(-60.0);
        tick();
        takeDirty(falling);
        meters.front().setCurrentValue(-10.0);
        QVERIFY2(!takeDirty(falling), "waits, as something rose in the last interval");
        meters.back().setCurrentValue(-50.0);
        QVERIFY2(takeDirty(falling), "drawn with what rises");

        meters.front().setCurrentValue(-20.0);
        tick();
        QVERIFY2(!takeDirty(falling), "waits for the rise that is expected");
        tick();
        QVERIFY2(takeDirty(falling), "nothing rose for an interval");
        meters.front().setCurrentValue(-30.0);
        QVERIFY2(takeDirty(falling), "nothing to wait for");
    }
};

template struct TestClass<tst_MeterSegments>;
#include "tst_MeterSegments.moc"
