#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickWindow>

namespace tamble::client {

/// Declared only: nothing follows from its properties yet.
///
/// Question from code, for pages without a dialog of their own.
///
/// `standardButtons` and `defaultButton` take the button flags of a QML dialog. An answer to a box with a `dontAskKey`
/// can be kept for the process. Without a `window` the active application window is used.
class TAMBLE_CLIENT_CONTROL_EXPORT RMessageBox : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMessageBox)
    /// Title of the box.
    Q_PROPERTY(QString title MEMBER m_title NOTIFY titleChanged)
    /// The question or message.
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged)
    /// Smaller text below it.
    Q_PROPERTY(QString informativeText MEMBER m_informativeText NOTIFY informativeTextChanged)
    /// Text that is shown on demand only.
    Q_PROPERTY(QString detailedText MEMBER m_detailedText NOTIFY detailedTextChanged)
    /// Kind of the message, which chooses the icon.
    Q_PROPERTY(Icon icon MEMBER m_icon NOTIFY iconChanged)
    /// Flags of the buttons, as of a QML dialog; Ok by default.
    Q_PROPERTY(int standardButtons MEMBER m_standardButtons NOTIFY standardButtonsChanged)
    /// Flag of the button that Enter presses; 0 leaves the choice to the box.
    Q_PROPERTY(int defaultButton MEMBER m_defaultButton NOTIFY defaultButtonChanged)
    /// Window that the box is shown in; null for the active application window.
    Q_PROPERTY(QQuickWindow *window MEMBER m_window NOTIFY windowChanged)
    /// Name under which an answer is kept for the process; empty for none.
    Q_PROPERTY(QString dontAskKey MEMBER m_dontAskKey NOTIFY dontAskKeyChanged)
    /// Text of the check box that keeps the answer.
    Q_PROPERTY(QString dontAskText MEMBER m_dontAskText NOTIFY dontAskTextChanged)
    /// Whether the box is shown; false at present.
    Q_PROPERTY(bool opened READ opened NOTIFY openedChanged)

public:
    enum Icon : int {
        NoIcon,
        Information,
        Question,
        Warning,
        Critical,
    };
    Q_ENUM(Icon)

    explicit RMessageBox(QObject *parent = nullptr);

    bool opened() const { return m_opened; }

Q_SIGNALS:
    void titleChanged();
    void textChanged();
    void informativeTextChanged();
    void detailedTextChanged();
    void iconChanged();
    void standardButtonsChanged();
    void defaultButtonChanged();
    void windowChanged();
    void dontAskKeyChanged();
    void dontAskTextChanged();
    void openedChanged();
    /// A button of the accepting kind was pressed.
    void accepted();
    /// A button of the rejecting kind was pressed, or the box was dismissed.
    void rejected();
    /// The button with this flag was pressed.
    void buttonClicked(int button);
    /// The box is gone.
    void closed();

private:
    QString m_title;
    QString m_text;
    QString m_informativeText;
    QString m_detailedText;
    Icon m_icon = NoIcon;
    int m_standardButtons = 0x00000400; // Ok
    int m_defaultButton = 0;
    QPointer<QQuickWindow> m_window;
    QString m_dontAskKey;
    QString m_dontAskText;
    bool m_opened = false;
};

} // namespace tamble::client
