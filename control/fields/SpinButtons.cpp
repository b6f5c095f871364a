#include "fields/SpinButtons.h"

#include <QtQuick/private/qquickrectangle_p.h>

#include <algorithm>
#include <cmath>

namespace tamble::client {

SpinButtons::SpinButtons(QQuickItem *box)
    : QQuickItem(box)
    , m_bars{new QQuickRectangle(this), new QQuickRectangle(this), new QQuickRectangle(this)}
{}

void SpinButtons::show(const QColor &color, qreal unit, bool mirrored)
{
    const qreal length = std::round(10.0 * unit);
    const qreal thickness = std::max(1.0, std::round(1.5 * unit));
    const qreal half = width() / 2.0;
    const auto place = [this, &color](QQuickRectangle *bar, qreal begin, qreal buttonWidth, QSizeF size) {
        bar->setColor(color);
        bar->setPosition(
            {std::round(begin + (buttonWidth - size.width()) / 2.0), std::round((height() - size.height()) / 2.0)});
        bar->setSize(size);
    };
    place(m_bars[0], mirrored ? half : 0.0, half, {length, thickness});
    place(m_bars[1], mirrored ? 0.0 : half, half, {length, thickness});
    place(m_bars[2], mirrored ? 0.0 : half, half, {thickness, length});
}

void SpinButtons::enable(bool minus, bool plus, int pressed)
{
    const auto opacity = [pressed](bool possible, int button) {
        return !possible ? 0.3 : pressed == button ? 0.6 : 1.0;
    };
    m_bars[0]->setOpacity(opacity(minus, -1));
    m_bars[1]->setOpacity(opacity(plus, 1));
    m_bars[2]->setOpacity(opacity(plus, 1));
}

} // namespace tamble::client
