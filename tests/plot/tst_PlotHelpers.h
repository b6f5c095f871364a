#pragma once

#include <QtCore/QObject>

class tst_PlotHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void lineCalculator();
    void constantGrid();
    void constantGridReportsOnce();
    void componentTakesItsPropertiesTogether();
    void numbering();
    void numberingUnit();
    void scaleHelper();
    void scaleHelperReportsOnce();
    void axis();
    void axisSignalOrder();
    void oldTicksStayAlive();
};
