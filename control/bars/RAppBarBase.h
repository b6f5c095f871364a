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
    /// `subRow` below them.
    Q_PROPERTY(QQuickItem *leadingRow MEMBER m_leadingRow NOTIFY rowsChanged FINAL REQUIRED)
    Q_PROPERTY(QQuickItem *navigationRow MEMBER m_navigationRow NOTIFY rowsChanged FINAL REQUIRED)
    Q_PROPERTY(QQuickItem *trailingRow MEMBER m_trailingRow NOTIFY rowsChanged FINAL REQUIRED)
    Q_PROPERTY(QQuickItem *subRow MEMBER m_subRow NOTIFY rowsChanged FINAL REQUIRED)
    /// Pixels per density-independent unit.
    Q_PROPERTY(qreal unit MEMBER m_unit NOTIFY unitChanged FINAL)
    /// Whether the texts of the navigation have no room, so that its buttons show only their icons.
    Q_PROPERTY(bool compact READ isCompact NOTIFY compactChanged FINAL)
    /// Pixels that the navigation has room for.
    Q_PROPERTY(qreal navigationRoom READ navigationRoom NOTIFY navigationRoomChanged FINAL)
    /// Pixels that the first row takes; where that is more than the bar's width, all of it is flicked.
    Q_PROPERTY(qreal wholeWidth READ wholeWidth NOTIFY wholeWidthChanged FINAL)
    /// Whether the second row has a visible child, and so shows.
    Q_PROPERTY(bool subNavVisible READ isSubNavVisible NOTIFY subNavVisibleChanged FINAL)

public:
    explicit RAppBarBase(QQuickItem *parent = nullptr);
    ~RAppBarBase() override;

    bool isCompact() const { return m_plan.compact; }
    qreal navigationRoom() const { return m_plan.navigation; }
    qreal wholeWidth() const { return m_plan.whole; }
    bool isSubNavVisible() const { return m_isSubNavVisible; }

    /// To be called when a part may have another width, or another page is chosen, which is then shown.
    void planAgain() { polish(); }

Q_SIGNALS:
    void rowsChanged();
    void unitChanged();
    void compactChanged();
    void navigationRoomChanged();
    void wholeWidthChanged();
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

    Place placeOf(const QQuickItem *item) const;
    FocusRow buttonsAt(Place place) const;
    void followFocus();
    void passFocus();
    bool handleKey(const QKeyEvent &event);
    void usePlan(const BarPlan &plan);
    void reveal(const QQuickItem *item);

    QQuickItem *m_leadingRow = nullptr;
    QQuickItem *m_navigationRow = nullptr;
    QQuickItem *m_trailingRow = nullptr;
    QQuickItem *m_subRow = nullptr;
    QMetaObject::Connection m_windowFocus;
    QPointer<QQuickItem> m_focusedButton; // one of the bar's, whose keys are seen first here
    Place m_focusPlace = Place::Elsewhere;
    qreal m_unit = 1.0;
    BarPlan m_plan;
    bool m_isSubNavVisible = false;
};

} // namespace tamble::client
