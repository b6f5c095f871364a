#pragma once

#include <QtCore/QObject>

class tst_MeterSegments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bar_data();
    void bar();
    void split();
    void repaintsOnlyWhatIsSeen();
    void fallsWithTheNextRise();
};
