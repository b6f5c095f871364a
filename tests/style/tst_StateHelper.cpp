#include "style/StyleSet.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

using namespace tamble::client;

class tst_StateHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void styleSetFollows();
};

void tst_StateHelper::words_data()
{
    QTest::addColumn<QStringList>("states");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << QStringList() << QString();
    QTest::newRow("small letters only") << QStringList{"readOnly"} << "readonly ";
    QTest::newRow("fixed order, whatever came first")
        << QStringList{"active", "focus", "inconsistent", "selected", "readOnly", "disabled", "hovered", "pressed"}
        << "pressed hovered disabled readonly selected inconsistent focus active ";
}

void tst_StateHelper::words()
{
    QFETCH(QStringList, states);
    QFETCH(QString, text);

    StyleSet styleSet;
    for (const QString &state : states)
        QVERIFY(styleSet.stateHelper()->setProperty(state.toLatin1().constData(), true));
    QCOMPARE(styleSet.state(), text);
}

void tst_StateHelper::styleSetFollows()
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

template struct TestClass<tst_StateHelper>;
#include "tst_StateHelper.moc"
