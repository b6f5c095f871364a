#pragma once

#include <QtCore/QObject>

class tst_RMeterBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectOrder();
    void defaults();
    void risesAtOnceAndFallsByTicks();
    void fallStopsAtTheValue();
    void incompleteMeterIgnoresTicks();
    void settledMeterIsSilent();
    void levelOutsideTheRangeSignalsEachTick_data();
    void levelOutsideTheRangeSignalsEachTick();
    void notANumberShowsTheMinimum();
    void signalOrder();
    void thresholdDropsThePeak_data();
    void thresholdDropsThePeak();
    void factors();
    void invokables();
    void newMeterRestartsTheSharedTimer();
};
