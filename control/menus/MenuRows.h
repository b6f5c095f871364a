#pragma once

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QSizeF>
#include <QtCore/QString>

class QQuickItem;
class QQuickMenuItem;
class QVariant;

namespace tamble::client {

class RMenuBase;
struct MenuEntry;

/// The rows of a menu: makes those of its model, and gives a look to all that have none of their own.
class MenuRows
{
public:
    explicit MenuRows(RMenuBase *menu);

    /// Another model counts. Rows are made when they are next needed.
    void setModel(const QVariant &model);
    /// Makes what is missing, and shows check marks as the model has them.
    void makeReady();

    bool haveChecks() const;
    bool haveIcons() const;
    /// What all rows need, in pixels.
    QSizeF implicitSize() const;

private:
    void drop();
    void make();
    void makeSeparator(int index);
    void makeEntry(int index, const MenuEntry &entry);
    void makeSubMenu(int index, const MenuEntry &entry);
    void dress(QQuickItem *row, const QString &shortcut = {});
    template <typename Test>
    bool anyItem(Test test) const;

    RMenuBase *m_menu;
    QList<MenuEntry> m_entries;
    QList<QPointer<QQuickItem>> m_made; ///< A row for each entry, once they are made.
};

} // namespace tamble::client
