#include "style/RulePrinter.h"
#include "style/StyleSheetGrammar.h"
#include "style/StyleSheetParser.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <tao/pegtl/contrib/analyze.hpp>

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <random>

using namespace tamble::client;

namespace {

std::string dumpOf(const StyleValue &value)
{
    if (const auto *text = boost::get<std::string>(&value))
        return '[' + *text + ']';
    const auto &call = boost::get<Expression>(value);
    std::string result = call.name + '(';
    for (const std::string &argument : call.arguments)
        result += '<' + argument + '>';
    return result + ')';
}

/// The keys from the root to a node, divided by blanks.
std::string chainOf(const StyleSheet &sheet, SelectorTree::Node node)
{
    std::string result;
    for (; node != SelectorTree::Root; node = sheet.tree().parent(node))
        result = std::string(sheet.names().text(sheet.tree().key(node))) + (result.empty() ? "" : " ") + result;
    return result;
}

/// "keys name=[value]…", a line for each declaration at each node, sorted by keys.
QStringList dumpOf(const StyleSheet &sheet)
{
    QStringList result;
    for (SelectorTree::Node node = 0; node < sheet.tree().nodeCount(); ++node) {
        for (const PropertySpec *declaration : sheet.tree().declarations(node)) {
            std::string line = chainOf(sheet, node) + " | " + declaration->name + "=";
            for (const StyleValue &value : declaration->values)
                line += dumpOf(value);
            result.append(QString::fromStdString(line));
        }
    }
    std::stable_sort(result.begin(), result.end(), [](const QString &a, const QString &b) {
        return a.section(QStringLiteral(" | "), 0, 0) < b.section(QStringLiteral(" | "), 0, 0);
    });
    return result;
}

/// All rules of a sheet, printed.
std::string printed(const StyleSheet &sheet)
{
    std::string result;
    for (SelectorTree::Node node = 0; node < sheet.tree().nodeCount(); ++node) {
        if (!sheet.tree().declarations(node).empty())
            result += ruleText(sheet, node);
    }
    return result;
}

std::string repeated(const std::string &text, std::size_t count)
{
    std::string result;
    for (std::size_t i = 0; i < count; ++i)
        result += text;
    return result;
}

// Written like the library's own sheets: CR LF, trailing blanks, missing semicolons, the misspelt state word.
const std::string shippedSheet =
    "// GENERATED \r\n"
    "@blue = \"#005691\"; \r\n"
    "@font-face { src: url(\"qrc:/fonts/Brack.ttf\") } \r\n"
    "RButton { \r\n"
    "    background: @blue; \r\n"
    "    foreground-dragHandle: #FFFFFF \r\n"
    "    line-visible: false } \r\n"
    "RButton::inconsistend::pressed, RButton.red { background: rgba(0, 86, 145, 0.5); } \r\n"
    "RAppBarButton::hovered RIcon { foreground: '#FFF'; } \r\n"
    "RFlyoutWindow > RText { font: \"Brack Office Sans bold 14px\"; } /* end */ \r\n";

} // namespace

/// Sheets as text, their trees, their faults and their printed form.
class tst_StyleSheetParser : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void grammarAlwaysAdvances() { QCOMPARE(tao::pegtl::analyze<grammar::sheet>(), std::size_t(0)); }

    void selectors_data()
    {
        const Rows<QString, QStringList> row;
        row("type", "RButton", {"RButton"});
        row("descendant", "RAppBarButton::hovered RIcon", {"RIcon ::desc:: RAppBarButton & ::hovered"});
        row("direct child", "RPane>RText", {"RText RPane"});
        row("blanks around the child mark", "RPane \t>\r\n RText", {"RText RPane"});
        row("two states", "RAppBarStateButton::selected::pressed", {"RAppBarStateButton & ::selected & ::pressed"});
        row("class, then state", "A.red::x", {"A & .red & ::x"});
        row("state, then class", "A::x.red", {"A & ::x & .red"});
        row("class alone", ".red", {".red"});
        row("class alone with state, below a class alone", ".red::x .blue", {".blue ::desc:: .red & ::x"});
        row("three elements", "A.a B > C::c", {"C & ::c B ::desc:: A & .a"});
        row("list", "A, B.b ,C", {"A", "B & .b", "C"});
        row("same selector twice", "A, A", {"A", "A"});
        row("comment and blanks between elements", "A /* > */ B", {"B ::desc:: A"});
        row("comment alone between elements", "A/**/B", {"B ::desc:: A"});
        row("line comment in a list", "A, // B\r B", {"A", "B"});
        row("names with hyphen, underscore and digits", "_a-1.v-1_::s2-", {"_a-1 & .v-1_ & ::s2-"});
        row("misspelt state", "RButton::inconsistend", {"RButton & ::inconsistend"});
    }

    void selectors()
    {
        const auto &[selectors, chains] = Rows<QString, QStringList>::current();
        for (const char *open : {"{", " {", "/**/{"}) {
            const StyleSheet sheet = parseStdString(selectors.toStdString() + open + "k:v}");
            QStringList expected;
            for (const QString &chain : chains)
                expected.append(chain + " | k=[v]");
            QCOMPARE(dumpOf(sheet), expected);
            QCOMPARE(sheet.ruleCount(), std::size_t(1));
        }
    }

    void values_data()
    {
        const Rows<QString, QStringList> row;
        row("empty block", "", {});
        row("several values", "k: a, \"b\" , #0c0", {"k=[a][b][#0c0]"});
        row("no semicolon before the next declaration", "a: true b: \"x\" c: 1", {"a=[true]", "b=[x]", "c=[1]"});
        row("nothing between declarations", "a:'x'b:#12z:1d:2", {"a=[x]", "b=[#12]", "z=[1]", "d=[2]"});
        row("hyphens in the name", "foreground-item-selected: white;", {"foreground-item-selected=[white]"});
        row("numbers", "k: 1, -2.50, 100%, -0.5%", {"k=[1][-2.50][100%][-0.5%]"});
        row("quotes within the other quotes", R"(k: "it's", 'a "b"')", {"k=[it's][a \"b\"]"});
        row("empty quotes", "k: \"\", ''", {"k=[][]"});
        row("comment signs within quotes are text", "k: \"//a/*b*/\";", {"k=[//a/*b*/]"});
        row("text beyond ASCII", "k: \"gr\xc3\xbcn\"; /* \xe2\x82\xac */", {QString::fromUtf8("k=[gr\xc3\xbcn]")});
        row("comments everywhere", "k/*1*/:/*2*/a/*3*/,/*4*/b/*5*/;/*6*/", {"k=[a][b]"});
        row("call", "k: rgba(0, 86 ,145,\r\n 0.5)", {"k=rgba(<0><86><145><0.5>)"});
        row("call without arguments", "k: now(), now( )", {"k=now()now()"});
        row("blanks before the bracket", "k: rgb (1)", {"k=rgb(<1>)"});
        row("bare words, percentages and quotes as arguments", "k: f(-5, 50%, white, ' a,b) ')",
            {"k=f(<-5><50%><white>< a,b) >)"});
        row("comments among arguments", "k: f(/*a*/1/*b*/, // c\n 2 // d\n)", {"k=f(<1/*b*/><2>)"});
        row("argument with inner blanks", "k: f( a  b )", {"k=f(<a  b>)"});
        row("no variable in arguments", "k: f(@a)", {"k=f(<@a>)"});
        row("bare address", "k: url(qrc:/a/b.png)", {"k=url(<qrc:/a/b.png>)"});
        row("address with two slashes", "k: url( http://host//x.png ) l: url(//host/x)",
            {"k=url(<http://host//x.png>)", "l=url(<//host/x>)"});
        row("quoted address", "k: url(\"file:///x y.ttf\" )", {"k=url(<file:///x y.ttf>)"});
        row("block comments beside an address", "k: url(/*a*/ b.png /*c*/)", {"k=url(<b.png>)"});
        row("comma divides bare addresses", "k: url(a,b), url('a,b')", {"k=url(<a><b>)url(<a,b>)"});
        row("other address in a call", "k: f(http://host/x)", {"k=f(<http://host/x>)"});
        row("url without bracket is a word", "k: url, urls(1), url", {"k=[url]urls(<1>)[url]"});
    }

    void values()
    {
        const auto &[block, declarations] = Rows<QString, QStringList>::current();
        for (QString &line : declarations)
            line.prepend(QStringLiteral("A | "));
        QCOMPARE(dumpOf(parseStdString("A {" + block.toStdString() + "}")), declarations);
        const std::string byteOrderMark = "\xef\xbb\xbf";
        QCOMPARE(dumpOf(parseStdString(byteOrderMark + " A { // c\r " + block.toStdString() + "\n}// end")),
                 declarations);
    }

    void positions_data()
    {
        // expected: line, column of each declaration
        const Rows<QString, QList<int>> row;
        row("one line", "A{b:c;d:e}", {1, 3, 1, 7});
        row("CR LF is one line end", "A {\r\n\r\n  b: c\r\n}", {3, 3});
        row("LF", "\nA {\nb: c }", {3, 1});
        row("CR alone", "A {\r\r b: c;\rd: e }", {3, 2, 4, 1});
        row("LF CR are two line ends", "A {\n\rb: c }", {3, 1});
        row("line ends in quotes and comments", "A { a: '\n\n' b: c /*\n*/ d: e }", {1, 5, 3, 3, 4, 4});
        row("the byte order mark takes no column",
            QString::fromUtf8("\xef\xbb\xbf"
                              "A{b:c}"),
            {1, 3});
        row("columns count bytes", QString::fromUtf8("A{a:'\xc3\xbc' b:c}"), {1, 3, 1, 10});
    }

    void positions()
    {
        const auto &[text, expected] = Rows<QString, QList<int>>::current();
        const StyleSheet sheet = parseStdString(text.toStdString());
        QList<int> found;
        for (const PropertySpec *declaration : sheet.tree().declarations(1))
            found << int(declaration->position.line) << int(declaration->position.column);
        QCOMPARE(found, expected);
    }

    void variables_data()
    {
        const Rows<QString, QString> row;
        row("one value", "@a = 1; A { k: @a }", "[1]");
        row("spliced into a list", "@a = 1, f(x); A { k: 0, @a, 2 }", "[0][1]f(<x>)[2]");
        row("of variables", "@a = 1;@b=@a,@a;A { k: @b }", "[1][1]");
        row("later definition counts from there", "@a = 1; @b = @a; @a = 2; A { k: @b, @a }", "[1][2]");
        row("redefined by itself", "@a = 1; @a = 0, @a; A { k: @a }", "[0][1]");
        row("defined between rules", "B {} @a-b_1 = 'x'; A { k: @a-b_1; }", "[x]");
        row("name that begins like font-face", "@font-face2 = 1; A { k: @font-face2 }", "[1]");
    }

    void variables()
    {
        const auto &[text, value] = Rows<QString, QString>::current();
        QCOMPARE(dumpOf(parseStdString(text.toStdString())), QStringList("A | k=" + value));
    }

    void fontFaces_data()
    {
        const Rows<QString, QStringList> row;
        row("bare", "@font-face { src: url(qrc:/f.ttf); }", {"qrc:/f.ttf 1:23"});
        row("without semicolon", "@font-face{src:url('f g.ttf')}", {"f g.ttf 1:21"});
        row("two with comments", "@font-face/**/{ src : url ( //h/a.ttf /**/ ) }\n@font-face{src:url(b)}",
            {"//h/a.ttf 1:29", "b 2:20"});
    }

    void fontFaces()
    {
        const auto &[text, expected] = Rows<QString, QStringList>::current();
        const StyleSheet sheet = parseStdString(text.toStdString());
        QStringList found;
        for (const FontFace &face : sheet.fontFaces())
            found.append(QStringLiteral("%1 %2:%3")
                             .arg(QString::fromStdString(face.url))
                             .arg(face.position.line)
                             .arg(face.position.column));
        QCOMPARE(found, expected);
        QVERIFY(sheet.isEmpty());
    }

    void faults_data()
    {
        const Rows<QByteArray, QString, QByteArray> row;
        row("no value", "A {\r\n  a: ; \r\n}", "2:6: syntax error, expected a value", "  a: ; ");
        row("no colon", "A { a }", "1:7: syntax error, expected \":\" after the name of the property", "A { a }");
        row("no block", "A\nB", "2:2: syntax error, expected \"{\"", "B");
        row("block not closed", "A { a: b\r", "2:1: syntax error, expected a declaration or \"}\"", "");
        row("brace too many", "A {} }", "1:6: syntax error, expected a rule, a variable definition or \"@font-face\"",
            "A {} }");
        row("semicolon twice", "A { a: b;; }", "1:10: syntax error, expected a declaration or \"}\"", "A { a: b;; }");
        row("comma at the end of values", "A { a: b, }", "1:11: syntax error, expected a value", "A { a: b, }");
        row("comma at the end of selectors", "A, {}", "1:4: syntax error, expected a selector after \",\"", "A, {}");
        row("element of a state alone", "A ::hovered {}", "1:3: syntax error, expected \"{\"", "A ::hovered {}");
        row("selector of a state alone", "::hovered {}",
            "1:1: syntax error, expected a rule, a variable definition or \"@font-face\"", "::hovered {}");
        row("nothing behind the child mark", "A > {}",
            "1:5: syntax error, expected a type name or \".\" and a class word after \">\"", "A > {}");
        row("blank behind the dot", "A. red {}", "1:3: syntax error, expected a class word after \".\"", "A. red {}");
        row("no state word", "A::1 {}", "1:4: syntax error, expected a state word after \"::\"", "A::1 {}");
        row("number with unit", "A { a: 14px; }", "1:8: syntax error, 14px is no number", "A { a: 14px; }");
        row("letters in a colour", "A {\n a: #ff88zz; }", "2:5: syntax error, #ff88zz is no colour", " a: #ff88zz; }");
        row("letter first in a colour, no semicolon", "A { a: #z0 b: c }", "1:8: syntax error, #z0 is no colour",
            "A { a: #z0 b: c }");
        row("letter last in a colour, no semicolon", "A { a: #0z b: c }", "1:8: syntax error, #0z is no colour",
            "A { a: #0z b: c }");
        row("name behind quotes", "A { a: '#0'z; }",
            "1:13: syntax error, expected \":\" after the name of the property", "A { a: '#0'z; }");
        row("hash without digits", "A { a: #; }", "1:8: syntax error, expected a value", "A { a: #; }");
        row("quote not closed", "A {\n a: \"b;\n}\n",
            "2:5: syntax error, expected the same quote at the end of the text", " a: \"b;");
        row("comment not closed", "A {}\n /* B\n{}", "2:2: syntax error, expected \"*/\" at the end of the comment",
            " /* B");
        row("call not closed", "A { a: rgb(1, 2\n; b: c }",
            "2:1: syntax error, expected \",\" or \")\" after the argument", "; b: c }");
        row("empty argument", "A { a: rgb(1, ) }", "1:15: syntax error, expected an argument after \",\"",
            "A { a: rgb(1, ) }");
        row("call in a call", "A { a: f(g(1)) }", "1:11: syntax error, expected \",\" or \")\" after the argument",
            "A { a: f(g(1)) }");
        row("definition without semicolon", "@a = 1\nA {}", "2:1: syntax error, expected \";\" after the definition",
            "A {}");
        row("definition without value", "@a = ;", "1:6: syntax error, expected a value", "@a = ;");
        row("definition called font-face", "@font-face = 1;", "1:12: syntax error, expected \"{\"", "@font-face = 1;");
        row("font face with another key", "@font-face { url: url(a) }", "1:14: syntax error, expected \"src\"",
            "@font-face { url: url(a) }");
        row("font face with two sources", "@font-face { src: url(a); src: url(b) }",
            "1:27: syntax error, expected \"}\" after the source of the font",
            "@font-face { src: url(a); src: url(b) }");
        row("byte 0", QByteArray("A {}\0B {}", 9),
            "1:5: syntax error, expected a rule, a variable definition or \"@font-face\"", QByteArray("A {}\0B {}", 9));
    }

    void faults()
    {
        const auto &[text, message, lineText] = Rows<QByteArray, QString, QByteArray>::current();
        try {
            parseStdString(text.toStdString());
            QFAIL("no fault was found");
        } catch (const ParseException &fault) {
            QCOMPARE(QString::fromStdString(fault.message()), message);
            QCOMPARE(QByteArray::fromStdString(fault.lineText()), lineText);
            QCOMPARE(QString::fromStdString(fault.message()).section(':', 0, 1),
                     QStringLiteral("%1:%2").arg(fault.line()).arg(fault.column()));
        }
    }

    void undefinedVariable()
    {
        try {
            parseStdString("@known = 1;\r\nA {\r\n  k: @known, @later; }\r\n@later = 1;");
            QFAIL("no fault was found");
        } catch (const ParseException &fault) {
            QCOMPARE(fault.what(), "Undefined variable later line 3");
            QCOMPARE(fault.line(), 3u);
            QCOMPARE(fault.column(), 15u);
            QCOMPARE(fault.lineText().c_str(), "  k: @known, @later; }");
        }
    }

    void longLinesAreCut_data()
    {
        // around: what the message shows of the place
        const Rows<std::string, std::string> row;
        const std::string megabyte(1000000, 'a');
        row("fault at the end", "A { " + megabyte + ": b;; }", "aaa: b;; }");
        row("fault at the start", ";" + megabyte, ";aaa");
        row("fault in between", "A{k:'" + megabyte + "'; l:%; m:'" + megabyte + "'}", "aaa'; l:%; m:'aaa");
        row("long name of a variable", "A{k:@" + megabyte + "}", "A{k:@aaa");
        row("characters of two bytes", "A{k:'" + repeated("\xc3\xbc", 5000) + "'; l:% '" + repeated("\xc3\xbc", 5000),
            "\xc3\xbc'; l:% '\xc3\xbc");
    }

    void longLinesAreCut()
    {
        const auto &[text, around] = Rows<std::string, std::string>::current();
        try {
            parseStdString(text);
            QFAIL("no fault was found");
        } catch (const ParseException &fault) {
            QVERIFY2(fault.lineText().size() <= 200, std::to_string(fault.lineText().size()).c_str());
            QVERIFY2(fault.message().size() < 300, fault.what());
            QVERIFY2(fault.lineText().find(around) != std::string::npos, fault.lineText().c_str());
            QCOMPARE(QString::fromStdString(fault.lineText()).toStdString(), fault.lineText()); // UTF-8 throughout
        }
    }

    void hostileTexts_data()
    {
        const Rows<std::string, bool> row;
        std::string doubling = "@v0 = x;";
        for (int i = 1; i < 64; ++i) {
            const std::string from = "@v" + std::to_string(i - 1);
            doubling += "@v" + std::to_string(i) + " = " + from + "," + from + ";";
        }
        const std::string megabyte(1000000, 'a');

        row("open brackets", "A { k: " + repeated("f(", 20000), false);
        row("open braces", repeated("A{", 20000), false);
        row("open comments", repeated("/*", 500000), false);
        row("open quotes", "A { k: " + repeated("\"'", 500000), false);
        row("comments one after another", repeated("/**/", 300000), true);
        row("long names", megabyte + "{" + megabyte + ":" + megabyte + "}", true);
        row("long quoted text", "A{k:'" + megabyte + "'}", true);
        row("long comment before a bracket that does not come", "A{k:a/*" + megabyte + "*/}", true);
        row("selector of many elements", repeated("A ", 200000) + "{k:v}", true);
        row("selector of many states", "A" + repeated("::s", 200000) + "{k:v}", true);
        row("many selectors", repeated("A,", 200000) + "A{k:v}", true);
        row("many values", "A{k:v" + repeated(",v", 200000) + "}", true);
        row("many selectors for many declarations", repeated("A,", 100000) + "A{" + repeated("k:v ", 100000) + "}",
            false);
        row("words and blanks in an argument", "A{k:f(" + repeated("a ", 300000) + ")}", true);
        row("variables that double", doubling + "A{k:@v63}", false);
        row("long variable many times", "@v='" + megabyte + "';A{k:x" + repeated(",@v", 10000) + "}", false);
        row("bytes that are no text", "A{k:'" + std::string("\0\xff\x80\x01", 4) + "'}", true);
    }

    void hostileTexts()
    {
        const auto &[text, valid] = Rows<std::string, bool>::current();
        QElapsedTimer timer;
        timer.start();
        bool parsed = true;
        try {
            QVERIFY(parseStdString(text).names().size() > 0);
        } catch (const ParseException &fault) {
            parsed = false;
            QVERIFY(fault.line() >= 1 && fault.column() >= 1);
        }
        QCOMPARE(parsed, valid);
        // Some milliseconds each in fact; what takes more than linear time takes minutes.
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    }

    void sheetAsShipped()
    {
        const StyleSheet sheet = parseStdString(shippedSheet);
        const QStringList expected = {
            "RButton | background=[#005691]",
            "RButton | foreground-dragHandle=[#FFFFFF]",
            "RButton | line-visible=[false]",
            "RButton & .red | background=rgba(<0><86><145><0.5>)",
            "RButton & ::inconsistend & ::pressed | background=rgba(<0><86><145><0.5>)",
            "RIcon ::desc:: RAppBarButton & ::hovered | foreground=[#FFF]",
            "RText RFlyoutWindow | font=[Brack Office Sans bold 14px]",
        };
        QCOMPARE(dumpOf(sheet), expected);
        QCOMPARE(sheet.ruleCount(), std::size_t(4));
        QCOMPARE(sheet.fontFaces().size(), std::size_t(1));
        QCOMPARE(sheet.variables().size(), std::size_t(1));
        QVERIFY(parseStdString("// nothing\r\n/* at all */").isEmpty());
        QVERIFY(parseStdString("").isEmpty());

        // A sheet that was moved still refers to its own declarations.
        StyleSheet source = parseStdString(shippedSheet);
        const StyleSheet target = std::move(source);
        QCOMPARE(dumpOf(target), expected);
    }

    // Whatever is done to a sheet, it is either refused with a place within it or understood the same when printed.
    void damagedSheets()
    {
        std::mt19937 random(20240229);
        const auto below = [&random](std::size_t limit) { return std::size_t(random() % limit); };
        const std::string pieces = shippedSheet + "{}();:,.>@#\"'/**/-%\r\n\t a0_";
        int understood = 0;
        for (int round = 0; round < 4000; ++round) {
            std::string text = shippedSheet;
            for (std::size_t edits = 1 + below(3); edits > 0; --edits) {
                const std::size_t from = below(pieces.size());
                text.replace(below(text.size()), below(4), pieces, from, below(6));
            }
            try {
                const StyleSheet sheet = parseStdString(text);
                const StyleSheet again = parseStdString(printed(sheet));
                QVERIFY2(dumpOf(again) == dumpOf(sheet), (text + "\nprinted:\n" + printed(sheet)).c_str());
                ++understood;
            } catch (const ParseException &fault) {
                QVERIFY2(fault.line() >= 1 && fault.line() <= 13 && fault.column() <= fault.lineText().size() + 2,
                         (std::string(fault.what()) + "\n" + text).c_str());
            }
        }
        QVERIFY(understood > 100 && understood < 3900);
    }

    void laterDeclarationsAreKept()
    {
        const StyleSheet sheet = parseStdString("A { k: 1; k: 2 } B, A { k: 3 } A { l: 4 }");
        QCOMPARE(dumpOf(sheet), (QStringList{"A | k=[1]", "A | k=[2]", "A | k=[3]", "A | l=[4]", "B | k=[3]"}));
        QCOMPARE(sheet.ruleCount(), std::size_t(3));
    }

    void merging()
    {
        const StyleSheet base =
            parseStdString("@c = 1; A { k: 1; l: 1; k: 2 }\nA, B.b > C { k: 3 }\n@font-face { src: url(d) }");
        const StyleSheet user = parseStdString(
            "@c = 2; B.b > C { k: 4 }\nX { k: 5 } B.b C { k: 6 } A { m: 7 }\n@font-face { src: url(u) }");
        const StyleSheet sheet = StyleSheet::merged(base, user);
        QCOMPARE(dumpOf(sheet), (QStringList{"A | k=[1]", "A | l=[1]", "A | k=[2]", "A | k=[3]", "A | m=[7]",
                                             "C ::desc:: B & .b | k=[6]", "C B & .b | k=[4]", "X | k=[5]"}));
        QCOMPARE(sheet.ruleCount(), std::size_t(6));
        QCOMPARE(sheet.variables().at("c").size(), std::size_t(1));
        QCOMPARE(dumpOf(sheet.variables().at("c").front()).c_str(), "[2]");

        QCOMPARE(sheet.fontFaces().size(), std::size_t(2));
        QCOMPARE(sheet.fontFaces()[0].origin, SheetOrigin::DefaultSheet);
        QCOMPARE(sheet.fontFaces()[1].origin, SheetOrigin::UserSheet);
        const auto declarations =
            sheet.tree().declarations(sheet.tree().child(SelectorTree::Root, sheet.names().find("A")));
        QCOMPARE(declarations.back()->origin, SheetOrigin::UserSheet);
        QCOMPARE(declarations.back()->position, (SourcePosition{2, 31}));
        QCOMPARE(declarations.front()->origin, SheetOrigin::DefaultSheet);

        QCOMPARE(dumpOf(StyleSheet::merged(base, StyleSheet())), dumpOf(base));
        QCOMPARE(dumpOf(StyleSheet::merged(StyleSheet(), user)), dumpOf(user));
    }

    void ruleText()
    {
        const StyleSheet base =
            parseStdString("A::x B.b > C { k: \"#fff\", 12, 'x \"y\"';\n  l: url(a/b.png), rgb(1, 2%, 3) }");
        const StyleSheet user = parseStdString("A::x B.b > C { m: \"\" }");
        const StyleSheet sheet = StyleSheet::merged(base, user);
        SelectorTree::Node node = SelectorTree::Root;
        for (const char *key : {"C", "B", "&", ".b", "::desc::", "A", "&", "::x"})
            node = sheet.tree().child(node, sheet.names().find(key));
        QCOMPARE(tamble::client::ruleText(sheet, node).c_str(),
                 "A::x B.b > C {\n"
                 "    k: #fff, \"12\", 'x \"y\"'; // default stylesheet at line 1 column 16\n"
                 "    l: url(\"a/b.png\"), rgb(1, 2%, 3); // default stylesheet at line 2 column 3\n"
                 "    m: \"\"; // user stylesheet at line 1 column 16\n"
                 "}\n");
    }
};

template struct TestClass<tst_StyleSheetParser>;
#include "tst_StyleSheetParser.moc"
