#include "ControlImageProvider.h"
#include "support/QmlText.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <memory>

using namespace tamble::client;

namespace {

// Files are told apart by their width.
bool writePicture(const QString &file, int width)
{
    QDir().mkpath(QFileInfo(file).path());
    QImage image(width, 1, QImage::Format_ARGB32);
    image.fill(Qt::gray);
    return image.save(file);
}

QString secondDirectory()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/asset");
}

QString bundleResources()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../Resources");
}

QSize requestedSizeOf(ControlImageProvider &provider, const QString &id)
{
    QSize size(-7, -7);
    const QImage image = provider.requestImage(id, &size, QSize(100, 100));
    return image.size() == size ? size : QSize(-1, -1);
}

} // namespace

class tst_ControlImageProvider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QDir(secondDirectory()).removeRecursively();
    }

    void cleanup()
    {
        QDir(secondDirectory()).removeRecursively();
        QDir(bundleResources()).removeRecursively();
    }

    void lookup_data()
    {
        // first: files in <base>/asset; the n-th file of both lists is n pixels wide
        // second: files in asset beside the executable
        const auto row = rowsOf([](const QStringList &first, const QStringList &second, const QString &id, int width) {
            const QTemporaryDir base;
            QVERIFY(QDir(base.path()).mkpath(QStringLiteral("asset")));
            int pictureWidth = 0;
            for (const QString &file : first)
                QVERIFY(writePicture(base.path() + QStringLiteral("/asset/") + file, ++pictureWidth));
            for (const QString &file : second)
                QVERIFY(writePicture(secondDirectory() + u'/' + file, ++pictureWidth));

            ControlImageProvider provider(QUrl::fromLocalFile(base.path()));
            QCOMPARE(requestedSizeOf(provider, id), width == 0 ? QSize(0, 0) : QSize(width, 1));
        });
        const QStringList variants = {"b/add.png", "b/add_24x24.png", "b/add_24x24_hover.png"};
        const QStringList none;
        const QStringList placeholder = {"Placeholder.png"};
        row("exact variant", variants, none, "ui/b/add_24x24_hover", 3);
        row("variant without state", variants, none, "ui/b/add_24x24_pressed", 2);
        row("variant without size", variants, none, "ui/b/add_9x9_pressed", 1);
        row("first directory wins", {"a.png"}, {"a_b.png"}, "ui/a_b", 1);
        row("second directory at last", {"Placeholder.png"}, {"a.png"}, "ui/a_b_c", 2);
        row("nested folders", {"x/y/z.png"}, none, "ui/x/y/z_1", 1);
        row("prefix alone", {".png", "Placeholder.png"}, none, "ui/", 1);
        row("empty last part", {"x/.png", "Placeholder.png"}, none, "ui/x/", 1);
        row("product", {"products/amp.png"}, none, "products/amp", 1);
        row("further product segments", {"products/amp.png"}, none, "products/amp/rear", 1);
        row("products keep their underscores", {"products/amp.png", "Placeholder.png"}, none, "products/amp_2", 2);
        row("product prefix alone", {"products/.png"}, none, "products/", 1);
        row("prefix case counts", {"a.png", "Placeholder.png"}, none, "UI/a", 2);
        row("placeholder of the second directory", none, placeholder, "ui/unknown", 1);
        row("empty id", placeholder, none, "", 1);
        row("nothing found", {"a.png"}, none, "ui/b", 0);
        row("id leads out of the directory", {"../a.png", "x/b.png", "Placeholder.png"}, none, "ui/x/../../a", 3);
        row("backslash", {"products/a\\b.png", "Placeholder.png"}, none, "products/a\\b", 2);
        row("zero byte", placeholder, none, QString("ui/a") + QChar(u'\0'), 1);
        row("very long id", placeholder, none, "ui/" + QString(5000, u'a'), 1);
        const QString longest(251, u'a');
        row("longest file name", {longest + ".png"}, none, "ui/" + longest, 1);
        row("too long for a file name but for the first piece", {"a.png"}, none,
            "ui/a_" + longest + u'_' + QString(200, u'\u00e4'), 1);
        row("many folders", placeholder, none, "ui/" + QString("a/").repeated(2000) + QString(300, u'_'), 1);
    }
    void lookup() { checkRow(); }

    void manyVariants()
    {
        const QTemporaryDir base;
        QVERIFY(writePicture(base.path() + QStringLiteral("/asset/a.png"), 5));
        ControlImageProvider provider(QUrl::fromLocalFile(base.path()));
        const QString id = QStringLiteral("ui/a") + QString(200'000, u'_');
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(requestedSizeOf(provider, id), QSize(5, 1));
        // Trying each of them takes minutes.
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }

    void noAssetDirectory()
    {
        const QTemporaryDir base;
        ControlImageProvider provider(QUrl::fromLocalFile(base.path()));
        QCOMPARE(requestedSizeOf(provider, QStringLiteral("ui/a")), QSize(0, 0));
    }

    void baseUrlThatIsNoLocalFile()
    {
        QVERIFY(writePicture(secondDirectory() + QStringLiteral("/a.png"), 4));
        ControlImageProvider provider(QUrl(QStringLiteral("qrc:/page.qml")));
        QCOMPARE(requestedSizeOf(provider, QStringLiteral("ui/a_hover")), QSize(4, 1));
    }

    void bundleStandsInForTheFirstDirectory()
    {
        const QTemporaryDir base;
        const QUrl url = QUrl::fromLocalFile(base.path());
        ControlImageProvider early(url); // decided at construction, whether or not the bundle's directory is there
        QVERIFY(writePicture(bundleResources() + QStringLiteral("/asset/a.png"), 2));
        QVERIFY(writePicture(secondDirectory() + QStringLiteral("/a_b.png"), 3));
        QCOMPARE(requestedSizeOf(early, QStringLiteral("ui/a_b")), QSize(2, 1));

        QVERIFY(QDir(base.path()).mkpath(QStringLiteral("asset")));
        QCOMPARE(requestedSizeOf(early, QStringLiteral("ui/a_b")), QSize(2, 1));
        ControlImageProvider late(url);
        QCOMPARE(requestedSizeOf(late, QStringLiteral("ui/a_b")), QSize(3, 1));
    }

    void asynchronousRequestsOutliveTheEngine()
    {
        QVERIFY(writePicture(secondDirectory() + QStringLiteral("/Placeholder.png"), 4));
        for (int round = 0; round < 5; ++round) {
            QQmlEngine engine;
            engine.addImageProvider(QStringLiteral("tamble"), new ControlImageProvider(engine.baseUrl()));
            const auto object =
                objectFrom(engine, "import QtQuick\nItem { Repeater { model: 100; Image { required property int index; "
                                   "asynchronous: true; source: 'image://tamble/ui/a_' + index } } }");
            QVERIFY(object);
        }
    }
};

template struct TestClass<tst_ControlImageProvider>;
#include "tst_ControlImageProvider.moc"
