#pragma once

#include "base/ControlExport.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquickrectangle_p.h>

namespace tamble::client {

/// Background of a field: a rectangle with a line along its bottom, and a border while the field has the focus.
class TAMBLE_CLIENT_CONTROL_EXPORT FieldFrame : public QQuickRectangle
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFieldFrame)
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)
    Q_PROPERTY(bool focused READ isFocused WRITE setFocused NOTIFY focusedChanged FINAL)
    Q_PROPERTY(QColor lineColor READ lineColor WRITE setLineColor NOTIFY lineColorChanged FINAL)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged FINAL)

public:
    explicit FieldFrame(QQuickItem *parent = nullptr);

    /// Pixels of one density-independent unit, the thickness of line and border; the line is twice as thick with the
    /// focus.
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);
    /// Whether the field has the focus; false by default.
    bool isFocused() const { return m_isFocused; }
    void setFocused(bool focused);
    /// Colour of the line.
    QColor lineColor() const;
    void setLineColor(const QColor &color);
    /// Colour of the border, which shows with the focus.
    QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color);

Q_SIGNALS:
    void unitChanged();
    void focusedChanged();
    void lineColorChanged();
    void borderColorChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void placeLine();
    void updateBorder();

    QQuickRectangle *m_line; // a child
    QColor m_borderColor = Qt::transparent;
    qreal m_unit = 1.0;
    bool m_isFocused = false;
    bool m_hasPen = false; ///< Whether the border has ever shown.
};

} // namespace tamble::client
