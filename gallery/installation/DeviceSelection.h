#pragma once

#include "FieldTable.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

class GalleryInstallation;

/// One device, or several that are edited together. `DeviceField` shows its values.
class DeviceSelection : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    /// Numbers of the devices, from 0; those that are not there do not count. Empty by default.
    Q_PROPERTY(QVariantList devices READ devices WRITE setDevices NOTIFY devicesChanged FINAL)
    /// Whether forms show what the devices really have, which no client of a real network could know, and let another
    /// client edit them. True by default.
    Q_PROPERTY(bool observed MEMBER m_isObserved NOTIFY observedChanged FINAL)
    /// Whether all of them are on the network.
    Q_PROPERTY(bool online READ isOnline NOTIFY onlineChanged FINAL)

public:
    explicit DeviceSelection(QObject *parent = nullptr);

    QVariantList devices() const { return m_devices; }
    void setDevices(const QVariantList &devices);
    bool isOnline() const { return m_isOnline; }

    /// Asks every device that has a field of that name to take a value in it.
    Q_INVOKABLE void request(const QString &field, const QVariant &value);

    void classBegin() override;
    void componentComplete() override {}

    /// Null outside of QML.
    GalleryInstallation *installation() const { return m_installation; }
    /// Where the field of that name is in the devices that are there, each once.
    QList<FieldPlace> places(const QString &field) const;

Q_SIGNALS:
    void devicesChanged();
    void onlineChanged();
    void observedChanged();

private:
    void findKnown();
    void updateOnline();

    QPointer<GalleryInstallation> m_installation;
    QVariantList m_devices;
    QList<int> m_known;
    bool m_isOnline = false;
    bool m_isObserved = true;
};
