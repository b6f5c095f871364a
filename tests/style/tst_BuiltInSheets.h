#pragma once

#include <QtCore/QObject>

/// The built-in sheets: their format, their content against independent tables, and what people can make out on them.
class tst_BuiltInSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void format_data();
    void format();
    void irregularities();

    void selectors_data();
    void selectors();
    void plainValues_data();
    void plainValues();
    void keys();
    void statePalette_data();
    void statePalette();
    void contrastSheetsCoverBothThemes_data();
    void contrastSheetsCoverBothThemes();

    void pointerShows_data();
    void pointerShows();
    void contrast_data();
    void contrast();
    void contrastPairsNameEveryColour();
    void meterZones_data();
    void meterZones();
};
