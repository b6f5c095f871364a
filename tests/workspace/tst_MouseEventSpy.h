#pragma once

#include <QtCore/QObject>

class MouseEventSpyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void windowEventsAreReportedOnce();
    void doubleClickIsTwoPresses();
    void movesAreLimited();
    void lastMoveIsReported();
    void activityIsLimited();
    void touchCountsAsLeftButton();
    void idleIsReportedOncePerPeriod();
    void nothingRunsWithoutIdleLimit();
    void idleTimeTicksForItsListeners();
    void installsOnceAndFirst();
};
