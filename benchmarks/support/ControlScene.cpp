#include "support/ControlScene.h"

#include <QtCore/QCoreApplication>

ControlScene::ControlScene()
{
    useModule(m_engine);
    const auto setup = compile("TambleClient.Control", "RStyleEngineSetup { engine.defaultStyleSheetSource: "
                                                       "'qrc:/style/tamble.dark.style' }");
    m_setup.reset(setup->create());
    m_window.resize(400, 600);
    m_window.show();
    awaitFrame();
}

std::unique_ptr<QQmlComponent> ControlScene::compile(const char *import, const char *declaration)
{
    auto component = std::make_unique<QQmlComponent>(&m_engine);
    component->setData(QByteArray("import QtQuick\nimport ") + import + "\n" + declaration, QUrl());
    if (!component->isReady())
        qFatal("%s", qPrintable(component->errorString()));
    return component;
}

std::unique_ptr<QQuickItem> ControlScene::create(QQmlComponent &component)
{
    std::unique_ptr<QQuickItem> item(qobject_cast<QQuickItem *>(component.beginCreate(m_engine.rootContext())));
    if (!item)
        qFatal("%s", qPrintable(component.errorString()));
    item->setParentItem(m_window.contentItem());
    component.completeCreate();
    return item;
}

void ControlScene::settle()
{
    m_engine.collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ControlScene::awaitFrame()
{
    m_window.beginFrame();
    m_window.update();
    m_window.awaitFrame();
}
