#include "menus/MenuPlace.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

/// Where menus stand in a window of 400 by 300 pixels.
class tst_MenuPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void besidePoint_data()
    {
        const auto row = rowsOf([](const QPointF &pressed, const QSizeF &size, const QPointF &place) {
            QCOMPARE(placeBesidePoint(pressed, size, QRectF(8, 8, 384, 284)), place);
        });
        row("room", QPointF(100, 100), QSizeF(144, 96), QPointF(101, 101));
        row("right edge", QPointF(300, 100), QSizeF(144, 96), QPointF(155, 101));
        row("bottom edge", QPointF(100, 250), QSizeF(144, 96), QPointF(101, 153));
        row("corner", QPointF(399, 299), QSizeF(144, 96), QPointF(248, 196));
        row("tall", QPointF(100, 150), QSizeF(144, 200), QPointF(101, 92));
        row("wide", QPointF(200, 100), QSizeF(300, 96), QPointF(92, 101));
        row("covers", QPointF(200, 150), QSizeF(384, 284), QPointF(8, 8));
    }
    void besidePoint() { checkRow(); }

    void below_data()
    {
        const auto row = rowsOf([](const QRectF &area, const QSizeF &size, const QPointF &place) {
            QCOMPARE(placeBelow(area, size, QRectF(8, 8, 384, 284)), place);
        });
        row("room", QRectF(100, 100, 50, 32), QSizeF(144, 96), QPointF(100, 132));
        row("bottom edge", QRectF(100, 250, 50, 32), QSizeF(144, 96), QPointF(100, 154));
        row("right edge", QRectF(350, 100, 50, 32), QSizeF(144, 96), QPointF(248, 132));
        row("neither", QRectF(100, 150, 50, 32), QSizeF(144, 200), QPointF(100, 92));
        row("scrolled away", QRectF(-900, -900, 50, 32), QSizeF(144, 96), QPointF(8, 8));
    }
    void below() { checkRow(); }
};

template struct TestClass<tst_MenuPlace>;
#include "tst_MenuPlace.moc"
