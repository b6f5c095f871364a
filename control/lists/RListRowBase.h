#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquicktext_p.h>

namespace tamble::client {

class RListViewBase;

/// A row of a list whose page gives it no delegate. The list tells it what it shows.
class TAMBLE_CLIENT_CONTROL_EXPORT RListRowBase : public QQuickText, public SpokenControl
{
    Q_OBJECT
    Q_MOC_INCLUDE("lists/RListViewBase.h")
    QML_NAMED_ELEMENT(RListRowBase)
    Q_PROPERTY(tamble::client::RListViewBase *list READ list NOTIFY listChanged FINAL)
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected NOTIFY selectedChanged FINAL)
    Q_PROPERTY(bool hovered READ isHovered WRITE setHovered NOTIFY hoveredChanged FINAL)

public:
    explicit RListRowBase(QQuickItem *parent = nullptr);

    /// The list, of which this is a row.
    RListViewBase *list() const;
    void setList(RListViewBase *list);
    /// Whether the row is selected.
    bool isSelected() const { return m_isSelected; }
    void setSelected(bool selected);
    /// Whether the pointer is above the row.
    bool isHovered() const { return m_isHovered; }
    void setHovered(bool hovered);

    QAccessible::Role spokenRole() const override { return QAccessible::ListItem; }
    QString spokenName() const override { return text(); }
    void addSpokenStates(QAccessible::State &state) const override;
    bool pressBySpeech() override;

Q_SIGNALS:
    void listChanged();
    void selectedChanged();
    void hoveredChanged();

private:
    QPointer<RListViewBase> m_list;
    bool m_isSelected = false;
    bool m_isHovered = false;
};

} // namespace tamble::client
