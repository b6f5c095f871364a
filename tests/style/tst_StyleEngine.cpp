#include "StyleFixture.h"
#include "style/StyleEngineSetup.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QThread>

using namespace tamble::client;

class tst_StyleEngine : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { StyleEngine::instance()->setBaseUrl(QUrl()); }

    void userSheetOverridesDefaultSheet()
    {
        const StyleFixture fixture;
        // Its declaration stands further up than the default sheet's, which decides between different selectors only.
        fixture.load("\n\n\nBox { a: 1; b: 1; }", "Box { a: 2; c: 2; }");
        StyledBox box;
        QCOMPARE(box.props().number("a"), 2.0);
        QCOMPARE(box.props().number("b"), 1.0);
        QCOMPARE(box.props().number("c"), 2.0);
        QVERIFY(box.styleSet().styleInfo().contains("user stylesheet"));
    }

    void sourceForms_data()
    {
        // source: %1 is the directory
        // type: of the message; empty when the sheet is found
        const Rows<QString, QString> row;
        row("file URL", "file://%1/a.style", "");
        row("relative", "a.style", "");
        row("resource URL", "qrc:/none.style", "styleSheetNotFound");
        row("unknown theme", "qrc:/style/tamble.drak.style", "styleSheetNotFound");
        row("network", "http://example.org/a.style", "loadingStyleSheetFailed");
        row("directory", "file://%1", "styleSheetNotFound");
    }

    void sourceForms()
    {
        const auto &[source, type] = Rows<QString, QString>::current();
        if (!type.isEmpty())
            QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("^CRITICAL: ")));

        StyleFixture fixture;
        fixture.write("a.style", "Box { found: true }");
        fixture.engine().setBaseUrl(fixture.url("page.qml"));
        fixture.engine().setStyleSheetSource(QUrl(QString(source).replace("%1", fixture.path(QString()))));
        fixture.engine().loadStyles();
        QCOMPARE(fixture.types, type.isEmpty() ? QStringList() : QStringList(type));
        StyledBox box;
        QCOMPARE(box.props().isSet("found"), type.isEmpty());
        if (source.startsWith("http")) {
            QCOMPARE(fixture.messages.constFirst(), "Loading style sheet failed 'wrong path format 'http://example.org/"
                                                    "a.style': missing 'file:///' or 'qrc:/' ? '.");
        }
        if (source == "qrc:/none.style")
            QCOMPARE(fixture.messages.constFirst(), "Style ':/none.style' not found.");
        if (source == "qrc:/style/tamble.drak.style") {
            QCOMPARE(fixture.messages.constFirst(),
                     "Style ':/style/tamble.drak.style' not found. 'drak' is none of the "
                     "themes contrast-dark, contrast-light, dark, light");
        }
    }

    void brokenSheets_data()
    {
        // atFirst: value of "a" when these are the first sheets
        // afterwards: and when good ones giving 7 were in force
        const Rows<QString, QString, double, double> row;
        row("user sheet", "Box { a: 1 }", "Box { a: 2; b: ", 1.0, 7.0);
        row("default sheet", "Box { a: 1 } }", "Box { a: 2 }", 2.0, 7.0);
        row("both", "{", "@x", 0.0, 7.0);
        row("undefined variable", "Box { a: 1 }", "Box { a: @nothing }", 1.0, 7.0);
    }

    void brokenSheets()
    {
        const auto &[defaultText, userText, atFirst, afterwards] = Rows<QString, QString, double, double>::current();
        const auto valueOfA = [] {
            StyledBox box;
            return box.props().isSet("a") ? box.props().number("a") : 0.0;
        };
        const int broken = defaultText == "{" ? 2 : 1;
        for (int i = 0; i < 2 * broken; ++i)
            QTest::ignoreMessage(QtCriticalMsg,
                                 QRegularExpression(QStringLiteral("^CRITICAL: loading style sheet failed:")));

        StyleFixture fixture;
        fixture.load(defaultText.toUtf8(), userText.toUtf8());
        QCOMPARE(valueOfA(), atFirst);

        fixture.load("Box { a: 7 }");
        QSignalSpy restyled(&fixture.engine(), &StyleEngine::styleChanged);
        fixture.load(defaultText.toUtf8(), userText.toUtf8());
        QCOMPARE(valueOfA(), afterwards);
        QCOMPARE(restyled.count(), 0);
        QCOMPARE(fixture.types, QStringList(2 * broken, "loadingStyleSheetFailed"));
        const QString message = fixture.messages.constLast();
        QVERIFY2(message.contains(" at line 1 column ") && message.contains(".style"), qPrintable(message));

        fixture.load("Box { a: 8 }");
        QCOMPARE(valueOfA(), 8.0);
    }

    void missingFileWaitsForTheEditor()
    {
        StyleFixture fixture;
        fixture.engine().setStyleSheetSource(fixture.url("late.style"));
        const std::unique_ptr<QThread> editor(QThread::create([&fixture] {
            QThread::msleep(200);
            fixture.write("late.style", "Box { a: 1 }");
        }));
        editor->start();
        fixture.engine().loadStyles();
        editor->wait();
        QCOMPARE(fixture.types, QStringList());
        StyledBox box;
        QCOMPARE(box.props().number("a"), 1.0);
    }

    void setupLoadsOnce()
    {
        const StyleFixture fixture;
        const QUrl light = fixture.write("light.style", "Box { a: 1 }");
        const QUrl dark = fixture.write("dark.style", "Box { a: 2 }");
        const QUrl user = fixture.write("user.style", "Box { b: 3 }");
        StyledBox box;
        QSignalSpy loads(&fixture.engine(), &StyleEngine::styleChanged);

        StyleEngineSetup setup;
        setup.classBegin();
        setup.setDefaultStyleSheetSource(light);
        setup.setStyleSheetSource(user);
        QCOMPARE(loads.count(), 0);
        setup.componentComplete();
        QCOMPARE(loads.count(), 1);
        setup.setDefaultStyleSheetSource(light);
        QCOMPARE(loads.count(), 1);
        setup.setDefaultStyleSheetSource(dark);
        QCOMPARE(loads.count(), 2);
        QCOMPARE(box.props().number("a"), 2.0);
        setup.setStyleSheetSources(light, QUrl());
        QCOMPARE(loads.count(), 3);
        QCOMPARE(box.props().number("a"), 1.0);
        QVERIFY(!box.props().isSet("b"));
        setup.onFileChanged(QString());
        QCOMPARE(loads.count(), 4);
    }

    void styleNamesOfADirectory()
    {
        const StyleFixture fixture;
        fixture.write("b.css", "Box { a: 2 }");
        fixture.write("a.css", "Box { a: 1 }");
        fixture.write("notes.txt", "");
        StyleEngineSetup setup;
        QSignalSpy listed(&setup, &StyleEngineSetup::availableStylesChanged);
        setup.setStylePath(QUrl::fromLocalFile(fixture.path(QString())));
        QCOMPARE(setup.availableStyles(), QStringList({"a.css", "b.css"}));
        QCOMPARE(listed.count(), 1);
        setup.setStyleName("b.css");
        QCOMPARE(setup.styleSheetSource(), fixture.url("b.css"));
        setup.componentComplete();
        StyledBox box;
        QCOMPARE(box.props().number("a"), 2.0);
        setup.setStyleName("none.css");
        QCOMPARE(setup.styleSheetSource(), fixture.url("b.css"));

        fixture.write("c.css", "");
        QTRY_COMPARE(setup.availableStyles(), QStringList({"a.css", "b.css", "c.css"}));
        setup.setFileExtensions({"*.txt"});
        QCOMPARE(setup.availableStyles(), QStringList({"notes.txt"}));
    }

    void nothingOldIsSeenDuringARestyle()
    {
        const StyleFixture fixture;
        fixture.load("Box { a: 1 } .late { a: 1 }");
        StyledBox first;
        StyledBox second;
        second.styleSet().setName("late");
        QCOMPARE(second.props().number("a"), 1.0);
        QCOMPARE(first.props().number("a"), 1.0);
        QList<double> seen; // by each, of the other one
        connect(&first.styleSet(), &StyleSet::propsChanged, this, [&] { seen << second.props().number("a"); });
        connect(&second.styleSet(), &StyleSet::propsChanged, this, [&] { seen << first.props().number("a"); });
        fixture.load("Box { a: 2 } .late { a: 2 }");
        QCOMPARE(seen, QList<double>({2, 2}));
    }

    void fontFaces()
    {
        StyleFixture fixture;
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^WARN: Could not find font file .* at line 1")));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^WARN: Font url could not be resolved.")));
        fixture.load(
            "@font-face { src: url(none.ttf) }\n@font-face { src: url(http://example.org/a.ttf); }\n"
            "@font-face { src: url(qrc:/asset/fonts/Roboto-Regular.ttf) }\nBox { face: \"Roboto bold 14px\" }");
        QCOMPARE(fixture.types, QStringList(2, "fontWasNotLoaded"));
        QCOMPARE(fixture.messages, QStringList({"Could not find font file", "Font url could not be resolved."}));
        StyledBox box;
        QCOMPARE(box.props().font("face").family(), "Roboto");
        QCOMPARE(box.props().font("face").pixelSize(), 14);
        QVERIFY(box.props().font("face").bold());
    }

    void objectsThatAreNoItems()
    {
        StyleFixture fixture;
        fixture.load("Box QObject { a: 1 }");
        StyledBox box;
        QObject object(&box);
        const StyleSet styleSet(&object);
        QCOMPARE(fixture.types, QStringList("noParentChangeReports"));
        QCOMPARE(fixture.messages, QStringList("Hierarchy changes for this component won't be detected"));
        QCOMPARE(StyleSet(&object).props()->number("a"), 1.0); // placed by its object's parent
    }
};

template struct TestClass<tst_StyleEngine>;
#include "tst_StyleEngine.moc"
