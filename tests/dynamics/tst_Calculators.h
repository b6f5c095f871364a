#pragma once

#include <QtCore/QObject>

class tst_Calculators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectOrder_data();
    void metaObjectOrder();
    void defaults_data();
    void defaults();
    void signalsOfSetter_data();
    void signalsOfSetter();
    void gateClearsSilently();
    void pointsStayInsideThePlot_data() { defaults_data(); }
    void pointsStayInsideThePlot();
};
