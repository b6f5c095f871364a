#pragma once

#include <QtCore/QObject>

/// Handles of filters, and what gestures make of their records.
class FilterSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handles_data();
    void handles();
    void recordsWithoutHandles();
    void placing_data();
    void placing();
    void dragging_data();
    void dragging();
    void draggedFrequencySurvivesAnotherRange();
    void asymmetricBandLagsOneStep();
    void levelling_data();
    void levelling();
    void firHandlesKeepTheirDistance();
    void quality_data();
    void quality();
    void wrongIndices();
    void walkingByFrequency();
};
