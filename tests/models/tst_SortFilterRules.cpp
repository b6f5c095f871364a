#include "TambleClientControlModule.h"
#include "models/RSortFilterProxyModel.h"
#include "support/Numbers.h"
#include "support/QmlText.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtGui/QStandardItemModel>

using namespace tamble::client;
using namespace Qt::StringLiterals;

class tst_SortFilterRules : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TambleClientControlModule module;
        module.registerTypes("TambleClient.Control");
        module.initializeEngine(&m_engine, "TambleClient.Control");
    }

    // A page with a list of names and levels behind the model `proxy`: its properties, a script, and the text that the
    // script returns. `shown()` lists the names shown, `counts` what countChanged told.
    void pages_data()
    {
        const auto row = rowsOf([this](const QByteArray &properties, const QByteArray &script, const QString &result,
                                       const QString &warning) {
            if (!warning.isEmpty())
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
            const auto page = objectFrom(m_engine, R"(
                import QtQml
                import QtQml.Models
                import TambleClient.Control 1.0
                QtObject {
                    property var counts: []
                    property int limit: 5
                    property ListModel list: ListModel {}
                    property ListModel other: ListModel { ListElement { name: 'other'; level: 1 } }
                    property RSortFilterProxyModel proxy: RSortFilterProxyModel {
                        id: proxy
                        sourceModel: list
                        onCountChanged: counts.push(count)
                        )" + properties + R"(
                    }
                    function add(...names) { for (const n of names) list.append({ name: n, level: n.length }) }
                    function shown() {
                        const rows = []
                        for (let row = 0; row < proxy.count; ++row) rows.push(proxy.get(row).name)
                        return rows.join()
                    }
                    function run() { )" + script + "; return shown() } }");
            QVERIFY(page);
            QVariant told;
            QVERIFY(QMetaObject::invokeMethod(page.get(), "run", Q_RETURN_ARG(QVariant, told)));
            QCOMPARE(told.toString(), result);
        });
        const auto quiet = [&row](const char *rule, const char *properties, const char *script, const char *result) {
            row(rule, properties, script, QString::fromLatin1(result), QString());
        };
        quiet("digits are numbers", "sortRoleName: 'name'", "add('In 10', 'in 2', 'In 1')", "In 1,in 2,In 10");
        quiet("digits are signs", "sortRoleName: 'name'; naturalSort: false", "add('In 2', 'in 10')", "in 10,In 2");
        quiet("case counts", "sortRoleName: 'name'; naturalSort: false; sortCaseSensitivity: Qt.CaseSensitive",
              "add('a', 'B')", "B,a");
        quiet("numbers", "sortRoleName: 'level'", "add('ccccccccccc', 'bb')", "bb,ccccccccccc");
        quiet("ties descending", "sortRoleName: 'level'; sortOrder: Qt.DescendingOrder", "add('b', 'a', 'cc', 'd')",
              "cc,b,a,d");
        quiet("tie inserted in front", "sortRoleName: 'level'",
              "add('b', 'a'); list.insert(0, { name: 'c', level: 1 })", "c,b,a");
        quiet("not sorted", "sortRoleName: 'name'; sortEnabled: false; sortOrder: Qt.DescendingOrder", "add('b', 'a')",
              "b,a");
        quiet("sorted later", "sortRoleName: 'name'; sortEnabled: false", "add('b', 'a'); proxy.sortEnabled = true",
              "a,b");
        quiet("display is the first role of a list", "sortOrder: Qt.DescendingOrder", "add('b', 'c', 'a')", "c,b,a");
        quiet("role set later", "", "add('b', 'a'); proxy.sortRoleName = 'name'", "a,b");
        quiet("any role", "filterRoleNames: ['name', 'level']; filterPattern: '2'", "add('xx', 'y2z', 'z')", "xx,y2z");
        quiet("inverted", "filterRoleNames: ['name']; filterPattern: 'x'; filterInverted: true", "add('xx', 'y')", "y");
        quiet("empty pattern, inverted", "filterRoleNames: ['name']; filterInverted: true", "add('x')", "x");
        quiet("case counts in patterns",
              "filterRoleNames: 'name'; filterPattern: 'X'; filterCaseSensitivity: Qt.CaseSensitive", "add('x', 'X')",
              "X");
        quiet("ill-formed pattern", "filterRoleNames: 'name'; filterPattern: 'a'",
              "add('a', 'b'); proxy.filterSyntax = RSortFilterProxyModel.RegularExpression; proxy.filterPattern = '(';"
              "if (proxy.filterValid) return 'valid'",
              "a");
        quiet("well-formed again", "filterRoleNames: 'name'; filterSyntax: RSortFilterProxyModel.Wildcard",
              "add('a', 'b'); proxy.filterPattern = '['; proxy.filterPattern = '?b'; proxy.filterPattern = '[b]';"
              "if (!proxy.filterValid) return 'ill-formed'",
              "b");
        quiet("expression and pattern",
              "filterRoleNames: 'name'; filterPattern: 'a'; filterExpression: r => r.level > 1", "add('a', 'ab', 'cd')",
              "ab");
        quiet("expression of later values", "filterExpression: r => r.level > limit",
              "add('aaa', 'b'); limit = 2; proxy.invalidate()", "aaa");
        quiet("expression on changed data", "filterExpression: r => r.level > 1",
              "add('aa', 'bb', 'c'); list.setProperty(0, 'level', 0); list.setProperty(2, 'level', 9)", "bb,c");
        quiet("expression taken away", "filterExpression: r => false", "add('a'); proxy.filterExpression = undefined",
              "a");
        quiet("what is no function", "filterExpression: 5; sortExpression: 'x'", "add('b', 'a')", "a,b");
        quiet("sorted by a function", "sortRoleName: 'name'; sortExpression: (a, b) => a.level < b.level",
              "add('aaa', 'c', 'bb', 'b'); list.setProperty(0, 'level', 0)", "aaa,c,b,bb");
        quiet("function, descending", "sortOrder: Qt.DescendingOrder; sortExpression: (a, b) => a.level < b.level",
              "add('c', 'bb', 'b', 'dd'); list.remove(0)", "bb,dd,b");
        quiet("function and moves", "sortExpression: (a, b) => a.level < b.level; filterExpression: r => r.name != 'x'",
              "add('x', 'c', 'bb', 'b'); list.move(3, 0, 1)", "b,c,bb");
        quiet("function that contradicts itself", "sortExpression: () => true",
              "add('a', 'b', 'c'); return proxy.count", "3");
        quiet("counts", "filterRoleNames: 'name'; filterPattern: 'a'",
              "add('a', 'b', 'ab'); list.remove(1); proxy.filterPattern = 'b'; proxy.sortOrder = 1; proxy.sourceModel ="
              " other; proxy.sourceModel = list; proxy.sourceModel = null; return counts.join()",
              "1,2,1,0,1,0");
        quiet("counts of expressions", "filterExpression: r => r.level < 2",
              "add('a', 'bb', 'c'); list.clear(); return counts.join()", "1,2,0");
        quiet("lookups", "sortRoleName: 'name'; filterExpression: r => r.name != 'x'",
              "add('b', 'x', 'a'); return [proxy.sourceRow(0), proxy.sourceRow(-1), proxy.sourceRow(9), "
              "proxy.proxyRow(0),"
              "proxy.proxyRow(1), proxy.proxyRow(-3), proxy.indexOf('name', 'b'), proxy.indexOf('level', 1),"
              "proxy.indexOf('name', 'x'), typeof proxy.get(-1), typeof proxy.get(2)].join()",
              "2,-1,-1,1,-1,-1,1,0,-1,undefined,undefined");
        quiet("another source while the count is told",
              "filterRoleNames: 'name'; filterPattern: 'o';"
              "onRowsInserted: limit++",
              "proxy.countChanged.connect(() => proxy.sourceModel = other); add('no')", "other");
        quiet("another source while one is being told", "",
              "proxy.sourceModelChanged.connect(() => proxy.sourceModel = other); add('a'); proxy.sourceModel = null;"
              "other.append({ name: 'p', level: 1 }); add('b'); return shown() + counts",
              "other,p1,2");
        quiet("function that appends to the source",
              "filterExpression: r => { if (list.count < 5) list.append({ name: 'n', level: 1 }); return true }",
              "add('a')", "a,n,n,n,n");
        quiet("function that removes from the source",
              "filterExpression: r => { if (r.name == 'x') list.clear(); return true }", "add('a', 'x')", "");
        quiet("function that replaces itself",
              "filterExpression: r => { proxy.filterExpression = s => s.name == 'b'; return true }", "add('a', 'b')",
              "b");
        quiet("function that exchanges the source",
              "sortExpression: (a, b) => { proxy.sourceModel = other; return true }", "add('a', 'b')", "other");
        row("unknown role", "sortRoleName: 'nome'; filterRoleNames: ['nome']", "add('b', 'a'); list.clear(); add('c')",
            u"c"_s, u"no role \"nome\""_s);
        row("throwing filter", "filterExpression: r => { throw r.name }", "add('a', 'b')", u"a,b"_s,
            u"filterExpression: a"_s);
        row("throwing sort", "sortExpression: (a, b) => a.x.y", "add('b', 'a', 'c')", u"b,a,c"_s,
            u"sortExpression: TypeError"_s);
        row("without end", "filterExpression: r => { list.append({ name: 'n', level: 1 }); return false }",
            "add('a'); return proxy.count > 0", u"true"_s, u"changes the model"_s);
    }
    void pages() { checkRow(); }

    // Numbers, then texts, then what has no order; each in the order of the source.
    void mixedTypes()
    {
        QStandardItemModel source;
        const QVariantList values{u"10"_s, 7, {}, 2.5, notANumber, u"9"_s, true, QVariantList{1}, -1e308};
        for (const QVariant &value : values) {
            source.appendRow(new QStandardItem);
            source.item(source.rowCount() - 1)->setData(value, Qt::DisplayRole);
        }
        RSortFilterProxyModel proxy;
        proxy.setSourceModel(&source);
        QList<int> rows;
        for (int row = 0; row < proxy.count(); ++row)
            rows << proxy.sourceRow(row);
        QCOMPARE(rows, (QList<int>{8, 6, 3, 1, 5, 0, 2, 4, 7}));
    }

    void sourceThatGoes()
    {
        RSortFilterProxyModel proxy;
        auto source = std::make_unique<QStandardItemModel>(3, 1);
        proxy.setSourceModel(source.get());
        QSignalSpy counts(&proxy, &RSortFilterProxyModel::countChanged);
        QSignalSpy resets(&proxy, &QAbstractItemModel::modelReset);
        source.reset();
        QCOMPARE(proxy.count(), 0);
        QCOMPARE(counts.count(), 1);
        QCOMPARE(resets.count(), 1);
        QStandardItemModel next(2, 0);
        proxy.setSourceModel(&next);
        proxy.setProperty("filterPattern", u"x"_s);
        QVERIFY(!proxy.get(0).isValid());
        proxy.setProperty("filterPattern", QString());
        QCOMPARE(proxy.count(), 2);
        next.insertColumn(0);
        next.setItem(1, new QStandardItem(u"a"_s));
        QCOMPARE(proxy.sourceRow(0), 1);
    }

    void inheritedFilterTellsTheCount()
    {
        QStandardItemModel source;
        source.appendRow(new QStandardItem(u"a"_s));
        RSortFilterProxyModel proxy;
        proxy.setSourceModel(&source);
        QSignalSpy counts(&proxy, &RSortFilterProxyModel::countChanged);
        proxy.setFilterFixedString(u"b"_s);
        QCOMPARE(proxy.count(), 0);
        QTRY_COMPARE(counts.count(), 1);
    }

private:
    QQmlEngine m_engine;
};

template struct TestClass<tst_SortFilterRules>;
#include "tst_SortFilterRules.moc"
