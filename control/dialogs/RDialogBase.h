#pragma once

#include "base/ControlExport.h"
#include "base/PopupOrigin.h"
#include "dialogs/DialogButtons.h"
#include "dialogs/DialogColors.h"
#include "dialogs/DialogFrame.h"
#include "dialogs/DialogPlace.h"
#include "dialogs/RDialogBody.h"

#include <QtCore/QPointer>
#include <QtGui/QColor>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickdialog_p.h>
#include <QtQuickTemplates2/private/qquickdialogbuttonbox_p.h>

#include <cstddef>

namespace tamble::client {

/// Dialog whose parts are made when it first opens, in the middle of its window. It accepts when no field in it holds
/// an unacceptable text, and gives the keyboard focus back.
///
/// Keys: Enter presses the default button, but where something is typed and not entered it enters that first; Esc
/// rejects, Tab stays inside; arrows, PageUp, PageDown, Home and End scroll where nothing else needs them.
class TAMBLE_CLIENT_CONTROL_EXPORT RDialogBase : public QQuickDialog
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RDialogBase)
    Q_CLASSINFO("DefaultProperty", "content")
    Q_CLASSINFO("DeferredPropertyNames", "background,contentItem,content,buttons")
    /// What the page puts into the dialog.
    Q_PROPERTY(QQmlListProperty<QObject> content READ content FINAL)
    /// Further buttons, which stand apart from the standard ones.
    Q_PROPERTY(QQmlListProperty<QQuickItem> buttons READ buttons FINAL)
    /// Icon in front of the title; none by default.
    Q_PROPERTY(QString iconKey MEMBER m_iconKey NOTIFY iconKeyChanged FINAL)
    Q_PROPERTY(int defaultButton READ defaultButton WRITE setDefaultButton NOTIFY defaultButtonChanged FINAL)
    /// Whether the dialog waits: it takes no input and Esc does nothing. False by default.
    Q_PROPERTY(bool busy MEMBER m_isBusy NOTIFY busyChanged FINAL)
    /// Whether Esc and a button in the header reject; true by default.
    Q_PROPERTY(bool closable MEMBER m_isClosable NOTIFY closableChanged FINAL)
    /// Whether the header drags the dialog about its window; true by default. It opens in the middle again.
    Q_PROPERTY(bool movable MEMBER m_isMovable NOTIFY movableChanged FINAL)
    /// Has the keyboard focus when the dialog opens; null, the default, for the first field.
    Q_PROPERTY(QQuickItem *initialFocus MEMBER m_initialFocus NOTIFY initialFocusChanged FINAL)
    Q_PROPERTY(qreal maximumWidth READ maximumWidth NOTIFY maximumSizeChanged FINAL)
    Q_PROPERTY(qreal maximumHeight READ maximumHeight NOTIFY maximumSizeChanged FINAL)
    Q_PROPERTY(tamble::client::RDialogBody *body READ body CONSTANT FINAL)
    /// Of the style: what is behind everything and its border, `ssBackground` and `ssBorderColor`, and the header with
    /// its text, `ssHeaderBackground` and `ssHeaderColor`. Transparent until the dialog first opens.
    Q_PROPERTY(QColor ssBackground READ ssBackground WRITE setSsBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssBorderColor READ ssBorderColor WRITE setSsBorderColor NOTIFY ssBorderColorChanged)
    Q_PROPERTY(
        QColor ssHeaderBackground READ ssHeaderBackground WRITE setSsHeaderBackground NOTIFY ssHeaderBackgroundChanged)
    Q_PROPERTY(QColor ssHeaderColor READ ssHeaderColor WRITE setSsHeaderColor NOTIFY ssHeaderColorChanged)

public:
    explicit RDialogBase(QObject *parent = nullptr);
    ~RDialogBase() override;

    QQmlListProperty<QObject> content();
    QQmlListProperty<QQuickItem> buttons();
    /// The standard button that Enter presses, such as `T.Dialog.Ok`; 0, the default, for Ok or else the first one that
    /// accepts.
    int defaultButton() const { return m_defaultButton; }
    void setDefaultButton(int button);
    QString iconKey() const { return m_iconKey; }
    bool isBusy() const { return m_isBusy; }
    bool isClosable() const { return m_isClosable; }
    /// Most of the window that the dialog takes, in pixels (`maximumWidth`, `maximumHeight`): nine tenths.
    qreal maximumWidth() const { return m_place.maximumSize().width(); }
    qreal maximumHeight() const { return m_place.maximumSize().height(); }
    /// The item around `content`, to which that adds what it needs.
    RDialogBody *body();

    QColor ssBackground() const { return m_colors.color(DialogColors::Background); }
    void setSsBackground(const QColor &color) { m_colors.setColor(DialogColors::Background, color); }
    QColor ssBorderColor() const { return m_colors.color(DialogColors::Border); }
    void setSsBorderColor(const QColor &color) { m_colors.setColor(DialogColors::Border, color); }
    QColor ssHeaderBackground() const { return m_colors.color(DialogColors::HeaderBackground); }
    void setSsHeaderBackground(const QColor &color) { m_colors.setColor(DialogColors::HeaderBackground, color); }
    QColor ssHeaderColor() const { return m_colors.color(DialogColors::HeaderText); }
    void setSsHeaderColor(const QColor &color) { m_colors.setColor(DialogColors::HeaderText, color); }

    /// The button with this flag, once the dialog has been open; null for none.
    Q_INVOKABLE QQuickAbstractButton *standardButton(QPlatformDialogHelper::StandardButton button) const;

    /// The header begins to drag the dialog (`beginMove`), and has come so far, in pixels (`moveBy`).
    Q_INVOKABLE void beginMove() { m_place.beginMove(); }
    Q_INVOKABLE void moveBy(QPointF distance);

    void setVisible(bool visible) override;
    /// Accepts when all that is typed can be entered; else the first field that cannot gets the focus.
    void accept() override;

Q_SIGNALS:
    void iconKeyChanged();
    void defaultButtonChanged();
    void busyChanged();
    void closableChanged();
    void movableChanged();
    void initialFocusChanged();
    void maximumSizeChanged();
    void ssBackgroundChanged();
    void ssBorderColorChanged();
    void ssHeaderBackgroundChanged();
    void ssHeaderColorChanged();
    /// The user has pressed the standard button with this flag; sent before what follows from it.
    void buttonClicked(int button);

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    void tellColors(std::size_t begin, std::size_t end);

    void onAboutToShow();
    void onVisibleChanged();
    void make();
    void refresh();
    void placeFocus();
    void onFocusMoved();
    bool enterFields();
    void onButtonClicked(QQuickAbstractButton *button);
    void press(QPlatformDialogHelper::ButtonRole role);

    PopupOrigin m_origin;
    QString m_iconKey;
    QPointer<QQuickItem> m_initialFocus;
    DialogPlace m_place;
    DialogButtons m_buttons;
    QPointer<RDialogBody> m_body;  ///< A child, made when the first thing is put into it.
    QPointer<DialogFrame> m_frame; ///< Made when the dialog first opens.
    DialogColors m_colors;
    int m_defaultButton = 0;
    bool m_isBusy = false;
    bool m_isClosable = true;
    bool m_isMovable = true;
    bool m_isEnterDown = false; ///< Enter was pressed here, for the default button.
};

} // namespace tamble::client
