#include "pointer/PointerWindow.h"
#include "pointer/RMouseCursor.h"
#include "pointer/RMouseEventSpy.h"
#include "support/Rows.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

#include <algorithm>
#include <array>

using namespace tamble::client;

namespace {

Qt::CursorShape overrideShape()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor ? cursor->shape() : Qt::LastCursor;
}

} // namespace

class tst_MouseCursor : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        RMouseEventSpy::instance()->install();
        QVERIFY(m_directory.isValid());
        for (const int size : {32, 257}) {
            QImage picture(size, size, QImage::Format_ARGB32);
            picture.fill(Qt::red);
            QVERIFY(picture.save(pathOf(QStringLiteral("%1.png").arg(size))));
        }
        QFile file(pathOf(QStringLiteral("broken.png")));
        QVERIFY(file.open(QFile::WriteOnly) && file.write("\x89PNG") == 4);
    }

    void shapes_data()
    {
        using Change = void (*)(PointerWindow & window, RMouseCursor & cursor);
        const auto row = rowsOf([](Change change, const QPoint &point, Qt::CursorShape expected) {
            PointerWindow window;
            RMouseCursor cursor(&window.box);
            cursor.setShape(Qt::CrossCursor);
            change(window, cursor);
            window.moveTo(QPoint(199, 199));
            window.moveTo(point);
            QCOMPARE(window.cursor().shape(), expected);
        });
        const Change asItIs = [](PointerWindow &, RMouseCursor &) {};
        row("in the parent", asItIs, PointerWindow::middle, Qt::CrossCursor);
        row("beside the parent", asItIs, PointerWindow::outside, Qt::ArrowCursor);
        row(
            "no such shape", [](PointerWindow &, RMouseCursor &cursor) { cursor.setShape(-7); }, PointerWindow::middle,
            Qt::ArrowCursor);
        row(
            "inactive: the parent's own",
            [](PointerWindow &window, RMouseCursor &cursor) {
                window.box.setCursor(Qt::WaitCursor);
                cursor.setActive(false);
            },
            PointerWindow::middle, Qt::WaitCursor);
        row(
            "instead of the parent's own",
            [](PointerWindow &window, RMouseCursor &) { window.box.setCursor(Qt::WaitCursor); }, PointerWindow::middle,
            Qt::CrossCursor);
        row(
            "not in place of another child's",
            [](PointerWindow &window, RMouseCursor &cursor) {
                auto *field = new QQuickItem(&window.box);
                field->setSize({100, 100});
                field->setCursor(Qt::IBeamCursor);
                cursor.stackAfter(field);
            },
            PointerWindow::middle, Qt::IBeamCursor);
        row(
            "the last of two",
            [](PointerWindow &window, RMouseCursor &) { (new RMouseCursor(&window.box))->setShape(Qt::BusyCursor); },
            PointerWindow::middle, Qt::BusyCursor);
        row(
            "disabled", [](PointerWindow &, RMouseCursor &cursor) { cursor.setEnabled(false); }, PointerWindow::middle,
            Qt::ArrowCursor);
        row(
            "turned", [](PointerWindow &window, RMouseCursor &) { window.box.setRotation(45); }, QPoint(53, 53),
            Qt::ArrowCursor);
    }
    void shapes() { checkRow(); }

    void changesUnderAPointer()
    {
        PointerWindow window;
        auto cursor = std::make_unique<RMouseCursor>(&window.box);
        cursor->setShape(Qt::CrossCursor);
        window.moveTo(PointerWindow::middle);
        cursor->setShape(Qt::SizeAllCursor);
        QCOMPARE(window.cursor().shape(), Qt::SizeAllCursor);
        cursor.reset();
        QTRY_COMPARE(window.cursor().shape(), Qt::ArrowCursor);
    }

    void pictures_data()
    {
        const auto row = rowsOf([this](const QString &file, const QPointF &hotSpot, const QPoint &expected) {
            PointerWindow window;
            RMouseCursor cursor(&window.box);
            cursor.setShape(Qt::CrossCursor);
            cursor.setSource(QUrl::fromLocalFile(pathOf(file)));
            cursor.setHotSpot(hotSpot);
            window.moveTo(PointerWindow::middle);
            const QCursor shown = window.cursor();
            if (expected.x() < 0) {
                QCOMPARE(shown.shape(), Qt::CrossCursor);
                return;
            }
            QCOMPARE(shown.shape(), Qt::BitmapCursor);
            QCOMPARE(shown.hotSpot(), expected);
            const qreal ratio = window.effectiveDevicePixelRatio();
            QCOMPARE(shown.pixmap().size(), QSize(32, 32) * ratio);
            QCOMPARE(shown.pixmap().devicePixelRatio(), ratio);
            cursor.setSource({});
            QCOMPARE(window.cursor().shape(), Qt::CrossCursor);
        });
        const QString picture = QStringLiteral("32.png");
        const QPoint shape(-1, -1);
        row("with a hot spot", picture, QPointF(15.6, 3), QPoint(16, 3));
        row("hot spot outside", picture, QPointF(-1, 1e9), QPoint(0, 31));
        row("hot spot nowhere", picture, QPointF(qQNaN(), qInf()), QPoint(0, 31));
        row("no such file", QStringLiteral("none.png"), QPointF(), shape);
        row("not a picture", QStringLiteral("broken.png"), QPointF(), shape);
        row("too large", QStringLiteral("257.png"), QPointF(), shape);
    }
    void pictures() { checkRow(); }

    // All orders in which three of them go.
    void overridesEndInAnyOrder()
    {
        constexpr std::array shapes{Qt::CrossCursor, Qt::WaitCursor, Qt::BusyCursor};
        std::array order{0, 1, 2};
        do {
            PointerWindow window;
            QList<int> left{0, 1, 2};
            std::array<std::unique_ptr<RMouseCursor>, 3> cursors;
            for (std::size_t i = 0; i < cursors.size(); ++i) {
                cursors[i] = std::make_unique<RMouseCursor>(&window.box);
                cursors[i]->setShape(shapes[i]);
                cursors[i]->setOverrideAll(true);
                QCOMPARE(overrideShape(), shapes[i]);
            }
            for (const int index : order) {
                cursors[std::size_t(index)].reset();
                left.removeOne(index);
                QCOMPARE(overrideShape(), left.isEmpty() ? Qt::LastCursor : shapes[std::size_t(left.last())]);
            }
        } while (std::next_permutation(order.begin(), order.end()));
    }

    void overrideHolds_data()
    {
        using Change = void (*)(PointerWindow & window, RMouseCursor & cursor);
        const auto row = rowsOf([](Change end, Change resume) {
            PointerWindow window;
            RMouseCursor cursor(&window.box);
            cursor.setShape(Qt::CrossCursor);
            cursor.setOverrideAll(true);
            QCOMPARE(overrideShape(), Qt::CrossCursor);
            end(window, cursor);
            QCOMPARE(overrideShape(), Qt::LastCursor);
            resume(window, cursor);
            QCOMPARE(overrideShape(), Qt::CrossCursor);
        });
        using Window = PointerWindow;
        row(
            "while active", [](Window &, RMouseCursor &cursor) { cursor.setActive(false); },
            [](Window &, RMouseCursor &cursor) { cursor.setActive(true); });
        row(
            "while it is wanted", [](Window &, RMouseCursor &cursor) { cursor.setOverrideAll(false); },
            [](Window &, RMouseCursor &cursor) { cursor.setOverrideAll(true); });
        row(
            "while enabled", [](Window &window, RMouseCursor &) { window.box.setEnabled(false); },
            [](Window &window, RMouseCursor &) { window.box.setEnabled(true); });
        row(
            "while shown", [](Window &window, RMouseCursor &) { window.box.setVisible(false); },
            [](Window &window, RMouseCursor &) { window.box.setVisible(true); });
        row(
            "while its window is shown", [](Window &window, RMouseCursor &) { window.hide(); },
            [](Window &window, RMouseCursor &) { window.show(); });
        row(
            "while in a window", [](Window &window, RMouseCursor &) { window.box.setParentItem(nullptr); },
            [](Window &window, RMouseCursor &) { window.box.setParentItem(window.contentItem()); });
    }
    void overrideHolds() { checkRow(); }

    void foreignOverridesStay()
    {
        PointerWindow window;
        auto cursor = std::make_unique<RMouseCursor>(&window.box);
        cursor->setOverrideAll(true);
        QGuiApplication::setOverrideCursor(Qt::ForbiddenCursor);
        cursor->setShape(Qt::CrossCursor);
        QCOMPARE(overrideShape(), Qt::ForbiddenCursor);
        QGuiApplication::restoreOverrideCursor();
        cursor.reset();
        QCOMPARE(overrideShape(), Qt::LastCursor);
    }

    void positionIsTold()
    {
        PointerWindow window;
        RMouseCursor cursor(&window.box);
        window.moveTo(PointerWindow::outside);
        {
            QSignalSpy told(&cursor, &RMouseCursor::positionChanged);
            window.moveTo(PointerWindow::middle);
            QCOMPARE(told.count(), 1);
        }
        window.moveTo(PointerWindow::outside);
        QCOMPARE(cursor.position(), QPointF(window.mapToGlobal(PointerWindow::outside)));
    }

private:
    QString pathOf(const QString &file) const { return m_directory.filePath(file); }

    QTemporaryDir m_directory;
};

template struct TestClass<tst_MouseCursor>;
#include "tst_MouseCursor.moc"
