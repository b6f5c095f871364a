#pragma once

#include <QtCore/QObject>

/// From a computed response to pixel columns and drawn vertices.
class ResponseLinesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clipping_data();
    void clipping();
    void columnsFollowTheRange_data();
    void columnsFollowTheRange();
    void levels_data();
    void levels();
    void narrowBandIsNeverShortened_data();
    void narrowBandIsNeverShortened();
    void straightStretchesNeedNoVertices();
    void zoomedInEveryValueIsAVertex();
    void lineEndsWithTheComputedRange();
    void wrappedPhaseHasNoSmear();
    void areaStaysInTheFrame();
    void onlyChangedLinesAreNew();
    void strokeCorners();
    void strokePieces();
};
