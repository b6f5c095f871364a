#include "flyouts/FlyoutPlace.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <array>
#include <limits>

using namespace tamble::client;

/// Where flyouts of 200 by 100 pixels stand in a layer of 800 by 600.
class tst_FlyoutPlace : public QObject
{
    Q_OBJECT

    static constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    static constexpr QSizeF flyout{200, 100};
    static constexpr QSizeF layer{800, 600};
    static constexpr std::array neighbour = {QRectF(300, 200, 200, 150)};

private Q_SLOTS:
    void standing_data()
    {
        const auto row = rowsOf([](const FlyoutPlace &place, const QSizeF &room, const QPointF &where) {
            QCOMPARE(tamble::client::standing(place, flyout, room, QSizeF(64, 32)), where);
        });
        row("room", {{100, 50}, {}}, layer, QPointF(100, 50));
        row("left", {{-900, 50}, {}}, layer, QPointF(-136, 50));
        row("right", {{900, 50}, {}}, layer, QPointF(736, 50));
        row("above", {{100, -50}, {}}, layer, QPointF(100, 0));
        row("below", {{100, 900}, {}}, layer, QPointF(100, 568));
        row("docked at the right, below", {{600, 500}, Qt::RightEdge | Qt::BottomEdge}, QSizeF(1000, 400),
            QPointF(800, 300));
        row("docked at both sides", {{0, 50}, Qt::LeftEdge | Qt::RightEdge}, layer, QPointF(0, 50));
        row("docked in less room than it needs", {{0, 50}, Qt::RightEdge | Qt::BottomEdge}, QSizeF(100, 60),
            QPointF(-100, 0));
        row("hardly any room", {{100, 50}, {}}, QSizeF(10, 10), QPointF(-54, 0));
        row("not a number", {{notANumber, -std::numeric_limits<double>::infinity()}, {}}, layer, QPointF(0, 0));
    }
    void standing() { checkRow(); }

    void snapped_data()
    {
        const auto row = rowsOf([](const QPointF &position, double reach, const FlyoutPlace &place) {
            const FlyoutPlace found = tamble::client::snapped(position, flyout, layer, neighbour, reach);
            QCOMPARE(found.position, place.position);
            QCOMPARE(found.docked, place.docked);
        });
        row("free", QPointF(20, 30), 8, {{20, 30}, {}});
        row("left", QPointF(8, 30), 8, {{0, 30}, Qt::LeftEdge});
        row("beyond the left", QPointF(-7, 30), 8, {{0, 30}, Qt::LeftEdge});
        row("out of reach", QPointF(9, 30), 8, {{9, 30}, {}});
        row("corner", QPointF(595, 505), 8, {{600, 500}, Qt::RightEdge | Qt::BottomEdge});
        row("beside a neighbour", QPointF(505, 240), 8, {{500, 240}, {}});
        row("before a neighbour", QPointF(97, 240), 8, {{100, 240}, {}});
        row("below, and in line", QPointF(295, 352), 8, {{300, 350}, {}});
        row("a neighbour far above", QPointF(505, 400), 8, {{505, 400}, {}});
        row("only what it touches", QPointF(1, 0), 0, {{1, 0}, Qt::TopEdge});
        row("off", QPointF(1, 0), -1, {{1, 0}, {}});
    }
    void snapped() { checkRow(); }

    void snappedSize_data()
    {
        const auto row = rowsOf([](const QPointF &position, const QSizeF &size, const QSizeF &found) {
            QCOMPARE(tamble::client::snappedSize(position, size, layer, QSizeF(160, 80), neighbour, 8), found);
        });
        row("free", QPointF(20, 30), QSizeF(210, 120), QSizeF(210, 120));
        row("to the layer's edges", QPointF(550, 400), QSizeF(244, 206), QSizeF(250, 200));
        row("beyond them", QPointF(550, 400), QSizeF(900, 900), QSizeF(250, 200));
        row("to a neighbour", QPointF(50, 210), QSizeF(245, 145), QSizeF(250, 140));
        row("too small", QPointF(20, 30), QSizeF(-50, 10), QSizeF(160, 80));
        row("no room for the least", QPointF(700, 30), QSizeF(300, 100), QSizeF(160, 100));
    }
    void snappedSize() { checkRow(); }

    void besideArea_data()
    {
        const auto row = rowsOf([](const QRectF &area, Qt::Edge edge, const QPointF &where) {
            QCOMPARE(tamble::client::besideArea(area, edge, flyout, layer), where);
        });
        row("right", QRectF(100, 100, 40, 40), Qt::RightEdge, QPointF(140, 100));
        row("left", QRectF(300, 100, 40, 40), Qt::LeftEdge, QPointF(100, 100));
        row("no room at the left", QRectF(100, 100, 40, 40), Qt::LeftEdge, QPointF(140, 100));
        row("no room at the right", QRectF(700, 100, 40, 40), Qt::RightEdge, QPointF(500, 100));
        row("below", QRectF(100, 100, 40, 40), Qt::BottomEdge, QPointF(100, 140));
        row("above, shifted into the layer", QRectF(700, 300, 40, 40), Qt::TopEdge, QPointF(600, 200));
        row("room at neither", QRectF(10, 10, 780, 40), Qt::RightEdge, QPointF(600, 10));
        row("scrolled away", QRectF(100, -900, 40, 40), Qt::RightEdge, QPointF(140, 0));
    }
    void besideArea() { checkRow(); }

    void centred()
    {
        QCOMPARE(tamble::client::centred(flyout, layer), QPointF(300, 250));
        QCOMPARE(tamble::client::centred(layer, flyout), QPointF(0, 0));
    }
};

template struct TestClass<tst_FlyoutPlace>;
#include "tst_FlyoutPlace.moc"
