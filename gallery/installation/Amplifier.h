#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

class GalleryInstallation;

/// One amplifier, or several that are edited together. `AmplifierField` shows its values.
class Amplifier : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    /// Numbers of the devices, from 0; those that are not there do not count. Empty by default.
    Q_PROPERTY(QVariantList devices READ devices WRITE setDevices NOTIFY devicesChanged)
    /// Whether all of them are on the network.
    Q_PROPERTY(bool online READ isOnline NOTIFY onlineChanged)

public:
    explicit Amplifier(QObject *parent = nullptr);

    QVariantList devices() const { return m_devices; }
    void setDevices(const QVariantList &devices);
    bool isOnline() const { return m_isOnline; }

    /// Asks every device to take a value in the field of that name.
    Q_INVOKABLE void request(const QString &field, const QVariant &value);

    void classBegin() override {}
    void componentComplete() override;

    /// Null until complete.
    GalleryInstallation *installation() const { return m_installation; }
    /// The devices that are there, each once.
    const QList<int> &known() const { return m_known; }

Q_SIGNALS:
    void devicesChanged();
    void onlineChanged();

private:
    void findKnown();
    void updateOnline();

    QPointer<GalleryInstallation> m_installation;
    QVariantList m_devices;
    QList<int> m_known;
    bool m_isOnline = false;
};
