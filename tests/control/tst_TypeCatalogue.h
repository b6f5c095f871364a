#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtQml/QQmlEngine>

class tst_TypeCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void composites_data();
    void composites();
    void absentListIsTrue();
    void creatableNatives_data();
    void creatableNatives();
    void othersCanBeRead_data();
    void othersCanBeRead();
    void uncreatable_data();
    void uncreatable();
    void enumValues();
    void attachedStyleSet();

private:
    QQmlEngine m_engine;
    QStringList m_absent;
};
