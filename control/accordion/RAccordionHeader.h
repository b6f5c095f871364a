#pragma once

#include "accordion/AccordionHeading.h"
#include "base/PartComponents.h"

#include <QtCore/QBasicTimer>

namespace tamble::client {

class RAccordionGrip;
class RAccordionItemBase;

/// The header of an accordion's item, which is its parent.
class TAMBLE_CLIENT_CONTROL_EXPORT RAccordionHeader : public tamble::client::AccordionHeading
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAccordionHeader)
    Q_PROPERTY(bool dragged READ isDragged NOTIFY draggedChanged FINAL)

public:
    explicit RAccordionHeader(QQuickItem *parent = nullptr);

    /// Whether the item is on its way to another place.
    bool isDragged() const;

    void updateColors() override;
    // What the item calls when what it says about itself has changed.
    void updateIcon();
    void updateSubtitle();
    void updateGrip();
    void updateExpandable() { updateChevron(); }
    void updateExpanded() { announceOpen(); }
    /// Where the page's items for the header are, made with the first call.
    QQuickItem &extras();

Q_SIGNALS:
    void draggedChanged();

protected:
    QColor groundColor() const override;
    QColor textColor() const override;
    bool canToggle() const override;
    bool isOpen() const override;
    void toggle() override;
    bool moveBy(int way) override;
    bool keepsChevronRoom() const override { return true; }
    void placeParts(qreal begin, qreal end) override;
    void buttonChange(ButtonChange change) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void componentComplete() override;

private:
    RAccordionItemBase *item() const;
    QQuickItem *makePart(Part part);
    void askForMenu(const QPointF &position);

    QQuickItem *m_icon = nullptr; // these are children, made when first shown
    QQuickItem *m_subtitle = nullptr;
    QQuickItem *m_extras = nullptr;
    RAccordionGrip *m_grip = nullptr;
    QBasicTimer m_longPress;
};

} // namespace tamble::client
