#pragma once

#include <QtCore/QObject>

class StateHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void styleSetFollows();
};
