#pragma once

#include "base/ControlExport.h"
#include "workspace/WorkspaceBase.h"

#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QUuid>
#include <QtQuick/QQuickItem>

namespace tamble::client {

class RMouseDetection;

/// Document page around a workspace, the first one among its descendants.
///
/// `modified` becomes true by itself when items of the workspace were moved or got another size.
class TAMBLE_CLIENT_CONTROL_EXPORT WorksheetBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorksheetBase)
    /// Identity of the page; a new random one by default.
    Q_PROPERTY(QUuid sheetId MEMBER m_sheetId NOTIFY sheetIdChanged)
    /// Title of the page.
    Q_PROPERTY(QString title MEMBER m_title NOTIFY titleChanged)
    /// Whether there are changes that are not stored.
    Q_PROPERTY(bool modified MEMBER m_modified NOTIFY modifiedChanged)
    /// Whether the page can be looked at only; the workspace then is `readOnly`, too.
    Q_PROPERTY(bool readOnly READ readOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    /// Whether the page is the one in front.
    Q_PROPERTY(bool active MEMBER m_active NOTIFY activeChanged)
    /// The workspace in the page; null for none.
    Q_PROPERTY(tamble::client::WorkspaceBase *workspace READ workspace NOTIFY workspaceChanged)
    /// Whether the pointer is over the page.
    Q_PROPERTY(bool pointerInside READ pointerInside NOTIFY pointerInsideChanged)
    /// Place of the pointer, in plane units or, without a workspace, in pixels.
    Q_PROPERTY(QPointF pointerPosition READ pointerPosition NOTIFY pointerPositionChanged)

public:
    explicit WorksheetBase(QQuickItem *parent = nullptr);
    ~WorksheetBase() override;

    bool readOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
    WorkspaceBase *workspace() const { return m_workspace; }
    bool pointerInside() const;
    QPointF pointerPosition() const;

    /// The changes are stored: `modified` becomes false.
    Q_INVOKABLE void markSaved() { setModified(false); }
    /// There is a change: `modified` becomes true.
    Q_INVOKABLE void markModified() { setModified(true); }

Q_SIGNALS:
    void sheetIdChanged();
    void titleChanged();
    void modifiedChanged();
    void readOnlyChanged();
    void activeChanged();
    void workspaceChanged();
    void pointerInsideChanged();
    void pointerPositionChanged();
    /// The user has entered a title.
    void titleEdited(const QString &title);

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    friend class WorkspaceBase;

    void setModified(bool modified);
    void seekWorkspace();

    QUuid m_sheetId = QUuid::createUuid();
    QString m_title;
    bool m_modified = false;
    bool m_readOnly = false;
    bool m_active = false;
    QPointer<WorkspaceBase> m_workspace;
    RMouseDetection *m_detection; // a child: what is on the page keeps hover events to itself
};

} // namespace tamble::client
