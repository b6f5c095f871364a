#pragma once

#include <QtCore/QObject>

class tst_GalleryAudio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithTheBuiltInSignal();
    void unreadableFileKeepsTheSource();
    void fileReplacesTheSource();
    void steppedIgnoresRunning();
    void playsThroughTheEventLoop();
    void unchangedLevelsAreSilent();
    void spectrumPoints();
    void pageSeesTheSameObject();
};
