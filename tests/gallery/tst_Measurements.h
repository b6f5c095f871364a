#pragma once

#include <QtCore/QObject>

class tst_Measurements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blockLevels_data();
    void blockLevels();
    void channelsAreApart();
    void staticGain_data();
    void staticGain();
    void detectorFollows();
    void dynamicsReading();
    void filterSections_data();
    void filterSections();
    void tuningKeepsTheMemory();
    void spectrumOfASine_data();
    void spectrumOfASine();
    void spectrumAverages();
};
