#pragma once

#include <QtCore/QObject>

/// What a curve draws and what a frame of it costs.
class CurveDrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void draggingAllocatesNothing();
    void nothingIsRewrittenWithoutChange();
    void hiddenLinesComeBack();
    void drawnPixels_data();
    void drawnPixels();
    void areaFadesAlongEachColumn_data();
    void areaFadesAlongEachColumn();
};
