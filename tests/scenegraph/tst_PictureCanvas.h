#pragma once

#include <QtCore/QObject>

/// What is drawn without a graphics card, pixel by pixel.
class tst_PictureCanvas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coversEachPixelOnce_data();
    void coversEachPixelOnce();
    void strengths();
    void thinLines();
    void wholeDevicePixels_data();
    void wholeDevicePixels();
};
