#pragma once

#include "base/ControlExport.h"

#include <QtCore/QPointer>
#include <QtCore/QSizeF>
#include <QtGui/QScreen>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

namespace tamble::client {

/// Page of a client that knows the screen its window is on.
///
/// Densities are in dots per inch, `screenSize` in device-independent pixels. Without a window they are 96, with a
/// pixel ratio of 1 and an empty size. `autoZoomFactor` is what `designDpi` (default 96) makes of the screen, and 1
/// without a window; applying it, while `autoZoom` is set, is the component's part.
class TAMBLE_CLIENT_CONTROL_EXPORT RScreen : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RScreenTemplate)
    /// Logical density of the screen in dots per inch.
    Q_PROPERTY(qreal logicalDpi READ logicalDpi NOTIFY logicalDpiChanged)
    /// Physical density of the screen in dots per inch.
    Q_PROPERTY(qreal physicalDpi READ physicalDpi NOTIFY physicalDpiChanged)
    /// Physical pixels per device-independent one.
    Q_PROPERTY(qreal devicePixelRatio READ devicePixelRatio NOTIFY devicePixelRatioChanged)
    /// Size of the screen in device-independent pixels.
    Q_PROPERTY(QSizeF screenSize READ screenSize NOTIFY screenSizeChanged)
    /// How the screen is turned.
    Q_PROPERTY(Qt::ScreenOrientation orientation READ orientation NOTIFY orientationChanged)
    /// Factor that gives a design for `designDpi` its size on this screen: in steps of 0.05, 0.5 to 3.
    Q_PROPERTY(qreal autoZoomFactor READ autoZoomFactor NOTIFY autoZoomFactorChanged)
    /// Density in dots per inch that the page was designed for.
    Q_PROPERTY(qreal designDpi READ designDpi WRITE setDesignDpi NOTIFY designDpiChanged)
    /// Whether the component applies `autoZoomFactor`.
    Q_PROPERTY(bool autoZoom MEMBER m_autoZoom NOTIFY autoZoomChanged)

public:
    explicit RScreen(QQuickItem *parent = nullptr);

    qreal logicalDpi() const { return m_facts.logicalDpi; }
    qreal physicalDpi() const { return m_facts.physicalDpi; }
    qreal devicePixelRatio() const { return m_facts.devicePixelRatio; }
    QSizeF screenSize() const { return m_facts.size; }
    Qt::ScreenOrientation orientation() const { return m_facts.orientation; }
    qreal autoZoomFactor() const { return m_facts.autoZoomFactor; }
    qreal designDpi() const { return m_designDpi; }
    void setDesignDpi(qreal dpi);

Q_SIGNALS:
    void logicalDpiChanged();
    void physicalDpiChanged();
    void devicePixelRatioChanged();
    void screenSizeChanged();
    void orientationChanged();
    void autoZoomFactorChanged();
    void designDpiChanged();
    void autoZoomChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    struct Facts
    {
        qreal logicalDpi = 96.0;
        qreal physicalDpi = 96.0;
        qreal devicePixelRatio = 1.0;
        QSizeF size{0.0, 0.0};
        Qt::ScreenOrientation orientation = Qt::PrimaryOrientation;
        qreal autoZoomFactor = 1.0;
    };

    void followWindow(QQuickWindow *window);
    void followScreen(QScreen *screen);
    Facts currentFacts() const;
    void updateFacts();

    QPointer<QQuickWindow> m_window;
    QPointer<QScreen> m_screen;
    Facts m_facts;
    qreal m_designDpi = 96.0;
    bool m_autoZoom = false;
};

} // namespace tamble::client
