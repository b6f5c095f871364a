#pragma once

#include "dialogs/DialogFooter.h"
#include "dialogs/DialogHeader.h"

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquickflickable_p.h>
#include <QtQuick/private/qquickitemchangelistener_p.h>
#include <QtQuick/private/qquickrectangle_p.h>

namespace tamble::client {

class RDialogBase;
class RDialogBody;

/// What a dialog shows: its header, the body, which scrolls where it has no room, and its buttons. Laid out natively:
/// the bindings for it would take longer than all that is in it.
class DialogFrame : public QQuickRectangle, private QQuickItemChangeListener
{
    Q_OBJECT
    Q_MOC_INCLUDE("dialogs/RDialogBase.h")
    QML_NAMED_ELEMENT(RDialogFrameBase)
    Q_PROPERTY(tamble::client::RDialogBase *dialog READ dialog WRITE setDialog REQUIRED FINAL)
    /// The part above the body, set once.
    Q_PROPERTY(tamble::client::DialogHeader *header READ header WRITE setHeader FINAL)
    /// The part below the body, set once.
    Q_PROPERTY(tamble::client::DialogFooter *footer READ footer WRITE setFooter FINAL)
    Q_PROPERTY(QQuickItem *view READ view CONSTANT FINAL)
    Q_PROPERTY(qreal unit READ unit WRITE setUnit FINAL)

public:
    explicit DialogFrame(QQuickItem *parent = nullptr);
    ~DialogFrame() override;

    /// The dialog that is shown.
    RDialogBase *dialog() const;
    void setDialog(RDialogBase *dialog);
    DialogHeader *header() const { return m_header; }
    void setHeader(DialogHeader *header);
    DialogFooter *footer() const { return m_footer; }
    void setFooter(DialogFooter *footer);
    /// Where the body is seen.
    QQuickItem *view() const { return m_view; }
    /// Pixels per density-independent unit.
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);

    /// Once, for the dialog's whole life.
    void setBody(RDialogBody &body);
    /// Shows what the dialog is like now.
    void refresh();
    /// Scrolls the body until this area of it is in view.
    void bringIntoView(const QRectF &area);
    /// Scrolls the body so many lines down.
    void scrollBy(qreal lines);

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void itemImplicitWidthChanged(QQuickItem *item) override;
    void itemImplicitHeightChanged(QQuickItem *) override { measure(); }
    void listen(bool on);
    bool isWhole() const;
    qreal margin() const;
    qreal lowerMargin() const;
    void measure();
    void layOut();
    void showScrollBars(bool shown);

    QPointer<RDialogBase> m_dialog;
    QPointer<DialogHeader> m_header;
    QPointer<DialogFooter> m_footer;
    QPointer<RDialogBody> m_body;
    QQuickFlickable *m_view;
    QQuickRectangle *m_border;
    QQuickItem *m_scrollBars = nullptr; // made when there is something to scroll
    QQuickItem *m_veil = nullptr;       // made when the dialog first waits
    qreal m_unit = 1.0;
    bool m_isMakingBars = false;
};

} // namespace tamble::client
