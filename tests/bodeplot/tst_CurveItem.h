#pragma once

#include <QtCore/QObject>

/// The curve as pages use it: lists of filters, handle models, gestures.
class CurveItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void declaredFilters();
    void listOfPlainObjects();
    void badInput_data();
    void badInput();
    void hugeItems_data();
    void hugeItems();
    void wrongUse_data();
    void wrongUse();
    void assignedListKeepsItsHandles();
    void filterChangesFollowInPlace();
    void destroyedFilters();
    void firHeaderComesBack();
    void selection();
    void dragTellsThePage();
    void heldValuesWait();
    void refusedEdits_data();
    void refusedEdits();
    void asymmetricBandIsToldBeforeItMoves();
    void asymmetricBandTellsItsLastStep();
    void cancelledDrag();
    void nativeRecords();
    void outOfRangeIsLoggedOnce();
};
