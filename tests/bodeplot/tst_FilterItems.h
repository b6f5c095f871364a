#pragma once

#include <QtCore/QObject>

class FilterItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumKeys_data();
    void enumKeys();
    void newFirFilterPassesEverything();
    void declaredInQml();
    void freshItemsCanBeRead_data();
    void freshItemsCanBeRead();
    void listReferencesToNothing_data();
    void listReferencesToNothing();
    void listReferenceFollowsItsList();
};
