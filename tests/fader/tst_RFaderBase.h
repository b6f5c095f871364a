#pragma once

#include <QtCore/QObject>

class tst_RFaderBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fineDrag();
    void goesFromADisabledPanel();
    void fineDragIgnoresDetents();
    void accessible();
};
