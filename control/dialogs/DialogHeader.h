#pragma once

#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquickrectangle_p.h>
#include <QtQuick/private/qquicktext_p.h>

namespace tamble::client {

class RDialogBase;

/// Title of a dialog, by which it is dragged, between an icon and a button that rejects. The latter two are made when
/// the dialog first has them.
class DialogHeader : public QQuickRectangle
{
    Q_OBJECT
    Q_MOC_INCLUDE("dialogs/RDialogBase.h")
    QML_NAMED_ELEMENT(RDialogHeaderBase)
    Q_PROPERTY(tamble::client::RDialogBase *dialog READ dialog CONSTANT FINAL)
    Q_PROPERTY(QQuickText *words READ words WRITE setWords FINAL)

public:
    explicit DialogHeader(QQuickItem *parent = nullptr);

    /// The dialog that it belongs to.
    RDialogBase *dialog() const;
    void setDialog(RDialogBase &dialog);
    /// What shows the title; set once.
    QQuickText *words() const { return m_words; }
    void setWords(QQuickText *words);

    /// Shows what the dialog is like now; `unit` is in pixels.
    void refresh(qreal unit);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void showParts();

    QPointer<RDialogBase> m_dialog;
    QPointer<QQuickText> m_words; // these three are children
    QQuickItem *m_icon = nullptr;
    QQuickItem *m_closeButton = nullptr;
    QPointF m_pressed; // in the scene
};

} // namespace tamble::client
