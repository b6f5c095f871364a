#include "LiveObjects.h"

#include <QtCore/QObject>
#include <QtCore/private/qhooks_p.h>

#include <mutex>
#include <thread>
#include <unordered_set>

namespace {

struct Known
{
    std::mutex mutex; // an object may go in a thread that it was moved to
    std::thread::id maker;
    std::unordered_set<const QObject *> objects;
};

// Never deleted: some objects go after everything static.
Known &known()
{
    static auto *const instance = new Known;
    return *instance;
}

void remember(QObject *object)
{
    const std::lock_guard lock(known().mutex);
    if (std::this_thread::get_id() == known().maker)
        known().objects.insert(object);
}

void forget(QObject *object)
{
    const std::lock_guard lock(known().mutex);
    known().objects.erase(object);
}

} // namespace

void watchObjects()
{
    known().maker = std::this_thread::get_id();
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&remember);
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&forget);
}

ClassCounts liveObjects()
{
    const std::lock_guard lock(known().mutex);
    ClassCounts counts;
    for (const QObject *object : known().objects)
        ++counts[object->metaObject()->className()];
    return counts;
}

int moreThan(const ClassCounts &before, std::string &text)
{
    int total = 0;
    for (const auto &[name, count] : liveObjects()) {
        const auto earlier = before.find(name);
        const int more = count - (earlier == before.end() ? 0 : earlier->second);
        if (more <= 0)
            continue;
        total += more;
        text += std::to_string(more) + ' ' + name + '\n';
    }
    return total;
}
