#include "InputScene.h"

#include "TambleClientControlModule.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QTimer>
#include <QtQml/QQmlContext>

#include <ctime>
#include <malloc.h>

double processSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

std::size_t heapBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

InputScene::InputScene()
{
    constexpr const char *uri = "TambleClient.Control";
    tamble::client::TambleClientControlModule module;
    module.registerTypes(uri);
    module.initializeEngine(&m_engine, uri);

    QStringList names;
    for (int i = 0; i < 9'999; ++i)
        names.append(QStringLiteral("Channel %1").arg(i));
    names.append(QStringLiteral("Zone"));
    m_channels.setStringList(names);
    m_engine.rootContext()->setContextProperty(QStringLiteral("channels"), &m_channels);

    const auto setup = compile("TambleClient.Control", "RStyleEngineSetup { engine.defaultStyleSheetSource: "
                                                       "'qrc:/style/tamble.dark.style' }");
    m_setup.reset(setup->create());
    QObject::connect(
        &m_window, &QQuickWindow::frameSwapped, &m_window, [this] { m_swapped = true; }, Qt::DirectConnection);
    m_window.resize(400, 600);
    m_window.show();
    awaitFrame();
}

std::unique_ptr<QQmlComponent> InputScene::compile(const char *import, const char *declaration)
{
    auto component = std::make_unique<QQmlComponent>(&m_engine);
    component->setData(QByteArray("import QtQuick\nimport ") + import + "\n" + declaration, QUrl());
    if (!component->isReady())
        qFatal("%s", qPrintable(component->errorString()));
    return component;
}

std::unique_ptr<QQuickItem> InputScene::create(QQmlComponent &component)
{
    std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem *>(component.beginCreate(m_engine.rootContext())));
    if (!item)
        qFatal("%s", qPrintable(component.errorString()));
    item->setParentItem(m_window.contentItem());
    component.completeCreate();
    return item;
}

void InputScene::settle()
{
    m_engine.collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void InputScene::awaitFrame()
{
    constexpr int limitMs = 5000;
    QDeadlineTimer deadline(limitMs);
    QTimer wakeUp;
    wakeUp.start(limitMs);
    m_swapped = false;
    m_window.update();
    while (!m_swapped && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!m_swapped)
        qFatal("no frame");
}
