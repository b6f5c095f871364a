#include "menus/MenuEntry.h"

#include <QtGui/QKeySequence>

namespace tamble::client {

namespace {

MenuEntry menuEntry(const QVariant &source)
{
    QVariantMap map = source.toMap();
    if (source.userType() == QMetaType::QString)
        map.insert(QStringLiteral("text"), source);
    const auto isSet = [&map](const QString &name, bool otherwise) { return map.value(name, otherwise).toBool(); };

    MenuEntry entry;
    entry.text = map.value(QStringLiteral("text")).toString();
    entry.iconKey = map.value(QStringLiteral("iconKey")).toString();
    entry.shortcut = shortcutText(map.value(QStringLiteral("shortcut")));
    entry.enabled = isSet(QStringLiteral("enabled"), true);
    entry.checked = isSet(QStringLiteral("checked"), false);
    entry.checkable = isSet(QStringLiteral("checkable"), false) || entry.checked;
    entry.separator = entry.text.isEmpty() && isSet(QStringLiteral("separator"), false);
    entry.items = map.value(QStringLiteral("items")).toList();
    entry.source = source;
    return entry;
}

} // namespace

QList<MenuEntry> menuEntries(const QVariant &model)
{
    QList<MenuEntry> entries;
    for (const QVariant &source : model.toList())
        entries.append(menuEntry(source));
    return entries;
}

QString shortcutText(const QVariant &shortcut)
{
    if (shortcut.userType() == QMetaType::QString) {
        const QString text = shortcut.toString();
        const QString keys = QKeySequence(text, QKeySequence::PortableText).toString(QKeySequence::NativeText);
        return keys.isEmpty() ? text : keys;
    }
    bool isNumber = false;
    const int number = shortcut.toInt(&isNumber);
    return isNumber ? QKeySequence(QKeySequence::StandardKey(number)).toString(QKeySequence::NativeText) : QString();
}

} // namespace tamble::client
