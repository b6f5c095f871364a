#pragma once

#include "base/ControlExport.h"
#include "style/SheetColors.h"
#include "workspace/WorkspaceBase.h"

#include <array>

namespace tamble::client {

class LinePlotter;

/// The look of a workspace: its ground and, each made when it is first to be seen, grid, guides, rubber band, scroll
/// bars and the frame of the keyboard focus.
class TAMBLE_CLIENT_CONTROL_EXPORT RWorkspaceCanvas : public tamble::client::WorkspaceBase
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceCanvas)
    Q_PROPERTY(QRectF scrollSpan READ scrollSpan NOTIFY scrollSpanChanged FINAL)
    /// Of the style: `ssBackground`, and of the lines `ssGridColor` and `ssGuideColor`.
    Q_PROPERTY(QColor ssBackground READ ssBackground WRITE setSsBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssGridColor READ ssGridColor WRITE setSsGridColor NOTIFY ssGridColorChanged)
    Q_PROPERTY(QColor ssGuideColor READ ssGuideColor WRITE setSsGuideColor NOTIFY ssGuideColorChanged)

public:
    explicit RWorkspaceCanvas(QQuickItem *parent = nullptr);
    ~RWorkspaceCanvas() override;

    /// What is seen of the plane, or of the way from there to it, as parts of the whole: place and size, 0 to 1.
    QRectF scrollSpan() const { return m_scrollSpan; }
    /// Moves the view to a place of the whole, 0 to 1; `scrollVertically` likewise.
    Q_INVOKABLE void scrollHorizontally(double place);
    Q_INVOKABLE void scrollVertically(double place);

    QColor ssBackground() const { return m_colors.color(Background); }
    void setSsBackground(const QColor &color) { m_colors.setColor(Background, color); }
    QColor ssGridColor() const { return m_colors.color(GridColor); }
    void setSsGridColor(const QColor &color) { m_colors.setColor(GridColor, color); }
    QColor ssGuideColor() const { return m_colors.color(GuideColor); }
    void setSsGuideColor(const QColor &color) { m_colors.setColor(GuideColor, color); }

Q_SIGNALS:
    void scrollSpanChanged();
    void ssBackgroundChanged();
    void ssGridColorChanged();
    void ssGuideColorChanged();

protected:
    bool event(QEvent *event) override;
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *) override;

private:
    enum ColorName : std::size_t { Background, GridColor, GuideColor };
    static const std::array<SheetColors::Source, 3> colorSources;

    /// Lines across and down the view; children, made when there is one.
    struct Lines
    {
        void show(QQuickItem &view, const QRectF &area, const QList<double> &fromTop, const QList<double> &fromLeft);
        void setLook(const QColor &color, double width, double opacity, qreal layer);

        LinePlotter *across = nullptr;
        LinePlotter *down = nullptr;
    };

    QRectF seenRect() const;
    QRectF wholeRect() const;
    void onColorsChanged(std::size_t begin, std::size_t end);
    void showGrid();
    void showGuides();
    void showRubberBand();
    void showScrollBars();
    void showFocus();

    SheetColors m_colors;
    Lines m_grid;
    Lines m_guides;
    QRectF m_scrollSpan = {0.0, 0.0, 1.0, 1.0};
    QQuickItem *m_rubberBand = nullptr; // children, made when first needed
    QQuickItem *m_scrollBars = nullptr;
    QQuickItem *m_focusPlace = nullptr;
};

} // namespace tamble::client
