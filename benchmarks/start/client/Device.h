#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

/// A device as the gallery's installer leaves it.
struct InstalledDevice
{
    QString kind; ///< "amplifier", "mixer" or "matrix"
    QString name;
    QString location;
    int lastByte; ///< of its address
    QString pin;
    double temperature; ///< °C
    QString notes;
    bool isOnline = true;
};

/// A device of the installation, with what the page shows of it.
class Device : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by Installation")
    Q_PROPERTY(QString kind READ kind CONSTANT)
    Q_PROPERTY(bool online READ isOnline CONSTANT)
    /// What is wrong; empty while nothing is.
    Q_PROPERTY(QString alarm READ alarm CONSTANT)
    /// The same, or the temperature.
    Q_PROPERTY(QString condition READ condition CONSTANT)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY edited)
    Q_PROPERTY(QString location MEMBER m_location NOTIFY edited)
    Q_PROPERTY(bool dhcp MEMBER m_dhcp NOTIFY edited)
    Q_PROPERTY(QString ipAddress MEMBER m_ipAddress NOTIFY edited)
    Q_PROPERTY(QString subnetMask MEMBER m_subnetMask NOTIFY edited)
    Q_PROPERTY(QString gateway MEMBER m_gateway NOTIFY edited)
    Q_PROPERTY(QString pin MEMBER m_pin NOTIFY edited)
    Q_PROPERTY(QString notes MEMBER m_notes NOTIFY edited)

public:
    Device(const InstalledDevice &installed, QObject *parent);

    QString kind() const { return m_kind; }
    bool isOnline() const { return m_isOnline; }
    QString alarm() const;
    QString condition() const;
    /// Whether one of the texts in the list has this in it; any has nothing in it.
    bool hasText(const QString &text) const;

Q_SIGNALS:
    void edited();

private:
    QString temperatureText() const;

    QString m_kind;
    QString m_name;
    QString m_location;
    QString m_ipAddress;
    QString m_subnetMask;
    QString m_gateway;
    QString m_pin;
    QString m_notes;
    double m_temperature; ///< °C
    bool m_isOnline;
    bool m_dhcp = false;
};
