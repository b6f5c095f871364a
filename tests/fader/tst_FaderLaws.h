#pragma once

#include <QtCore/QObject>

class tst_FaderLaws : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tables_data();
    void tables();
    void tableMaps_data();
    void tableMaps();
    void travel_data();
    void travel();
    void everyPlaceComesBack_data();
    void everyPlaceComesBack();
    void rounding_data();
    void rounding();
    void steps();
    void detents_data();
    void detents();
    void drag();
};
