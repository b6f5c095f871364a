#pragma once

#include <QtCore/QObject>

/// Grid, axis, given curve and limiter curve as items: what they draw, signal and log.
class FrameItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void gridKeepsItsNodes();
    void gridFollowsItsStyle();
    void gridWarnsOncePerChange();
    void gridWithFarTooManyLines();
    void axisLabels();
    void axisLogsOnce_data();
    void axisLogsOnce();
    void curveFromEitherForm();
    void curveKeepsItsNodes();
    void limiterSignals();
    void limiterDrawsByState();
    void badNumbersReachNoVertex_data();
    void badNumbersReachNoVertex();
};
