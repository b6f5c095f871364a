#pragma once

#include "Device.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QSortFilterProxyModel>

/// All devices; a row has its `Device` as the role "device".
class DeviceList : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by Installation")
    Q_PROPERTY(int count READ count CONSTANT)
    /// How many have an alarm.
    Q_PROPERTY(int alarms READ alarms CONSTANT)

public:
    explicit DeviceList(QObject *parent);

    int count() const { return int(m_devices.size()); }
    int alarms() const;
    /// `row` from 0 to `count` − 1.
    Q_INVOKABLE Device *deviceAt(int row) const { return m_devices.at(row); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void add(const InstalledDevice &installed);

    QList<Device *> m_devices;
};

/// The devices of a `DeviceList` that are looked for.
class DeviceFilter : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Part of any text of the device. Empty by default.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// Whether a device needs an alarm to be shown. False by default.
    Q_PROPERTY(bool alarmsOnly READ alarmsOnly WRITE setAlarmsOnly NOTIFY alarmsOnlyChanged)

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    QString text() const { return m_text; }
    void setText(const QString &text);
    bool alarmsOnly() const { return m_alarmsOnly; }
    void setAlarmsOnly(bool alarmsOnly);

Q_SIGNALS:
    void textChanged();
    void alarmsOnlyChanged();

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QString m_text;
    bool m_alarmsOnly = false;
};
