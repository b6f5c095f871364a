#include "dialogs/DialogFooter.h"

#include "base/ItemListening.h"

#include <QtQuick/private/qquickanchors_p.h>
#include <QtQuick/private/qquickitem_p.h>

#include <algorithm>

namespace tamble::client {

namespace {

// In density-independent units.
constexpr qreal footerMargin = 16.0;
constexpr qreal buttonHeight = 32.0;
constexpr qreal buttonGap = 8.0;

} // namespace

DialogFooter::DialogFooter(QQuickItem *parent)
    : QQuickItem(parent)
{}

DialogFooter::~DialogFooter()
{
    setListener(nullptr);
}

void DialogFooter::setListener(QQuickItemChangeListener *listener)
{
    for (QQuickRow *row : {m_standardRow.get(), m_furtherRow}) {
        if (m_listener)
            listenTo(row, *m_listener, QQuickItemPrivate::ImplicitWidth, false);
        if (listener)
            listenTo(row, *listener, QQuickItemPrivate::ImplicitWidth, true);
    }
    m_listener = listener;
}

void DialogFooter::setStandardBox(QQuickDialogButtonBox *box)
{
    if (m_standardBox || !box)
        return;
    m_standardBox = box;
    box->setParentItem(this);
    m_standardRow = new QQuickRow(box);
    box->setContentItem(m_standardRow);
    QQuickItemPrivate *self = QQuickItemPrivate::get(this);
    QQuickItemPrivate::get(box)->anchors()->setRight(self->right());
}

QQuickItem &DialogFooter::furtherRow()
{
    if (!m_furtherRow) {
        m_furtherRow = new QQuickRow(this);
        QQuickItemPrivate::get(m_furtherRow)->anchors()->setLeft(QQuickItemPrivate::get(this)->left());
        if (m_listener)
            listenTo(m_furtherRow, *m_listener, QQuickItemPrivate::ImplicitWidth, true);
    }
    return *m_furtherRow;
}

void DialogFooter::layOut(qreal maximumWidth, qreal unit)
{
    const qreal margin = footerMargin * unit;
    const qreal spacing = buttonGap * unit;
    const int count = m_standardBox->count();
    const qreal widest = (maximumWidth - 2.0 * margin) / std::max(1, count) - spacing;
    for (int i = 0; i < count; ++i)
        m_standardBox->itemAt(i)->setProperty("widest", widest);
    m_standardRow->setSpacing(spacing);
    m_standardBox->setSpacing(spacing); // by which it places the row
    const qreal standardWidth = m_standardRow->implicitWidth();
    const qreal furtherWidth = m_furtherRow ? m_furtherRow->implicitWidth() : 0.0;
    const qreal gap = furtherWidth > 0.0 && standardWidth > 0.0 ? margin : 0.0;
    const qreal wanted = 2.0 * margin + furtherWidth + gap + standardWidth;
    const bool isStacked = gap > 0.0 && wanted > maximumWidth;
    const qreal rows = isStacked ? 2.0 * buttonHeight + buttonGap : buttonHeight;

    QQuickItemPrivate::get(m_standardBox)->anchors()->setRightMargin(margin);
    m_standardBox->setY(margin + (isStacked ? (buttonHeight + buttonGap) * unit : 0.0));
    m_standardBox->setSize({standardWidth, buttonHeight * unit});
    if (m_furtherRow) {
        QQuickItemPrivate::get(m_furtherRow)->anchors()->setLeftMargin(margin);
        m_furtherRow->setY(margin);
        m_furtherRow->setSpacing(spacing);
    }
    setImplicitWidth(wanted);
    setHeight(count == 0 && furtherWidth <= 0.0 ? 0.0 : rows * unit + 2.0 * margin);
}

} // namespace tamble::client
