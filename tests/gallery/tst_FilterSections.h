#pragma once

#include <QtCore/QObject>

class tst_FilterSections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sectionsOfAQuarterOfTheRate_data();
    void sectionsOfAQuarterOfTheRate();
    void bandsInOrder();
    void gainsAtTheCorner_data();
    void gainsAtTheCorner();
};
