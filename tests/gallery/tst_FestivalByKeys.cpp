#include "GalleryAudio.h"
#include "GalleryInstallation.h"
#include "PageList.h"
#include "support/TestProgram.h"

#include <QtQml/QQmlApplicationEngine>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlExpression>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <QtQuickControls2/QQuickStyle>

#include <algorithm>

namespace {

constexpr QSize windowSize(1280, 800);

/// The window of the sample client, with a sample installation whose clock stands.
struct Client
{
    Client(int zoom, bool mirrored)
    {
        QQuickStyle::setStyle(QStringLiteral("Basic"));
        audio.setStepped(true);
        installation.setStepped(true);
        engine.addImportPath(QStringLiteral(TAMBLE_QML_DIRECTORY));
        engine.addImportPath(QStringLiteral("qrc:/"));
        engine.setInitialProperties({{QStringLiteral("festivalPages"), pages.festival()},
                                     {QStringLiteral("cataloguePages"), pages.catalogue()},
                                     {QStringLiteral("startZoom"), zoom},
                                     {QStringLiteral("still"), true}});
        engine.load(QUrl(QStringLiteral("qrc:/Gallery/GalleryWindow.qml")));
        window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
        if (!window)
            return;
        window->resize(windowSize);
        evaluate(QStringLiteral("LayoutMirroring.enabled = %1; LayoutMirroring.childrenInherit = true")
                     .arg(mirrored ? u"true" : u"false"));
    }

    bool isReady() const
    {
        return window && QTest::qWaitForWindowActive(window) && QTest::qWaitFor([this] {
                   return window->property("ready").toBool() && window->contentItem()->size() == QSizeF(windowSize);
               });
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window, key, modifiers);
        // Some scroll with the next frame.
        nextFrame();
    }
    void nextFrame() const
    {
        QSignalSpy frame(window, &QQuickWindow::frameSwapped);
        window->update();
        frame.wait(1000);
    }
    /// Runs JavaScript in the file of the window.
    void evaluate(const QString &script) const
    {
        QQmlExpression(qmlContext(window), window->contentItem(), script).evaluate();
    }
    void zoom(int percent) const
    {
        evaluate(QStringLiteral("theme.setDpZoomFactor(%1 / 100)").arg(percent));
        nextFrame();
    }
    QQuickItem *focused() const { return window->activeFocusItem(); }
    /// An item on the page that has a property; null for none.
    QQuickItem *find(const char *property) const
    {
        const QList<QQuickItem *> items = window->findChildren<QQuickItem *>();
        const auto found = std::find_if(items.begin(), items.end(), [property](const QQuickItem *item) {
            return item->isVisible() && item->metaObject()->indexOfProperty(property) >= 0;
        });
        return found == items.end() ? nullptr : *found;
    }
    int page() const { return window->property("currentPage").toInt(); }
    /// The message box on show; null for none.
    QObject *question() const
    {
        const QList<QObject *> objects = window->findChildren<QObject *>();
        const auto found = std::find_if(objects.begin(), objects.end(), [](const QObject *object) {
            return object->inherits("tamble::client::RMessageBox") && object->property("opened").toBool();
        });
        return found == objects.end() ? nullptr : *found;
    }

    GalleryAudio audio{nullptr};
    GalleryInstallation installation{1, nullptr};
    PageList pages{QStringLiteral(":/Gallery")};
    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;
};

QString nameOf(const QQuickItem &item)
{
    const QString text = item.property("label").toString() + item.property("text").toString();
    return QStringLiteral("%1 \"%2\"").arg(QString::fromLatin1(item.metaObject()->className()), text);
}

bool isInBar(const QQuickItem *item)
{
    return item && nameOf(*item).startsWith(u"RAppBar");
}

/// What is wrong with the place of the focus: all of the item is to be seen, or of a large one a good part.
QString faultOf(const Client &client)
{
    const QQuickItem *item = client.focused();
    if (!item || item == client.window->contentItem())
        return QStringLiteral("nothing has the focus");
    if (!item->isVisible() || !item->isEnabled())
        return QStringLiteral("%1 has it, hidden").arg(nameOf(*item));
    const QRectF place = item->mapRectToScene(item->boundingRect());
    QRectF seen = place & QRectF(QPointF(), client.window->size());
    QSizeF room = client.window->size();
    for (const QQuickItem *around = item->parentItem(); around; around = around->parentItem()) {
        if (around->clip()) {
            seen &= around->mapRectToScene(around->boundingRect());
            room = room.boundedTo(around->size());
        }
    }
    const QSizeF wanted = place.size().boundedTo(room * 0.5);
    if (seen.width() >= wanted.width() - 0.5 && seen.height() >= wanted.height() - 0.5)
        return {};
    return QStringLiteral("%1 at %2 is seen at %3").arg(nameOf(*item), QDebug::toString(place), QDebug::toString(seen));
}

} // namespace

/// Whoever has no pointer reaches all of the sample client, and sees where the focus is.
class tst_FestivalByKeys : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void focusIsAlwaysSeen_data()
    {
        QTest::addColumn<int>("zoom");
        QTest::addColumn<bool>("mirrored");
        QTest::newRow("100 %") << 100 << false;
        QTest::newRow("300 %") << 300 << false;
        QTest::newRow("100 %, right to left") << 100 << true;
        QTest::newRow("300 %, right to left") << 300 << true;
    }
    void focusIsAlwaysSeen()
    {
        QFETCH(const int, zoom);
        QFETCH(const bool, mirrored);
        const Client client(zoom, mirrored);
        QVERIFY(client.isReady());
        QStringList faults;
        for (int page = 0; page <= client.pages.festival().size(); ++page) {
            QCOMPARE(client.page(), page);
            QList<const QQuickItem *> met;
            if (const QString fault = faultOf(client); !fault.isEmpty())
                faults.append(QStringLiteral("page %1 at the start: %2").arg(page).arg(fault));
            while (!met.contains(client.focused()) && met.size() < 300) {
                met.append(client.focused());
                client.press(Qt::Key_Tab);
                if (const QString fault = faultOf(client); !fault.isEmpty())
                    faults.append(QStringLiteral("page %1, stop %2: %3").arg(page).arg(met.size()).arg(fault));
            }
            const bool leaves =
                std::any_of(met.begin(), met.end(), [](const QQuickItem *item) { return isInBar(item); });
            // Through the plan, the key goes block by block.
            QVERIFY2(leaves || client.focused() == client.find("rubberBandActive"), "the focus is caught");
            client.press(Qt::Key_PageDown, Qt::ControlModifier);
            QTRY_VERIFY(client.window->property("ready").toBool());
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    // In forms, tables, rows of strips and accordions.
    void focusStaysSeenAtAnotherSize_data()
    {
        QTest::addColumn<QString>("page");
        for (const char *page : {"festival-devices", "festival-levels", "containers", "tables"})
            QTest::newRow(page) << QString::fromLatin1(page);
    }
    void focusStaysSeenAtAnotherSize()
    {
        QFETCH(const QString, page);
        const Client client(100, false);
        QVERIFY(client.isReady());
        client.window->setProperty("currentPage", int(client.pages.indexOf(page)));
        QTRY_VERIFY(client.window->property("ready").toBool());
        QStringList faults;
        for (int stop = 0; stop < 30; ++stop) {
            client.press(Qt::Key_Tab);
            // Far along in a table, whose cells are made only now.
            client.press(Qt::Key_End);
            if (const QString fault = faultOf(client); !fault.isEmpty())
                faults.append(QStringLiteral("stop %1, at its end: %2").arg(stop).arg(fault));
            // Not at each stop, for time.
            for (const int percent : {300, 75}) {
                if (stop % 3 > 0)
                    break;
                client.zoom(percent);
                if (const QString fault = faultOf(client); !fault.isEmpty())
                    faults.append(QStringLiteral("stop %1, %2 %: %3").arg(stop).arg(percent).arg(fault));
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    // It is one stop of the Tab key, and arrows lead through it.
    void barIsReached_data() { focusIsAlwaysSeen_data(); }
    void barIsReached()
    {
        QFETCH(const int, zoom);
        QFETCH(const bool, mirrored);
        const Client client(zoom, mirrored);
        QVERIFY(client.isReady());
        for (int i = 0; i < 100 && !isInBar(client.focused()); ++i)
            client.press(Qt::Key_Tab);
        client.press(Qt::Key_Home);
        QStringList met;
        QString before;
        while (before != nameOf(*client.focused())) {
            before = nameOf(*client.focused());
            met.append(client.focused()->property("text").toString());
            QVERIFY2(faultOf(client).isEmpty(), qPrintable(faultOf(client)));
            client.press(mirrored ? Qt::Key_Left : Qt::Key_Right);
        }
        QCOMPARE(met.size(), client.pages.festival().size() + 3);
        QCOMPARE(met.mid(met.size() - 2), QStringList({QStringLiteral("ALARM"), QStringLiteral("MUTE ALL")}));
    }

    // Enter by Enter through the blocks that fit.
    void planIsSearched()
    {
        const Client client(100, false);
        QVERIFY(client.isReady());
        client.press(Qt::Key_PageDown, Qt::ControlModifier);
        QTRY_VERIFY(client.window->property("ready").toBool() && client.find("rubberBandActive"));
        client.press(Qt::Key_F, Qt::ControlModifier);
        for (const Qt::Key key : {Qt::Key_E, Qt::Key_R, Qt::Key_Space, Qt::Key_1, Qt::Key_9})
            client.press(key);
        QObject *selection = client.find("rubberBandActive")->property("selection").value<QObject *>();
        const auto titleAfter = [&](Qt::Key key) {
            client.press(key);
            const auto items = selection->property("items").value<QList<QObject *>>();
            return items.size() == 1 ? items.first()->property("title").toString() : QString();
        };
        QCOMPARE(titleAfter(Qt::Key_Return), QStringLiteral("Amplifier 19"));
        client.press(Qt::Key_Backspace);
        client.press(Qt::Key_E);
        client.press(Qt::Key_R);
        QCOMPARE(titleAfter(Qt::Key_Enter), QStringLiteral("Amplifier 20"));
        QCOMPARE(titleAfter(Qt::Key_Return), QStringLiteral("Amplifier 21"));
    }

    // The page that was shown stays, and a box says which is missing.
    void pageThatCannotBeShown()
    {
        const Client client(100, false);
        QVERIFY(client.isReady());
        QVariantList pages = client.pages.festival();
        pages.append(QVariantMap({{QStringLiteral("key"), QStringLiteral("lost")},
                                  {QStringLiteral("title"), QStringLiteral("Lost")},
                                  {QStringLiteral("icon"), QString()},
                                  {QStringLiteral("source"), QUrl(QStringLiteral("qrc:/Gallery/Lost.qml"))}}));
        client.window->setProperty("festivalPages", pages);
        QTRY_VERIFY(client.window->property("ready").toBool());
        client.window->setProperty("currentPage", pages.size() - 1);
        QTRY_VERIFY(client.page() == 0 && client.question());
        QCOMPARE(client.question()->property("title").toString(), QStringLiteral("Lost"));
        client.press(Qt::Key_Escape);
        QTRY_VERIFY(!client.question());
        QCOMPARE(faultOf(client), QString());
    }

    // Not by accident, while the audience is there.
    void presetIsRecalledAfterAQuestion()
    {
        Client client(100, false);
        QVERIFY(client.isReady());
        client.window->setProperty("currentPage", int(client.pages.indexOf(QStringLiteral("festival-levels"))));
        QTRY_VERIFY(client.window->property("ready").toBool());
        client.evaluate(QStringLiteral("Festival.showRuns = true"));
        EditHistory &history = *client.installation.history();
        const QList<QObject *> objects = client.window->findChildren<QObject *>();
        const auto recall = std::find_if(objects.begin(), objects.end(), [](const QObject *object) {
            return object->metaObject()->indexOfMethod("recall(int)") >= 0;
        });
        QVERIFY(recall != objects.end());
        for (const bool yes : {false, true}) {
            QVERIFY(QMetaObject::invokeMethod(*recall, "recall", Q_ARG(int, 1)));
            QTRY_VERIFY(client.question());
            // Cancel has the focus.
            if (yes)
                client.press(Qt::Key_Tab);
            client.press(Qt::Key_Return);
            QTRY_VERIFY(!client.question());
            QCOMPARE(history.canUndo(), yes);
        }
        history.undo();
        client.installation.dropOut(GalleryInstallation::firstMixer(), 60'000);
        client.installation.advance(1000);
        QVERIFY(QMetaObject::invokeMethod(*recall, "recall", Q_ARG(int, 1)));
        QVERIFY(!client.question() && !history.canUndo());
    }

    // From a block on the plan to its device, and for a loudspeaker to its amplifier.
    void planLeadsToTheDevice()
    {
        const Client client(100, false);
        QVERIFY(client.isReady());
        client.press(Qt::Key_PageDown, Qt::ControlModifier);
        QTRY_VERIFY(client.window->property("ready").toBool() && client.find("rubberBandActive"));
        QQuickItem *plan = client.find("rubberBandActive");
        plan->forceActiveFocus();
        client.press(Qt::Key_Tab);
        client.press(Qt::Key_Tab);
        const QString name = plan->property("currentItem").value<QObject *>()->property("title").toString();
        QVERIFY(!name.isEmpty());
        client.press(Qt::Key_Return);
        QTRY_VERIFY(client.page() == 0 && client.window->property("ready").toBool() && client.find("closable"));
        QTRY_COMPARE(client.find("closable")->property("title").toString(), name);
        const QQuickItem *list = client.find("selectedIndexes");
        QCOMPARE(list->property("selectedIndexes").value<QList<int>>(), QList{list->property("currentIndex").toInt()});
    }
};

template struct TestClass<tst_FestivalByKeys>;
#include "tst_FestivalByKeys.moc"
