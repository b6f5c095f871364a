#include "GalleryInstallation.h"
#include "StagePlan.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QSet>
#include <QtTest/QAbstractItemModelTester>

#include <limits>

namespace {

constexpr int brokenAmplifier = 7;

struct Stage
{
    Stage()
        : installation(1, nullptr)
        , model(*installation.stage())
    {
        installation.setStepped(true);
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &model,
                         [this](const QModelIndex &first, const QModelIndex &last, const QList<int> &roles) {
                             told.append(QStringLiteral("%1-%2").arg(first.row()).arg(last.row()));
                             toldRoles.unite(QSet<int>(roles.begin(), roles.end()));
                         });
    }

    QVariant data(int row, int role) const { return model.index(row).data(role); }
    void request(int device, QStringView field, const QVariant &value)
    {
        installation.request({{{device, fieldIndex(field)}, value}});
        installation.advance(200);
    }
    QVariantMap places(const QMap<int, QPointF> &rows) const
    {
        QVariantMap map;
        for (auto row = rows.begin(); row != rows.end(); ++row)
            map.insert(model.idOf(row.key()), row.value());
        return map;
    }

    GalleryInstallation installation;
    StageModel &model;
    QStringList told; ///< rows of changes, in order
    QSet<int> toldRoles;
};

QString rowsText(BlockRange range)
{
    return QStringLiteral("%1-%2").arg(range.first).arg(range.first + range.count - 1);
}

} // namespace

class tst_StageModel : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void planIsComplete()
    {
        Stage stage;
        const QAbstractItemModelTester tester(&stage.model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(stage.model.rowCount(), 2000);
        QSet<QString> ids, cells;
        for (int row = 0; row < stage.model.rowCount(); ++row) {
            const QPointF place = stage.data(row, StageModel::PlaceRole).toPointF();
            QVERIFY(stage.model.area().contains(QRectF(place, QSizeF(96, 64))));
            ids.insert(stage.model.idOf(row));
            // On the grid of 8, and no two within a block's size.
            QCOMPARE(std::fmod(place.x(), 8.0) + std::fmod(place.y(), 8.0), 0.0);
            cells.insert(QStringLiteral("%1/%2").arg(int(place.x() / 112)).arg(int(place.y() / 80)));
        }
        QCOMPARE(ids.size(), 2000);
        QCOMPARE(cells.size(), 2000);
        QCOMPARE(stage.model.deviceOf(stage.model.idOf(26)), 26);
        QCOMPARE(stage.model.deviceOf(stage.model.idOf(27)), 0);
        QCOMPARE(stage.model.deviceOf(QString()), -1);
    }

    void rangesFollowThePlan()
    {
        int next = 27;
        for (int amplifier = 0; amplifier < 24; ++amplifier) {
            QCOMPARE(loudspeakersOf(amplifier).first, next);
            for (int way = 1; way <= 4; ++way) {
                const auto [first, count] = loudspeakersOf(amplifier, way);
                QCOMPARE(first, next);
                for (int row = first; row < first + count; ++row)
                    QCOMPARE(std::pair(stagePlan()[row].device, stagePlan()[row].way), std::pair(amplifier, way));
                next += count;
            }
            QCOMPARE(loudspeakersOf(amplifier).first + loudspeakersOf(amplifier).count, next);
        }
        QCOMPARE(next, 2000);
    }

    void changesTellTheirRows_data()
    {
        using Act = void (*)(Stage & stage);
        const auto row = rowsOf([](Act act, const QStringList &expected, int role, const QVariant &value) {
            Stage stage;
            act(stage);
            const QSet<QString> told(stage.told.begin(), stage.told.end());
            QCOMPARE(told, QSet<QString>(expected.begin(), expected.end()));
            if (expected.isEmpty())
                return;
            QVERIFY(stage.toldRoles.contains(role));
            QCOMPARE(stage.data(expected.first().section(u'-', 0, 0).toInt(), role), value);
        });
        const QString third = rowsText(loudspeakersOf(brokenAmplifier, 3));
        const QString all = rowsText(loudspeakersOf(brokenAmplifier));
        const QString itself = QStringLiteral("7-7");
        const Act nothing = [](Stage &stage) { stage.request(brokenAmplifier, u"notes", QStringLiteral("dusty")); };
        row("notes", nothing, QStringList(), 0, QVariant());
        row(
            "gain of an output", [](Stage &stage) { stage.request(brokenAmplifier, u"output3Gain", -3.0); },
            QStringList{third}, StageModel::ValueRole, QVariant(-3.0));
        row(
            "too loud", [](Stage &stage) { stage.request(brokenAmplifier, u"output3Gain", 6.5); }, QStringList{third},
            StageModel::AlarmRole, QVariant(QStringLiteral("Too loud")));
        row(
            "gain of an input", [](Stage &stage) { stage.request(brokenAmplifier, u"input3Gain", -3.0); },
            QStringList(), 0, QVariant());
        row(
            "output muted", [](Stage &stage) { stage.request(brokenAmplifier, u"output3Mute", true); },
            QStringList{third}, StageModel::ValueRole, QVariant(-std::numeric_limits<double>::infinity()));
        row(
            "amplifier muted", [](Stage &stage) { stage.request(brokenAmplifier, u"mute", true); }, QStringList{all},
            StageModel::StatusRole, QVariant(QStringLiteral("mute")));
        row(
            "renamed", [](Stage &stage) { stage.request(brokenAmplifier, u"name", QStringLiteral("Left")); },
            QStringList{itself}, StageModel::TitleRole, QVariant(QStringLiteral("Left")));
        row(
            "off the network",
            [](Stage &stage) {
                stage.installation.dropOut(brokenAmplifier, 1000);
                stage.installation.advance(200);
            },
            QStringList({itself, all}), StageModel::StatusRole, QVariant(QStringLiteral("offline")));
        row(
            "a mixer drives no loudspeakers",
            [](Stage &stage) {
                stage.installation.dropOut(GalleryInstallation::firstMixer(), 1000);
                stage.installation.advance(200);
            },
            QStringList{QStringLiteral("24-24")}, StageModel::AlarmRole, QVariant(QStringLiteral("Offline")));
    }
    void changesTellTheirRows() { checkRow(); }

    void movesAreSteps()
    {
        Stage stage;
        EditHistory &history = *stage.installation.history();
        const auto placeOf = [&stage](int row) { return stage.data(row, StageModel::PlaceRole).toPointF(); };
        const QPointF before = placeOf(5);
        const QVariantMap start = stage.places({{4, placeOf(4)}, {5, before}, {9, placeOf(9)}});
        const QVariantMap end = stage.places({{4, {8, 8}}, {5, {16, 8}}, {9, placeOf(9)}});
        stage.model.move(start, end, QStringLiteral("align"));
        QCOMPARE(stage.told, QStringList{QStringLiteral("4-5")});
        QCOMPARE(history.undoText(), QStringLiteral("3 blocks aligned"));
        // A gesture right after it is another step.
        stage.model.move(end, start, QStringLiteral("drag"));
        QCOMPARE(history.count(), 2);
        QCOMPARE(placeOf(5), before);
        history.undo();
        QCOMPARE(placeOf(5), QPointF(16, 8));
        history.undo();
        QCOMPARE(placeOf(5), before);
        history.redo();
        QCOMPARE(placeOf(4), QPointF(8, 8));

        stage.model.move({}, {{QStringLiteral("nobody"), QPointF()}}, QStringLiteral("drag"));
        QCOMPARE(history.count(), 2);
        history.setIndex(0);

        constexpr int many = 3000;
        for (int i = 0; i < many; ++i)
            stage.model.move(stage.places({{5, placeOf(5)}}), stage.places({{5, placeOf(5) + QPointF(8, 0)}}),
                             QStringLiteral("keyboard"));
        QCOMPARE(placeOf(5), before + QPointF(8.0 * many, 0));
        QCOMPARE(history.count(), many);
        history.setIndex(0);
        QCOMPARE(placeOf(5), before);
    }

    void search_data()
    {
        const auto row = rowsOf([](const QString &text, int from, int expected) {
            Stage stage;
            QCOMPARE(stage.model.nextWith(text, from), expected);
        });
        row("a device, whatever its case", QStringLiteral("aMPlifier 12"), -1, 11);
        row("behind the present one", QStringLiteral("amplifier 1"), 0, 9);
        row("from the top again", QStringLiteral("amplifier 1"), 1999, 0);
        row("the only one", QStringLiteral("matrix"), 26, 26);
        row("a loudspeaker", QStringLiteral("8.3.2"), -1, loudspeakersOf(brokenAmplifier, 3).first + 1);
        row("an area", QStringLiteral("delay"), -1, 4);
        row("nowhere", QStringLiteral("orchestra pit"), 3, -1);
        row("nothing", QString(), 3, -1);
        row("from a row that is not there", QStringLiteral("amplifier"), 5000, 0);
    }
    void search() { checkRow(); }

    void alarmsInTurn()
    {
        Stage stage;
        constexpr int hotOne = 17;
        QCOMPARE(stage.model.nextAlarm(-1), hotOne);
        stage.request(brokenAmplifier, u"output4Gain", 12.0);
        const int loudOne = loudspeakersOf(brokenAmplifier, 4).first;
        QCOMPARE(stage.model.nextAlarm(hotOne), loudOne);
        QCOMPARE(stage.model.nextAlarm(1999), hotOne);
    }
};

template struct TestClass<tst_StageModel>;
#include "tst_StageModel.moc"
