#include "menus/RMenuBase.h"

#include "base/Mnemonic.h"
#include "menus/MenuEntry.h"
#include "menus/MenuPlace.h"
#include "menus/MenuRows.h"

#include <QtCore/QScopedValueRollback>
#include <QtQml/QJSValue>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuickTemplates2/private/qquickmenuitem_p.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

bool isSubMenu(const QQuickPopup &menu)
{
    const auto *item = qobject_cast<QQuickMenuItem *>(menu.parentItem());
    return item && item->subMenu() == &menu;
}

} // namespace

RMenuBase::RMenuBase(QObject *parent)
    : QQuickMenu(parent)
    , m_rows(std::make_unique<MenuRows>(this))
    , m_origin(*this)
{
    connect(this, &QQuickPopup::aboutToShow, this, &RMenuBase::onAboutToShow);
    connect(this, &QQuickPopup::opened, this, [this] { keepFocusOn(itemAt(currentIndex())); });
    connect(this, &QQuickMenu::countChanged, this, &RMenuBase::onCountChanged);
}

RMenuBase::~RMenuBase()
{
    setVisible(false);
    // The template takes its rows away one by one.
    disconnect(this, nullptr, this, nullptr);
    for (int i = 0; i < count(); ++i) {
        if (QQuickItem *row = itemAt(i))
            row->disconnect(this);
    }
}

void RMenuBase::setModel(const QVariant &model)
{
    const bool isScript = model.userType() == qMetaTypeId<QJSValue>();
    const QVariant list = isScript ? model.value<QJSValue>().toVariant() : model;
    if (m_model == list)
        return;
    m_model = list;
    const int former = currentIndex();
    const QString highlighted = rowText(former);
    {
        const QScopedValueRollback guard(m_isMaking, true);
        m_rows->setModel(list);
    }
    if (isVisible()) {
        makeReady();
        forceActiveFocus(Qt::PopupFocusReason); // which an open sub-menu had
        highlight(highlighted, former);
    }
    Q_EMIT modelChanged();
}

QString RMenuBase::rowText(int index) const
{
    const auto *row = qobject_cast<QQuickMenuItem *>(itemAt(index));
    return row ? row->text() : QString();
}

/// Enter must not choose what stands in the place of the row that was highlighted: of rows that have its text, the one
/// in its place or else the first is highlighted, and none where the text is gone.
void RMenuBase::highlight(const QString &text, int likely)
{
    setCurrentIndex(-1);
    if (text.isEmpty())
        return;
    int found = rowText(likely) == text ? likely : 0;
    while (found < count() && rowText(found) != text)
        ++found;
    if (found < count())
        setCurrentIndex(found);
}

void RMenuBase::setCurrentIndexSelected(int index)
{
    if (m_currentIndexSelected == index)
        return;
    m_currentIndexSelected = index;
    Q_EMIT selectedEntryChanged();
}

void RMenuBase::setMinimumWidth(qreal width)
{
    if (m_minimumWidth == width)
        return;
    m_minimumWidth = width;
    measure();
    Q_EMIT minimumWidthChanged();
}

void RMenuBase::popupAt(QQuickItem *item, QPointF pressed)
{
    if (!qIsFinite(pressed.x()) || !qIsFinite(pressed.y()))
        popupAt(item);
    else if (prepareFor(item))
        openAtScenePoint(placeBesidePoint(item->mapToScene(pressed), shownSize(), room()));
}

void RMenuBase::popupAt(QQuickItem *item)
{
    if (item)
        popupBelow(item, QRectF(QPointF(), item->size()));
}

void RMenuBase::popupBelow(QQuickItem *item, const QRectF &area)
{
    if (!prepareFor(item))
        return;
    openAtScenePoint(placeBelow(item->mapRectToScene(area), shownSize(), room()));
    const auto isEnabled = [this](int index) {
        return itemAt(index)->isEnabled() && itemAt(index)->activeFocusOnTab();
    };
    for (int i = 0; i < count() && isVisible(); ++i) {
        if (isEnabled(i)) {
            setCurrentIndex(i);
            break;
        }
    }
}

bool RMenuBase::prepareFor(QQuickItem *item)
{
    if (!item || !item->window())
        return false;
    setVisible(false);
    setParentItem(item);
    if (m_contextItem != item) {
        m_contextItem = item;
        Q_EMIT contextItemChanged();
    }
    makeReady();
    return count() > 0;
}

void RMenuBase::openAtScenePoint(const QPointF &point)
{
    setPosition(parentItem()->mapFromScene(QPointF(std::round(point.x()), std::round(point.y()))));
    open();
}

QRectF RMenuBase::room() const
{
    const QQuickWindow *window = parentItem()->window();
    return QRectF(0.0, 0.0, window->width(), window->height()).adjusted(margins(), margins(), -margins(), -margins());
}

/// What Qt cuts the menu down to.
QSizeF RMenuBase::shownSize() const
{
    return QSizeF(implicitWidth(), implicitHeight()).boundedTo(room().size());
}

void RMenuBase::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        makeReady();
        if (count() == 0)
            return;
        if (!isSubMenu(*this) && parentItem() && parentItem()->window())
            beforeOpening();
    }
    QQuickMenu::setVisible(visible);
}

void RMenuBase::beforeOpening()
{
    setCurrentIndex(-1);
    m_origin.rememberFocus(*parentItem());
    m_origin.followOwner(*parentItem());
    const QRectF area = parentItem()->mapRectToScene(QRectF(QPointF(), parentItem()->size()));
    const bool opensUpwards = placeBelow(area, shownSize(), room()).y() < area.bottom();
    if (std::exchange(m_opensUpwards, opensUpwards) != opensUpwards)
        Q_EMIT opensUpwardsChanged();
}

void RMenuBase::onAboutToShow()
{
    // What is shown over a page inherits nothing from the part of it that it belongs to.
    const bool mirrored = parentItem() && QQuickItemPrivate::get(parentItem())->effectiveLayoutMirror;
    QQuickItemPrivate::get(popupItem())->setImplicitLayoutMirror(mirrored, true);
}

void RMenuBase::makeReady()
{
    {
        const QScopedValueRollback guard(m_isMaking, true);
        m_rows->makeReady();
        m_hasChecks = m_rows->haveChecks();
        m_hasIcons = m_rows->haveIcons();
        Q_EMIT columnsChanged();
    }
    measure();
    Q_EMIT selectedEntryChanged();
}

// A row that has got the focus before the menu is shown loses it as the menu and the view of the rows take their
// places.
void RMenuBase::keepFocusOn(QQuickItem *row)
{
    if (row && isVisible() && row == itemAt(currentIndex()))
        row->forceActiveFocus(Qt::PopupFocusReason);
}

void RMenuBase::onCountChanged()
{
    if (isVisible() && !m_isMaking)
        makeReady();
}

void RMenuBase::measure()
{
    if (m_isMaking)
        return;
    const QSizeF rows = m_rows->implicitSize();
    setImplicitWidth(std::max(rows.width(), m_minimumWidth));
    setImplicitHeight(rows.height());
}

QString RMenuBase::plainText(const QString &text)
{
    return withoutMnemonic(text);
}

QString RMenuBase::shownShortcut(const QVariant &shortcut)
{
    return shortcutText(shortcut);
}

} // namespace tamble::client
