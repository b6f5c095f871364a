#include "SoundFile.h"

#include "SoundDecoder.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPluginLoader>

namespace {

OpenedAudio open(const QString &fileName)
{
    const QFileInfo file(fileName);
    if (!file.exists())
        return {nullptr, QStringLiteral("there is no such file")};
    if (!file.isFile())
        return {nullptr, QStringLiteral("it is not a file")};
    QPluginLoader plugin(QStringLiteral("tamble-gallery-decoder"));
    const auto *decoder = qobject_cast<SoundDecoder *>(plugin.instance());
    return decoder ? decoder->open(fileName) : OpenedAudio{nullptr, plugin.errorString()};
}

} // namespace

OpenedAudio openSoundFile(const QString &fileName)
{
    OpenedAudio opened = open(fileName);
    if (!opened.source)
        opened.error = QStringLiteral("cannot play \"%1\": %2").arg(fileName, opened.error);
    return opened;
}
