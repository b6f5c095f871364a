#include "views/ViewHost.h"

#include "base/PartComponents.h"

#include <QtGui/QTouchEvent>
#include <QtGui/QWheelEvent>
#include <QtQml/qqml.h>

namespace tamble::client {

namespace {

/// Takes whatever would reach what is below it.
class ViewShield : public QQuickItem
{
public:
    explicit ViewShield(QQuickItem &host)
        : QQuickItem(&host)
    {
        setZ(1e6);
        setSize(host.size());
        setAcceptedMouseButtons(Qt::AllButtons);
        setAcceptTouchEvents(true);
    }

protected:
    void mousePressEvent(QMouseEvent *) override {}
    void touchEvent(QTouchEvent *) override {}
    void wheelEvent(QWheelEvent *) override {}
};

} // namespace

ViewHost::ViewHost(QQuickItem &container)
    : QQuickItem(&container)
{
    setFlag(ItemIsFocusScope);
    setVisible(false);
    setSize(container.size());
}

void ViewHost::setView(QQuickItem *view)
{
    m_view = view;
    view->setParent(this);
    view->setParentItem(this);
    view->setSize(size());
}

void ViewHost::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (m_view)
        m_view->setSize(newGeometry.size());
    if (m_shield)
        m_shield->setSize(newGeometry.size());
}

void ViewHost::setReachable(bool reachable)
{
    if (!m_shield && !reachable)
        m_shield = new ViewShield(*this);
    if (m_shield)
        m_shield->setVisible(!reachable);
}

void ViewHost::setBlurred(bool blurred)
{
    if (bool(m_blur) == blurred || (blurred && !m_view))
        return;
    setReachable(!blurred);
    if (!blurred) {
        m_blur->setVisible(false);
        m_blur->setProperty("source", QVariant::fromValue<QQuickItem *>(nullptr)); // which it hides
        m_blur->deleteLater();
        m_blur = nullptr;
    } else {
        const QVariantMap properties{{QStringLiteral("source"), QVariant::fromValue(m_view.get())},
                                     {QStringLiteral("parent"), QVariant::fromValue<QQuickItem *>(this)}};
        QQmlEngine *engine = qmlEngine(parentItem());
        m_blur = qobject_cast<QQuickItem *>(PartComponents::of(engine).make(Part::ViewBlur, this, properties));
    }
}

void ViewHost::rememberFocus()
{
    QQuickItem *item = this;
    while (item->isFocusScope() && item->scopedFocusItem())
        item = item->scopedFocusItem();
    m_formerFocus = item == this ? nullptr : item;
}

void ViewHost::focusView(bool isActive)
{
    if (!isActive) {
        setFocus(true, Qt::OtherFocusReason);
        return;
    }
    QQuickItem *target = m_formerFocus && isAncestorOf(m_formerFocus) ? m_formerFocus.get() : nullptr;
    if (!target && scopedFocusItem())
        target = scopedFocusItem();
    if (!target)
        target = nextItemInFocusChain();
    (target && isAncestorOf(target) ? target : this)->forceActiveFocus(Qt::OtherFocusReason);
}

} // namespace tamble::client
