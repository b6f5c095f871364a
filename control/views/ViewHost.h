#pragma once

#include <QtCore/QPointer>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// The place of one view in a container, which it fills. It keeps what has the focus in the view while that is hidden.
class ViewHost : public QQuickItem
{
    Q_OBJECT

public:
    explicit ViewHost(QQuickItem &container);

    /// The view; null once it is destroyed.
    QQuickItem *view() const { return m_view; }
    void setView(QQuickItem *view);

    /// Whether presses, touches and the wheel reach the view; true by default.
    void setReachable(bool reachable);
    /// Whether the view shows blurred, and is not reachable.
    void setBlurred(bool blurred);
    /// Gives the focus to what had it in the view last, or else to what Tab leads to first.
    void focusView(bool isActive);
    void rememberFocus();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    QPointer<QQuickItem> m_view;
    QPointer<QQuickItem> m_formerFocus;
    QPointer<QQuickItem> m_shield; // these two: children, made when first needed
    QPointer<QQuickItem> m_blur;
};

} // namespace tamble::client
