#pragma once

#include <QtCore/QObject>

class tst_AreaStrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fadesAlongEachColumn_data();
    void fadesAlongEachColumn();
    void addsVerticesOnlyWhereItIsSteep();
    void pieces();
};
