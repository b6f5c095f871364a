#include "AmplifierField.h"

#include "FieldTable.h"
#include "GalleryInstallation.h"

#include <QtQml/QQmlEngine>

#include <algorithm>
#include <utility>

AmplifierField::AmplifierField(QObject *parent)
    : QObject(parent)
{}

void AmplifierField::setAmplifier(Amplifier *amplifier)
{
    if (amplifier == m_amplifier)
        return;
    if (m_amplifier)
        m_amplifier->disconnect(this);
    m_amplifier = amplifier;
    if (amplifier) {
        connect(amplifier, &Amplifier::devicesChanged, this, &AmplifierField::update);
        connect(amplifier, &QObject::destroyed, this, &AmplifierField::update);
    }
    Q_EMIT amplifierChanged();
    update();
}

void AmplifierField::setField(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    m_field = fieldIndex(name);
    Q_EMIT fieldChanged();
    update();
}

QString AmplifierField::actualText() const
{
    QStringList texts;
    for (const int device : devices()) {
        const QVariant &value = m_installation->devices().record(device).read(m_field);
        const bool isReal = value.metaType() == QMetaType::fromType<double>();
        texts.append(isReal ? QString::number(value.toDouble(), 'g', 6) : value.toString().simplified());
    }
    return texts.join(QStringLiteral(", "));
}

double AmplifierField::minimum() const
{
    return m_field >= 0 ? amplifierFields().at(m_field).minimum : 0.0;
}

double AmplifierField::maximum() const
{
    return m_field >= 0 ? amplifierFields().at(m_field).maximum : 0.0;
}

void AmplifierField::request(const QVariant &value)
{
    if (m_amplifier)
        m_amplifier->request(m_name, value);
}

void AmplifierField::shift(double by)
{
    for (const int device : devices()) {
        const double shown = m_installation->client().shown(device, m_field).toDouble();
        m_installation->request(device, m_field, std::clamp(shown + by, minimum(), maximum()));
    }
}

void AmplifierField::dismiss()
{
    for (const int device : devices())
        m_installation->dismiss(device, m_field);
}

void AmplifierField::editElsewhere()
{
    if (const QList<int> known = devices(); !known.isEmpty())
        m_installation->editElsewhere(known.constFirst(), m_name);
}

void AmplifierField::componentComplete()
{
    m_installation = GalleryInstallation::create(qmlEngine(this), nullptr);
    connect(&m_installation->client(), &InstallationClient::fieldChanged, this, &AmplifierField::updateIfOurs);
    connect(m_installation, &GalleryInstallation::deviceChanged, this, [this](int device) {
        if (devices().contains(device))
            Q_EMIT actualTextChanged();
    });
    update();
}

QList<int> AmplifierField::devices() const
{
    return m_installation && m_amplifier && m_field >= 0 ? m_amplifier->known() : QList<int>();
}

AmplifierField::State AmplifierField::present() const
{
    const QList<int> known = devices();
    if (known.isEmpty())
        return {};
    const InstallationClient &client = m_installation->client();
    State state{client.said(known.constFirst(), m_field), client.shown(known.constFirst(), m_field), errorOf(known)};
    for (const int device : known) {
        state.isConsistent = state.isConsistent && client.shown(device, m_field) == state.shown;
        state.isConfirmed = state.isConfirmed && client.isConfirmed(device, m_field);
    }
    return state;
}

QString AmplifierField::errorOf(const QList<int> &devices) const
{
    const InstallationClient &client = m_installation->client();
    QList<int> failed;
    for (const int device : devices) {
        if (!client.error(device, m_field).isEmpty())
            failed.append(device);
    }
    if (failed.isEmpty())
        return {};
    const QString reason = client.error(failed.constFirst(), m_field);
    if (devices.size() == 1)
        return reason;
    if (failed.size() > 1)
        return tr("%1 of %2 devices: %3").arg(failed.size()).arg(devices.size()).arg(reason);
    return tr("%1: %2").arg(client.said(failed.constFirst(), fieldIndex(u"name")).toString(), reason);
}

/// Each value tells its own changes: a field that is told an error anew would show it over what is typed since.
void AmplifierField::update()
{
    const State before = std::exchange(m_state, present());
    const State now = m_state;
    if (now.value != before.value)
        Q_EMIT valueChanged();
    if (now.isConsistent != before.isConsistent)
        Q_EMIT consistentChanged();
    if (now.shown != before.shown)
        Q_EMIT shownChanged();
    if (now.isConfirmed != before.isConfirmed)
        Q_EMIT confirmedChanged();
    if (now.errorText != before.errorText)
        Q_EMIT errorTextChanged();
    Q_EMIT actualTextChanged();
}

void AmplifierField::updateIfOurs(int device, int field)
{
    if (field == m_field && devices().contains(device))
        update();
}
