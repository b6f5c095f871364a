#include "FirstFrame.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTextStream>
#include <QtGui/QAccessible>
#include <QtQml/QQmlIncubationController>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

#include <ctime>

namespace {

struct ShownItems
{
    int controls = 0;
    int texts = 0;
};

bool isRow(QQuickItem &item)
{
    const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&item);
    return spoken && spoken->role() == QAccessible::ListItem;
}

bool isControl(QQuickItem &item)
{
    return item.inherits("QQuickControl") || item.inherits("QQuickTextInput") || item.inherits("QQuickTextEdit") ||
           isRow(item);
}

void count(QQuickItem &item, const QRectF &view, ShownItems &shown)
{
    if (!item.isVisible())
        return;
    if (item.mapRectToScene(item.boundingRect()).intersects(view)) {
        shown.controls += isControl(item) ? 1 : 0;
        shown.texts += item.inherits("QQuickText") && !item.property("text").toString().isEmpty() ? 1 : 0;
    }
    for (QQuickItem *child : item.childItems())
        count(*child, view, shown);
}

} // namespace

void printFirstFrame(QQuickWindow &window)
{
    QEventLoop loop;
    // Nothing may be exposed before its page is there.
    QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, [&] {
        const QVariant ready = window.property("ready");
        if (!ready.isValid() || ready.toBool())
            loop.quit();
        else
            window.update();
    });
    window.update();
    loop.exec();
    const auto ms = std::clock() * 1000 / CLOCKS_PER_SEC;
    ShownItems shown;
    count(*window.contentItem(), QRectF(QPointF(), window.size()), shown);
    // Rows that are being made when their list goes would say so.
    QQmlIncubationController *making = window.incubationController();
    while (making && making->incubatingObjectCount() > 0)
        making->incubateFor(5);
    QTextStream(stdout) << "controls " << shown.controls << " texts " << shown.texts << " ms " << ms << '\n';
}
