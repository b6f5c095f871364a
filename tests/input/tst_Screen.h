#pragma once

#include <QtCore/QObject>

class ScreenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zoomFactor_data();
    void zoomFactor();
    void followsItsWindow();
};
