#pragma once

#include <QtCore/QObject>

class tst_CustomMaterial : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comparesByIdentity();
    void dirtyOnChangeOnly();
    void uniformLayout();
};
