#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QDateTime>
#include <QtQml/qqmlregistration.h>

class InstallationClient;

/// What has happened in the installation, the latest first: roles "time" (as text), "device", "kind" and "text". Kinds
/// are "presence", "alarm", "refusal", "network" (another client's edit) and "action" (of this client). The oldest of
/// more than 2000 entries are forgotten.
class EventLog : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Exposed as GalleryInstallation.log")

public:
    enum Role : int { TimeRole = Qt::UserRole, DeviceRole, KindRole };

    EventLog(const InstallationClient &client, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Adds an entry; `device` is its number, −1 for none.
    void add(int device, const QString &kind, const QString &text);
    /// Stops the clock of the entries, for pictures and tests.
    void setClock(const QDateTime &time) { m_clock = time; }

public Q_SLOTS:
    void clear();

private:
    struct Entry
    {
        QDateTime time;
        QString device;
        QString kind;
        QString text;
    };

    void notePresence(int device);
    void noteRefusal(int device, int field, const QString &reason);
    void noteChange(int device, int field);

    const InstallationClient &m_client;
    QDateTime m_clock;
    QList<Entry> m_entries; ///< the latest last
    QList<QString> m_alarms;
};
