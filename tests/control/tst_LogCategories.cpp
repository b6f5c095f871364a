#include "support/TestProgram.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>

// Hosts filter what they log by category, and a line without one cannot be told from their own.

class tst_LogCategories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWarningHasOne()
    {
        static const QRegularExpression plain(QStringLiteral("\\b(qWarning|qCritical|qmlWarning|qmlInfo|console\\.warn|"
                                                             "console\\.error)\\s*\\((?!root\\.log)"));
        QStringList places;
        int count = 0;
        for (const char *folder : {"control", "libs", "qml"}) {
            QDirIterator files(QStringLiteral(TAMBLE_SOURCES "/") + folder, {"*.cpp", "*.h", "*.qml"}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                // Gives the warnings about pages their category.
                if (files.fileName() == QLatin1String("ControlLog.cpp"))
                    continue;
                QVERIFY(file.open(QFile::ReadOnly));
                ++count;
                if (plain.match(QString::fromUtf8(file.readAll())).hasMatch())
                    places.append(file.fileName());
            }
        }
        QVERIFY(count > 100);
        QCOMPARE(places, QStringList());
    }
};

template struct TestClass<tst_LogCategories>;
#include "tst_LogCategories.moc"
