#include "ControlImageProvider.h"
#include "support/TestProgram.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QObject>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtTest/QTest>

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
    void init();
    void cleanup();
    void lookup_data();
    void lookup();
    void manyVariants();
    void noAssetDirectory();
    void baseUrlThatIsNoLocalFile();
    void bundleStandsInForTheFirstDirectory();
    void asynchronousRequestsOutliveTheEngine();
};

void tst_ControlImageProvider::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QDir(secondDirectory()).removeRecursively();
}

void tst_ControlImageProvider::cleanup()
{
    QDir(secondDirectory()).removeRecursively();
    QDir(bundleResources()).removeRecursively();
}

void tst_ControlImageProvider::lookup_data()
{
    QTest::addColumn<QStringList>("first");  // files in <base>/asset; the n-th file of both lists is n pixels wide
    QTest::addColumn<QStringList>("second"); // files in asset beside the executable
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("width");

    const QStringList variants = {"b/add.png", "b/add_24x24.png", "b/add_24x24_hover.png"};
    const QStringList none;
    const QStringList placeholder = {"Placeholder.png"};
    QTest::newRow("exact variant") << variants << none << "ui/b/add_24x24_hover" << 3;
    QTest::newRow("variant without state") << variants << none << "ui/b/add_24x24_pressed" << 2;
    QTest::newRow("variant without size") << variants << none << "ui/b/add_9x9_pressed" << 1;
    QTest::newRow("first directory wins") << QStringList{"a.png"} << QStringList{"a_b.png"} << "ui/a_b" << 1;
    QTest::newRow("second directory at last")
        << QStringList{"Placeholder.png"} << QStringList{"a.png"} << "ui/a_b_c" << 2;
    QTest::newRow("nested folders") << QStringList{"x/y/z.png"} << none << "ui/x/y/z_1" << 1;
    QTest::newRow("prefix alone") << QStringList{".png", "Placeholder.png"} << none << "ui/" << 1;
    QTest::newRow("empty last part") << QStringList{"x/.png", "Placeholder.png"} << none << "ui/x/" << 1;
    QTest::newRow("product") << QStringList{"products/amp.png"} << none << "products/amp" << 1;
    QTest::newRow("further product segments") << QStringList{"products/amp.png"} << none << "products/amp/rear" << 1;
    QTest::newRow("products keep their underscores")
        << QStringList{"products/amp.png", "Placeholder.png"} << none << "products/amp_2" << 2;
    QTest::newRow("product prefix alone") << QStringList{"products/.png"} << none << "products/" << 1;
    QTest::newRow("prefix case counts") << QStringList{"a.png", "Placeholder.png"} << none << "UI/a" << 2;
    QTest::newRow("product prefix case counts")
        << QStringList{"products/a.png", "Placeholder.png"} << none << "Products/a" << 2;
    QTest::newRow("placeholder of the second directory") << none << placeholder << "ui/unknown" << 1;
    QTest::newRow("empty id") << placeholder << none << "" << 1;
    QTest::newRow("nothing found") << QStringList{"a.png"} << none << "ui/b" << 0;
    QTest::newRow("id leads out of the directory")
        << QStringList{"../a.png", "x/b.png", "Placeholder.png"} << none << "ui/x/../../a" << 3;
    QTest::newRow("backslash") << QStringList{"products/a\\b.png", "Placeholder.png"} << none << "products/a\\b" << 2;
    QTest::newRow("zero byte") << placeholder << none << QString("ui/a") + QChar(u'\0') << 1;
    QTest::newRow("zero byte in a folder") << placeholder << none << QString("ui/x") + QChar(u'\0') + "/a" << 1;
    QTest::newRow("very long id") << placeholder << none << "ui/" + QString(5000, u'a') << 1;
    const QString longest(251, u'a');
    QTest::newRow("longest file name") << QStringList{longest + ".png"} << none << "ui/" + longest << 1;
    QTest::newRow("too long for a file name but for the first piece")
        << QStringList{"a.png"} << none << "ui/a_" + longest + u'_' + QString(200, u'\u00e4') << 1;
    QTest::newRow("many folders") << placeholder << none << "ui/" + QString("a/").repeated(2000) + QString(300, u'_')
                                  << 1;
}

void tst_ControlImageProvider::lookup()
{
    QFETCH(const QStringList, first);
    QFETCH(const QStringList, second);
    QFETCH(const QString, id);
    QFETCH(const int, width);

    const QTemporaryDir base;
    QVERIFY(QDir(base.path()).mkpath(QStringLiteral("asset")));
    int pictureWidth = 0;
    for (const QString &file : first)
        QVERIFY(writePicture(base.path() + QStringLiteral("/asset/") + file, ++pictureWidth));
    for (const QString &file : second)
        QVERIFY(writePicture(secondDirectory() + u'/' + file, ++pictureWidth));

    ControlImageProvider provider(QUrl::fromLocalFile(base.path()));
    QCOMPARE(requestedSizeOf(provider, id), width == 0 ? QSize(0, 0) : QSize(width, 1));
}

void tst_ControlImageProvider::manyVariants()
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

void tst_ControlImageProvider::noAssetDirectory()
{
    const QTemporaryDir base;
    ControlImageProvider provider(QUrl::fromLocalFile(base.path()));
    QCOMPARE(requestedSizeOf(provider, QStringLiteral("ui/a")), QSize(0, 0));
}

void tst_ControlImageProvider::baseUrlThatIsNoLocalFile()
{
    QVERIFY(writePicture(secondDirectory() + QStringLiteral("/a.png"), 4));
    ControlImageProvider provider(QUrl(QStringLiteral("qrc:/page.qml")));
    QCOMPARE(requestedSizeOf(provider, QStringLiteral("ui/a_hover")), QSize(4, 1));
}

void tst_ControlImageProvider::bundleStandsInForTheFirstDirectory()
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

void tst_ControlImageProvider::asynchronousRequestsOutliveTheEngine()
{
    QVERIFY(writePicture(secondDirectory() + QStringLiteral("/Placeholder.png"), 4));
    for (int round = 0; round < 5; ++round) {
        QQmlEngine engine;
        engine.addImageProvider(QStringLiteral("tamble"), new ControlImageProvider(engine.baseUrl()));
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nItem { Repeater { model: 100; Image { required property int index; "
                          "asynchronous: true; source: 'image://tamble/ui/a_' + index } } }",
                          QUrl());
        const std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
    }
}

template struct TestClass<tst_ControlImageProvider>;
#include "tst_ControlImageProvider.moc"
