#include "dialogs/DialogHeader.h"

#include "base/PartComponents.h"
#include "dialogs/RDialogBase.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QStyleHints>
#include <QtQuick/private/qquickanchors_p.h>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>

#include <cmath>

namespace tamble::client {

namespace {

// In density-independent units.
constexpr qreal headerHeight = 40.0;
constexpr qreal headerMargin = 16.0;
constexpr qreal iconSpace = 32.0;
constexpr qreal closeSpace = 40.0;

} // namespace

DialogHeader::DialogHeader(QQuickItem *parent)
    : QQuickRectangle(parent)
{}

RDialogBase *DialogHeader::dialog() const
{
    return m_dialog;
}

void DialogHeader::setDialog(RDialogBase &dialog)
{
    m_dialog = &dialog;
    setAcceptedMouseButtons(Qt::LeftButton);
}

void DialogHeader::setWords(QQuickText *words)
{
    if (m_words || !words)
        return;
    m_words = words;
    words->setParentItem(this);
    QQuickItemPrivate::get(words)->anchors()->setFill(this);
}

void DialogHeader::refresh(qreal unit)
{
    const bool hasIcon = !m_dialog->iconKey().isEmpty();
    const bool isNeeded = hasIcon || m_dialog->isClosable() || !m_dialog->title().isEmpty();
    setVisible(isNeeded);
    setHeight(isNeeded ? headerHeight * unit : 0.0);
    setColor(m_dialog->ssHeaderBackground());
    showParts();

    const qreal before = (headerMargin + (hasIcon ? iconSpace : 0.0)) * unit;
    const qreal after = (m_dialog->isClosable() ? closeSpace : headerMargin) * unit;
    QQuickAnchors *anchors = QQuickItemPrivate::get(m_words)->anchors();
    anchors->setLeftMargin(before);
    anchors->setRightMargin(after);
    m_words->setColor(m_dialog->ssHeaderColor());
    m_words->setText(m_dialog->title());
    setImplicitWidth(std::ceil(m_words->implicitWidth()) + before + after);
}

void DialogHeader::showParts()
{
    PartComponents::show(m_icon, Part::DialogIcon, *this, !m_dialog->iconKey().isEmpty());
    const bool isMade = m_closeButton != nullptr;
    PartComponents::show(m_closeButton, Part::DialogCloseButton, *this, m_dialog->isClosable());
    if (!m_closeButton)
        return;
    m_closeButton->setEnabled(!m_dialog->isBusy());
    if (auto *button = qobject_cast<QQuickAbstractButton *>(m_closeButton); button && !isMade)
        connect(button, &QQuickAbstractButton::clicked, m_dialog, &RDialogBase::reject);
}

void DialogHeader::mousePressEvent(QMouseEvent *event)
{
    setKeepMouseGrab(false); // until this press has become a drag
    m_pressed = event->scenePosition();
    if (m_dialog)
        m_dialog->beginMove();
}

void DialogHeader::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF way = event->scenePosition() - m_pressed;
    if (!keepMouseGrab() && way.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        return;
    setKeepMouseGrab(true);
    if (m_dialog && !m_dialog->isBusy())
        m_dialog->moveBy(way);
}

} // namespace tamble::client
