#pragma once

#include <QtCore/QObject>

/// What grid, axes and given curves of a plot frame are computed from.
class FrameLinesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ticks_data();
    void ticks();
    void problems_data();
    void problems();
    void choice_data();
    void choice();
    void labels_data();
    void labels();
    void readableLabels_data();
    void readableLabels();
    void gridPlaces();
    void crispLines_data();
    void crispLines();
    void columns_data();
    void columns();
    void curve_data();
    void curve();
    void limiter_data();
    void limiter();
    void limiterHandle_data();
    void limiterHandle();
    void thresholdSteps_data();
    void thresholdSteps();
};
