#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariantMap>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickWindow>

namespace tamble::client {

class MessageBoxQueue;

/// Question from code, for pages without a dialog of their own. It does not block: the answer comes as a signal. What
/// is changed while the box is shown counts when it is next opened.
///
/// `standardButtons` and `defaultButton` take the button flags of a QML dialog. Each window shows one box at a time;
/// others wait. A box whose window goes is rejected.
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
    /// Text that is shown on demand only, and can be copied.
    Q_PROPERTY(QString detailedText MEMBER m_detailedText NOTIFY detailedTextChanged)
    /// Kind of the message, which chooses the icon.
    Q_PROPERTY(Icon icon MEMBER m_icon NOTIFY iconChanged)
    /// Flags of the buttons, as of a QML dialog; Ok by default.
    Q_PROPERTY(int standardButtons MEMBER m_standardButtons NOTIFY standardButtonsChanged)
    /// Flag of the button that Enter presses; 0, the default, for the one that accepts. A warning or worse that can be
    /// rejected has the button that rejects.
    Q_PROPERTY(int defaultButton MEMBER m_defaultButton NOTIFY defaultButtonChanged)
    /// Window that the box is shown in; null, the default, for the active application window.
    Q_PROPERTY(QQuickWindow *window MEMBER m_window NOTIFY windowChanged)
    /// Name under which an answer is kept for the process, so that the question is not asked again; empty, the default,
    /// for none.
    Q_PROPERTY(QString dontAskKey MEMBER m_dontAskKey NOTIFY dontAskKeyChanged)
    /// Text of the check box that keeps the answer, which only a box with a `dontAskKey` has.
    Q_PROPERTY(QString dontAskText READ dontAskText WRITE setDontAskText NOTIFY dontAskTextChanged)
    /// Whether the box is shown; false while it waits for others.
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
    ~RMessageBox() override;

    QString dontAskText() const;
    void setDontAskText(const QString &text);
    bool opened() const { return m_opened; }

    /// Shows the box as soon as its window shows no other one. An answer that was kept is given again at once; without
    /// a window the texts are logged and the box is rejected.
    Q_INVOKABLE void open();
    /// Takes the box away without an answer.
    Q_INVOKABLE void close();

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
    /// The button with this flag was pressed; sent before `accepted` and `rejected`.
    void buttonClicked(int button);
    /// The box is gone; sent last, however it went.
    void closed();

private:
    friend class MessageBoxQueue;

    QQuickWindow *usedWindow() const;
    int usedDefaultButton() const;
    QVariantMap dialogProperties() const;
    void setOpened(bool opened);
    void conclude(int button, bool isKept);

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
    QPointer<MessageBoxQueue> m_queue; ///< Where it is shown or waits.
    bool m_opened = false;
    bool m_isConcluding = false; ///< The answer is being told.
};

} // namespace tamble::client
