#pragma once

#include <QtCore/QObject>

class tst_AudioEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clockCountsBlocks();
    void clockDoesNotDrift();
    void clockLeavesALongPauseOut();

    void steppingIsDeterministic();
    void channelsOfTapsWrapAround();
    void tapsEnd();
    void builtInSignalIsAlive();

    void playsInRealTime();
    void announcesOnceUntilTaken();
    void startsAndStops();
};
