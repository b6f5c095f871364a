#include "style/StyleTypeName.h"

namespace tamble::client {

QString styleTypeName(QByteArrayView className)
{
    for (const QByteArrayView mark : {QByteArrayView("_QMLTYPE_"), QByteArrayView("_QML_")}) {
        if (const qsizetype end = className.indexOf(mark); end >= 0)
            return QString::fromUtf8(className.first(end));
    }
    return QString::fromUtf8(className);
}

} // namespace tamble::client
