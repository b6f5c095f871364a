#pragma once

#include <QtCore/QObject>

class tst_TransferCurves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clampedScale_data();
    void clampedScale();
    void curve_data();
    void curve();
    void gateOutOfBounds_data();
    void gateOutOfBounds();
    void softKnee();
    void kneeMeetsBothParts();
};
