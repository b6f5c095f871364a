#include "StyleFixture.h"
#include "style/StyleEngineSetup.h"
#include "support/QmlText.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

using namespace tamble::client;

namespace {

/// The values of "a" and "b", 0 for those that no sheet sets.
QList<double> valuesOfAAndB()
{
    StyledBox box;
    QList<double> values;
    for (const char *key : {"a", "b"})
        values.append(box.props().isSet(key) ? box.props().number(key) : 0.0);
    return values;
}

} // namespace

class tst_StyleEngineSetup : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void setupsShareTheEngine_data()
    {
        // Each step: the setup 1 or 2, then what it does: d or u names a sheet by its number, 0 the empty source, c
        // completes.
        // expected: default sheets set a, user sheets b, to their number
        const Rows<QStringList, QList<double>> row;
        row("each its kind", {"1d1", "1c", "2u2", "2c"}, {1, 2});
        row("each its kind, the other way round", {"1u1", "1c", "2d2", "2c"}, {2, 1});
        row("the other names its kind anew", {"1d1", "1c", "2u2", "2c", "1d3"}, {3, 2});
        row("the last of a kind", {"1d1", "1u1", "1c", "2u2", "2c"}, {1, 2});
        row("a sheet named before is not named again", {"1d1", "1u1", "1c", "2u2", "2c", "1d3"}, {3, 2});
        row("an empty source clears", {"1d1", "1u1", "1c", "2u0", "2c"}, {1, 0});
        row("an empty source clears later", {"1d1", "1u1", "1c", "2c", "2u0"}, {1, 0});
        row("nothing named", {"1d1", "1u1", "1c", "2c"}, {1, 1});
        row("broken user sheet first", {"1u9", "1c", "2d2", "2c"}, {2, 0});
        row("broken user sheet later", {"1d1", "1c", "2u9", "2c"}, {1, 0});
    }

    void setupsShareTheEngine()
    {
        const auto &[steps, expected] = Rows<QStringList, QList<double>>::current();
        const StyleFixture fixture;
        const auto nameOf = [&fixture](QChar kind, int number) {
            const QByteArray text = "Box { " + QByteArray(kind == 'd' ? "a: " : "b: ") + QByteArray::number(number);
            const QString file = QString(kind) + QString::number(number);
            return number == 0 ? QUrl() : fixture.write(file, text + (number == 9 ? "" : " }")); // 9 does not parse
        };
        std::array<StyleEngineSetup, 2> setups;
        for (const QString &step : steps) {
            StyleEngineSetup &setup = setups[std::size_t(step[0].digitValue() - 1)];
            if (step[1] == 'c') {
                setup.componentComplete();
                continue;
            }
            const QUrl source = nameOf(step[1], step[2].digitValue());
            if (step[1] == 'd')
                setup.setDefaultStyleSheetSource(source);
            else
                setup.setStyleSheetSource(source);
            QCOMPARE(step[1] == 'd' ? setup.defaultStyleSheetSource() : setup.styleSheetSource(), source);
        }
        QCOMPARE(valuesOfAAndB(), expected);
    }

    void relativeSourcesOfTwoSetups()
    {
        const StyleFixture fixture;
        fixture.write("default.style", "Box { a: 1 }");
        QVERIFY(QDir().mkpath(fixture.path("other")));
        fixture.write("other/user.style", "Box { b: 2 }");
        QQmlEngine engine;
        std::vector<std::unique_ptr<QObject>> setups;
        for (const auto &[file, text] : {std::pair("page.qml", "engine.defaultStyleSheetSource: 'default.style'"),
                                         std::pair("other/page.qml", "engine.styleSheetSource: 'user.style'")}) {
            setups.push_back(
                objectFrom(engine, QByteArray("import TambleClient.Control 1.0\nRStyleEngineSetup { ") + text + " }",
                           fixture.url(file)));
            QVERIFY(setups.back());
        }
        QCOMPARE(valuesOfAAndB(), QList<double>({1, 2}));
    }

    void destroyedSetupLeavesTheStyles()
    {
        const StyleFixture fixture;
        StyleEngineSetup setup;
        setup.setStyleSheetSource(fixture.write("user.style", "Box { b: 2 }"));
        setup.componentComplete();
        {
            StyleEngineSetup other;
            other.setDefaultStyleSheetSource(fixture.write("default.style", "Box { a: 1 }"));
            other.componentComplete();
        }
        QCOMPARE(valuesOfAAndB(), QList<double>({1, 2}));
        fixture.write("user.style", "Box { b: ");
        setup.onFileChanged(QString());
        QCOMPARE(valuesOfAAndB(), QList<double>({1, 2}));
        fixture.write("user.style", "Box { b: 3 }");
        setup.onFileChanged(QString());
        QCOMPARE(valuesOfAAndB(), QList<double>({1, 3}));
    }

    void answersToReports_data()
    {
        // userText: of the first user sheet; nothing for a missing one
        // type: the report that is answered
        const Rows<QByteArray, QString> row;
        row("missing", {}, "styleSheetNotFound");
        row("broken", "Box {", "loadingStyleSheetFailed");
        row("font that is missing",
            "@font-face { src: url(none.ttf) } @font-face { src: url(no) } "
            "Box { b: 1 }",
            "fontWasNotLoaded");
    }

    void answersToReports()
    {
        const auto &[userText, type] = Rows<QByteArray, QString>::current();
        if (type == "fontWasNotLoaded")
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^WARN: Could not find font file")));
        StyleFixture fixture;
        const QUrl good = fixture.write("good.style", "Box { b: 2 }");
        StyledBox box;
        QSignalSpy changes(&box.styleSet(), &StyleSet::propsChanged);
        QCOMPARE(box.props().number("b"), 0.0);
        StyleEngineSetup setup;
        QStringList order;
        QObject::connect(&setup, &StyleEngineSetup::exception, &setup, [&](const QString &report) {
            order.append(report);
            setup.setStyleSheetSource(good);
        });
        QObject::connect(&setup, &StyleEngineSetup::styleChanged, &setup, [&] { order.append("changed"); });
        setup.setDefaultStyleSheetSource(fixture.write("default.style", "Box { a: 1 }"));
        setup.setStyleSheetSource(userText.isEmpty() ? fixture.url("none.style")
                                                     : fixture.write("user.style", userText));
        setup.componentComplete();
        QCOMPARE(valuesOfAAndB(), QList<double>({1, 2}));
        QCOMPARE(order, QStringList({type, "changed"}));
        QCOMPARE(changes.count(), 1);
    }

    void answerToAMissingKey()
    {
        const StyleFixture fixture;
        fixture.load("Box { a: 1 }");
        const QUrl good = fixture.write("good.style", "Box { b: 2; c: 3 }");
        StyledBox box;
        QStringList reports;
        StyleEngineSetup setup;
        setup.componentComplete();
        for (const char *key : {"b", "c", "d"})
            box.props().number(key);
        QObject::connect(&setup, &StyleEngineSetup::exception, &setup, [&](const QString &, const QString &message) {
            reports.append(message.section('\'', 1, 1));
            setup.setStyleSheetSource(good);
            box.props().number("e");
        });
        QSignalSpy due(&fixture.engine(), &StyleEngine::propertiesPotentiallyMissing);
        QTest::ignoreMessage(QtWarningMsg, "WARN: Property b not found (Box)");
        fixture.engine().reportMissingKeys();
        QCOMPARE(reports, QStringList("b")); // the others may be there now
        QCOMPARE(due.count(), 1);
        QTest::ignoreMessage(QtWarningMsg, "WARN: Property e not found (Box)");
        fixture.engine().reportMissingKeys();
        QCOMPARE(reports, QStringList({"b", "e"}));
    }
};

template struct TestClass<tst_StyleEngineSetup>;
#include "tst_StyleEngineSetup.moc"
