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
    RDialogBase *dialog() const { return m_dialog; }
    void setDialog(RDialogBase &dialog) { m_dialog = &dialog; }
    /// What shows the title.
    QQuickText *words() const { return m_words; }
    void setWords(QQuickText *words);

    /// Shows what the dialog is like now; `unit` is in pixels.
    void refresh(qreal unit);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override { setKeepMouseGrab(false); }

private:
    void showParts();

    RDialogBase *m_dialog = nullptr;      // which it is a part of
    QPointer<QQuickText> m_words;         // these three are children
    QQuickItem *m_icon = nullptr;
    QQuickItem *m_closeButton = nullptr;
    QPointF m_pressed;                    // in the scene
};

} // namespace tamble::client
