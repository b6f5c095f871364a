#pragma once

#include "SoundDecoder.h"

#include <QtCore/QObject>

/// Reads what libsndfile does.
class SoundDecoderPlugin : public QObject, public SoundDecoder
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Tamble.Gallery.SoundDecoder/1.0")
    Q_INTERFACES(SoundDecoder)

public:
    OpenedAudio open(const QString &fileName) const override;
};
