#include "DeviceField.h"

#include "FieldTable.h"
#include "GalleryInstallation.h"

#include <QtQml/QQmlEngine>

#include <algorithm>
#include <utility>

DeviceField::DeviceField(QObject *parent)
    : QObject(parent)
{}

void DeviceField::setTarget(DeviceSelection *target)
{
    if (target == m_target)
        return;
    if (m_target)
        m_target->disconnect(this);
    m_target = target;
    if (target) {
        connect(target, &DeviceSelection::devicesChanged, this, &DeviceField::findPlaces);
        connect(target, &QObject::destroyed, this, &DeviceField::findPlaces);
    }
    Q_EMIT targetChanged();
    findPlaces();
}

void DeviceField::setField(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT fieldChanged();
    findPlaces();
}

QString DeviceField::actualText() const
{
    QStringList texts;
    for (const FieldPlace &place : m_places) {
        const QVariant &value = m_installation->devices().record(place.device).read(place.field);
        const bool isReal = value.metaType() == QMetaType::fromType<double>();
        texts.append(isReal ? QString::number(value.toDouble(), 'g', 6) : value.toString().simplified());
    }
    return texts.join(QStringLiteral(", "));
}

double DeviceField::minimum() const
{
    const FieldSpec *spec = anyField(m_name);
    return spec ? spec->minimum : 0.0;
}

double DeviceField::maximum() const
{
    const FieldSpec *spec = anyField(m_name);
    return spec ? spec->maximum : 0.0;
}

void DeviceField::request(const QVariant &value)
{
    if (m_target)
        m_target->request(m_name, value);
}

void DeviceField::shift(double by)
{
    QList<FieldRequest> requests;
    for (const FieldPlace &place : m_places) {
        const double shown = m_installation->client().shown(place).toDouble();
        requests.append({place, std::clamp(shown + by, minimum(), maximum())});
    }
    if (m_installation)
        m_installation->request(requests);
}

void DeviceField::dismiss()
{
    for (const QList<FieldPlace> places = m_places; const FieldPlace &place : places)
        m_installation->dismiss(place);
}

void DeviceField::editElsewhere()
{
    if (!m_places.isEmpty())
        m_installation->editElsewhere(m_places.constFirst().device, m_name);
}

// So that what is bound has its values before anything is complete.
void DeviceField::classBegin()
{
    m_installation = GalleryInstallation::create(qmlEngine(this), nullptr);
    connect(&m_installation->client(), &InstallationClient::fieldChanged, this, &DeviceField::updateIfOurs);
    connect(m_installation, &GalleryInstallation::deviceChanged, this, &DeviceField::tellActualText);
}

void DeviceField::findPlaces()
{
    m_places = m_installation && m_target ? m_target->places(m_name) : QList<FieldPlace>();
    update();
}

DeviceField::State DeviceField::present() const
{
    if (m_places.isEmpty())
        return {};
    const InstallationClient &client = m_installation->client();
    const FieldPlace first = m_places.constFirst();
    State state{client.said(first), client.shown(first), errorOf(m_places)};
    for (const FieldPlace &place : m_places) {
        state.isConsistent = state.isConsistent && client.shown(place) == state.shown;
        state.isConfirmed = state.isConfirmed && client.isConfirmed(place);
    }
    return state;
}

QString DeviceField::errorOf(const QList<FieldPlace> &places) const
{
    const InstallationClient &client = m_installation->client();
    QList<FieldPlace> failed;
    for (const FieldPlace &place : places) {
        if (!client.error(place).isEmpty())
            failed.append(place);
    }
    if (failed.isEmpty())
        return {};
    const QString reason = client.error(failed.constFirst());
    if (places.size() == 1)
        return reason;
    if (failed.size() > 1)
        return tr("%1 of %2 devices: %3").arg(failed.size()).arg(places.size()).arg(reason);
    return tr("%1: %2").arg(client.name(failed.constFirst().device), reason);
}

/// Each value tells its own changes: a field that is told an error anew would show it over what is typed since.
void DeviceField::update()
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

void DeviceField::updateIfOurs(int device, int field)
{
    if (m_places.contains(FieldPlace{device, field}))
        update();
}

void DeviceField::tellActualText(int device)
{
    if (std::any_of(m_places.begin(), m_places.end(), [=](const FieldPlace &place) { return place.device == device; }))
        Q_EMIT actualTextChanged();
}
