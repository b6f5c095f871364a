#pragma once

#include <QtCore/QObject>

class tst_StyleEngineSetup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void setupsShareTheEngine_data();
    void setupsShareTheEngine();
    void relativeSourcesOfTwoSetups();
    void destroyedSetupLeavesTheStyles();
    void answersToReports_data();
    void answersToReports();
    void answerToAMissingKey();
};
