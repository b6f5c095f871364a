#include "SoundFileLibrary.h"

#include <QtCore/QLibrary>

#include <optional>

namespace {

std::optional<SoundFileLibrary> load()
{
    constexpr int binaryInterface = 1;
    QLibrary file(QStringLiteral("sndfile"), binaryInterface);
    if (!file.load())
        return {};
    const auto find = [&file]<typename Function>(Function &function, const char *name) {
        function = reinterpret_cast<Function>(file.resolve(name));
        return function != nullptr;
    };
    SoundFileLibrary library = {};
    const bool isComplete = find(library.open, "sf_open") && find(library.close, "sf_close") &&
                            find(library.seek, "sf_seek") && find(library.readFrames, "sf_readf_float") &&
                            find(library.errorText, "sf_strerror");
    return isComplete ? std::optional(library) : std::nullopt;
}

} // namespace

const SoundFileLibrary *soundFileLibrary()
{
    static const std::optional<SoundFileLibrary> library = load();
    return library ? &*library : nullptr;
}
