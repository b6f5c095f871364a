#include "NetworkSources.h"

namespace {

struct Group
{
    const char *name;
    int firstId;
    int count;
};

constexpr Group groups[]{
    {"Stage box A, mic %1", 101, 48},  {"Stage box B, mic %1", 201, 48}, {"Console, bus %1", 301, 64},
    {"Wireless receiver %1", 401, 24}, {"Player %1", 501, 12},           {"Paging station %1", 601, 4},
};

QList<NetworkSource> createSources()
{
    QList<NetworkSource> sources;
    for (const Group &group : groups) {
        for (int i = 0; i < group.count; ++i)
            sources.append({group.firstId + i, QString::fromLatin1(group.name).arg(i + 1)});
    }
    return sources;
}

} // namespace

const QList<NetworkSource> &networkSources()
{
    static const QList<NetworkSource> sources = createSources();
    return sources;
}
