#include "workspace/RectIndex.h"

#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

using namespace tamble::client;

namespace {

RectIndex::Keys sorted(RectIndex::Keys keys)
{
    std::sort(keys.begin(), keys.end());
    return keys;
}

} // namespace

class tst_RectIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edges_data()
    {
        const auto row = rowsOf([](const QRectF &rect, bool touched, bool contained, bool hit) {
            RectIndex index;
            index.put(7, rect);
            // The area is 10, 10 to 20, 20, the point in its middle.
            QCOMPARE(index.touching({10, 10, 10, 10}).size(), touched ? 1U : 0U);
            QCOMPARE(index.containedIn({10, 10, 10, 10}).size(), contained ? 1U : 0U);
            QCOMPARE(index.at({15, 15}).size(), hit ? 1U : 0U);
        });
        row("inside", {12, 12, 5, 5}, true, true, true);
        row("fills it", {10, 10, 10, 10}, true, true, true);
        row("around it", {0, 0, 30, 30}, true, false, true);
        row("across an edge", {5, 12, 8, 2}, true, false, false);
        row("touches an edge", {20, 12, 5, 5}, true, false, false);
        row("touches a corner", {20, 20, 5, 5}, true, false, false);
        row("beside it", {20.5, 12, 5, 5}, false, false, false);
        row("begins at the point", {15, 15, 1, 1}, true, true, true);
        row("ends at the point", {11, 11, 4, 4}, true, true, false);
        row("without an area", {15, 15, 0, 0}, true, true, false);
        row("huge", {-1e9, -1e9, 2e9, 2e9}, true, false, true);
        row("not a number", {std::nan(""), 12, 5, 5}, false, false, false);
        row("endless", {12, 12, std::numeric_limits<double>::infinity(), 5}, false, false, false);
    }
    void edges() { checkRow(); }

    void badAreas()
    {
        RectIndex index;
        index.put(0, {0, 0, 10, 10});
        QVERIFY(index.touching({std::nan(""), 0, 10, 10}).empty());
        QVERIFY(index.at({0, std::numeric_limits<double>::infinity()}).empty());
        QCOMPARE(index.at({1, 1}).size(), 1U);
        index.put(0, {std::nan(""), 0, 10, 10});
        QVERIFY(index.at({1, 1}).empty());
        index.remove(99);
    }

    // Whatever is filed and whatever waits, what is found is what looking at every rectangle finds.
    void agreesWithLookingAtAll()
    {
        QRandomGenerator random(20);
        const auto number = [&random](double limit) { return std::floor(random.generateDouble() * limit); };
        const auto anyRect = [&] { return QRectF(number(900), number(900), number(60), number(60)); };
        RectIndex index;
        std::map<RectIndex::Key, QRectF> all;
        for (int step = 0; step < 3000; ++step) {
            const auto key = RectIndex::Key(random.bounded(300));
            if (random.bounded(4) == 0) {
                index.remove(key);
                all.erase(key);
            } else {
                all[key] = anyRect();
                index.put(key, all[key]);
            }
            const QRectF area = anyRect();
            RectIndex::Keys contained;
            for (const auto &[present, rect] : all) {
                if (area.united(rect) == area && rect.left() >= area.left() && rect.top() >= area.top() &&
                    rect.right() <= area.right() && rect.bottom() <= area.bottom())
                    contained.push_back(present);
            }
            QCOMPARE(sorted(index.containedIn(area)), contained);
            RectIndex::Keys hit;
            for (const auto &[present, rect] : all) {
                const QPointF way = area.topLeft() - rect.topLeft();
                if (way.x() >= 0 && way.y() >= 0 && way.x() < rect.width() && way.y() < rect.height())
                    hit.push_back(present);
            }
            QCOMPARE(sorted(index.at(area.topLeft())), hit);
        }
    }

    void restingRectsAreFiled()
    {
        RectIndex index;
        for (RectIndex::Key key = 0; key < 1000; ++key)
            index.put(key, QRectF(key, 0, 1, 1));
        QCOMPARE(index.waiting(), 1000U);
        for (int i = 0; i < 100; ++i)
            QCOMPARE(index.at({500.5, 0.5}).size(), 1U);
        QCOMPARE(index.waiting(), 0U);

        index.put(500, QRectF(500, 0, 1, 1));
        QCOMPARE(index.waiting(), 0U);
        index.put(500, QRectF(0, 50, 1, 1));
        QCOMPARE(index.waiting(), 1U);
        QVERIFY(index.at({500.5, 0.5}).empty());
        for (int i = 0; i < 100; ++i)
            QCOMPARE(index.at({0.5, 50.5}), RectIndex::Keys{500});
        QCOMPARE(index.waiting(), 0U);
    }
};

template struct TestClass<tst_RectIndex>;
#include "tst_RectIndex.moc"
