#pragma once

#include <QtCore/QObject>

class tst_GridValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void axisRange_data();
    void axisRange();
    void gridValues_data();
    void gridValues();
    void outOfRange_data();
    void outOfRange();
    void thinned_data();
    void thinned();
    void numberText_data();
    void numberText();
    void decimalsOfStep_data();
    void decimalsOfStep();
    void niceStep_data();
    void niceStep();
};
