#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

/// A signal on the audio network that a channel can be given.
struct NetworkSource
{
    int id;
    QString name;
};

/// The 200 known sources in the order of their ids, which have gaps.
const QList<NetworkSource> &networkSources();
