#pragma once

#include <QtCore/QObject>

class tst_AxisTicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void step_data();
    void step();
    void ticks_data();
    void ticks();
    void tickPlaces();
    void hugeCountEnds();
};
