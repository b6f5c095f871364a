#include "FirmwareUpdate.h"

#include "GalleryInstallation.h"

#include <QtCore/QPointer>
#include <QtQml/QQmlEngine>

namespace {

constexpr int partTime = 300;     // ms
constexpr int restartTime = 5000; // ms

GalleryInstallation &installationOf(QObject *object)
{
    return *GalleryInstallation::create(qmlEngine(object), nullptr);
}

} // namespace

QString FirmwareUpdate::text() const
{
    if (m_isRunning)
        return tr("Sending the firmware");
    if (m_isFailed)
        return tr("Not updated");
    return m_sent == partCount ? tr("Updated, the device restarts") : QString();
}

void FirmwareUpdate::start(int device)
{
    if (m_isRunning || device < 0 || device >= installationOf(this).devices().count())
        return;
    m_device = device;
    m_sent = 0;
    m_isRunning = true;
    m_isFailed = false;
    installationOf(this).log()->add(device, QStringLiteral("action"), tr("gets a new firmware"));
    sendPart(++m_run);
}

void FirmwareUpdate::cancel()
{
    if (m_isRunning)
        stop(true, tr("keeps its firmware: the update was cancelled"));
}

void FirmwareUpdate::sendPart(int run)
{
    if (run != m_run || !m_isRunning)
        return;
    GalleryInstallation &installation = installationOf(this);
    if (!installation.client().isOnline(m_device)) {
        stop(true, tr("keeps its firmware: it has left the network"));
        return;
    }
    if (m_sent == partCount) {
        stop(false, tr("has a new firmware and restarts"));
        installation.dropOut(m_device, restartTime);
        return;
    }
    ++m_sent;
    installation.after(partTime, [self = QPointer(this), run] {
        if (self)
            self->sendPart(run);
    });
    Q_EMIT changed();
}

void FirmwareUpdate::stop(bool failed, const QString &text)
{
    m_isRunning = false;
    m_isFailed = failed;
    installationOf(this).log()->add(m_device, QStringLiteral("action"), text);
    Q_EMIT changed();
}
