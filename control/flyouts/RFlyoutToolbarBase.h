#pragma once

#include "base/ControlExport.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquicktoolbar_p.h>

namespace tamble::client {

class RFlyoutToolbarItemBase;

/// The behaviour of floating tool bars: one stop of the Tab key, and at the most one selected tool if that is wanted.
///
/// Keys: arrows move the focus along the bar, Home and End to its ends.
class TAMBLE_CLIENT_CONTROL_EXPORT RFlyoutToolbarBase : public QQuickToolBar
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFlyoutToolbarBase)
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation NOTIFY orientationChanged FINAL)
    Q_PROPERTY(bool exclusive READ isExclusive WRITE setExclusive NOTIFY exclusiveChanged FINAL)
    /// Where the tools stand.
    Q_PROPERTY(QQuickItem *itemParent MEMBER m_itemParent NOTIFY itemParentChanged FINAL)

public:
    using QQuickToolBar::QQuickToolBar;

    /// Whether the tools stand in a row or, the default, one below the other.
    Qt::Orientation orientation() const { return m_orientation; }
    void setOrientation(Qt::Orientation orientation);
    /// Whether a click that selects a tool deselects the others, and none deselects itself; false by default.
    bool isExclusive() const { return m_isExclusive; }
    void setExclusive(bool exclusive);

    /// Those that can have the focus, from the start of the bar to its end.
    QList<RFlyoutToolbarItemBase *> tools() const;
    /// Where a key moves the focus from `here`; null for keys that move nothing.
    RFlyoutToolbarItemBase *toolAt(const RFlyoutToolbarItemBase *here, int key) const;
    /// Takes the selection from all tools but one.
    void deselectOthers(const RFlyoutToolbarItemBase *selected);

Q_SIGNALS:
    void orientationChanged();
    void exclusiveChanged();
    void itemParentChanged();

protected:
    void componentComplete() override;

private:
    QList<RFlyoutToolbarItemBase *> allTools() const;
    void tellTools();

    QPointer<QQuickItem> m_itemParent;
    Qt::Orientation m_orientation = Qt::Vertical;
    bool m_isExclusive = false;
};

} // namespace tamble::client
