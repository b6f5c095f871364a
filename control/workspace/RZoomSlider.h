#pragma once

#include "base/ControlExport.h"
#include "workspace/WorkspaceBase.h"

#include <QtCore/QPointer>
#include <QtQuickTemplates2/private/qquickslider_p.h>

namespace tamble::client {

/// Slider that follows and sets the zoom of a workspace about the middle of its view. Its way is logarithmic, with a
/// detent at 100 % for the pointer.
///
/// Keys: the arrows zoom by a step, Home and End to the limits.
class TAMBLE_CLIENT_CONTROL_EXPORT RZoomSlider : public QQuickSlider
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RZoomSlider)
    Q_PROPERTY(tamble::client::WorkspaceBase *workspace READ workspace WRITE setWorkspace NOTIFY workspaceChanged FINAL)
    Q_PROPERTY(int percent READ percent NOTIFY percentChanged FINAL)

public:
    explicit RZoomSlider(QQuickItem *parent = nullptr);

    /// The workspace; null, the default, for none.
    WorkspaceBase *workspace() const { return m_workspace; }
    void setWorkspace(WorkspaceBase *workspace);
    /// The zoom in whole percent; 100 without a workspace.
    int percent() const;

    /// Zooms in (1) or out (-1) by a step.
    Q_INVOKABLE void step(int direction);
    /// Zooms to a factor.
    Q_INVOKABLE void zoomTo(double factor);
    /// An assistive tool wants another value.
    Q_INVOKABLE void requestValue(const QVariant &value);

Q_SIGNALS:
    void workspaceChanged();
    void percentChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void follow();
    void onMoved();
    void onWorkspaceGone();

    QPointer<WorkspaceBase> m_workspace;
};

} // namespace tamble::client
