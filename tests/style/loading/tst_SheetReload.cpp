#include "style/StyleEngineSetup.h"
#include "style/StyleFixture.h"
#include "support/AllocationCount.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QSaveFile>
#include <QtCore/QTimer>

#include <sys/stat.h>

#include <algorithm>
#include <functional>

using namespace tamble::client;

namespace {

using Save = std::function<void(const StyleFixture &, const QByteArray &)>;

QByteArray sheet(int value)
{
    return "Box { a: " + QByteArray::number(value) + " }";
}

class Setup : public StyleEngineSetup
{
public:
    explicit Setup(const QUrl &userSheet)
    {
        setStyleSheetSource(userSheet);
        componentComplete();
    }
};

} // namespace

Q_DECLARE_METATYPE(Save)

class tst_SheetReload : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyWayOfSaving_data()
    {
        const auto row = rowsOf([](const Save &save) {
            const StyleFixture fixture;
            const Setup setup(fixture.write("user.style", sheet(1)));
            StyledBox box;
            QCOMPARE(box.props().number("a"), 1.0);
            QSignalSpy loads(&fixture.engine(), &StyleEngine::styleChanged);
            for (int value = 2; value <= 4; ++value) { // still watching after each
                save(fixture, sheet(value));
                QTRY_COMPARE(box.props().number("a"), double(value));
                QVERIFY(!loads.wait(120));
                QCOMPARE(loads.count(), value - 1);
            }
            QCOMPARE(fixture.types, QStringList());
        });
        row("in place", Save([](const StyleFixture &fixture, const QByteArray &text) {
                QFile file(fixture.path("user.style"));
                QVERIFY(file.open(QFile::ReadWrite));
                file.write(text);
                file.resize(text.size());
            }));
        row("truncated, then written", Save([](const StyleFixture &fixture, const QByteArray &text) {
                QFile file(fixture.path("user.style"));
                QVERIFY(file.open(QFile::WriteOnly | QFile::Truncate));
                file.flush();
                QCoreApplication::processEvents();
                file.write(text);
            }));
        row("renamed over", Save([](const StyleFixture &fixture, const QByteArray &text) {
                fixture.write("user.style~", text);
                QCOMPARE(std::rename(qPrintable(fixture.path("user.style~")), qPrintable(fixture.path("user.style"))),
                         0);
            }));
        row("safe save", Save([](const StyleFixture &fixture, const QByteArray &text) {
                QSaveFile file(fixture.path("user.style"));
                QVERIFY(file.open(QFile::WriteOnly));
                file.write(text);
                QVERIFY(file.commit());
            }));
        row("deleted and made anew", Save([](const StyleFixture &fixture, const QByteArray &text) {
                QFile::remove(fixture.path("user.style"));
                QCoreApplication::processEvents();
                fixture.write("user.style", text);
            }));
        row("moved away and made anew", Save([](const StyleFixture &fixture, const QByteArray &text) {
                QFile::remove(fixture.path("user.bak"));
                QVERIFY(QFile::rename(fixture.path("user.style"), fixture.path("user.bak")));
                fixture.write("user.style", text);
            }));
    }
    void everyWayOfSaving() { checkRow(); }

    void severalSavesAreOneLoad()
    {
        const StyleFixture fixture;
        const Setup setup(fixture.write("user.style", sheet(1)));
        StyledBox box;
        QSignalSpy loads(&fixture.engine(), &StyleEngine::styleChanged);
        for (int attempt = 0; attempt < 20; ++attempt) {
            QTRY_COMPARE(box.props().number("a"), 1.0);
            loads.clear();
            qint64 longestGap = 0;
            for (int value = 2; value <= 9; ++value) {
                QElapsedTimer gap;
                gap.start();
                fixture.write("user.style", sheet(value));
                QCoreApplication::processEvents();
                longestGap = std::max(longestGap, gap.elapsed());
            }
            QTRY_COMPARE(box.props().number("a"), 9.0);
            QVERIFY(!loads.wait(120));
            // A pause of more than 50 ms ends a save, and only a busy machine makes one here.
            if (longestGap < 40) {
                QCOMPARE(loads.count(), 1);
                return;
            }
            fixture.write("user.style", sheet(1));
        }
        QSKIP("The machine is too busy.");
    }

    void otherFilesCauseNone()
    {
        const StyleFixture fixture;
        const Setup setup(fixture.write("user.style", sheet(1)));
        QSignalSpy loads(&fixture.engine(), &StyleEngine::styleChanged);
        fixture.write("sibling.style", sheet(2));
        QFile::remove(fixture.path("sibling.style"));
        QVERIFY(!loads.wait(200));
    }

    void deletedSheetFallsBackToTheDefault()
    {
        StyleFixture fixture;
        StyleEngineSetup setup;
        setup.setDefaultStyleSheetSource(fixture.write("default.style", sheet(7)));
        setup.setStyleSheetSource(fixture.write("user.style", sheet(1)));
        setup.componentComplete();
        StyledBox box;
        QCOMPARE(box.props().number("a"), 1.0);
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("^CRITICAL: Style '.*' not found$")));
        QFile::remove(fixture.path("user.style"));
        QTRY_COMPARE(box.props().number("a"), 7.0);
        QCOMPARE(fixture.types, QStringList("styleSheetNotFound"));
        fixture.write("user.style", sheet(2));
        QTRY_COMPARE(box.props().number("a"), 2.0);
    }

    void missingSheetIsAwaited_data()
    {
        const auto row = rowsOf([this](const Save &make) {
            StyleFixture fixture;
            make(fixture, {});
            QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("^CRITICAL: Style '.*' not found$")));
            const Setup setup(fixture.url("later/on/user.style"));
            QCOMPARE(fixture.types, QStringList("styleSheetNotFound"));
            QFile::remove(fixture.path("later/on/user.style"));
            QVERIFY(QDir().mkpath(fixture.path("later/on")));
            QTest::qWait(120);
            fixture.write("later/on/user.style", sheet(2));
            StyledBox box;
            QTRY_COMPARE(box.props().number("a"), 2.0);
        });
        row("folder that appears later", Save([](const StyleFixture &, const QByteArray &) {}));
        row("pipe", Save([](const StyleFixture &fixture, const QByteArray &) {
                QVERIFY(QDir().mkpath(fixture.path("later/on")));
                QCOMPARE(mkfifo(qPrintable(fixture.path("later/on/user.style")), 0600), 0);
            }));
        row("link to a device", Save([](const StyleFixture &fixture, const QByteArray &) {
                QVERIFY(QDir().mkpath(fixture.path("later/on")));
                QVERIFY(QFile::link("/dev/zero", fixture.path("later/on/user.style")));
            }));
    }
    void missingSheetIsAwaited() { checkRow(); }

    void tooLongSheetLeavesTheStyles()
    {
        StyleFixture fixture;
        const Setup setup(fixture.write("user.style", sheet(1)));
        StyledBox box;
        QTest::ignoreMessage(QtCriticalMsg,
                             QRegularExpression(QStringLiteral("^CRITICAL: loading style sheet failed: .*16 MiB")));
        const qsizetype longest = qsizetype(16) << 20;
        fixture.write("user.style", sheet(2) + QByteArray(longest, ' '));
        QTRY_COMPARE(fixture.types, QStringList("loadingStyleSheetFailed"));
        QCOMPARE(box.props().number("a"), 1.0);
        fixture.write("user.style", sheet(3).leftJustified(longest));
        QTRY_COMPARE(box.props().number("a"), 3.0);
    }

    void keptSheetsTakeLittleRoom()
    {
        const StyleFixture fixture;
        fixture.load(sheet(0));
        const std::size_t before = allocatedBytes();
        for (int value = 1; value <= 8; ++value)
            fixture.load(sheet(value));
        QVERIFY(allocatedBytes() < before + (std::size_t(1) << 20));
    }

    void busyNeighboursHoldNothingBack()
    {
        const StyleFixture fixture;
        const Setup setup(fixture.write("user.style", sheet(1)));
        StyledBox box;
        QTimer neighbour;
        QObject::connect(&neighbour, &QTimer::timeout, &neighbour, [&fixture] {
            fixture.write("neighbour", {});
            QFile::remove(fixture.path("neighbour"));
        });
        neighbour.start(20);
        fixture.write("user.style", sheet(2));
        QTRY_COMPARE_WITH_TIMEOUT(box.props().number("a"), 2.0, 1000);
    }
};

template struct TestClass<tst_SheetReload>;
#include "tst_SheetReload.moc"
