#include "BenchScene.h"

#include "TambleClientControlModule.h"

#include <QtCore/QCoreApplication>
#include <QtQml/QQmlComponent>

#include <ctime>
#include <malloc.h>

double threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

std::size_t heapBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

BenchScene::BenchScene()
{
    constexpr const char *uri = "TambleClient.Control";
    tamble::client::TambleClientControlModule module;
    module.registerTypes(uri);
    module.initializeEngine(&m_engine, uri);
}

BenchScene::Items BenchScene::create(const char *type, std::size_t count)
{
    QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/StyleBench/%1.qml").arg(QLatin1String(type))));
    Items items;
    items.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        auto *item = qobject_cast<QQuickItem *>(component.beginCreate(m_engine.rootContext()));
        if (!item)
            qFatal("%s", qPrintable(component.errorString()));
        item->setParentItem(m_window.contentItem());
        component.completeCreate();
        items.emplace_back(item);
    }
    return items;
}

void BenchScene::settle()
{
    m_engine.collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
