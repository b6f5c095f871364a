#include "style/loading/ThemeSelector.h"
#include "support/QmlText.h"
#include "support/TestProgram.h"

#include <QtCore/QPointer>
#include <QtQml/QQmlContext>

#include <memory>

using namespace tamble::client;

namespace {

QByteArray themeWith(int size)
{
    return "import QtQml\nQtObject { property int size: " + QByteArray::number(size) + " }";
}

QObject *installedTheme(const QQmlEngine &engine)
{
    return engine.rootContext()->contextProperty(QStringLiteral("theme")).value<QObject *>();
}

} // namespace

class tst_ThemeSelector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bindingsFollowTheTheme()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QQmlEngine engine;
        QQmlComponent first(&engine);
        first.setData(themeWith(8), QUrl());
        QQmlComponent second(&engine);
        auto selector = std::make_unique<ThemeSelector>();
        selector->setThemeComponent(&first);

        const auto user = objectFrom(engine, "import QtQml\nQtObject { property int size: theme.size }");
        QVERIFY(user);
        QCOMPARE(user->property("size").toInt(), 8);

        // Another theme takes over as soon as it is ready, and the old one goes.
        const QPointer<QObject> old = installedTheme(engine);
        selector->setThemeComponent(&second);
        QCOMPARE(installedTheme(engine), old.data());
        second.setData(themeWith(12), QUrl());
        QCOMPARE(user->property("size").toInt(), 12);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!old);

        selector.reset();
        engine.collectGarbage();
        QVERIFY(installedTheme(engine));
    }

    // As windows do that are opened and closed.
    void oneThemePerEngine_data()
    {
        QTest::addColumn<bool>("firstIsGone");
        QTest::newRow("a second window") << false;
        QTest::newRow("a window after the first") << true;
    }
    void oneThemePerEngine()
    {
        QFETCH(bool, firstIsGone);
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData(themeWith(8), QUrl());
        auto first = std::make_unique<ThemeSelector>();
        first->setThemeComponent(&component);
        const QPointer<QObject> old = installedTheme(engine);
        if (firstIsGone)
            first.reset();

        ThemeSelector second;
        second.setThemeComponent(&component);
        first.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!old);
        QVERIFY(installedTheme(engine));
    }

    void brokenThemeChangesNothing()
    {
        QQmlEngine engine;
        QQmlComponent good(&engine);
        good.setData(themeWith(8), QUrl());
        QQmlComponent broken(&engine);
        broken.setData("import QtQml\nQtObject { property int size: }", QUrl());
        ThemeSelector selector;
        selector.setThemeComponent(&good);

        QObject *theme = installedTheme(engine);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^WARN: ")));
        selector.setThemeComponent(&broken);
        QCOMPARE(installedTheme(engine), theme);
    }
};

template struct TestClass<tst_ThemeSelector>;
#include "tst_ThemeSelector.moc"
