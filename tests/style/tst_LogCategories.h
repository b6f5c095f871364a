#pragma once

#include <QtCore/QObject>

class tst_LogCategories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWarningHasOne();
};
