#pragma once

#include "controls/TitledPane.h"

#include <QtQuick/private/qquickrectangle_p.h>

#include <optional>

namespace tamble::client {

class PendingValue;

/// The behaviour of panes: a header where there is a title, which folds the pane if that is wanted.
///
/// Keys: Space and Enter fold a collapsible pane whose header has the focus, and unfold it.
class TAMBLE_CLIENT_CONTROL_EXPORT RPaneBase : public tamble::client::TitledPane
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RPaneBase)
    Q_CLASSINFO("DefaultProperty", "content")
    Q_PROPERTY(QQmlListProperty<QObject> content READ content FINAL)
    Q_PROPERTY(bool collapsible READ isCollapsible WRITE setCollapsible NOTIFY collapsibleChanged FINAL)
    Q_PROPERTY(qreal contentPadding READ contentPadding WRITE setContentPadding RESET resetContentPadding NOTIFY
                   contentPaddingChanged FINAL)
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)
    /// Whether the header is the smaller one of a pane inside a pane.
    Q_PROPERTY(bool nested MEMBER m_isNested NOTIFY nestedChanged FINAL)

public:
    explicit RPaneBase(QQuickItem *parent = nullptr);

    /// The items in the pane.
    QQmlListProperty<QObject> content();
    /// Whether a click on the header turns `collapsed` over, showing the edit for 300 ms before a bound value counts
    /// again; false by default.
    bool isCollapsible() const { return m_isCollapsible; }
    void setCollapsible(bool collapsible);

    /// Distance in pixels of the content from the edges and from the header, 8 density-independent units by default. It
    /// is the template's `padding`, whichever of the two the page sets.
    qreal contentPadding() const { return m_contentPadding.value_or(8.0 * m_unit); }
    void setContentPadding(qreal padding) { assignContentPadding(padding); }
    void resetContentPadding() { assignContentPadding({}); }
    /// Pixels per density-independent unit.
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);

    /// What a click on the header does.
    Q_INVOKABLE void toggle();

    QString spokenDescription(const QString &given) const override;

Q_SIGNALS:
    void collapsibleChanged();
    void contentPaddingChanged();
    void unitChanged();
    void nestedChanged();
    /// The user has folded or unfolded the pane.
    void collapsedEdited(bool collapsed);

protected:
    Part headerPart() const override { return Part::PaneHeader; }
    void headerChange() override;
    void lookChange() override;
    void paddingChange(const QMarginsF &newPadding, const QMarginsF &oldPadding) override;
    void componentComplete() override;
    bool wantsHeader() const override { return m_isCollapsible || TitledPane::wantsHeader(); }

private:
    void updateToggle();
    void assignContentPadding(std::optional<qreal> padding);
    void updatePadding();

    PendingValue *m_pendingCollapse = nullptr; // a child, made at the first click
    QQuickItem *m_toggle = nullptr;            // a child of the header, made when the pane can first be collapsed
    QPointer<QQuickRectangle> m_ground;        // a child, where the page has no background of its own
    std::optional<qreal> m_contentPadding;     // of the page
    qreal m_unit = 1.0;
    bool m_isCollapsible = false;
    bool m_isNested = false;
    bool m_hasPen = false;
    bool m_hasHeaderPadding = false;
    bool m_isPadding = false; ///< Sets the template's paddings itself.
};

} // namespace tamble::client
