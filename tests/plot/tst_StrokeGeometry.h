#pragma once

#include <QtCore/QObject>

class tst_StrokeGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thinLines();
    void thinSegments();
    void nothingToDraw_data();
    void nothingToDraw();
    void gridLines();
    void gridFrame();
    void gridWidths_data();
    void gridWidths();
};
