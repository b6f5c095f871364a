#include "style/StyleSet.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

class tst_StateHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_data()
    {
        const auto row = rowsOf([](const QStringList &states, const QString &text) {
            StyleSet styleSet;
            for (const QString &state : states)
                QVERIFY(styleSet.stateHelper()->setProperty(state.toLatin1().constData(), true));
            QCOMPARE(styleSet.state(), text);
        });
        row("none", {}, {});
        row("small letters only", {"readOnly"}, "readonly ");
        row("fixed order, whatever came first",
            {"active", "focus", "inconsistent", "selected", "readOnly", "disabled", "hovered", "pressed"},
            "pressed hovered disabled readonly selected inconsistent focus active ");
    }
    void words() { checkRow(); }

    void whatAPageSetsHolds()
    {
        StyleSet styleSet;
        StateHelper &helper = *styleSet.stateHelper();
        helper.setFocus(false);
        for (const bool fed : {true, false}) {
            helper.feed(StateHelper::Focus, fed);
            helper.feed(StateHelper::Hovered, fed);
            QCOMPARE(styleSet.state(), fed ? QStringLiteral("hovered ") : QString());
        }
        helper.feed(StateHelper::Focus, true);
        QVERIFY(helper.setProperty("focus", QVariant())); // as `undefined` does
        QCOMPARE(styleSet.state(), QStringLiteral("focus "));
    }

    void styleSetFollows()
    {
        StyleSet styleSet;
        QStringList seen;
        connect(styleSet.stateHelper(), &StateHelper::hoveredChanged, this, [&] { seen << styleSet.state(); });
        QSignalSpy spy(&styleSet, &StyleSet::stateChanged);

        styleSet.stateHelper()->setHovered(true);
        const auto notifications = spy.count();
        QVERIFY(notifications > 0);
        styleSet.stateHelper()->setHovered(true);
        QCOMPARE(spy.count(), notifications);
        QCOMPARE(seen, QStringList{"hovered "});

        // A state written by hand lasts until the next change of a flag.
        styleSet.setState(QStringLiteral("custom"));
        styleSet.stateHelper()->setPressed(true);
        QCOMPARE(styleSet.state(), QStringLiteral("pressed hovered "));
    }
};

template struct TestClass<tst_StateHelper>;
#include "tst_StateHelper.moc"
