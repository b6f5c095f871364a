#include "DeviceField.h"
#include "FieldTable.h"
#include "GalleryInstallation.h"
#include "NetworkSources.h"
#include "support/TestProgram.h"

#include <QtCore/QTemporaryDir>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

#include <limits>

namespace {

constexpr auto formPage = R"(
    import QtQuick
    import Gallery 1.0
    import TambleClient.Control 1.0
    import "%1"

    FocusScope {
        id: page

        property alias devices: selection.devices

        width: 600
        height: 600
        focus: true

        RThemeSelector {
            themeComponent: Component { RTheme {} }
        }
        RStyleEngineSetup {
            engine.defaultStyleSheetSource: "qrc:/style/tamble.%3.style"
        }
        DeviceSelection {
            id: selection
            devices: [0]
        }
        %2 {
            width: parent.width
            target: selection
        }
    })";

/// A form of the gallery in a window, and the installation behind it, whose clock stands.
struct FormWindow
{
    explicit FormWindow(const char *form, unsigned seed = 4)
        : installation(seed, nullptr)
    {
        // What Qt keeps of these files knows properties by their places, which change with the module.
        qputenv("QML_DISK_CACHE_PATH", cache.path().toUtf8());
        installation.setStepped(true);
        NetworkBehaviour orderly;
        orderly.jitter = 0;
        installation.setBehaviour(orderly);
        qmlRegisterType<DeviceSelection>("Gallery", 1, 0, "DeviceSelection");
        qmlRegisterType<DeviceField>("Gallery", 1, 0, "DeviceField");
        qmlRegisterSingletonType<GalleryInstallation>("Gallery", 1, 0, "GalleryInstallation",
                                                      &GalleryInstallation::create);
        view.engine()->addImportPath(QStringLiteral(TAMBLE_QML_DIRECTORY));
        QQmlComponent component(view.engine());
        component.setData(QString::fromLatin1(formPage)
                              .arg(QStringLiteral("file:" TAMBLE_GALLERY_DIRECTORY "/network"), QLatin1String(form),
                                   QLatin1String(QTest::currentDataTag() ? QTest::currentDataTag() : "dark"))
                              .toUtf8(),
                          {});
        page = qobject_cast<QQuickItem *>(component.create());
        if (!page) {
            qWarning() << component.errors();
            return;
        }
        view.setContent({}, nullptr, page);
        view.show();
        view.requestActivate();
    }

    bool isReady() { return page && QTest::qWaitForWindowActive(&view); }
    QObject *editor() { return view.activeFocusItem(); }
    QString text() { return editor()->property("text").toString(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&view, key, modifiers); }
    bool isLocked() { return editor()->property("readOnly").toBool(); }
    /// Gives the focus to the control of that name.
    QQuickItem *focus(const QString &label)
    {
        for (QQuickItem *item : page->findChildren<QQuickItem *>()) {
            if (item->property("label") == label && item->property("value").isValid()) {
                item->forceActiveFocus(Qt::TabFocusReason);
                return item;
            }
        }
        return nullptr;
    }
    /// Another client may have switched DHCP on, which locks the addresses.
    void unlock()
    {
        while (isLocked()) {
            installation.request({{{0, fieldIndex(u"dhcp")}, false}});
            installation.advance(20'000);
        }
    }
    QVariant really(int device, QStringView field)
    {
        return installation.devices().record(device).read(fieldIndex(field));
    }
    QVariant shown(QStringView field) { return installation.client().shown(0, fieldIndex(field)); }

    QTemporaryDir cache;
    GalleryInstallation installation;
    QQuickView view;
    QQuickItem *page = nullptr;
};

NetworkBehaviour badNetwork()
{
    NetworkBehaviour behaviour;
    behaviour.latency = 3000;
    behaviour.jitter = 3000;
    behaviour.loss = 0.2;
    behaviour.refusals = 0.2;
    behaviour.dropOutsPerMinute = 10.0;
    behaviour.otherEditsPerMinute = 300.0;
    return behaviour;
}

} // namespace

class tst_NetworkForm : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    // Every field is reached by Tab and ends as typed, though half of the attempts fail and others edit the same fields
    // meanwhile; and not a letter of what is being typed changes by it.
    void filledByKeyboardAtTheWorst_data() { themes(); }
    void filledByKeyboardAtTheWorst()
    {
        const struct
        {
            QString field;
            QString text;
        } entries[]{
            {QStringLiteral("name"), QStringLiteral("Main hang")},
            {QStringLiteral("location"), QStringLiteral("Roof")},
            {QStringLiteral("dhcp"), {}},
            {QStringLiteral("ipAddress"), QStringLiteral("192.168.10.200")},
            {QStringLiteral("subnetMask"), QStringLiteral("255.255.0.0")},
            {QStringLiteral("gateway"), QStringLiteral("192.168.10.2")},
            {QStringLiteral("pin"), QStringLiteral("8153")},
            {QStringLiteral("notes"), QStringLiteral("Rack 9")},
        };
        QFETCH(unsigned, seed);
        FormWindow window("NetworkForm", seed);
        QVERIFY(window.isReady());
        window.installation.setBehaviour(badNetwork());
        int attempts = 0;
        for (const auto &[field, text] : entries) {
            window.press(Qt::Key_Tab);
            if (text.isEmpty())
                continue;
            while (window.really(0, field) != text) {
                QVERIFY2(++attempts < 100, qPrintable(field));
                window.unlock();
                if (window.shown(field) == text) {
                    // It has failed, and Enter repeats it.
                    window.press(Qt::Key_Return, Qt::ControlModifier);
                } else {
                    QTRY_COMPARE(window.text(), window.shown(field).toString());
                    enterAmidstNews(window, field, text);
                }
                window.installation.advance(20'000);
            }
        }
    }

    // Gain, delays and the source of an input, likewise; the source by the first letters of its name.
    void channelFilledByKeyboardAtTheWorst_data() { themes(); }
    void channelFilledByKeyboardAtTheWorst()
    {
        const int count = int(networkSources().size());
        const NetworkSource source = networkSources()[count - 1];
        const struct
        {
            const char *label;
            QString field;
            QVariant value;
            QString typed;
        } entries[]{
            {"So&urce", QStringLiteral("input1Source"), source.id, source.name},
            {"G&ain", QStringLiteral("input1Gain"), -12.5, QStringLiteral("-12,5")},
            {"Dela&y", QStringLiteral("input1DelayMs"), 10.0, QStringLiteral("10")},
            {"Sampl&es", QStringLiteral("input1DelaySamples"), 96, QStringLiteral("96")},
        };
        QFETCH(unsigned, seed);
        FormWindow window("ChannelForm", seed);
        QVERIFY(window.isReady());
        window.installation.setBehaviour(badNetwork());
        for (const auto &[label, field, value, typed] : entries) {
            for (int attempts = 0; window.really(0, field) != value; ++attempts) {
                QVERIFY2(attempts < 50, qPrintable(field));
                const QQuickItem *control = window.focus(QString::fromLatin1(label));
                // What was entered last is shown for a while, and entering it again would be no edit.
                QTRY_COMPARE(control->property("value"), window.shown(field));
                if (field.endsWith(QLatin1String("Source")))
                    choose(window, typed);
                else
                    enter(window, typed);
                window.installation.advance(20'000);
            }
        }
    }

    void failureStaysUntilGivenUp()
    {
        FormWindow window("NetworkForm");
        QVERIFY(window.isReady());
        for (int i = 0; i < 4; ++i)
            window.press(Qt::Key_Tab);
        enter(window, QStringLiteral("192.168.10.12"));
        window.installation.advance(100);
        QTRY_VERIFY(!window.editor()->property("acceptable").toBool());
        QCOMPARE(window.text(), QStringLiteral("192.168.10.12"));
        QCOMPARE(window.editor()->property("invalidText").toString(), QStringLiteral("The address is in use"));
        window.press(Qt::Key_Escape);
        QTRY_COMPARE(window.text(), QStringLiteral("192.168.10.11"));
        QVERIFY(window.editor()->property("acceptable").toBool());
    }

    void entryGoesToAll()
    {
        FormWindow window("NetworkForm");
        QVERIFY(window.isReady());
        window.page->setProperty("devices", QVariantList{0, 1, 2});
        window.press(Qt::Key_Tab);
        window.press(Qt::Key_Tab);
        QCOMPARE(window.text(), QString());
        enter(window, QStringLiteral("Roof"));
        window.installation.advance(100);
        for (const int device : {0, 1, 2})
            QCOMPARE(window.really(device, u"location"), QVariant("Roof"));
        QTRY_COMPARE(window.text(), QStringLiteral("Roof"));
    }

    void stepsFromOffAndBack()
    {
        FormWindow window("ChannelForm");
        QVERIFY(window.isReady());
        window.page->setProperty("devices", QVariantList{2, 7});
        const int gain = fieldIndex(u"input1Gain");
        for (const int device : {2, 7})
            window.installation.request({{{device, gain}, -std::numeric_limits<double>::infinity()}});
        window.installation.advance(100);
        window.focus(QStringLiteral("G&ain"));
        window.press(Qt::Key_Up);
        window.installation.advance(100);
        QCOMPARE(window.really(7, u"input1Gain"), QVariant(-79.5));
        enter(window, QStringLiteral("-80"));
        window.installation.advance(100);
        QCOMPARE(window.really(2, u"input1Gain"), QVariant(-std::numeric_limits<double>::infinity()));
    }

    void stepsOfMixedDevicesShiftEach()
    {
        FormWindow window("ChannelForm");
        QVERIFY(window.isReady());
        window.page->setProperty("devices", QVariantList{0, 1});
        window.installation.request({{{1, fieldIndex(u"input1Gain")}, 6.0}});
        window.installation.advance(100);
        window.focus(QStringLiteral("G&ain"));
        window.press(Qt::Key_Up);
        window.press(Qt::Key_PageDown);
        window.installation.advance(100);
        QCOMPARE(window.really(0, u"input1Gain"), QVariant(-2.5));
        QCOMPARE(window.really(1, u"input1Gain"), QVariant(3.5));
    }

    void millisecondsBecomeSamples()
    {
        FormWindow window("ChannelForm");
        QVERIFY(window.isReady());
        window.focus(QStringLiteral("Dela&y"));
        enter(window, QStringLiteral("10,01"));
        window.installation.advance(100);
        QCOMPARE(window.really(0, u"input1DelaySamples"), QVariant(480));
        window.focus(QStringLiteral("Sampl&es"));
        window.press(Qt::Key_PageUp);
        window.installation.advance(100);
        QCOMPARE(window.really(0, u"input1DelayMs"), QVariant(11.0));
        // Out of range: nothing is sent.
        enter(window, QStringLiteral("96001"));
        window.installation.advance(100);
        QCOMPARE(window.really(0, u"input1DelaySamples"), QVariant(528));
        QVERIFY(!window.installation.client().error(0, fieldIndex(u"input1DelaySamples")).size());
    }

private:
    static void themes()
    {
        QTest::addColumn<unsigned>("seed");
        // In each, others come between at other times.
        QTest::newRow("light") << 1U;
        QTest::newRow("dark") << 3U;
        QTest::newRow("contrast-light") << 4U;
        QTest::newRow("contrast-dark") << 7U;
    }

    static void choose(FormWindow &window, const QString &name)
    {
        window.press(Qt::Key_Space);
        for (const QChar letter : name)
            QTest::keyClick(&window.view, letter.toLatin1());
        window.press(Qt::Key_Return);
    }

    static void enter(FormWindow &window, const QString &text)
    {
        window.press(Qt::Key_A, Qt::ControlModifier);
        for (const QChar letter : text)
            QTest::keyClick(&window.view, letter.toLatin1());
        // In fields of several lines, too.
        window.press(Qt::Key_Return, Qt::ControlModifier);
    }

    static void enterAmidstNews(FormWindow &window, const QString &field, const QString &text)
    {
        window.press(Qt::Key_A, Qt::ControlModifier);
        QString typed;
        for (const QChar letter : text) {
            QTest::keyClick(&window.view, letter.toLatin1());
            typed += letter;
            window.installation.editElsewhere(0, field);
            window.installation.advance(700);
            QCOMPARE(window.text(), typed);
            if (window.isLocked()) {
                window.press(Qt::Key_Return);
                QCOMPARE(window.text(), typed);
                QCOMPARE(window.editor()->property("edit").value<QObject *>()->property("bubbleText"),
                         QVariant("This cannot be edited"));
                window.press(Qt::Key_Escape);
                return;
            }
        }
        window.press(Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(!window.editor()->property("edited").toBool());
    }
};

template struct TestClass<tst_NetworkForm>;
#include "tst_NetworkForm.moc"
