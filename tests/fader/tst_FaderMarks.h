#pragma once

#include <QtCore/QObject>

class tst_FaderMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void automatic_data();
    void automatic();
    void given_data();
    void given();
};
