#include "StyleFixture.h"
#include "style/UsageCountedStyleSetProps.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QPointer>

#include <algorithm>
#include <array>

using namespace tamble::client;

/// The values of an item: their kinds, those that are missing, and when they are given back.
class tst_StyleSetProps : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void unusedValuesAreGivenBack()
    {
        const StyleFixture fixture;
        fixture.load("Box { a: 1 }");
        QPointer<StyleSetProps> kept;
        QPointer<StyleSetProps> dropped;
        StyledBox box;
        box.styleSet().setName("first");
        dropped = &box.props();
        box.styleSet().setName("second");
        kept = &box.props();
        QVERIFY(dropped);
        fixture.load("Box { a: 2 }");
        QVERIFY(!dropped);
        QVERIFY(kept);
        QCOMPARE(kept->number("a"), 2.0);
    }

    void unusedNamesAreGivenBack()
    {
        const StyleFixture fixture;
        fixture.load("Box { a: 1; word: x } .n7 { b: 2 }");
        std::array<StyledBox, 300> others; // in use all the time
        for (std::size_t i = 0; i < others.size(); ++i) {
            others[i].styleSet().setName(QStringLiteral("n%1").arg(i));
            QCOMPARE(others[i].props().number("a"), 1.0);
        }
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^WARN: Property word is not conv")));
        others[7].props().number("word");
        others[7].props().number("missing");

        StyledBox box;
        QList<QPointer<StyleSetProps>> seen;
        for (int i = 0; i < 5'000; ++i) {
            box.styleSet().setName(QStringLiteral("name%1").arg(i));
            QCOMPARE(box.props().number("a"), 1.0);
            seen.append(&box.props());
        }
        QVERIFY(seen.last());
        const auto held = std::count_if(seen.cbegin(), seen.cend(), [](const auto &props) { return !props.isNull(); });
        QVERIFY2(held <= 400, qPrintable(QString::number(held)));
        QCOMPARE(others[7].props().number("b"), 2.0);
        others[7].props().number("word"); // told already
        QTest::ignoreMessage(QtWarningMsg, "WARN: Property missing not found (Box.n7)");
        fixture.engine().reportMissingKeys();
    }

    void convertedValues_data()
    {
        const auto row = rowsOf([](const QString &value, const QByteArray &getter, const QVariant &expected) {
            const StyleFixture fixture;
            fixture.load("Box { key: " + value.toUtf8() + " }");
            StyledBox box;
            for (int round = 0; round < 2; ++round) { // the second comes from the cache
                QVariant result(expected.metaType());
                const bool isAny = getter == "get" || getter == "values";
                const QString key = QStringLiteral("key");
                const QGenericReturnArgument returned(isAny ? "QVariant" : expected.typeName(),
                                                      isAny ? &result : result.data());
                QMetaObject::invokeMethod(&box.props(), getter.constData(), returned,
                                          QGenericArgument("QString", &key));
                QCOMPARE(result, expected);
            }
        });
        row("hexadecimal colour", "#008ccd", "color", QVariant(QColor(0, 140, 205)));
        row("quoted colour, alpha first", "\"#20000000\"", "color", QVariant(QColor(0, 0, 0, 32)));
        row("colour function", "rgba(255, 0, 0, 0.5)", "color", QVariant(QColor(255, 0, 0, 128)));
        row("flag", "true", "boolean", QVariant(true));
        row("number", "-0.5", "number", QVariant(-0.5));
        row("text", "\"a b\"", "string", QVariant("a b"));
        row("address", "url(qrc:/a/b.png)", "url", QVariant(QUrl("qrc:/a/b.png")));
        row("plain value of a text", "bold", "get", QVariant("bold"));
        row("plain value of a function", "rgb(1, 2, 3)", "get", QVariant(QColor(1, 2, 3)));
        row("plain value of several", "1, \"b\"", "get", QVariant(QVariantList{"1", "b"}));
        row("all values", "1", "values", QVariant(QVariantList{"1"}));
    }
    void convertedValues() { checkRow(); }

    void unconvertibleValuesAreLoggedOnce()
    {
        const StyleFixture fixture;
        fixture.load("Box { pair: 1, 2;\n call: lighter(1);\n shape: '#ff88zz' }", "Box { word: hello }");
        StyledBox box;
        const auto expectLog = [&fixture](const QString &what, const char *sheet, const char *place) {
            const QString line =
                QStringLiteral("WARN: Property %1 (%2 at line %3)").arg(what, fixture.path(sheet), place);
            QTest::ignoreMessage(QtWarningMsg, qPrintable(line));
        };
        expectLog("word is not convertible to a 'QColor' (Box): hello is no colour", "user.style", "1 column 7");
        expectLog("shape is not convertible to a 'QColor' (Box): #ff88zz is no colour", "default.style", "3 column 2");
        expectLog("pair is not convertible to a 'double' (Box): \"1\", \"2\" is no number, exactly one value expected",
                  "default.style", "1 column 7");
        expectLog(
            "call is not convertible to a 'QColor' (Box): lighter(1) is no colour, Unsupported expression 'lighter'",
            "default.style", "2 column 2");
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(box.props().color("word"), QColor());
            QCOMPARE(box.props().color("shape"), QColor());
            QCOMPARE(box.props().number("pair"), 0.0);
            QCOMPARE(box.props().color("call"), QColor());
        }
        QVERIFY(static_cast<UsageCountedStyleSetProps &>(box.props()).missingKeys().empty());
    }

    void missingKeyReports()
    {
        StyleFixture fixture;
        QSignalSpy due(&fixture.engine(), &StyleEngine::propertiesPotentiallyMissing);
        StyledBox box;
        box.props().color("before");
        QCOMPARE(due.count(), 0); // nothing was loaded yet
        fixture.load("Box { a: 1 }");
        QCOMPARE(due.count(), 1);
        fixture.engine().reportMissingKeys();
        QCOMPARE(fixture.messages, QStringList()); // the load has begun anew

        box.props().color("x");
        box.props().number("x");
        box.props().get("w");
        box.props().values("v");
        QVERIFY(!box.props().isSet("u"));
        QCOMPARE(due.count(), 2); // one report is due, however many keys
        const auto expectLog = [](const char *line) { QTest::ignoreMessage(QtWarningMsg, line); };
        expectLog("WARN: Property w not found (Box)");
        expectLog("WARN: Property x not found (Box)");
        fixture.engine().reportMissingKeys();
        QCOMPARE(fixture.messages, QStringList({"Property 'w' not found (Box)", "Property 'x' not found (Box)"}));
        QCOMPARE(fixture.types, QStringList(2, "propertyNotFound"));

        // The next miss brings the next report, with what is still missing.
        fixture.messages.clear();
        box.props().color("x");
        QCOMPARE(due.count(), 3);
        expectLog("WARN: Property w not found (Box)");
        expectLog("WARN: Property x not found (Box)");
        fixture.engine().reportMissingKeys();
        QCOMPARE(fixture.messages.count(), 2);
    }
};

template struct TestClass<tst_StyleSetProps>;
#include "tst_StyleSetProps.moc"
