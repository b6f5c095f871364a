#pragma once

#include "base/ControlExport.h"

#include <tamblecommon-math/CalculationItem.h>

#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Common base of what a curve accepts in its `calculationItems`.
///
/// On its own it carries a ready-made filter record from native code. The record stays with whoever set it. Derived
/// types name this base with its namespaces, because tools for QML find it by that text.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotCalculationItem : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotCalculationItem)
    /// Filter record of native code; null for none. Not owned.
    Q_PROPERTY(tamble::common::CalculationItem *item MEMBER m_item NOTIFY itemChanged)

public:
    explicit RBodeplotCalculationItem(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void itemChanged(tamble::common::CalculationItem *value);

private:
    tamble::common::CalculationItem *m_item = nullptr;
};

} // namespace tamble::client
