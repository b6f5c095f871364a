#include "base/StyleTypeName.h"

#include <string_view>

namespace tamble::client {

QString styleTypeName(QByteArrayView className)
{
    // Names of native types have no mark, and searching for a short one is quick.
    const std::string_view name(className.data(), std::size_t(className.size()));
    if (name.find("_QML") != std::string_view::npos) {
        for (const std::string_view mark : {"_QMLTYPE_", "_QML_"}) {
            if (const std::size_t end = name.find(mark); end != std::string_view::npos)
                return QString::fromUtf8(className.first(qsizetype(end)));
        }
    }
    return QString::fromUtf8(className);
}

} // namespace tamble::client
