#include "fields/FieldMenu.h"

#include "base/PartComponents.h"
#include "menus/RMenuBase.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>

namespace tamble::client {

namespace {

void act(QQuickItem *editor, const QString &action)
{
    if (action == QLatin1String("delete")) {
        // Its function for that does not count as an edit by the user.
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
        QCoreApplication::sendEvent(editor, &press);
    } else {
        QMetaObject::invokeMethod(editor, action.toLatin1().constData());
    }
}

} // namespace

void openFieldMenu(QQuickItem *editor, std::optional<QPointF> pressed)
{
    constexpr const char *persistence = "persistentSelection";
    QQmlEngine *engine = editor ? qmlEngine(editor) : nullptr;
    if (!engine)
        return;
    auto *menu = qobject_cast<RMenuBase *>(PartComponents::of(engine).make(
        Part::FieldMenu, editor, {{QStringLiteral("editor"), QVariant::fromValue(editor)}}));
    if (!menu)
        return;

    const QVariant wasPersistent = editor->property(persistence);
    const auto finish = [editor, menu, wasPersistent] {
        editor->setProperty(persistence, wasPersistent);
        menu->deleteLater();
    };
    QObject::connect(menu, &QQuickPopup::closed, editor, finish);
    QObject::connect(menu, &RMenuBase::itemTriggered, editor, [editor](int, const QVariant &item) {
        act(editor, item.toMap().value(QStringLiteral("action")).toString());
    });

    editor->setProperty(persistence, true);
    if (pressed)
        menu->popupAt(editor, *pressed);
    else
        menu->popupBelow(editor, editor->property("cursorRectangle").toRectF());
    if (!menu->isVisible())
        finish();
}

} // namespace tamble::client
