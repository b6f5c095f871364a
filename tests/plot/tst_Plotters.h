#pragma once

#include <QtCore/QObject>

class tst_Plotters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void graphVertices();
    void graphSkipsWhatIsNoPoint();
    void lineVertices();
    void wideLinesAreSmooth();
    void unchangedInputRebuildsNothing();
    void colorTouchesTheMaterialOnly();
    void verticesAreReallocatedOnlyForAnotherCount();
    void freshNodeIsFilled();
    void emptySizeDrawsNothing();
    void gridKeepsItsNodes();
    void gridForgetsADestroyedLayout();
    void gridSharesALayout();
};
