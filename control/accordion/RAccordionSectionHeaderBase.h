#pragma once

#include "accordion/AccordionHeading.h"

namespace tamble::client {

/// Caption in an accordion for the items behind it, up to the next caption. A collapsible one hides them with a click.
///
/// Keys: Up, Down, Home and End move between what can be opened in the accordion. Space and Enter hide the items and
/// show them again, Right shows and Left hides them.
class TAMBLE_CLIENT_CONTROL_EXPORT RAccordionSectionHeaderBase : public tamble::client::AccordionHeading
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAccordionSectionHeaderBase)
    Q_PROPERTY(bool collapsible READ isCollapsible WRITE setCollapsible NOTIFY collapsibleChanged)
    Q_PROPERTY(bool collapsed READ isCollapsed WRITE setCollapsed NOTIFY collapsedChanged)

public:
    explicit RAccordionSectionHeaderBase(QQuickItem *parent = nullptr);
    ~RAccordionSectionHeaderBase() override;

    /// Whether a click hides the items; false by default.
    bool isCollapsible() const { return m_isCollapsible; }
    void setCollapsible(bool collapsible);
    /// Whether the items are hidden, as far as the caption is collapsible; false by default.
    bool isCollapsed() const { return m_isCollapsed; }
    void setCollapsed(bool collapsed);

    /// Whether the items behind it are not to be seen.
    bool hidesItems() const { return m_isCollapsible && m_isCollapsed; }

Q_SIGNALS:
    void collapsibleChanged();
    void collapsedChanged();
    /// The user has hidden the items, or shown them again.
    void toggled(bool collapsed);

protected:
    QColor groundColor() const override { return ssBackground(); }
    QColor textColor() const override { return ssColor(); }
    bool canToggle() const override { return m_isCollapsible; }
    bool isOpen() const override { return !hidesItems(); }
    void toggle() override;

private:
    void updateItems();

    bool m_isCollapsible = false;
    bool m_isCollapsed = false;
};

} // namespace tamble::client
