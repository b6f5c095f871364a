#pragma once

#include "base/ControlExport.h"
#include "base/PopupOrigin.h"

#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QVariant>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickmenu_p.h>

#include <memory>

namespace tamble::client {

class MenuRows;

/// Menu whose entries come from a list of maps, or are declared in it; plain items of Qt's templates get the look of
/// its rows. Rows are made when the menu is first needed, and the focus goes back to where it was.
///
/// Keys: Up and Down move to the next entry that is enabled, Space and Enter choose it, Right and Left open and close a
/// sub-menu, Esc closes.
class TAMBLE_CLIENT_CONTROL_EXPORT RMenuBase : public QQuickMenu
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMenuBase)
    Q_PROPERTY(QVariant model READ model WRITE setModel NOTIFY modelChanged FINAL)
    Q_PROPERTY(int currentIndexSelected READ currentIndexSelected WRITE setCurrentIndexSelected NOTIFY
                   selectedEntryChanged FINAL)
    Q_PROPERTY(QQuickItem *selectedEntry READ selectedEntry NOTIFY selectedEntryChanged FINAL)
    Q_PROPERTY(qreal minimumWidth READ minimumWidth WRITE setMinimumWidth NOTIFY minimumWidthChanged FINAL)
    /// Whether the menu has a border; false by default.
    Q_PROPERTY(bool borderVisible MEMBER m_isBorderVisible NOTIFY borderVisibleChanged FINAL)
    /// Whether the window has no room below the parent for the menu, but above it.
    Q_PROPERTY(bool opensUpwards MEMBER m_opensUpwards NOTIFY opensUpwardsChanged FINAL)
    Q_PROPERTY(QQuickItem *contextItem READ contextItem NOTIFY contextItemChanged FINAL)
    /// Whether rows keep room for a check mark (`hasChecks`), for an icon (`hasIcons`).
    Q_PROPERTY(bool hasChecks MEMBER m_hasChecks NOTIFY columnsChanged FINAL)
    Q_PROPERTY(bool hasIcons MEMBER m_hasIcons NOTIFY columnsChanged FINAL)
    /// Of the style: `ssBackground` of the menu; of its rows `ssForegroundItem`, `ssBackgroundItem`, and likewise
    /// `ssForegroundItemHover`, `ssBackgroundItemHover` where the pointer or the focus is, `ssForegroundItemSelected`,
    /// `ssBackgroundItemSelected` for the selected one.
    Q_PROPERTY(QColor ssBackground MEMBER m_ssBackground NOTIFY ssBackgroundChanged FINAL)
    Q_PROPERTY(QColor ssForegroundItem MEMBER m_ssForegroundItem NOTIFY ssForegroundItemChanged FINAL)
    Q_PROPERTY(QColor ssForegroundItemHover MEMBER m_ssForegroundItemHover NOTIFY ssForegroundItemHoverChanged FINAL)
    Q_PROPERTY(
        QColor ssForegroundItemSelected MEMBER m_ssForegroundItemSelected NOTIFY ssForegroundItemSelectedChanged FINAL)
    Q_PROPERTY(QColor ssBackgroundItem MEMBER m_ssBackgroundItem NOTIFY ssBackgroundItemChanged FINAL)
    Q_PROPERTY(QColor ssBackgroundItemHover MEMBER m_ssBackgroundItemHover NOTIFY ssBackgroundItemHoverChanged FINAL)
    Q_PROPERTY(
        QColor ssBackgroundItemSelected MEMBER m_ssBackgroundItemSelected NOTIFY ssBackgroundItemSelectedChanged FINAL)

public:
    explicit RMenuBase(QObject *parent = nullptr);
    ~RMenuBase() override;

    /// List of maps with text, iconKey, enabled, checkable, checked, shortcut, separator, items (a list for a sub-menu)
    /// and whatever the page needs. A shortcut is shown only. A list that changes counts at once; a check mark that the
    /// user has changed is the list's again when the menu is next opened.
    QVariant model() const { return m_model; }
    void setModel(const QVariant &model);
    /// Index of the entry that is marked as selected; -1, the default, for none.
    int currentIndexSelected() const { return m_currentIndexSelected; }
    void setCurrentIndexSelected(int index);
    /// The row of that entry, or null.
    QQuickItem *selectedEntry() const { return itemAt(m_currentIndexSelected); }
    /// Least width in pixels.
    qreal minimumWidth() const { return m_minimumWidth; }
    void setMinimumWidth(qreal width);
    /// What the menu was last opened for by popupAt(), or null.
    QQuickItem *contextItem() const { return m_contextItem; }

    /// Opens the menu for `item` beside a point of it that was pressed, which stays uncovered.
    Q_INVOKABLE void popupAt(QQuickItem *item, QPointF pressed);
    /// Opens the menu below `item`, as for a key, with the first entry highlighted.
    Q_INVOKABLE void popupAt(QQuickItem *item);
    /// Likewise below an area of `item`.
    void popupBelow(QQuickItem *item, const QRectF &area);

    /// Makes the rows. The menu around a sub-menu does so as soon as the focus is on that.
    void makeReady();
    /// Gives the focus back to a row that has lost it, if it is the current one.
    void keepFocusOn(QQuickItem *row);
    /// Takes the size that the rows need.
    void measure();

    /// `text` without its mnemonic.
    Q_INVOKABLE static QString plainText(const QString &text);
    /// A key as it is shown; see MenuEntry.
    Q_INVOKABLE static QString shownShortcut(const QVariant &shortcut);

    /// Without entries nothing is shown.
    void setVisible(bool visible) override;

Q_SIGNALS:
    void modelChanged();
    void selectedEntryChanged();
    void minimumWidthChanged();
    void borderVisibleChanged();
    void opensUpwardsChanged();
    void contextItemChanged();
    void columnsChanged();
    void ssBackgroundChanged();
    void ssForegroundItemChanged();
    void ssForegroundItemHoverChanged();
    void ssForegroundItemSelectedChanged();
    void ssBackgroundItemChanged();
    void ssBackgroundItemHoverChanged();
    void ssBackgroundItemSelectedChanged();
    /// The user has chosen an entry of `model`, or of a sub-menu in it: its index in its list, separators counted, and
    /// its map.
    void itemTriggered(int index, const QVariant &item);

private:
    bool prepareFor(QQuickItem *item);
    void openAtScenePoint(const QPointF &point);
    QRectF room() const;
    QSizeF shownSize() const;
    void beforeOpening();
    void onAboutToShow();

    void onCountChanged();
    QString rowText(int index) const;
    void highlight(const QString &text, int likely);

    QVariant m_model;
    std::unique_ptr<MenuRows> m_rows;
    QPointer<QQuickItem> m_contextItem;
    PopupOrigin m_origin;
    QColor m_ssBackground;
    QColor m_ssForegroundItem;
    QColor m_ssForegroundItemHover;
    QColor m_ssForegroundItemSelected;
    QColor m_ssBackgroundItem;
    QColor m_ssBackgroundItemHover;
    QColor m_ssBackgroundItemSelected;
    qreal m_minimumWidth = 0.0;
    int m_currentIndexSelected = -1;
    bool m_isMaking = false; ///< Rows come and go by the menu itself.
    bool m_opensUpwards = false;
    bool m_isBorderVisible = false;
    bool m_hasChecks = false;
    bool m_hasIcons = false;
};

} // namespace tamble::client
