#include "NetworkSources.h"

namespace {

struct Group
{
    const char *name; // before the number
    int firstId;
    int count;
};

constexpr Group groups[]{
    {"Stage box A, mic ", 101, 48},  {"Stage box B, mic ", 201, 48}, {"Console, bus ", 301, 64},
    {"Wireless receiver ", 401, 24}, {"Player ", 501, 12},           {"Paging station ", 601, 4},
};

QList<NetworkSource> createSources()
{
    QList<NetworkSource> sources;
    for (const Group &group : groups) {
        for (int i = 0; i < group.count; ++i)
            sources.append({group.firstId + i, group.name + QString::number(i + 1)});
    }
    return sources;
}

} // namespace

const QList<NetworkSource> &networkSources()
{
    static const QList<NetworkSource> sources = createSources();
    return sources;
}
