#pragma once

#include <QtCore/QObject>
#include <QtCore/QTemporaryDir>

class tst_SoundFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_data();
    void formats();
    void loops();
    void refusals_data();
    void refusals();
    void truncatedFilePlaysWhatIsThere();

private:
    QString path(const QString &name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
};
