#pragma once

#include <QtCore/QObject>

class tst_ModuleFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void engineInitialisation();
    void touchPointsOfEveryPointingDevice();
    void enginesShareTheSpy();
    void metaTypesAreKnown();
    void noQmldirWithinReach();
    void interfaceFontIsSubstituted();
    void enginesComeAndGo();
};
