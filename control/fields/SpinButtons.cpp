#include "fields/SpinButtons.h"

#include <QtQuick/private/qquickrectangle_p.h>

#include <algorithm>
#include <cmath>

namespace tamble::client {

SpinButtons::SpinButtons(QQuickItem *box)
    : QQuickItem(box)
    , m_bars{new QQuickRectangle(this), new QQuickRectangle(this), new QQuickRectangle(this), new QQuickRectangle(this)}
{}

void SpinButtons::show(const QColor &color, qreal unit, bool mirrored)
{
    const qreal length = std::round(10.0 * unit);
    const qreal thickness = std::max(1.0, std::round(1.5 * unit));
    const qreal half = width() / 2.0;
    const auto centred = [this, half](qreal begin, QSizeF size) {
        return QRectF({std::round(begin + (half - size.width()) / 2.0), std::round((height() - size.height()) / 2.0)},
                      size);
    };
    const QRectF across = centred(mirrored ? 0.0 : half, {length, thickness});
    const QRectF down = centred(mirrored ? 0.0 : half, {thickness, length});
    // Nothing overlaps, or the crossing would stand out where the bars are translucent.
    const std::array places{centred(mirrored ? half : 0.0, {length, thickness}), across,
                            QRectF(down.topLeft(), QPointF(down.right(), across.top())),
                            QRectF(QPointF(down.left(), across.bottom()), down.bottomRight())};
    for (std::size_t i = 0; i < places.size(); ++i) {
        m_bars[i]->setColor(color);
        m_bars[i]->setPosition(places[i].topLeft());
        m_bars[i]->setSize(places[i].size());
    }
}

void SpinButtons::enable(bool minus, bool plus, int pressed)
{
    const auto opacity = [pressed](bool possible, int button) {
        return !possible ? 0.3 : pressed == button ? 0.6 : 1.0;
    };
    m_bars[0]->setOpacity(opacity(minus, -1));
    for (std::size_t i = 1; i < m_bars.size(); ++i)
        m_bars[i]->setOpacity(opacity(plus, 1));
}

} // namespace tamble::client
