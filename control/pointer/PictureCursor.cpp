#include "pointer/PictureCursor.h"

#include <QtGui/QImageReader>
#include <QtGui/QPixmap>

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

constexpr int largestCursor = 256; // pixels a side; display servers refuse much more

int coordinate(qreal wanted, int size)
{
    return std::isnan(wanted) ? 0 : int(std::clamp(std::round(wanted), 0.0, size - 1.0));
}

} // namespace

std::optional<QCursor> pictureCursor(const QString &file, const QPointF &hotSpot, qreal screenRatio)
{
    QImageReader reader(file);
    const QSize size = reader.size();
    if (size.isEmpty() || std::max(size.width(), size.height()) > largestCursor)
        return {};
    reader.setScaledSize((QSizeF(size) * screenRatio).toSize());
    QImage picture = reader.read();
    if (picture.isNull())
        return {};
    picture.setDevicePixelRatio(screenRatio);
    return QCursor(QPixmap::fromImage(picture), coordinate(hotSpot.x(), size.width()),
                   coordinate(hotSpot.y(), size.height()));
}

} // namespace tamble::client
