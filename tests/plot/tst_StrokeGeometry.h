#pragma once

#include <QtCore/QObject>

class tst_StrokeGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thinLines();
    void thinSegments();
    void straightStrip();
    void mitredCorner();
    void sharpCornerIsBevelled();
    void nothingToDraw_data();
    void nothingToDraw();
    void wideSegments();
    void gridLines();
    void gridFrame();
};
