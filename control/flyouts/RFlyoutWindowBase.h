#pragma once

#include "flyouts/FloatingPane.h"

#include <QtQml/QQmlComponent>
#include <QtQuick/QQuickWindow>

namespace tamble::client {

/// Window inside a page that never keeps the user from the rest of it: floats above the page, snaps, docks at an edge
/// and remembers its place.
///
/// Its layer is that of the nearest RScreen around it, or else its parent. It stands in the middle of the layer or
/// beside what it was opened for, until it is moved or the page gives it a place.
///
/// Keys: Ctrl with an arrow moves it by 8, Ctrl+Shift by 1 density-independent unit; Alt+Up collapses it to its
/// header, Alt+Down shows all of it again; Ctrl+F6 goes to the next flyout. Esc closes, or during a drag goes back to
/// where that began.
class TAMBLE_CLIENT_CONTROL_EXPORT RFlyoutWindowBase : public tamble::client::FloatingPane
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFlyoutWindowBase)
    /// Whether the user can close it, by Esc or by a button in the header; true by default.
    Q_PROPERTY(bool closable MEMBER m_isClosable NOTIFY closableChanged FINAL)
    Q_PROPERTY(bool pinned READ isPinned WRITE setPinned NOTIFY pinnedChanged FINAL)
    /// Name of a group of which one flyout at a time is open, unless they are pinned; empty, the default, for none.
    Q_PROPERTY(QString group MEMBER m_group NOTIFY groupChanged FINAL)
    Q_PROPERTY(QQmlComponent *contentComponent READ contentComponent WRITE setContentComponent NOTIFY
                   contentComponentChanged FINAL)
    /// Where the content stands.
    Q_PROPERTY(QQuickItem *contentParent MEMBER m_contentParent NOTIFY contentParentChanged FINAL)

public:
    explicit RFlyoutWindowBase(QQuickItem *parent = nullptr);
    ~RFlyoutWindowBase() override;

    /// Whether it stays when another one of its `group` opens; false by default. The user can pin a flyout in a group.
    bool isPinned() const { return m_isPinned; }
    void setPinned(bool pinned);
    /// Makes content when the flyout is first opened, beside what is declared in it; null by default.
    QQmlComponent *contentComponent() const { return m_contentComponent; }
    void setContentComponent(QQmlComponent *component);

    /// Opens it, or raises one that is open, and gives it the focus.
    Q_INVOKABLE void open();
    /// Likewise, beside `item` at one of its edges. A remembered place, or one that the user has given, counts before.
    Q_INVOKABLE void openAt(QQuickItem *item, Qt::Edge edge);
    /// Closes it and gives the focus back to where it came from.
    Q_INVOKABLE void close();
    /// What the user does with the pin; a binding of the page stays.
    Q_INVOKABLE void togglePin() { setPinned(!m_isPinned); }

    /// Raises the lowest one without the focus, and gives that to it; false when there is none.
    static bool focusNext(const QQuickItem &layer);

Q_SIGNALS:
    void closableChanged();
    void pinnedChanged();
    void groupChanged();
    void contentComponentChanged();
    void contentParentChanged();
    /// It has been opened (`flyoutOpened`) or closed (`flyoutClosed`).
    void flyoutOpened();
    void flyoutClosed();

protected:
    Part headerPart() const override { return Part::FlyoutHeader; }
    bool wantsHeader() const override { return isShown() || FloatingPane::wantsHeader(); }

    void itemChange(ItemChange change, const ItemChangeData &data) override;
    bool childMouseEventFilter(QQuickItem *child, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void followFocus(QQuickWindow *window);
    void revealFocus();
    void show();
    void closeGroup();
    void makeContent();
    void takeFocus(Qt::FocusReason reason);
    void giveFocusBack();
    bool walkOn(const QKeyEvent &event) const;

    QString m_group;
    QPointer<QQuickItem> m_formerFocus; ///< Gets the focus back.
    QPointer<QQuickWindow> m_window;    ///< Whose focus is followed.
    QPointer<QQmlComponent> m_contentComponent;
    QPointer<QObject> m_madeContent;
    QPointer<QQuickItem> m_contentParent;
    bool m_isClosable = true;
    bool m_isPinned = false;
};

} // namespace tamble::client
