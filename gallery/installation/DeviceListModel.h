#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

class InstallationClient;

/// The first devices of the installation as the client sees them, one a row. Every field of an amplifier is a role by
/// its own name and holds what is to be shown, as far as the device has such a field. "device" is the number of the
/// device, "kind" is "amplifier", "mixer" or "matrix", "online" tells whether it is there, "alarm" what is wrong.
/// Writing a field's role sends a request.
class DeviceListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Exposed by GalleryInstallation")
    /// How many of the devices have an alarm.
    Q_PROPERTY(int alarms READ alarms NOTIFY alarmsChanged FINAL)

public:
    DeviceListModel(InstallationClient &client, int count, QObject *parent);

    int alarms() const { return m_alarms; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void alarmsChanged();
    /// A row was written to: a request to make.
    void requested(int device, int field, const QVariant &value);

private:
    int fieldOfRole(int device, int role) const;
    void tellField(int device, int field);
    void countAlarms();

    InstallationClient &m_client;
    int m_count;
    int m_alarms = 0;
};
