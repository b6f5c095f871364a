#include "bars/BadgeText.h"
#include "bars/BarPlan.h"
#include "bars/FlashPhase.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;
using namespace tamble::client;

class tst_BarRules : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void plan_data()
    {
        const auto row = rowsOf([](const BarWidths &widths, double room, bool compact, double navigation, double whole,
                                   bool trailingStays) {
            const BarPlan plan = planBar(widths, room, 144.0);
            QCOMPARE(plan.compact, compact);
            QCOMPARE(plan.navigation, navigation);
            QCOMPARE(plan.whole, whole);
            QCOMPARE(plan.trailingStays, trailingStays);
        });
        const BarWidths widths{100.0, 500.0, 240.0, 200.0};
        row("all fits", widths, 1000.0, false, 500.0, 1000.0, true);
        row("to the pixel", widths, 800.0, false, 500.0, 800.0, true);
        row("a pixel too little takes the texts", widths, 799.0, true, 240.0, 799.0, true);
        row("icons alone are flicked", widths, 500.0, true, 200.0, 500.0, true);
        row("as long as there is room to flick", widths, 444.0, true, 144.0, 444.0, true);
        row("then the leading part is, too", widths, 443.0, true, 240.0, 540.0, true);
        row("as long as the trailing part leaves room", widths, 344.0, true, 240.0, 540.0, true);
        row("then the whole row is", widths, 343.0, true, 240.0, 540.0, false);
        row("no room at all", widths, 0.0, true, 240.0, 540.0, false);
        row("a short navigation is not flicked alone", {100.0, 300.0, 96.0, 200.0}, 380.0, true, 96.0, 396.0, true);
        row("nothing but the ends", {100.0, 0.0, 0.0, 200.0}, 250.0, false, 0.0, 300.0, false);
        row("empty", {}, 250.0, false, 0.0, 250.0, true);
    }
    void plan() { checkRow(); }

    void badges_data()
    {
        const auto row = rowsOf([](const QString &badge, const QString &shown) { QCOMPARE(shortBadge(badge), shown); });
        row("none", QString(), QString());
        row("fits", u"999"_s, u"999"_s);
        row("a number keeps its size", u"1000"_s, u"99+"_s);
        row("a text its beginning", u"new!"_s, u"ne…"_s);
    }
    void badges() { checkRow(); }

    void flashes_data()
    {
        const auto row = rowsOf([](qint64 now, bool lit, int next) {
            QCOMPARE(isFlashLit(now), lit);
            QCOMPARE(nextFlashIn(now), next);
        });
        row("begins with the second", 1'700'000'000'000, true, 500);
        row("to its half", 1'700'000'000'499, true, 1);
        row("the other half", 1'700'000'000'500, false, 500);
        row("to its end", 1'700'000'000'999, false, 1);
    }
    void flashes() { checkRow(); }
};

template struct TestClass<tst_BarRules>;

#include "tst_BarRules.moc"
