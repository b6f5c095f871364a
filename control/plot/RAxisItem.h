#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// One tick of a value axis: its place and its text.
class TAMBLE_CLIENT_CONTROL_EXPORT RAxisItem : public QObject
{
    /// Distance of the tick from the top of the axis, in pixels.
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(double y MEMBER m_y NOTIFY yChanged)
    /// The tick's value as text.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged)

public:
    /// `y` is the distance in pixels from the top of the axis.
    RAxisItem(double y, const QString &label, QObject *parent);

Q_SIGNALS:
    void yChanged();
    void labelChanged();

private:
    double m_y;
    QString m_label;
};

} // namespace tamble::client
