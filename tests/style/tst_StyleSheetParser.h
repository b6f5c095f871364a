#pragma once

#include <QtCore/QObject>

/// Sheets as text, their trees, their faults and their printed form.
class tst_StyleSheetParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void grammarAlwaysAdvances();
    void selectors_data();
    void selectors();
    void values_data();
    void values();
    void positions_data();
    void positions();
    void variables_data();
    void variables();
    void fontFaces_data();
    void fontFaces();
    void faults_data();
    void faults();
    void undefinedVariable();
    void longLinesAreCut_data();
    void longLinesAreCut();
    void hostileTexts_data();
    void hostileTexts();
    void sheetAsShipped();
    void damagedSheets();
    void laterDeclarationsAreKept();
    void merging();
    void ruleText();
};
