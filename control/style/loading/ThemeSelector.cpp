#include "style/loading/ThemeSelector.h"

#include "style/loading/StyleLog.h"

#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>

namespace tamble::client {

namespace {

constexpr const char *installedTheme = "_tamble_installedTheme"; // of an engine

} // namespace

ThemeSelector::ThemeSelector(QObject *parent)
    : QObject(parent)
{}

void ThemeSelector::setThemeComponent(QQmlComponent *component)
{
    if (m_themeComponent == component)
        return;
    if (m_themeComponent)
        m_themeComponent->disconnect(this);
    m_themeComponent = component;
    if (m_themeComponent) {
        connect(m_themeComponent, &QQmlComponent::statusChanged, this, &ThemeSelector::installTheme);
        installTheme();
    }
    Q_EMIT themeComponentChanged();
}

void ThemeSelector::installTheme()
{
    if (m_themeComponent->isError())
        qCWarning(styleLog).noquote() << "WARN:" << m_themeComponent->errorString();
    if (!m_themeComponent->isReady())
        return;

    QQmlEngine *engine = m_themeComponent->engine();
    QObject *theme = m_themeComponent->create();
    if (!theme) {
        qCWarning(styleLog).noquote() << "WARN:" << m_themeComponent->errorString();
        return;
    }
    theme->setParent(engine);
    QQmlEngine::setObjectOwnership(theme, QQmlEngine::CppOwnership);
    engine->rootContext()->setContextProperty(QStringLiteral("theme"), theme);

    const auto previous = engine->property(installedTheme).value<QPointer<QObject>>();
    engine->setProperty(installedTheme, QVariant::fromValue(QPointer<QObject>(theme)));
    // Bindings have moved on to the new theme by now, but may be in the middle of reading the old one.
    if (previous)
        previous->deleteLater();
}

} // namespace tamble::client
