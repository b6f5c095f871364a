#pragma once

#include "base/ControlExport.h"

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Item that goes with another one, its target. Below a sibling of the same z it is stacked directly below that one,
/// whichever was declared first: a lower z would put it below what their parent paints as well.
class TAMBLE_CLIENT_CONTROL_EXPORT RUnderlay : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RUnderlay)
    Q_PROPERTY(QQuickItem *target READ target WRITE setTarget NOTIFY targetChanged FINAL)

public:
    explicit RUnderlay(QQuickItem *parent = nullptr);
    ~RUnderlay() override;

    /// A sibling, or the parent; null by default.
    QQuickItem *target() const { return m_target; }
    void setTarget(QQuickItem *target);

Q_SIGNALS:
    void targetChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void stack();

    QPointer<QQuickItem> m_target;
};

} // namespace tamble::client
