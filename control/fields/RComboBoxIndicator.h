#pragma once

#include "base/ControlExport.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquickrectangle_p.h>

namespace tamble::client {

class RTintedImage;

/// The arrow of a combo box on its ground. It knows its width and how far below the upper edge it stands; in QML, the
/// arrow and its bindings would be a twelfth of a box's memory.
class TAMBLE_CLIENT_CONTROL_EXPORT RComboBoxIndicator : public QQuickRectangle
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RComboBoxIndicator)
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)
    Q_PROPERTY(QColor arrowColor READ arrowColor WRITE setArrowColor NOTIFY arrowColorChanged FINAL)

public:
    explicit RComboBoxIndicator(QQuickItem *parent = nullptr);

    /// Pixels per density-independent unit; nothing shows at 0, the default.
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);
    /// Black by default.
    QColor arrowColor() const;
    void setArrowColor(const QColor &color);

Q_SIGNALS:
    void unitChanged();
    void arrowColorChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    RTintedImage *m_arrow; // a child
    qreal m_unit = 0.0;
};

} // namespace tamble::client
