#include "SheetAudit.h"
#include "support/ColourMetrics.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QFile>

namespace {

QByteArray sheetText(const QString &theme)
{
    QFile file(TAMBLE_STYLE_SHEETS "/tamble." + theme + ".style");
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QString dataFile(const char *name)
{
    return QStringLiteral(TAMBLE_TEST_DATA "/style/") + QLatin1String(name);
}

void addThemes(std::initializer_list<const char *> themes)
{
    QTest::addColumn<QString>("theme");
    for (const char *theme : themes)
        QTest::newRow(theme) << QString::fromLatin1(theme);
}

/// The selectors of "light" or "dark" that the table lists.
QStringList listedSelectors(const QString &theme)
{
    QStringList result;
    for (const QStringList &row : dataRows(dataFile("selectors.txt")))
        if (row[1] == "both" || row[1] == theme)
            result.append(row[0]);
    result.sort();
    return result;
}

/// "selector key" for each declaration of the sheets.
QSet<QString> declared(std::initializer_list<QString> themes)
{
    QSet<QString> result;
    for (const QString &theme : themes) {
        const SheetAudit sheet(sheetText(theme));
        for (auto it = sheet.declaredKeys().cbegin(); it != sheet.declaredKeys().cend(); ++it)
            for (const QString &key : it.value())
                result.insert(it.key() + u' ' + key);
    }
    return result;
}

/// What only one of two sets holds; empty when they are equal.
QStringList difference(const QSet<QString> &a, const QSet<QString> &b)
{
    return ((a - b) + (b - a)).values();
}

} // namespace

/// The built-in sheets: the format of light and dark, their content against independent tables, and what people can
/// make out on them.
class tst_BuiltInSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void format_data() { addThemes({"light", "dark"}); }

    void format()
    {
        QFETCH(QString, theme);
        const QByteArray text = sheetText(theme);
        QVERIFY(text.startsWith("// GENERATED\r\n"));
        QVERIFY(text.endsWith("} \r\n"));
        QCOMPARE(text.count('\n'), text.count("\r\n"));
        QCOMPARE(text.count('\r'), text.count("\r\n"));
        static const QRegularExpression rule(QStringLiteral("^[^{}]+ \\{ [^{}]+ \\} $"));
        for (const QByteArray &line : QByteArray(text).replace("\r\n", "\n").split('\n').mid(1))
            QVERIFY2(line.isEmpty() || rule.match(QString::fromUtf8(line)).hasMatch(), line.constData());
    }

    void irregularities()
    {
        const QByteArray dark = sheetText("dark");
        QVERIFY(dark.contains("\r\nRTextArea { foreground-invalid: \"#9B2323\" line: \"#efefef\"; } \r\n"));
        QVERIFY(dark.contains("\r\nRWorkspaceItemValueBar { background-delimiter: \"white\" } \r\n"));
        static const QRegularExpression twice(QStringLiteral(
            "RAppBarStateButton\\.green (\\{ foreground: .*; \\} )\r\nRAppBarStateButton\\.green \\1\r\n"));
        QVERIFY(twice.match(QString::fromUtf8(sheetText("light"))).hasMatch());
    }

    void selectors_data()
    {
        const auto row = rowsOf([](const QString &theme, int selectorCount, int declarationCount) {
            const SheetAudit sheet(sheetText(theme));
            QStringList written = sheet.declaredKeys().keys();
            written.sort();
            QCOMPARE(written, listedSelectors(theme));
            QCOMPARE(int(written.size()), selectorCount);
            QCOMPARE(int(sheet.declarationCount()), declarationCount);
        });
        row("light", "light", 154, 377);
        row("dark", "dark", 177, 390);
    }
    void selectors() { checkRow(); }

    void plainValues_data() { addThemes({"light", "dark"}); }

    void plainValues()
    {
        QFETCH(QString, theme);
        SheetAudit sheet(sheetText(theme));
        QStringList differences;
        for (const QStringList &row : dataRows(dataFile("plain-values.txt"))) {
            const QString expected = row[theme == "light" ? 2 : 3];
            const QString found = sheet.value(row[0], row[1]).value_or(QStringLiteral("-"));
            if (found != expected)
                differences.append(row.join(u';') + ": " + found);
        }
        QVERIFY2(differences.isEmpty(), qPrintable(differences.join(u'\n')));
    }

    void keys()
    {
        static const QRegularExpression variant(QStringLiteral("[ .:].* "));
        QSet<QString> listed;
        for (const QStringList &row : dataRows(dataFile("plain-values.txt")))
            listed.insert(row[0] + u' ' + row[1]);
        QSet<QString> written;
        for (QString declaration : declared({"light", "dark"}))
            written.insert(declaration.replace(variant, QStringLiteral(" ")));
        QCOMPARE(difference(written, listed), QStringList());
    }

    void statePalette_data() { plainValues_data(); }

    void statePalette()
    {
        QFETCH(QString, theme);
        SheetAudit sheet(sheetText(theme));
        const QStringList blues = {"#008ccd", "#005691", "#003960", "#0b3f71"};
        const QStringList ambers = {"#b67600", "#794e00"};
        QStringList strays;
        for (auto it = sheet.declaredKeys().cbegin(); it != sheet.declaredKeys().cend(); ++it) {
            const QStringList states = it.key().split(QStringLiteral("::")).mid(1);
            if (!it.value().contains("background") || states.isEmpty() || states.contains("disabled"))
                continue;
            const bool mixed = states.first().startsWith(QStringLiteral("inconsisten"));
            if (!mixed && states.first() != "hovered" && states.first() != "pressed")
                continue;
            QString path = it.key();
            path.replace(path.indexOf(QStringLiteral("::")), path.size(), "::" + states.join(u' '));
            if (!(mixed ? ambers : blues).contains(sheet.colour(path, "background").name()))
                strays.append(it.key());
        }
        QVERIFY2(strays.isEmpty(), qPrintable(strays.join(u'\n')));
    }

    void contrastSheetsCoverBothThemes_data() { addThemes({"contrast-light", "contrast-dark"}); }

    void contrastSheetsCoverBothThemes()
    {
        QFETCH(QString, theme);
        // Things on a workspace item would be unreadable otherwise: it contrasts with the workspace, not with their
        // texts.
        const QSet<QString> extra{"RWorkspaceItem RAxis foreground",   "RWorkspaceItem RAxis tick",
                                  "RWorkspaceItem RIcon foreground",   "RWorkspaceItem RLabel foreground",
                                  "RWorkspaceItem RLabel line-color",  "RWorkspaceItem RLabel line",
                                  "RWorkspaceItem RText foreground",   "RWorkspaceItem RSectionHeader foreground",
                                  "RWorkspaceItem RSectionHeader line"};
        QCOMPARE(difference(declared({theme}), declared({"light", "dark"}) + extra), QStringList());
    }

    void pointerShows_data() { addThemes({"light", "dark", "contrast-light", "contrast-dark"}); }

    void pointerShows()
    {
        QFETCH(QString, theme);
        SheetAudit sheet(sheetText(theme));
        const auto background = [&sheet](const QString &name, const QString &states) {
            return sheet.colour("RButton" + name + "::" + states, "background");
        };
        for (const QString name : {"", ".red", ".green", ".ghost", ".crossPoint"}) {
            for (const QString states : {"", "active", "selected", "selected active", "inconsistent"}) {
                const QColor plain = background(name, states);
                QVERIFY2(background(name, states + " pressed") != plain, qPrintable(name + ' ' + states));
                if (states.isEmpty() || states == "active")
                    QVERIFY2(background(name, states + " hovered") != plain, qPrintable(name + ' ' + states));
            }
        }
    }

    void contrast_data()
    {
        const Rows<QString, double, bool> row;
        row("light", "light", 4.5, false);
        row("dark", "dark", 4.5, false);
        row("contrast-light", "contrast-light", 7.0, true);
        row("contrast-dark", "contrast-dark", 7.0, true);
    }

    void contrast()
    {
        const auto &[theme, textFloor, forMoreContrast] = Rows<QString, double, bool>::current();
        constexpr double markFloor = 3.0;
        SheetAudit sheet(sheetText(theme));
        const ContrastPairs table = contrastPairs(dataFile("contrast-pairs.txt"));
        QStringList failures;
        int checked = 0;
        int fixed = 0;
        for (const ContrastPair &pair : table.pairs) {
            if (pair.contrastSheetsOnly && !forMoreContrast)
                continue;
            QVERIFY2(pair.kind == "text" || pair.kind == "mark", qPrintable(pair.row));
            for (const ContrastReading &reading : sheet.readings(pair, table.pages)) {
                // The plain values of the light and dark sheets stay as they were designed.
                if (reading.plain && !forMoreContrast) {
                    ++fixed;
                    continue;
                }
                ++checked;
                if (reading.ratio < (pair.kind == "text" ? textFloor : markFloor))
                    failures.append(pair.row + ": " + reading.place + ' ' + QString::number(reading.ratio, 'f', 2));
            }
        }
        qInfo("%d colours checked in %s, %d fixed", checked, qPrintable(theme), fixed);
        QVERIFY2(failures.isEmpty(), qPrintable(failures.join(u'\n')));
        QVERIFY(checked > 500);
    }

    void contrastPairsNameEveryColour()
    {
        const ContrastPairs table = contrastPairs(dataFile("contrast-pairs.txt"));
        SheetAudit sheet(sheetText("contrast-dark"));
        QSet<QString> named;
        for (const ContrastPair &pair : table.pairs) {
            // A misspelt path, key or condition would check nothing.
            QVERIFY2(!sheet.readings(pair, table.pages).empty(), qPrintable(pair.row));
            const QString control =
                pair.path.section(u'/', -1).section(QRegularExpression(QStringLiteral("[*.:]")), 0, 0);
            named.insert(control + u' ' + pair.key);
            for (const QString &key : pair.layers)
                named.insert(control + u' ' + key);
        }
        static const QRegularExpression otherwiseSeen(QStringLiteral(" (background|shadow|line-at-top|.*-visible)$"));
        QStringList unnamed;
        for (const QStringList &row : dataRows(dataFile("plain-values.txt"))) {
            const QString key = row[0] + u' ' + row[1];
            const bool header = row[2] == "-" && row[3] == "-"; // only headers have it, which stand in paths as items
            if (!named.contains(key) && !header && !otherwiseSeen.match(key).hasMatch())
                unnamed.append(key);
        }
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(u'\n')));
    }

    void meterZones_data() { contrastSheetsCoverBothThemes_data(); }

    void meterZones()
    {
        QFETCH(QString, theme);
        SheetAudit sheet(sheetText(theme));
        const QStringList zones = {"background-green", "background-yellow", "background-red"};
        for (const auto vision : {ColourVision::Normal, ColourVision::Deuteranopia, ColourVision::Protanopia}) {
            for (qsizetype a = 0; a < zones.size(); ++a) {
                for (qsizetype b = a + 1; b < zones.size(); ++b) {
                    const double difference =
                        colourDifference(sheet.colour("RMeter", zones[a]), sheet.colour("RMeter", zones[b]), vision);
                    QVERIFY2(difference >= 20, qPrintable(zones[a] + ' ' + zones[b] + QString::number(difference)));
                }
            }
        }
    }
};

template struct TestClass<tst_BuiltInSheets>;
#include "tst_BuiltInSheets.moc"
