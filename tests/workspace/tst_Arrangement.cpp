#include "workspace/Arrangement.h"
#include "workspace/ReadingOrder.h"

#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

class tst_Arrangement : public QObject
{
    Q_OBJECT

    using Rects = std::vector<QRectF>;
    using Points = std::vector<QPointF>;

private Q_SLOTS:
    void bounds_data()
    {
        const auto row = rowsOf([](const Rects &rects, const QRectF &bounds) { QCOMPARE(boundsOf(rects), bounds); });
        row("none", {}, {});
        row("one far out", {{-5, -7, 2, 3}}, {-5, -7, 2, 3});
        row("without an area", {{10, 10, 5, 5}, {40, 0, 0, 0}}, {10, 0, 30, 15});
    }
    void bounds() { checkRow(); }

    void align_data()
    {
        const auto row = rowsOf([](Qt::Alignment edge, const Points &corners) {
            const Rects rects = {{10, 20, 10, 10}, {30, 0, 20, 40}};
            QCOMPARE(aligned(rects, {10, 0, 40, 40}, edge), corners);
        });
        row("left", Qt::AlignLeft, {{10, 20}, {10, 0}});
        row("right", Qt::AlignRight, {{40, 20}, {30, 0}});
        row("centre", Qt::AlignHCenter, {{25, 20}, {20, 0}});
        row("top", Qt::AlignTop, {{10, 0}, {30, 0}});
        row("bottom", Qt::AlignBottom, {{10, 30}, {30, 0}});
        row("middle", Qt::AlignVCenter, {{10, 15}, {30, 0}});
        row("two at once", Qt::AlignLeft | Qt::AlignTop, {{10, 20}, {30, 0}});
    }
    void align() { checkRow(); }

    void distribute_data()
    {
        const auto row = rowsOf([](const Rects &rects, Qt::Orientation direction, const Points &corners) {
            QCOMPARE(distributed(rects, direction), corners);
        });
        row("two stay", {{0, 0, 10, 10}, {90, 0, 10, 10}}, Qt::Horizontal, {{0, 0}, {90, 0}});
        row("across, in any order", {{90, 7, 10, 10}, {0, 8, 10, 10}, {80, 9, 20, 10}}, Qt::Horizontal,
            {{90, 7}, {0, 8}, {40, 9}});
        row("down", {{0, 0, 10, 10}, {5, 10, 10, 30}, {0, 100, 10, 10}}, Qt::Vertical, {{0, 0}, {5, 40}, {0, 100}});
        row("overlapping", {{0, 0, 40, 1}, {1, 0, 40, 1}, {20, 0, 40, 1}}, Qt::Horizontal, {{0, 0}, {10, 0}, {20, 0}});
        row("at one place", {{5, 5, 10, 1}, {5, 6, 10, 1}, {5, 7, 10, 1}}, Qt::Horizontal, {{5, 5}, {5, 6}, {5, 7}});
    }
    void distribute() { checkRow(); }

    void keepInside_data()
    {
        const auto row = rowsOf([](const Rects &rects, const Points &corners) {
            QCOMPARE(keptInside({0, 0, 100, 100}, rects), corners);
        });
        row("inside", {{0, 10, 20, 20}, {80, 80, 20, 20}}, {{0, 10}, {80, 80}});
        row("as one set", {{-10, 10, 20, 20}, {50, 90, 20, 20}}, {{0, 0}, {60, 80}});
        row("wider than the plane", {{10, 0, 20, 20}, {90, 0, 60, 20}}, {{0, 0}, {80, 0}});
        row("none", {}, {});
    }
    void keepInside() { checkRow(); }

    void reading_data()
    {
        const auto row = rowsOf([](const Points &corners, const std::vector<std::size_t> &order) {
            QCOMPARE(readingOrder(corners), order);
        });
        row("one row", {{50, 31}, {10, 0}, {30, 20}}, {1, 2, 0});
        row("rows count from the plane's top", {{10, 32}, {50, 31}}, {1, 0});
        row("above the top", {{10, 0}, {50, -1}}, {1, 0});
        row("one above the other", {{10, 20}, {10, 10}}, {1, 0});
        row("at one place", {{10, 20}, {10, 20}}, {0, 1});
    }
    void reading() { checkRow(); }
};

template struct TestClass<tst_Arrangement>;
#include "tst_Arrangement.moc"
