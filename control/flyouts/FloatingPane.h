#pragma once

#include "controls/TitledPane.h"
#include "flyouts/FlyoutPlace.h"

#include <QtQuick/QQuickItem>

#include <optional>

class QKeyEvent;

namespace tamble::client {

/// Pane that floats above a page, and where it stands there: in the middle of its layer or beside what it was opened
/// for, until the page or the user gives it a place. It snaps, docks at edges and remembers its place.
class TAMBLE_CLIENT_CONTROL_EXPORT FloatingPane : public tamble::client::TitledPane
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged FINAL)
    Q_PROPERTY(bool movable READ isMovable WRITE setMovable NOTIFY movableChanged FINAL)
    /// Whether the user can give it another size, at its bottom right corner; false by default.
    Q_PROPERTY(bool resizable MEMBER m_isResizable NOTIFY resizableChanged FINAL)
    /// Whether it snaps to edges of the layer and to other flyouts, 8 density-independent units away; true by default.
    Q_PROPERTY(bool snapToEdges MEMBER m_snapsToEdges NOTIFY snapToEdgesChanged FINAL)
    /// Name under which its place is kept for the process; empty, the default, for none.
    Q_PROPERTY(QString rememberKey MEMBER m_rememberKey NOTIFY rememberKeyChanged FINAL)
    /// Pixels per density-independent unit.
    Q_PROPERTY(qreal unit MEMBER m_unit NOTIFY unitChanged FINAL)
    Q_PROPERTY(QSizeF layerSize READ layerSize NOTIFY layerSizeChanged FINAL)

public:
    explicit FloatingPane(QQuickItem *parent = nullptr);
    ~FloatingPane() override;

    /// Whether it is open.
    bool isShown() const { return m_isShown; }
    /// Whether the user can move it, by its header or by keys; true by default.
    bool isMovable() const { return m_isMovable; }
    void setMovable(bool movable);
    /// Size of the layer in pixels; empty without a parent.
    QSizeF layerSize() const;

    /// Puts it above all others in its layer.
    Q_INVOKABLE void raise();

    /// Those that are open in a layer, the topmost last.
    static QList<FloatingPane *> shownIn(const QQuickItem &layer);

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
    void movableChanged();
    void resizableChanged();
    void snapToEdgesChanged();
    void rememberKeyChanged();
    void unitChanged();
    void layerSizeChanged();
    /// The user has moved it to `position`, in pixels of the layer.
    void movedByUser(const QPointF &position);
    /// The user has given it another size.
    void resizedByUser(const QSizeF &newSize);

protected:
    /// The layer, which is the parent; null for none.
    QQuickItem *layer() const { return m_layer; }
    /// Goes to the layer of the nearest screen; false where there is neither that nor a parent.
    bool enterLayer();
    /// Goes back to its remembered place, if any. Without one, and until it is moved, it stands beside `opener`.
    void recall(QQuickItem *opener = nullptr, Qt::Edge edge = Qt::RightEdge);
    /// Whether it takes part in the layer; false when that is nothing new. The caller makes it visible, or hides it.
    bool setShown(bool shown);
    /// Puts it where it belongs.
    void arrange();
    /// Moves it if the key means that.
    bool moveByKey(const QKeyEvent &event);

    void collapsedChange() override { arrange(); }
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void followLayer();
    int freeStep() const;
    void remember() const;
    void moveTo(const FlyoutPlace &place);
    QPointF firstPlace() const;
    QSizeF shownSize() const;
    QList<QRectF> neighbours() const;
    qreal reach() const;

    QString m_rememberKey;
    Arrangement m_arrangement;
    QSizeF m_ownSize; ///< Before the user gave it another; not positive where that of the content counts.
    std::optional<QPointF> m_pagePlace; ///< Where the page has put it since the user did.
    QPointer<QQuickItem> m_opener;      ///< What it stands beside until it is moved.
    QPointer<QQuickItem> m_layer;
    qreal m_unit = 1.0;
    Qt::Edge m_openerEdge = Qt::RightEdge;
    int m_step = 0; ///< How many headers off the middle, so that flyouts do not cover each other.
    bool m_isShown = false;
    bool m_isMovable = true;
    bool m_isResizable = false;
    bool m_snapsToEdges = true;
    bool m_isArranging = false;
};

} // namespace tamble::client
