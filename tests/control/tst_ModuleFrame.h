#pragma once

#include <QtCore/QObject>

class tst_ModuleFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void engineInitialisation();
    void typesUnderSeveralUris();
    void touchPointsOfEveryPointingDevice();
    void enginesShareTheSpy();
    void metaTypesAreKnown();
    void noQmldirWithinReach();
    void resourcesAreCompressedWithZlib();
    void interfaceFontIsSubstituted();
    void enginesComeAndGo();
};
