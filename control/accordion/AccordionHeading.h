#pragma once

#include "base/ControlExport.h"
#include "controls/RButtonBase.h"

namespace tamble::client {

class RAccordionColumn;
class RTintedImage;

/// What headers and captions of an accordion have in common: ground, chevron, title and the keys that move between
/// them. They paint and place natively what would be an item or a binding for each.
class TAMBLE_CLIENT_CONTROL_EXPORT AccordionHeading : public tamble::client::RButtonBase
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QQuickItem *titleItem READ titleItem WRITE setTitleItem NOTIFY titleItemChanged FINAL)
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)
    Q_PROPERTY(bool focusVisible READ focusVisible WRITE setFocusVisible NOTIFY focusVisibleChanged FINAL)

public:
    explicit AccordionHeading(QQuickItem *parent = nullptr);

    /// What shows the title; it becomes a child.
    QQuickItem *titleItem() const { return m_titleItem; }
    void setTitleItem(QQuickItem *item);
    /// Pixels per density-independent unit.
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);
    /// Whether the frame of the keyboard focus shows; false by default.
    bool focusVisible() const { return m_focusVisible; }
    void setFocusVisible(bool visible);

    /// How far what belongs to the heading is opened, 0 to 1.
    void setOpenness(qreal openness);
    /// The colours may be others.
    virtual void updateColors();

    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void titleItemChanged();
    void unitChanged();
    void focusVisibleChanged();

protected:
    virtual QColor groundColor() const = 0;
    virtual QColor textColor() const = 0;
    /// Whether a click opens and closes, and whether it is open.
    virtual bool canToggle() const = 0;
    virtual bool isOpen() const = 0;
    virtual void toggle() = 0;
    /// A key with Alt: the user wants it one place further up (-1) or down (1). Whether that is possible.
    virtual bool moveBy(int) { return false; }
    /// Whether there is room for a chevron, shown or not.
    virtual bool keepsChevronRoom() const { return canToggle(); }
    /// Places what is between these, in pixels from the side where reading begins.
    virtual void placeParts(qreal begin, qreal end);

    void placeAll();
    /// Places a part on whole pixels, centred in the height.
    void place(QQuickItem &part, qreal begin);
    /// canToggle() has changed.
    void updateChevron();
    /// isOpen() has changed.
    void announceOpen();
    RAccordionColumn *column() const;

    void editSelection(bool selected) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void mirrorChange() override;
    void componentComplete() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;

private:
    bool answerKey(const QKeyEvent &event);
    void turnChevron();

    QPointer<QQuickItem> m_titleItem;   // a child
    RTintedImage *m_chevron = nullptr;  // likewise, made when first shown
    QQuickItem *m_focusFrame = nullptr; // likewise
    qreal m_unit = 1.0;
    qreal m_openness = 0.0;
    bool m_focusVisible = false;
};

} // namespace tamble::client
