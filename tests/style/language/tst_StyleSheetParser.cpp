#include "style/SheetDump.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

/// Sheets as text, their trees and their printed form.
class tst_StyleSheetParser : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectors_data()
    {
        const auto row = rowsOf([](const QString &selectors, const QStringList &chains) {
            for (const char *open : {"{", " {", "/**/{"}) {
                const StyleSheet sheet = parseStdString(selectors.toStdString() + open + "k:v}");
                QStringList expected;
                for (const QString &chain : chains)
                    expected.append(chain + " | k=[v]");
                QCOMPARE(dumpOf(sheet), expected);
                QCOMPARE(sheet.ruleCount(), std::size_t(1));
            }
        });
        row("type", "RButton", {"RButton"});
        row("descendant", "RAppBarButton::hovered RIcon", {"RIcon ::desc:: RAppBarButton & ::hovered"});
        row("direct child", "RPane>RText", {"RText RPane"});
        row("blanks around the child mark", "RPane \t>\r\n RText", {"RText RPane"});
        row("class, then state", "A.red::x", {"A & .red & ::x"});
        row("state, then class", "A::x.red", {"A & ::x & .red"});
        row("class alone with state, below a class alone", ".red::x .blue", {".blue ::desc:: .red & ::x"});
        row("three elements", "A.a B > C::c", {"C & ::c B ::desc:: A & .a"});
        row("list", "A, B.b ,C", {"A", "B & .b", "C"});
        row("comment and blanks between elements", "A /* > */ B", {"B ::desc:: A"});
        row("comment alone between elements", "A/**/B", {"B ::desc:: A"});
        row("names with hyphen, underscore and digits", "_a-1.v-1_::s2-", {"_a-1 & .v-1_ & ::s2-"});
    }
    void selectors() { checkRow(); }

    void values_data()
    {
        const auto row = rowsOf([](const QString &block, QStringList declarations) {
            for (QString &line : declarations)
                line.prepend(QStringLiteral("A | "));
            QCOMPARE(dumpOf(parseStdString("A {" + block.toStdString() + "}")), declarations);
            const std::string byteOrderMark = "\xef\xbb\xbf";
            QCOMPARE(dumpOf(parseStdString(byteOrderMark + " A { // c\r " + block.toStdString() + "\n}// end")),
                     declarations);
        });
        row("several values", "k: a, \"b\" , #0c0", {"k=[a][b][#0c0]"});
        row("no semicolon before the next declaration", "a: true b: \"x\" c: 1", {"a=[true]", "b=[x]", "c=[1]"});
        row("nothing between declarations", "a:'x'b:#12z:1d:2", {"a=[x]", "b=[#12]", "z=[1]", "d=[2]"});
        row("numbers", "k: 1, -2.50, 100%, -0.5%", {"k=[1][-2.50][100%][-0.5%]"});
        row("quotes within the other quotes", "k: \"it's\", 'a \"b\"'", {"k=[it's][a \"b\"]"});
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
        row("url without bracket is a word", "k: url, urls(1), url", {"k=[url]urls(<1>)[url]"});
        row("bare address", "k: url(qrc:/a/b.png)", {"k=url(<qrc:/a/b.png>)"});
        row("address with two slashes", "k: url( http://host//x.png ) l: url(//host/x)",
            {"k=url(<http://host//x.png>)", "l=url(<//host/x>)"});
        row("quoted address", "k: url(\"file:///x y.ttf\" )", {"k=url(<file:///x y.ttf>)"});
        row("block comments beside an address", "k: url(/*a*/ b.png /*c*/)", {"k=url(<b.png>)"});
        row("comma divides bare addresses", "k: url(a,b), url('a,b')", {"k=url(<a><b>)url(<a,b>)"});
        row("other address in a call", "k: f(http://host/x)", {"k=f(<http://host/x>)"});
    }
    void values() { checkRow(); }

    void positions_data()
    {
        // expected: line, column of each declaration
        const auto row = rowsOf([](const QString &text, const QList<int> &expected) {
            const StyleSheet sheet = parseStdString(text.toStdString());
            QList<int> found;
            for (const PropertySpec *declaration : sheet.tree().declarations(1))
                found << int(declaration->position.line) << int(declaration->position.column);
            QCOMPARE(found, expected);
        });
        row("one line", "A{b:c;d:e}", {1, 3, 1, 7});
        row("CR LF is one line end", "A {\r\n\r\n  b: c\r\n}", {3, 3});
        row("CR alone", "A {\r\r b: c;\rd: e }", {3, 2, 4, 1});
        row("LF CR are two line ends", "A {\n\rb: c }", {3, 1});
        row("line ends in quotes and comments", "A { a: '\n\n' b: c /*\n*/ d: e }", {1, 5, 3, 3, 4, 4});
        row("the byte order mark takes no column",
            QString::fromUtf8("\xef\xbb\xbf"
                              "A{b:c}"),
            {1, 3});
        row("columns count bytes", QString::fromUtf8("A{a:'\xc3\xbc' b:c}"), {1, 3, 1, 10});
    }
    void positions() { checkRow(); }

    void variables_data()
    {
        const auto row = rowsOf([](const QString &text, const QString &value) {
            QCOMPARE(dumpOf(parseStdString(text.toStdString())), QStringList("A | k=" + value));
        });
        row("spliced into a list", "@a = 1, f(x); A { k: 0, @a, 2 }", "[0][1]f(<x>)[2]");
        row("later definition counts from there", "@a = 1; @b = @a; @a = 2; A { k: @b, @a }", "[1][2]");
        row("redefined by itself", "@a = 1; @a = 0, @a; A { k: @a }", "[0][1]");
        row("defined between rules", "B {} @a-b_1 = 'x'; A { k: @a-b_1; }", "[x]");
        row("name that begins like font-face", "@font-face2 = 1; A { k: @font-face2 }", "[1]");
    }
    void variables() { checkRow(); }

    void fontFaces()
    {
        const StyleSheet sheet =
            parseStdString("@font-face/**/{ src : url ( //h/a.ttf /**/ ) }\n@font-face{src:url('f g.ttf')}");
        QStringList found;
        for (const FontFace &face : sheet.fontFaces())
            found.append(QStringLiteral("%1 %2:%3")
                             .arg(QString::fromStdString(face.url))
                             .arg(face.position.line)
                             .arg(face.position.column));
        QCOMPARE(found, QStringList({"//h/a.ttf 1:29", "f g.ttf 2:21"}));
        QVERIFY(sheet.isEmpty());
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
            sheet.tree().declarations(sheet.tree().child(SelectorTree::root, sheet.names().find("A")));
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
        SelectorTree::Node node = SelectorTree::root;
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
