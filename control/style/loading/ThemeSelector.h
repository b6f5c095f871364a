#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQml/QQmlComponent>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Creates the theme object and puts it into the engine's root context as `theme`.
///
/// The theme belongs to the engine: controls read it until the last of them is gone, whatever becomes of the selector.
/// It goes when any selector of the engine installs another.
class TAMBLE_CLIENT_CONTROL_EXPORT ThemeSelector : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RThemeSelector)
    /// Makes the theme object; a new one is installed as soon as the component is ready, one with errors is logged.
    Q_PROPERTY(QQmlComponent *themeComponent READ themeComponent WRITE setThemeComponent NOTIFY themeComponentChanged)

public:
    explicit ThemeSelector(QObject *parent = nullptr);

    QQmlComponent *themeComponent() const { return m_themeComponent; }
    /// Installs a new theme as soon as the component is ready; one with errors is logged and changes nothing.
    void setThemeComponent(QQmlComponent *component);

Q_SIGNALS:
    void themeComponentChanged();

private:
    void installTheme();

    QPointer<QQmlComponent> m_themeComponent;
};

} // namespace tamble::client
