#pragma once

#include "base/ControlExport.h"
#include "style/StyleFollower.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickcombobox_p.h>

#include <array>
#include <memory>

namespace tamble::client {

class StyleSet;

/// The style properties of a combo box. Most are those of its open list, which few boxes of a page ever show, so each
/// is read from the sheets when it is asked for; as bindings they would be a tenth of a box's memory.
class TAMBLE_CLIENT_CONTROL_EXPORT StyledComboBox : public QQuickComboBox, private StyleFollower
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
    ~StyledComboBox() override;

    QColor ssBackground() { return color(Background); }
    void setSsBackground(const QColor &color) { setColor(Background, color); }
    QColor ssColor() { return color(Color); }
    void setSsColor(const QColor &color) { setColor(Color, color); }
    QColor ssLineColor() { return color(LineColor); }
    void setSsLineColor(const QColor &color) { setColor(LineColor, color); }
    QColor ssBorderColor() { return color(BorderColor); }
    void setSsBorderColor(const QColor &color) { setColor(BorderColor, color); }
    QColor ssBorderColorFocus() { return color(BorderColorFocus); }
    void setSsBorderColorFocus(const QColor &color) { setColor(BorderColorFocus, color); }
    QColor ssIndicatorBackground() { return color(IndicatorBackground); }
    void setSsIndicatorBackground(const QColor &color) { setColor(IndicatorBackground, color); }
    QColor ssIndicatorBackgroundHover() { return color(IndicatorBackgroundHover); }
    void setSsIndicatorBackgroundHover(const QColor &color) { setColor(IndicatorBackgroundHover, color); }
    QColor ssItemColorCurrent() { return color(ItemColorCurrent); }
    void setSsItemColorCurrent(const QColor &color) { setColor(ItemColorCurrent, color); }
    QColor ssItemColorHover() { return color(ItemColorHover); }
    void setSsItemColorHover(const QColor &color) { setColor(ItemColorHover, color); }
    QColor ssForegroundItem() { return color(ForegroundItem); }
    void setSsForegroundItem(const QColor &color) { setColor(ForegroundItem, color); }
    QColor ssForegroundItemHover() { return color(ForegroundItemHover); }
    void setSsForegroundItemHover(const QColor &color) { setColor(ForegroundItemHover, color); }
    QColor ssForegroundItemSelected() { return color(ForegroundItemSelected); }
    void setSsForegroundItemSelected(const QColor &color) { setColor(ForegroundItemSelected, color); }
    QColor ssBackgroundItem() { return color(BackgroundItem); }
    void setSsBackgroundItem(const QColor &color) { setColor(BackgroundItem, color); }
    QColor ssBackgroundItemHover() { return color(BackgroundItemHover); }
    void setSsBackgroundItemHover(const QColor &color) { setColor(BackgroundItemHover, color); }
    QColor ssBackgroundItemSelected() { return color(BackgroundItemSelected); }
    void setSsBackgroundItemSelected(const QColor &color) { setColor(BackgroundItemSelected, color); }
    QColor ssPopupColor() { return color(PopupColor); }
    void setSsPopupColor(const QColor &color) { setColor(PopupColor, color); }
    QColor ssPopupBorderColor() { return color(PopupBorderColor); }
    void setSsPopupBorderColor(const QColor &color) { setColor(PopupBorderColor, color); }

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
    enum Name {
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

    struct Source;
    static const Source &source(int name);
    QColor color(Name name);
    void setColor(Name name, const QColor &color);
    void onStyleChanged() override;

    std::unique_ptr<std::array<QColor, nameCount>> m_colors; ///< What the page has set in place of the sheets.
    StyleSet *m_styleSet = nullptr;                          ///< The attached one, once it is read.
};

} // namespace tamble::client
