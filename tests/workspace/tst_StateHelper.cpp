#include "workspace/tst_StateHelper.h"

#include "style/StyleSet.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

using namespace tamble::client;

void StateHelperTest::words_data()
{
    QTest::addColumn<QStringList>("states");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << QStringList() << QString();
    QTest::newRow("small letters only") << QStringList{"readOnly"} << "readonly ";
    QTest::newRow("fixed order, whatever came first")
        << QStringList{"active", "focus", "inconsistent", "selected", "readOnly", "disabled", "hovered", "pressed"}
        << "pressed hovered disabled readonly selected inconsistent focus active ";
}

void StateHelperTest::words()
{
    QFETCH(QStringList, states);
    QFETCH(QString, text);

    StateHelper helper;
    for (const QString &state : states)
        QVERIFY(helper.setProperty(state.toLatin1().constData(), true));
    QCOMPARE(helper.stateText(), text);
}

void StateHelperTest::styleSetFollows()
{
    QObject item;
    StyleSet *styleSet = StyleSet::qmlAttachedProperties(&item);
    QStringList seen;
    connect(styleSet->stateHelper(), &StateHelper::hoveredChanged, this, [&] { seen << styleSet->state(); });
    QSignalSpy spy(styleSet, &StyleSet::stateChanged);

    styleSet->stateHelper()->setHovered(true);
    styleSet->stateHelper()->setHovered(true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(seen, QStringList{"hovered "});

    // A state written by hand lasts until the next change of a flag.
    styleSet->setState(QStringLiteral("custom"));
    styleSet->stateHelper()->setPressed(true);
    QCOMPARE(styleSet->state(), QStringLiteral("pressed hovered "));
}
