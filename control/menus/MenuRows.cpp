#include "menus/MenuRows.h"

#include "base/PartComponents.h"
#include "menus/MenuEntry.h"
#include "menus/RMenuBase.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQuickTemplates2/private/qquickicon_p.h>
#include <QtQuickTemplates2/private/qquickmenuitem_p.h>
#include <QtQuickTemplates2/private/qquickmenuseparator_p.h>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

void setStateAndIcon(QQuickMenuItem &item, const MenuEntry &entry)
{
    item.setEnabled(entry.enabled);
    QQuickIcon icon;
    icon.setName(entry.iconKey);
    item.setIcon(icon);
}

} // namespace

MenuRows::MenuRows(RMenuBase *menu)
    : m_menu(menu)
{}

void MenuRows::setModel(const QVariant &model)
{
    drop();
    m_entries = menuEntries(model);
}

void MenuRows::drop()
{
    for (const QPointer<QQuickItem> &row : std::exchange(m_made, {})) {
        const auto *item = qobject_cast<QQuickMenuItem *>(row);
        if (item && item->subMenu())
            m_menu->removeMenu(item->subMenu());
        else if (row)
            m_menu->removeItem(row);
    }
}

void MenuRows::makeReady()
{
    if (m_made.isEmpty() && m_menu->delegate())
        make();
    for (int i = 0; i < m_menu->count(); ++i)
        dress(m_menu->itemAt(i));
    for (qsizetype i = 0; i < m_made.size(); ++i) {
        if (auto *item = qobject_cast<QQuickMenuItem *>(m_made[i]))
            item->setChecked(m_entries[i].checked);
    }
}

// Before what is declared in the menu, so that an index in the model is one in the menu.
void MenuRows::make()
{
    for (int i = 0; i < int(m_entries.size()); ++i) {
        const MenuEntry &entry = m_entries[i];
        if (entry.separator)
            makeSeparator(i);
        else if (entry.items.isEmpty())
            makeEntry(i, entry);
        else
            makeSubMenu(i, entry);
        m_made.append(m_menu->itemAt(i));
    }
}

void MenuRows::makeSeparator(int index)
{
    auto *separator = new QQuickMenuSeparator;
    separator->setParent(m_menu);
    m_menu->insertItem(index, separator);
}

void MenuRows::makeEntry(int index, const MenuEntry &entry)
{
    QObject *made = m_menu->delegate()->create(qmlContext(m_menu));
    auto *item = qobject_cast<QQuickMenuItem *>(made);
    if (!item) { // the page's delegate is something else
        delete made;
        item = new QQuickMenuItem;
    }
    item->setParent(m_menu);
    item->setText(entry.text);
    item->setCheckable(entry.checkable);
    setStateAndIcon(*item, entry);
    m_menu->insertItem(index, item);
    dress(item, entry.shortcut);
    // After the menu's own connection, by which it closes.
    QObject::connect(item, &QQuickMenuItem::triggered, m_menu,
                     [menu = m_menu, index, source = entry.source] { Q_EMIT menu->itemTriggered(index, source); });
}

void MenuRows::makeSubMenu(int index, const MenuEntry &entry)
{
    const QVariantMap properties{{QStringLiteral("title"), entry.text},
                                 {QStringLiteral("model"), entry.items},
                                 {QStringLiteral("borderVisible"), m_menu->property("borderVisible")}};
    auto *subMenu =
        qobject_cast<RMenuBase *>(PartComponents::of(qmlEngine(m_menu)).make(Part::SubMenu, m_menu, properties));
    m_menu->insertMenu(index, subMenu);
    if (auto *item = qobject_cast<QQuickMenuItem *>(m_menu->itemAt(index)))
        setStateAndIcon(*item, entry);
    QObject::connect(subMenu, &RMenuBase::itemTriggered, m_menu, &RMenuBase::itemTriggered);
}

void MenuRows::dress(QQuickItem *row, const QString &shortcut)
{
    auto *control = qobject_cast<QQuickControl *>(row);
    if (!control || control->contentItem())
        return;
    QVariantMap properties{{QStringLiteral("menu"), QVariant::fromValue(m_menu)}};
    Part part = Part::MenuLine;
    if (auto *item = qobject_cast<QQuickMenuItem *>(row)) {
        if (auto *subMenu = qobject_cast<RMenuBase *>(item->subMenu()))
            QObject::connect(item, &QQuickMenuItem::highlightedChanged, subMenu, &RMenuBase::makeReady);
        part = Part::MenuRow;
        properties.insert(QStringLiteral("entry"), QVariant::fromValue(row));
        if (!shortcut.isEmpty())
            properties.insert(QStringLiteral("shortcutText"), shortcut);
    }
    auto *look = qobject_cast<QQuickItem *>(PartComponents::of(qmlEngine(m_menu)).make(part, row, properties));
    if (!look)
        return;
    control->setContentItem(look);
    const auto takeSize = [look, row, menu = m_menu] {
        row->setImplicitWidth(look->implicitWidth());
        row->setImplicitHeight(look->implicitHeight());
        menu->measure();
    };
    takeSize();
    QObject::connect(look, &QQuickItem::implicitWidthChanged, row, takeSize);
    QObject::connect(look, &QQuickItem::implicitHeightChanged, row, takeSize);
    QObject::connect(row, &QQuickItem::parentChanged, m_menu, [row, menu = m_menu] { menu->keepFocusOn(row); });
}

bool MenuRows::haveChecks() const
{
    return anyItem([](const QQuickMenuItem &item) { return item.isCheckable(); });
}

bool MenuRows::haveIcons() const
{
    return anyItem([](const QQuickMenuItem &item) { return !item.icon().name().isEmpty(); });
}

template <typename Test>
bool MenuRows::anyItem(Test test) const
{
    for (int i = 0; i < m_menu->count(); ++i) {
        const auto *item = qobject_cast<QQuickMenuItem *>(m_menu->itemAt(i));
        if (item && test(*item))
            return true;
    }
    return false;
}

QSizeF MenuRows::implicitSize() const
{
    QSizeF size(0.0, 0.0);
    for (int i = 0; i < m_menu->count(); ++i) {
        const QQuickItem *row = m_menu->itemAt(i);
        size.setWidth(std::max(size.width(), row->implicitWidth()));
        size.setHeight(size.height() + row->implicitHeight());
    }
    return size;
}

} // namespace tamble::client
