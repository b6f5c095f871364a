#pragma once

#include <QtCore/QObject>

class tst_SheetReload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyWayOfSaving_data();
    void everyWayOfSaving();
    void severalSavesAreOneLoad();
    void otherFilesCauseNone();
    void deletedSheetFallsBackToTheDefault();
    void directoryThatAppearsLater();
    void endlessFilesCountAsMissing_data();
    void endlessFilesCountAsMissing();
    void tooLongSheetLeavesTheStyles();
    void busyNeighboursHoldNothingBack();
};
