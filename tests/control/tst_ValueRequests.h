#pragma once

#include <QtCore/QObject>

/// Assistive tools set the values of faders, parameters and plain handles.
class tst_ValueRequests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolsEditValues_data();
    void toolsEditValues();
};
