#pragma once

#include "controls/TitledPane.h"
#include "flyouts/FlyoutPlace.h"

#include <QtQml/QQmlComponent>
#include <QtQuick/QQuickWindow>

#include <optional>

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
class TAMBLE_CLIENT_CONTROL_EXPORT RFlyoutWindowBase : public tamble::client::TitledPane
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFlyoutWindowBase)
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged FINAL)
    /// Whether the user can close it, by Esc or by a button in the header; true by default.
    Q_PROPERTY(bool closable MEMBER m_isClosable NOTIFY closableChanged FINAL)
    Q_PROPERTY(bool movable READ isMovable WRITE setMovable NOTIFY movableChanged FINAL)
    /// Whether the user can give it another size, at its bottom right corner; false by default.
    Q_PROPERTY(bool resizable MEMBER m_isResizable NOTIFY resizableChanged FINAL)
    Q_PROPERTY(bool pinned READ isPinned WRITE setPinned NOTIFY pinnedChanged FINAL)
    /// Name of a group of which one flyout at a time is open, unless they are pinned; empty, the default, for none.
    Q_PROPERTY(QString group MEMBER m_group NOTIFY groupChanged FINAL)
    /// Whether it snaps to edges of the layer and to other flyouts, 8 density-independent units away; true by default.
    Q_PROPERTY(bool snapToEdges MEMBER m_snapsToEdges NOTIFY snapToEdgesChanged FINAL)
    /// Name under which its place is kept for the process; empty, the default, for none.
    Q_PROPERTY(QString rememberKey MEMBER m_rememberKey NOTIFY rememberKeyChanged FINAL)
    Q_PROPERTY(QQmlComponent *contentComponent READ contentComponent WRITE setContentComponent NOTIFY
                   contentComponentChanged FINAL)
    /// Where the content stands.
    Q_PROPERTY(QQuickItem *contentParent MEMBER m_contentParent NOTIFY contentParentChanged FINAL)
    /// Pixels per density-independent unit.
    Q_PROPERTY(qreal unit MEMBER m_unit NOTIFY unitChanged FINAL)
    Q_PROPERTY(QSizeF layerSize READ layerSize NOTIFY layerSizeChanged FINAL)

public:
    explicit RFlyoutWindowBase(QQuickItem *parent = nullptr);
    ~RFlyoutWindowBase() override;

    /// Whether it is open.
    bool isShown() const { return m_isShown; }
    /// Whether the user can move it, by its header or by keys; true by default.
    bool isMovable() const { return m_isMovable; }
    void setMovable(bool movable);
    /// Whether it stays when another one of its `group` opens; false by default. The user can pin a flyout in a group.
    bool isPinned() const { return m_isPinned; }
    void setPinned(bool pinned);
    /// Makes content when the flyout is first opened, beside what is declared in it; null by default.
    QQmlComponent *contentComponent() const { return m_contentComponent; }
    void setContentComponent(QQmlComponent *component);
    /// Size of the layer in pixels; empty without a parent.
    QSizeF layerSize() const;

    /// Opens it, or raises one that is open, and gives it the focus.
    Q_INVOKABLE void open();
    /// Likewise, beside `item` at one of its edges. A remembered place, or one that the user has given, counts before.
    Q_INVOKABLE void openAt(QQuickItem *item, Qt::Edge edge);
    /// Closes it and gives the focus back to where it came from.
    Q_INVOKABLE void close();
    /// What the user does with the pin; a binding of the page stays.
    Q_INVOKABLE void togglePin() { setPinned(!m_isPinned); }
    /// Puts it above all others in its layer.
    Q_INVOKABLE void raise();

    /// Those that are open in a layer, the topmost last.
    static QList<RFlyoutWindowBase *> shownIn(const QQuickItem &layer);
    /// Raises the lowest one without the focus, and gives that to it; false when there is none.
    static bool focusNext(const QQuickItem &layer);

    /// A drag leads to `position`, in pixels of the layer; and it is over.
    void dragTo(const QPointF &position);
    void endMove();
    /// Likewise for a drag that changes the size.
    void dragTo(const QSizeF &size);
    void endResize();

    /// What a drag that is cancelled goes back to.
    struct Arrangement
    {
        FlyoutPlace place;
        std::optional<QSizeF> givenSize; ///< By the user.
        bool isPlaced = false;           ///< By the user.
    };
    const Arrangement &arrangement() const { return m_arrangement; }
    void setArrangement(const Arrangement &arrangement);

Q_SIGNALS:
    void shownChanged();
    void closableChanged();
    void movableChanged();
    void resizableChanged();
    void pinnedChanged();
    void groupChanged();
    void snapToEdgesChanged();
    void rememberKeyChanged();
    void contentComponentChanged();
    void contentParentChanged();
    void unitChanged();
    void layerSizeChanged();
    /// It has been opened (`flyoutOpened`) or closed (`flyoutClosed`).
    void flyoutOpened();
    void flyoutClosed();
    /// The user has moved it to `position`, in pixels of the layer.
    void movedByUser(const QPointF &position);
    /// The user has given it another size.
    void resizedByUser(const QSizeF &newSize);

protected:
    Part headerPart() const override { return Part::FlyoutHeader; }
    bool wantsHeader() const override { return m_isShown || TitledPane::wantsHeader(); }

    void collapsedChange() override { arrange(); }
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    bool childMouseEventFilter(QQuickItem *child, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool enterLayer();
    void followLayer();
    void followFocus(QQuickWindow *window);
    void revealFocus();
    void show();
    void closeGroup();
    void makeContent();
    void takeFocus(Qt::FocusReason reason);
    void giveFocusBack();
    int freeStep() const;
    void recall();
    void remember() const;
    void arrange();
    QPointF firstPlace() const;
    bool moveByKey(const QKeyEvent &event);
    QSizeF shownSize() const;
    QList<QRectF> neighbours() const;
    qreal reach() const;

    QString m_group;
    QString m_rememberKey;
    Arrangement m_arrangement;
    QSizeF m_ownSize; ///< Before the user gave it another; not positive where that of the content counts.
    std::optional<QPointF> m_pagePlace; ///< Where the page has put it since the user did.
    QPointer<QQuickItem> m_opener;      ///< What it stands beside until it is moved.
    Qt::Edge m_openerEdge = Qt::RightEdge;
    QPointer<QQuickItem> m_formerFocus; ///< Gets the focus back.
    QPointer<QQuickWindow> m_window;    ///< Whose focus is followed.
    QPointer<QQuickItem> m_layer;
    QPointer<QQmlComponent> m_contentComponent;
    QPointer<QObject> m_madeContent;
    QPointer<QQuickItem> m_contentParent;
    qreal m_unit = 1.0;
    int m_step = 0; ///< How many headers off the middle, so that flyouts do not cover each other.
    bool m_isShown = false;
    bool m_isClosable = true;
    bool m_isMovable = true;
    bool m_isResizable = false;
    bool m_isPinned = false;
    bool m_snapsToEdges = true;
    bool m_isArranging = false;
};

} // namespace tamble::client
