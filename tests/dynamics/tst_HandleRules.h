#pragma once

#include <QtCore/QObject>

class tst_HandleRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placeOnAxis_data();
    void placeOnAxis();
    void limitedValue_data();
    void limitedValue();
    void steppedValue_data();
    void steppedValue();
    void ratioOfLine_data();
    void ratioOfLine();
    void heightOfCurve_data();
    void heightOfCurve();
    void numberStarts_data();
    void numberStarts();
};
