#include "dialogs/DialogPlace.h"

#include "dialogs/RDialogBase.h"

#include <QtQuick/QQuickWindow>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>

#include <algorithm>
#include <cmath>

namespace tamble::client {

DialogPlace::DialogPlace(RDialogBase &dialog)
    : m_dialog(dialog)
{}

QSizeF DialogPlace::maximumSize() const
{
    constexpr qreal greatestShare = 0.9;
    return m_overlay ? greatestShare * m_overlay->size() : QSizeF(0.0, 0.0);
}

// Whatever item the dialog is declared in: that may be small, rotated or scrolled away.
void DialogPlace::enterWindow()
{
    const auto *declaredIn = qobject_cast<QQuickItem *>(m_dialog.parent());
    const bool isGivenPlace = m_dialog.parentItem() && m_dialog.parentItem() != m_overlay;
    QQuickWindow *window =
        !isGivenPlace && declaredIn && declaredIn->window() ? declaredIn->window() : m_dialog.window();
    QQuickItem *overlay = window ? QQuickOverlay::overlay(window) : nullptr;
    if (!overlay)
        return;
    if (m_overlay != overlay) {
        if (m_overlay)
            m_overlay->disconnect(this);
        m_overlay = overlay;
        for (auto signal : {&QQuickItem::widthChanged, &QQuickItem::heightChanged})
            connect(overlay, signal, this, [this] {
                Q_EMIT m_dialog.maximumSizeChanged();
                update();
            });
        Q_EMIT m_dialog.maximumSizeChanged();
    }
    m_dialog.setParentItem(overlay);
}

QPointF DialogPlace::middle() const
{
    return m_overlay ? QPointF(m_overlay->width() - m_dialog.width(), m_overlay->height() - m_dialog.height()) / 2.0
                     : QPointF();
}

void DialogPlace::centre()
{
    m_shift = {};
    update();
}

void DialogPlace::beginMove()
{
    m_shiftAtPress = m_dialog.position() - middle();
}

void DialogPlace::moveBy(QPointF distance)
{
    if (!qIsFinite(distance.x()) || !qIsFinite(distance.y()))
        return;
    m_shift = m_shiftAtPress + distance;
    update();
}

void DialogPlace::update()
{
    const QPointF centred = middle();
    const qreal least = std::max(m_dialog.margins(), 0.0);
    const auto within = [least](qreal middle, qreal shift) {
        return std::round(std::clamp(middle + shift, least, std::max(2.0 * middle - least, least)));
    };
    if (m_overlay)
        m_dialog.setPosition({within(centred.x(), m_shift.x()), within(centred.y(), m_shift.y())});
}

} // namespace tamble::client
