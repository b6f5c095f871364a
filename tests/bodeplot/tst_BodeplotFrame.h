#pragma once

#include <QtCore/QObject>

class BodeplotFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void levelZoom_data();
    void levelZoom();
    void frequencyZoom();
    void spanGuard();
    void panning_data();
    void panning();
    void panStartsAfreshAtTheEdge();
    void disabledFrameIgnoresAll();
    void notANumberIsIgnored();
};
