#include "style/SheetDump.h"
#include "style/language/StyleSheetGrammar.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <tao/pegtl/contrib/analyze.hpp>

#include <QtCore/QElapsedTimer>

using namespace tamble::client;

namespace {

std::string repeated(const std::string &text, std::size_t count)
{
    return QByteArray::fromStdString(text).repeated(qsizetype(count)).toStdString();
}

} // namespace

/// Texts that are no sheets, and those that are meant to take long.
class tst_StyleSheetGrammar : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void grammarAlwaysAdvances() { QCOMPARE(tao::pegtl::analyze<grammar::sheet>(), std::size_t(0)); }

    void faults_data()
    {
        const auto row = rowsOf([](const QByteArray &text, const QString &place, const QString &message) {
            try {
                parseStdString(text.toStdString());
                QFAIL("no fault was found");
            } catch (const ParseException &fault) {
                QCOMPARE(QString::fromStdString(fault.message()), place + ": syntax error, " + message);
                QCOMPARE(QStringLiteral("%1:%2").arg(fault.line()).arg(fault.column()), place);
                const QByteArrayList lines = QByteArray(text).replace("\r\n", "\n").replace('\r', '\n').split('\n');
                QCOMPARE(QByteArray::fromStdString(fault.lineText()), lines.at(fault.line() - 1));
            }
        });
        row("no value", "A {\r\n  a: ; \r\n}", "2:6", "expected a value");
        row("no colon", "A { a }", "1:7", "expected \":\" after the name of the property");
        row("comma at the end of selectors", "A, {}", "1:4", "expected a selector after \",\"");
        row("blank behind the dot", "A. red {}", "1:3", "expected a class word after \".\"");
        row("empty argument", "A { a: rgb(1, ) }", "1:15", "expected an argument after \",\"");
        row("call in a call", "A { a: f(g(1)) }", "1:11", "expected \",\" or \")\" after the argument");
        row("font face with two sources", "@font-face { src: url(a); src: url(b) }", "1:27",
            "expected \"}\" after the source of the font");
        row("no block", "A\nB", "2:2", "expected \"{\"");
        row("block not closed", "A { a: b\r", "2:1", "expected a declaration or \"}\"");
        row("brace too many", "A {} }", "1:6", "expected a rule, a variable definition or \"@font-face\"");
        row("semicolon twice", "A { a: b;; }", "1:10", "expected a declaration or \"}\"");
        row("comma at the end of values", "A { a: b, }", "1:11", "expected a value");
        row("element of a state alone", "A ::hovered {}", "1:3", "expected \"{\"");
        row("selector of a state alone", "::hovered {}", "1:1",
            "expected a rule, a variable definition or \"@font-face\"");
        row("nothing behind the child mark", "A > {}", "1:5",
            "expected a type name or \".\" and a class word after \">\"");
        row("no state word", "A::1 {}", "1:4", "expected a state word after \"::\"");
        row("number with unit", "A { a: 14px; }", "1:8", "14px is no number");
        row("letters in a colour", "A {\n a: #ff88zz; }", "2:5", "#ff88zz is no colour");
        row("letter first in a colour, no semicolon", "A { a: #z0 b: c }", "1:8", "#z0 is no colour");
        row("letter last in a colour, no semicolon", "A { a: #0z b: c }", "1:8", "#0z is no colour");
        row("name behind quotes", "A { a: '#0'z; }", "1:13", "expected \":\" after the name of the property");
        row("hash without digits", "A { a: #; }", "1:8", "expected a value");
        row("quote not closed", "A {\n a: \"b;\n}\n", "2:5", "expected the same quote at the end of the text");
        row("comment not closed", "A {}\n /* B\n{}", "2:2", "expected \"*/\" at the end of the comment");
        row("call not closed", "A { a: rgb(1, 2\n; b: c }", "2:1", "expected \",\" or \")\" after the argument");
        row("definition without semicolon", "@a = 1\nA {}", "2:1", "expected \";\" after the definition");
        row("definition without value", "@a = ;", "1:6", "expected a value");
        row("definition called font-face", "@font-face = 1;", "1:12", "expected \"{\"");
        row("font face with another key", "@font-face { url: url(a) }", "1:14", "expected \"src\"");
        row("byte 0", QByteArray("A {}\0B {}", 9), "1:5", "expected a rule, a variable definition or \"@font-face\"");
    }
    void faults() { checkRow(); }

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
        const auto row = rowsOf([](const std::string &text, const std::string &around) {
            try {
                parseStdString(text);
                QFAIL("no fault was found");
            } catch (const ParseException &fault) {
                QVERIFY2(fault.lineText().size() <= 200, std::to_string(fault.lineText().size()).c_str());
                QVERIFY2(fault.message().size() < 300, fault.what());
                QVERIFY2(fault.lineText().find(around) != std::string::npos, fault.lineText().c_str());
                QCOMPARE(QString::fromStdString(fault.lineText()).toStdString(), fault.lineText()); // UTF-8 throughout
            }
        });
        const std::string megabyte(1000000, 'a');
        row("fault at the end", "A { " + megabyte + ": b;; }", "aaa: b;; }");
        row("fault at the start", ";" + megabyte, ";aaa");
        row("long name of a variable", "A{k:@" + megabyte + "}", "A{k:@aaa");
        row("characters of two bytes", "A{k:'" + repeated("\xc3\xbc", 5000) + "'; l:% '" + repeated("\xc3\xbc", 5000),
            "\xc3\xbc'; l:% '\xc3\xbc");
    }
    void longLinesAreCut() { checkRow(); }

    void hostileTexts_data()
    {
        const auto row = rowsOf([](const std::string &text, bool valid) {
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
        });
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
    void hostileTexts() { checkRow(); }
};

template struct TestClass<tst_StyleSheetGrammar>;
#include "tst_StyleSheetGrammar.moc"
