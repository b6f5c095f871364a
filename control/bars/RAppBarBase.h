#pragma once

#include "bars/BarPlan.h"
#include "base/ControlExport.h"
#include "controls/FocusRow.h"

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquicktoolbar_p.h>

namespace tamble::client {

/// Bar of buttons in one or two rows: shares out its room, and leads the keyboard focus through it.
///
/// Keys: the buttons of a row are one stop of the Tab key, which enters it at the selected page. Left and Right move
/// within the row, Home and End to its ends, Down and Up between the rows. What is no button is a stop of its own.
class TAMBLE_CLIENT_CONTROL_EXPORT RAppBarBase : public QQuickToolBar
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAppBarBase)
    /// The rows that hold the parts: `leadingRow`, `navigationRow` and `trailingRow`, which stand side by side, and
    /// `subRow` below them. Each is given once.
    Q_PROPERTY(QQuickItem *leadingRow READ leadingRow WRITE setLeadingRow NOTIFY rowsChanged FINAL REQUIRED)
    Q_PROPERTY(QQuickItem *navigationRow READ navigationRow WRITE setNavigationRow NOTIFY rowsChanged FINAL REQUIRED)
    Q_PROPERTY(QQuickItem *trailingRow READ trailingRow WRITE setTrailingRow NOTIFY rowsChanged FINAL REQUIRED)
    Q_PROPERTY(QQuickItem *subRow READ subRow WRITE setSubRow NOTIFY rowsChanged FINAL REQUIRED)
    /// Pixels per density-independent unit.
    Q_PROPERTY(qreal unit MEMBER m_unit NOTIFY unitChanged FINAL)
    /// Whether the texts of the navigation have no room, so that its buttons show only their icons.
    Q_PROPERTY(bool compact READ isCompact NOTIFY compactChanged FINAL)
    /// Pixels that the navigation has room for.
    Q_PROPERTY(qreal navigationRoom READ navigationRoom NOTIFY navigationRoomChanged FINAL)
    /// Pixels that the first row takes; where that is more than the bar's width, all of it is flicked, but for the end
    /// of the bar where `trailingStays`.
    Q_PROPERTY(qreal wholeWidth READ wholeWidth NOTIFY wholeWidthChanged FINAL)
    Q_PROPERTY(bool trailingStays READ doesTrailingStay NOTIFY trailingStaysChanged FINAL)
    /// Whether the second row has a visible child, and so shows.
    Q_PROPERTY(bool subNavVisible READ isSubNavVisible NOTIFY subNavVisibleChanged FINAL)

public:
    explicit RAppBarBase(QQuickItem *parent = nullptr);
    ~RAppBarBase() override;

    QQuickItem *leadingRow() const { return m_leadingRow; }
    void setLeadingRow(QQuickItem *row) { setRow(m_leadingRow, row); }
    QQuickItem *navigationRow() const { return m_navigationRow; }
    void setNavigationRow(QQuickItem *row) { setRow(m_navigationRow, row); }
    QQuickItem *trailingRow() const { return m_trailingRow; }
    void setTrailingRow(QQuickItem *row) { setRow(m_trailingRow, row); }
    QQuickItem *subRow() const { return m_subRow; }
    void setSubRow(QQuickItem *row) { setRow(m_subRow, row); }
    bool isCompact() const { return m_plan.compact; }
    qreal navigationRoom() const { return m_plan.navigation; }
    qreal wholeWidth() const { return m_plan.whole; }
    bool doesTrailingStay() const { return m_plan.trailingStays; }
    bool isSubNavVisible() const { return m_isSubNavVisible; }

    /// To be called when a part may have another width, or another page is chosen, which is then shown.
    void planAgain() { polish(); }

Q_SIGNALS:
    void rowsChanged();
    void unitChanged();
    void compactChanged();
    void navigationRoomChanged();
    void wholeWidthChanged();
    void trailingStaysChanged();
    void subNavVisibleChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// What has the focus.
    enum class Place { Elsewhere, MainRow, SubRow };

    void setRow(QPointer<QQuickItem> &stored, QQuickItem *row);
    bool hasRows() const { return m_leadingRow && m_navigationRow && m_trailingRow && m_subRow; }
    Place placeOf(const QQuickItem *item) const;
    FocusRow buttonsAt(Place place) const;
    void followFocus();
    void passFocus();
    bool handleKey(const QKeyEvent &event);
    void usePlan(const BarPlan &plan);
    void reveal(const QQuickItem *item);

    QPointer<QQuickItem> m_leadingRow;
    QPointer<QQuickItem> m_navigationRow;
    QPointer<QQuickItem> m_trailingRow;
    QPointer<QQuickItem> m_subRow;
    QMetaObject::Connection m_windowFocus;
    QPointer<QQuickItem> m_focusedButton; // one of the bar's, whose keys are seen first here
    Place m_focusPlace = Place::Elsewhere;
    qreal m_unit = 1.0;
    BarPlan m_plan;
    bool m_isSubNavVisible = false;
};

} // namespace tamble::client
