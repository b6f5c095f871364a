#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "lists/ListKeys.h"
#include "lists/ListLook.h"
#include "lists/ListPresses.h"
#include "lists/SelectableListView.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tamble::client {

/// List whose rows can be selected: by clicks, with Ctrl and Shift, and by keys. The selection follows its rows when
/// the model changes, and rows that leave the model leave the selection.
///
/// A finger's tap selects like a click; where several rows can be selected it toggles its row, since fingers hold no
/// Ctrl. A press on a control inside a row counts as one on the row as well.
///
/// Rows are highlighted behind the delegate. A delegate with a writable `selected` or `hovered` of type bool is told
/// both, so that it can take the colours of texts on the highlight; any other has a frame around selected rows instead.
///
/// Keys: Up, Down, PageUp, PageDown, Home and End move to another row and select it, with Shift from the row where that
/// began, with Ctrl not at all. Space selects the current row, Ctrl+Space toggles it, Ctrl+A selects all rows and Esc
/// none. Enter activates the current row, the Menu key asks for its menu, and letters lead to the row that begins so.
class TAMBLE_CLIENT_CONTROL_EXPORT RListViewBase : public tamble::client::SelectableListView,
                                                   public SpokenControl,
                                                   private QAccessible::ActivationObserver
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RListViewBase)
    Q_PROPERTY(QString textRole READ textRole WRITE setTextRole NOTIFY textRoleChanged FINAL)
    /// What the list is about, for people who cannot see it.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    /// Text shown while there is no row.
    Q_PROPERTY(QString placeholderText MEMBER m_placeholderText NOTIFY placeholderTextChanged FINAL)
    /// Whether letters lead to a row; true by default.
    Q_PROPERTY(bool typeAhead MEMBER m_typeAhead NOTIFY typeAheadChanged FINAL)
    /// Whether the arrows lead from the last row to the first one, and back; false by default.
    Q_PROPERTY(bool loop READ isWrapEnabled WRITE setWrapEnabled NOTIFY keyNavigationWrapsChanged FINAL)
    Q_PROPERTY(bool hoverEnabled READ isHoverEnabled WRITE setHoverEnabled NOTIFY hoverEnabledChanged FINAL)
    /// Whether the list has been drawn. Rows beyond its ends are made from then on, so that a page appears sooner.
    Q_PROPERTY(bool drawn READ isDrawn NOTIFY drawnChanged FINAL)
    /// Of the style: `ssColor` of texts; of the highlight `ssBackgroundItemSelected` and `ssForegroundItemSelected`,
    /// where the pointer is `ssBackgroundItemHover` and `ssForegroundItemHover`.
    Q_PROPERTY(QColor ssColor MEMBER m_ssColor NOTIFY ssColorChanged FINAL)
    Q_PROPERTY(
        QColor ssBackgroundItemSelected MEMBER m_ssBackgroundItemSelected NOTIFY ssBackgroundItemSelectedChanged FINAL)
    Q_PROPERTY(
        QColor ssForegroundItemSelected MEMBER m_ssForegroundItemSelected NOTIFY ssForegroundItemSelectedChanged FINAL)
    Q_PROPERTY(QColor ssBackgroundItemHover MEMBER m_ssBackgroundItemHover NOTIFY ssBackgroundItemHoverChanged FINAL)
    Q_PROPERTY(QColor ssForegroundItemHover MEMBER m_ssForegroundItemHover NOTIFY ssForegroundItemHoverChanged FINAL)

public:
    explicit RListViewBase(QQuickItem *parent = nullptr);
    ~RListViewBase() override;

    /// The role of the model that rows without a delegate show; "display" by default. Of maps and objects it is a
    /// member, and simple values are shown as they are.
    QString textRole() const { return m_textRole; }
    void setTextRole(const QString &role);
    /// Whether the row below the pointer is highlighted.
    bool isHoverEnabled() const { return acceptHoverEvents(); }
    void setHoverEnabled(bool enabled);
    bool isDrawn() const { return m_isDrawn; }

    /// What a row without a delegate shows.
    QString rowText(int row) const { return listRows().text(row, m_textRole); }
    /// The first row from `start` on, going on at the beginning, whose text begins so in either case; -1 for none.
    int rowBeginningWith(const QString &beginning, int start) const;
    bool findsByLetters() const { return m_typeAhead; }
    /// The row at a place in the list's coordinates; -1 for none.
    int rowAt(const QPointF &place);

    /// The user clicks a row, or taps it.
    void click(int row, Qt::KeyboardModifiers modifiers, bool byFinger);
    /// The user asks for the menu of a row, or of none: -1.
    void requestMenu(int row, const QPointF &place);
    /// The user presses Enter, or holds it; false where nobody listens and the key is the dialog's around the list.
    bool activateCurrent(bool isRepeated);
    /// A tool presses a row.
    void press(const QQuickItem &row);

    QAccessible::Role spokenRole() const override { return QAccessible::List; }
    QString spokenName() const override { return m_label.isEmpty() ? m_placeholderText : m_label; }
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void textRoleChanged();
    void labelChanged();
    void placeholderTextChanged();
    void typeAheadChanged();
    void hoverEnabledChanged();
    void drawnChanged();
    void ssColorChanged();
    void ssBackgroundItemSelectedChanged();
    void ssForegroundItemSelectedChanged();
    void ssBackgroundItemHoverChanged();
    void ssForegroundItemHoverChanged();
    /// The user wants to use a row: by Enter, a double click or a double tap.
    void activated(int index);
    /// A right click, a long press or the Menu key, on a row that is then selected, or on none: -1. `position` is in
    /// the list's coordinates.
    void contextMenuRequested(int index, const QPointF &position);

protected:
    void introduceRows() override { m_look.introduceRows(); }
    void showRows() override { m_look.showRows(); }
    void rowsChange(std::span<const RowChange> leaving, std::span<const RowChange> coming) override;
    void rowsReplacement() override;
    void rowsSorting() override;
    void componentComplete() override;
    void initItem(int index, QObject *item) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    bool childMouseEventFilter(QQuickItem *item, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void accessibilityActiveChanged(bool active) override;
    void pointAt(std::optional<QPointF> place);
    void onFrame();

    QString m_textRole = QStringLiteral("display");
    QString m_label;
    QString m_placeholderText;
    QColor m_ssColor;
    QColor m_ssBackgroundItemSelected;
    QColor m_ssForegroundItemSelected;
    QColor m_ssBackgroundItemHover;
    QColor m_ssForegroundItemHover;
    ListLook m_look;
    ListKeys m_keys;
    ListPresses m_presses;
    QMetaObject::Connection m_frames; // of the window, until the list is drawn
    bool m_typeAhead = true;
    bool m_isDrawn = false;
};

} // namespace tamble::client
