#pragma once

#include <QtCore/QObject>

class tst_StyleEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void userSheetOverridesDefaultSheet();
    void sourceForms_data();
    void sourceForms();
    void brokenSheets_data();
    void brokenSheets();
    void missingFileWaitsForTheEditor();
    void setupLoadsOnce();
    void relativeSourcesAreTheApplications();
    void styleNamesOfADirectory();
    void nothingOldIsSeenDuringARestyle();
    void unusedValuesAreGivenBack();
    void unusedNamesAreGivenBack();
    void convertedValues_data();
    void convertedValues();
    void unconvertibleValuesAreLoggedOnce();
    void missingKeyReports();
    void fontFaces();
    void objectsThatAreNoItems();
};
