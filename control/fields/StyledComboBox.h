#pragma once

#include "base/ControlExport.h"
#include "style/SheetColors.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickcombobox_p.h>

#include <array>

namespace tamble::client {

/// The style properties of a combo box. Most are those of its open list, which few boxes of a page ever show, so each
/// is read from the sheets when it is asked for; as bindings they would be a tenth of a box's memory.
class TAMBLE_CLIENT_CONTROL_EXPORT StyledComboBox : public QQuickComboBox
{
    Q_OBJECT
    QML_ANONYMOUS
    /// Of the style: the box, its border, the line below it, and the place of its arrow: `ssBackground`, `ssColor`,
    /// `ssLineColor`, `ssBorderColor`, `ssBorderColorFocus`, `ssIndicatorBackground`, `ssIndicatorBackgroundHover`. Of
    /// the open list: the bar beside an entry, its text, what is behind it, and the list itself: `ssItemColorCurrent`,
    /// `ssItemColorHover`, `ssForegroundItem`, `ssForegroundItemHover`, `ssForegroundItemSelected`, `ssBackgroundItem`,
    /// `ssBackgroundItemHover`, `ssBackgroundItemSelected`, `ssPopupColor`, `ssPopupBorderColor`.
    Q_PROPERTY(QColor ssBackground READ ssBackground WRITE setSsBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssColor READ ssColor WRITE setSsColor NOTIFY ssColorChanged)
    Q_PROPERTY(QColor ssLineColor READ ssLineColor WRITE setSsLineColor NOTIFY ssLineColorChanged)
    Q_PROPERTY(QColor ssBorderColor READ ssBorderColor WRITE setSsBorderColor NOTIFY ssBorderColorChanged)
    Q_PROPERTY(
        QColor ssBorderColorFocus READ ssBorderColorFocus WRITE setSsBorderColorFocus NOTIFY ssBorderColorFocusChanged)
    Q_PROPERTY(QColor ssIndicatorBackground READ ssIndicatorBackground WRITE setSsIndicatorBackground NOTIFY
                   ssIndicatorBackgroundChanged)
    Q_PROPERTY(QColor ssIndicatorBackgroundHover READ ssIndicatorBackgroundHover WRITE setSsIndicatorBackgroundHover
                   NOTIFY ssIndicatorBackgroundHoverChanged)
    Q_PROPERTY(
        QColor ssItemColorCurrent READ ssItemColorCurrent WRITE setSsItemColorCurrent NOTIFY ssItemColorCurrentChanged)
    Q_PROPERTY(QColor ssItemColorHover READ ssItemColorHover WRITE setSsItemColorHover NOTIFY ssItemColorHoverChanged)
    Q_PROPERTY(QColor ssForegroundItem READ ssForegroundItem WRITE setSsForegroundItem NOTIFY ssForegroundItemChanged)
    Q_PROPERTY(QColor ssForegroundItemHover READ ssForegroundItemHover WRITE setSsForegroundItemHover NOTIFY
                   ssForegroundItemHoverChanged)
    Q_PROPERTY(QColor ssForegroundItemSelected READ ssForegroundItemSelected WRITE setSsForegroundItemSelected NOTIFY
                   ssForegroundItemSelectedChanged)
    Q_PROPERTY(QColor ssBackgroundItem READ ssBackgroundItem WRITE setSsBackgroundItem NOTIFY ssBackgroundItemChanged)
    Q_PROPERTY(QColor ssBackgroundItemHover READ ssBackgroundItemHover WRITE setSsBackgroundItemHover NOTIFY
                   ssBackgroundItemHoverChanged)
    Q_PROPERTY(QColor ssBackgroundItemSelected READ ssBackgroundItemSelected WRITE setSsBackgroundItemSelected NOTIFY
                   ssBackgroundItemSelectedChanged)
    Q_PROPERTY(QColor ssPopupColor READ ssPopupColor WRITE setSsPopupColor NOTIFY ssPopupColorChanged)
    Q_PROPERTY(
        QColor ssPopupBorderColor READ ssPopupBorderColor WRITE setSsPopupBorderColor NOTIFY ssPopupBorderColorChanged)

public:
    explicit StyledComboBox(QQuickItem *parent = nullptr);

    QColor ssBackground() const { return m_colors.color(Background); }
    void setSsBackground(const QColor &color) { m_colors.setColor(Background, color); }
    QColor ssColor() const { return m_colors.color(Color); }
    void setSsColor(const QColor &color) { m_colors.setColor(Color, color); }
    QColor ssLineColor() const { return m_colors.color(LineColor); }
    void setSsLineColor(const QColor &color) { m_colors.setColor(LineColor, color); }
    QColor ssBorderColor() const { return m_colors.color(BorderColor); }
    void setSsBorderColor(const QColor &color) { m_colors.setColor(BorderColor, color); }
    QColor ssBorderColorFocus() const { return m_colors.color(BorderColorFocus); }
    void setSsBorderColorFocus(const QColor &color) { m_colors.setColor(BorderColorFocus, color); }
    QColor ssIndicatorBackground() const { return m_colors.color(IndicatorBackground); }
    void setSsIndicatorBackground(const QColor &color) { m_colors.setColor(IndicatorBackground, color); }
    QColor ssIndicatorBackgroundHover() const { return m_colors.color(IndicatorBackgroundHover); }
    void setSsIndicatorBackgroundHover(const QColor &color) { m_colors.setColor(IndicatorBackgroundHover, color); }
    QColor ssItemColorCurrent() const { return m_colors.color(ItemColorCurrent); }
    void setSsItemColorCurrent(const QColor &color) { m_colors.setColor(ItemColorCurrent, color); }
    QColor ssItemColorHover() const { return m_colors.color(ItemColorHover); }
    void setSsItemColorHover(const QColor &color) { m_colors.setColor(ItemColorHover, color); }
    QColor ssForegroundItem() const { return m_colors.color(ForegroundItem); }
    void setSsForegroundItem(const QColor &color) { m_colors.setColor(ForegroundItem, color); }
    QColor ssForegroundItemHover() const { return m_colors.color(ForegroundItemHover); }
    void setSsForegroundItemHover(const QColor &color) { m_colors.setColor(ForegroundItemHover, color); }
    QColor ssForegroundItemSelected() const { return m_colors.color(ForegroundItemSelected); }
    void setSsForegroundItemSelected(const QColor &color) { m_colors.setColor(ForegroundItemSelected, color); }
    QColor ssBackgroundItem() const { return m_colors.color(BackgroundItem); }
    void setSsBackgroundItem(const QColor &color) { m_colors.setColor(BackgroundItem, color); }
    QColor ssBackgroundItemHover() const { return m_colors.color(BackgroundItemHover); }
    void setSsBackgroundItemHover(const QColor &color) { m_colors.setColor(BackgroundItemHover, color); }
    QColor ssBackgroundItemSelected() const { return m_colors.color(BackgroundItemSelected); }
    void setSsBackgroundItemSelected(const QColor &color) { m_colors.setColor(BackgroundItemSelected, color); }
    QColor ssPopupColor() const { return m_colors.color(PopupColor); }
    void setSsPopupColor(const QColor &color) { m_colors.setColor(PopupColor, color); }
    QColor ssPopupBorderColor() const { return m_colors.color(PopupBorderColor); }
    void setSsPopupBorderColor(const QColor &color) { m_colors.setColor(PopupBorderColor, color); }

Q_SIGNALS:
    void ssBackgroundChanged();
    void ssColorChanged();
    void ssLineColorChanged();
    void ssBorderColorChanged();
    void ssBorderColorFocusChanged();
    void ssIndicatorBackgroundChanged();
    void ssIndicatorBackgroundHoverChanged();
    void ssItemColorCurrentChanged();
    void ssItemColorHoverChanged();
    void ssForegroundItemChanged();
    void ssForegroundItemHoverChanged();
    void ssForegroundItemSelectedChanged();
    void ssBackgroundItemChanged();
    void ssBackgroundItemHoverChanged();
    void ssBackgroundItemSelectedChanged();
    void ssPopupColorChanged();
    void ssPopupBorderColorChanged();

private:
    enum ColorName : std::size_t {
        Background,
        Color,
        LineColor,
        BorderColor,
        BorderColorFocus,
        IndicatorBackground,
        IndicatorBackgroundHover,
        ItemColorCurrent,
        ItemColorHover,
        ForegroundItem,
        ForegroundItemHover,
        ForegroundItemSelected,
        BackgroundItem,
        BackgroundItemHover,
        BackgroundItemSelected,
        PopupColor,
        PopupBorderColor,
        nameCount
    };

    static const std::array<SheetColors::Source, nameCount> colorSources;

    SheetColors m_colors;
};

} // namespace tamble::client
