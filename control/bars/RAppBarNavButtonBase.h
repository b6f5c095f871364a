#pragma once

#include "bars/RBarButtonBase.h"

namespace tamble::client {

/// Button that chooses a page, or with `forSubPage` one within that. It knows how wide it would be with and without its
/// text, by which a bar decides what has room.
class TAMBLE_CLIENT_CONTROL_EXPORT RAppBarNavButtonBase : public tamble::client::RBarButtonBase
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RAppBarNavButtonBase)
    Q_PROPERTY(bool iconOnly READ isIconOnly WRITE setIconOnly NOTIFY iconOnlyChanged FINAL)
    Q_PROPERTY(bool textHidden READ isTextHidden NOTIFY textHiddenChanged FINAL)
    /// Whether it is one of the lower row: less high, and wider at least; false by default.
    Q_PROPERTY(bool forSubPage MEMBER m_isForSubPage NOTIFY forSubPageChanged FINAL)
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)
    Q_PROPERTY(bool cramped READ isCramped NOTIFY crampedChanged FINAL)
    Q_PROPERTY(qreal wordsWidth READ wordsWidth WRITE setWordsWidth NOTIFY wordsWidthChanged FINAL)
    Q_PROPERTY(qreal iconSpace READ iconSpace NOTIFY iconSpaceChanged FINAL)

public:
    explicit RAppBarNavButtonBase(QQuickItem *parent = nullptr);

    /// Whether the icon stands for the text, which is then a tool tip; set by a bar that is short of room. A button
    /// without an icon keeps its text.
    bool isIconOnly() const { return m_isIconOnly; }
    void setIconOnly(bool iconOnly);
    /// Whether no text shows, since there is an icon in its place.
    bool isTextHidden() const { return m_isIconOnly && !iconKey().isEmpty(); }
    /// Pixels per density-independent unit; 1 by default.
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);
    /// Pixels that the text takes without being elided.
    qreal wordsWidth() const { return m_wordsWidth; }
    void setWordsWidth(qreal width);
    /// Whether the text does not fit and is elided.
    bool isCramped() const { return m_isCramped; }
    /// Pixels beside the text for the icon; 0 without one.
    qreal iconSpace() const;

    /// Width in pixels with the text, unless the page has given the button one.
    qreal naturalWidth() const;
    /// Likewise without it.
    qreal compactWidth() const;

    QAccessible::Role spokenRole() const override { return QAccessible::PageTab; }
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void iconOnlyChanged();
    void textHiddenChanged();
    void forSubPageChanged();
    void unitChanged();
    void wordsWidthChanged();
    void crampedChanged();
    void iconSpaceChanged();

protected:
    void classBegin() override;
    void componentComplete() override;
    void iconChange() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void mirrorChange() override;
    void selectionChange() override;

private:
    void updateSize();
    void updateFit();

    qreal m_unit = 1.0;
    qreal m_wordsWidth = 0.0;
    QQuickItem *m_icon = nullptr; // a child, made for the first icon
    bool m_isIconOnly = false;
    bool m_isForSubPage = false;
    bool m_isCramped = false;
};

} // namespace tamble::client
