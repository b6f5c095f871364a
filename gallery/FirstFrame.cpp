#include "FirstFrame.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTextStream>
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

void count(const QQuickItem &item, ShownItems &shown)
{
    if (!item.isVisible())
        return;
    const bool isField = item.inherits("QQuickTextInput") || item.inherits("QQuickTextEdit");
    shown.controls += item.inherits("QQuickControl") || isField ? 1 : 0;
    shown.texts += item.inherits("QQuickText") ? 1 : 0;
    for (const QQuickItem *child : item.childItems())
        count(*child, shown);
}

} // namespace

void printFirstFrame(QQuickWindow &window)
{
    QEventLoop loop;
    // Nothing may be exposed before its page is there.
    QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, [&] {
        if (window.property("ready").toBool())
            loop.quit();
        else
            window.update();
    });
    window.update();
    loop.exec();
    const auto ms = std::clock() * 1000 / CLOCKS_PER_SEC;
    // Rows that are being made when their list goes would say so.
    QQmlIncubationController *making = window.incubationController();
    while (making && making->incubatingObjectCount() > 0)
        making->incubateFor(5);
    ShownItems shown;
    count(*window.contentItem(), shown);
    QTextStream(stdout) << "controls " << shown.controls << " texts " << shown.texts << " ms " << ms << '\n';
}
