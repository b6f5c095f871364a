#include "models/RSortFilterProxyModel.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QCollator>
#include <QtCore/QIdentityProxyModel>
#include <QtGui/QStandardItemModel>
#include <QtQml/QJSEngine>
#include <QtTest/QAbstractItemModelTester>

#include <random>

using namespace tamble::client;
using namespace Qt::StringLiterals;

namespace {

enum Role { Text = Qt::UserRole + 1, Level };

struct Settings
{
    QString role;
    bool enabled = true, natural = true, descending = false, inverted = false;
    QString pattern;
    QStringList filterRoles;
    bool filterFunction = false, sortFunction = false;
};

class Source : public QStandardItemModel
{
public:
    Source() { setItemRoleNames({{Text, "text"}, {Level, "level"}}); }

    void change(int row) { write(*item(row)); }
    void insert(int row, int rows)
    {
        QList<QStandardItem *> column;
        for (int i = 0; i < rows; ++i) {
            column.append(new QStandardItem);
            write(*column.last());
        }
        invisibleRootItem()->insertRows(row, column);
    }
    void shuffle() { QStandardItemModel::sort(0); }
    void replace(int rows)
    {
        beginResetModel();
        {
            const QSignalBlocker quiet(this);
            removeRows(0, rowCount());
            insert(0, rows);
        }
        endResetModel();
    }

    int below(int bound) { return int(m_random() % unsigned(bound)); }

private:
    void write(QStandardItem &item)
    {
        item.setData(u"%1 %2"_s.arg(u"Input"_s.mid(below(2), 1 + below(5))).arg(below(30)), Text);
        item.setData(below(6) / 2.0, Level);
        item.setData(below(100), Qt::DisplayRole);
    }

    std::mt19937 m_random{7};
};

int sign(const QVariant &a, const QVariant &b, const Settings &settings, const QCollator &collator)
{
    if (a.typeId() != QMetaType::QString)
        return a.toDouble() < b.toDouble() ? -1 : int(a.toDouble() > b.toDouble());
    return settings.natural ? collator.compare(a.toString(), b.toString())
                            : QString::compare(a.toString(), b.toString(), Qt::CaseInsensitive);
}

/// Rows of the source that have to be shown, by the plainest way there is.
QList<int> expected(const QAbstractItemModel &source, const Settings &settings)
{
    QCollator collator{QLocale(QLocale::English)};
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    const auto value = [&](int row, int role) { return source.index(row, 0).data(role); };
    QList<int> rows;
    for (int row = 0; row < source.rowCount(); ++row) {
        bool matches = false;
        for (const QString &role : settings.filterRoles)
            matches |=
                value(row, role == "text"_L1 ? Text : Level).toString().contains(settings.pattern, Qt::CaseInsensitive);
        if ((settings.pattern.isEmpty() || matches != settings.inverted) &&
            !(settings.filterFunction && value(row, Level).toDouble() < 1))
            rows.append(row);
    }
    const int role = settings.role == "text"_L1 ? int(Text) : int(Level);
    const auto order = [&](int a, int b) {
        const int result = settings.sortFunction ? sign(value(a, Text).toString().size(),
                                                        value(b, Text).toString().size(), settings, collator)
                                                 : sign(value(a, role), value(b, role), settings, collator);
        return settings.descending ? result > 0 : result < 0;
    };
    const bool hasRole = !settings.role.isEmpty() || settings.sortFunction;
    if (settings.enabled && hasRole)
        std::stable_sort(rows.begin(), rows.end(), order);
    else if (settings.enabled && settings.descending)
        std::reverse(rows.begin(), rows.end());
    return rows;
}

QList<int> shown(const RSortFilterProxyModel &proxy)
{
    QList<int> rows;
    for (int row = 0; row < proxy.count(); ++row)
        rows.append(proxy.sourceRow(row));
    return rows;
}

} // namespace

class tst_SortFilterReferee : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void randomChanges_data()
    {
        const auto row = rowsOf([](bool behindAnother) {
            Source source;
            QIdentityProxyModel another;
            another.setSourceModel(&source);
            QJSEngine engine;
            RSortFilterProxyModel proxy;
            QJSEngine::setObjectOwnership(&proxy, QJSEngine::CppOwnership);
            const QJSValue owner = engine.newQObject(&proxy);
            const QAbstractItemModelTester tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
            int told = 0;
            bool toldTwice = false;
            connect(&proxy, &RSortFilterProxyModel::countChanged, &proxy, [&] {
                toldTwice |= told == proxy.count();
                told = proxy.count();
            });
            const QAbstractItemModel &rows = behindAnother ? static_cast<QAbstractItemModel &>(another) : source;
            proxy.setSourceModel(const_cast<QAbstractItemModel *>(&rows));

            Settings settings;
            for (int step = 0; step < 3000; ++step) {
                const int count = source.rowCount();
                switch (source.below(count > 0 ? 9 : 1)) {
                case 0:
                    source.insert(source.below(count + 1), 1 + source.below(4));
                    break;
                case 1:
                case 2:
                    source.change(source.below(count));
                    break;
                case 3:
                    source.removeRows(source.below(count), 1);
                    break;
                case 4:
                    if (const int taken = source.below(count); source.below(2) == 0)
                        source.insertRow(source.below(count), source.takeRow(taken));
                    else
                        source.removeRows(taken, std::min(count - taken, 6));
                    break;
                case 5:
                    if (source.below(8) == 0)
                        source.replace(source.below(30));
                    else if (source.below(4) == 0)
                        source.shuffle();
                    break;
                case 6:
                    settings.descending = source.below(2) != 0;
                    proxy.setProperty("sortOrder", settings.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
                    settings.enabled = source.below(4) != 0;
                    proxy.setProperty("sortEnabled", settings.enabled);
                    settings.role = QStringList{{}, u"text"_s, u"level"_s}.at(source.below(3));
                    proxy.setProperty("sortRoleName", settings.role);
                    settings.natural = source.below(2) != 0;
                    proxy.setProperty("naturalSort", settings.natural);
                    break;
                case 7:
                    settings.pattern = QStringList{{}, u"inp"_s, u"1"_s, u"5"_s}.at(source.below(4));
                    proxy.setProperty("filterPattern", settings.pattern);
                    settings.filterRoles =
                        source.below(2) == 0 ? QStringList{u"text"_s} : QStringList{u"level"_s, u"text"_s};
                    proxy.setProperty("filterRoleNames", settings.filterRoles);
                    settings.inverted = source.below(2) != 0;
                    proxy.setProperty("filterInverted", settings.inverted);
                    break;
                default:
                    settings.filterFunction = source.below(2) != 0;
                    proxy.setFilterExpression(settings.filterFunction ? engine.evaluate(u"(r => r.level >= 1)"_s)
                                                                      : QJSValue());
                    settings.sortFunction = source.below(3) == 0;
                    proxy.setSortExpression(settings.sortFunction
                                                ? engine.evaluate(u"((a, b) => a.text.length < b.text.length)"_s)
                                                : QJSValue());
                }
                if (QTest::currentTestFailed())
                    return;
                QVERIFY2(shown(proxy) == expected(rows, settings), qPrintable(u"step %1"_s.arg(step)));
                QCOMPARE(told, proxy.count());
                QVERIFY(!toldTwice);
            }
        });
        row("of the source", false);
        row("of a source behind another proxy", true);
    }
    void randomChanges() { checkRow(); }

    void manyRows()
    {
        Source source;
        source.insert(0, 10000);
        RSortFilterProxyModel proxy;
        Settings settings;
        settings.role = u"text"_s;
        settings.filterRoles = QStringList{u"text"_s};
        settings.pattern = u"n"_s;
        proxy.setProperty("sortRoleName", settings.role);
        proxy.setProperty("filterRoleNames", settings.filterRoles);
        proxy.setProperty("filterPattern", settings.pattern);
        proxy.setSourceModel(&source);
        QVERIFY(proxy.count() > 1000);
        QCOMPARE(shown(proxy), expected(source, settings));
    }
};

template struct TestClass<tst_SortFilterReferee>;
#include "tst_SortFilterReferee.moc"
