#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQml/QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

class QQuickWindow;

namespace tamble::client {

/// Gives the window that it is declared in a palette in the colours of the style sheets, for controls that know
/// palettes only: those of Qt, and Qt's dialogs. What a page sets in the palette itself stays.
class TAMBLE_CLIENT_CONTROL_EXPORT WindowPalette : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_NAMED_ELEMENT(RWindowPalette)

public:
    explicit WindowPalette(QObject *parent = nullptr);

    bool eventFilter(QObject *window, QEvent *event) override;

protected:
    void classBegin() override {}
    void componentComplete() override;

private:
    void apply();

    QPointer<QQuickWindow> m_window;
};

} // namespace tamble::client
