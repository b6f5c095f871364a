#include "tst_BuiltInSheets.h"
#include "tst_ColourMetrics.h"
#include "tst_LogCategories.h"
#include "tst_StylePath.h"
#include "tst_StyleResolver.h"
#include "tst_StyleSheetParser.h"
#include "tst_StyleValues.h"

#include <QtGui/QGuiApplication>
#include <QtTest/QTest>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    tst_StyleSheetParser styleSheetParser;
    tst_StyleValues styleValues;
    tst_StylePath stylePath;
    tst_StyleResolver styleResolver;
    tst_ColourMetrics colourMetrics;
    tst_BuiltInSheets builtInSheets;
    tst_LogCategories logCategories;
    int failures = 0;
    for (QObject *test : std::initializer_list<QObject *>{&styleSheetParser, &styleValues, &stylePath, &styleResolver,
                                                          &colourMetrics, &builtInSheets, &logCategories})
        failures += QTest::qExec(test, argc, argv);
    return failures;
}
