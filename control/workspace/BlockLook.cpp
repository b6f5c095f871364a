#include "workspace/BlockLook.h"

#include "base/ControlLog.h"
#include "base/PageItem.h"
#include "base/PartComponents.h"
#include "controls/RTintedImage.h"
#include "scenegraph/RectanglesNode.h"
#include "scenegraph/SoftwarePicture.h"
#include "workspace/RWorkspaceBlock.h"
#include "workspace/RWorkspaceItemValueBarBase.h"

#include <QtQml/QQmlComponent>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace tamble::client {

namespace {

// In density-independent units.
constexpr qreal partGap = 4.0;
constexpr qreal headerIconSize = 16.0;
constexpr qreal overviewIconSize = 24.0;
constexpr qreal overviewGap = 6.0; // glyphs reach beyond their line, and what overlaps is drawn one by one
constexpr qreal loneIconSize = 48.0;
constexpr qreal markSize = 6.0;
constexpr qreal plainBorder = 1.0;
constexpr qreal selectedBorder = 2.0;
// Where the zoom leaves a third and less of it.
constexpr qreal overviewBorder = 6.0;

constexpr qreal disabledOpacity = 0.4;
constexpr qreal behindContent = -1.0;
constexpr qreal belowFrame = -1.0;

void addBorder(std::vector<ColoredRectangle> &rectangles, const QRectF &rect, qreal width, const QColor &color)
{
    const qreal inner = rect.height() - 2.0 * width;
    rectangles.push_back({{rect.left(), rect.top(), rect.width(), width}, color});
    rectangles.push_back({{rect.left(), rect.bottom() - width, rect.width(), width}, color});
    rectangles.push_back({{rect.left(), rect.top() + width, width, inner}, color});
    rectangles.push_back({{rect.right() - width, rect.top() + width, width, inner}, color});
}

// All of `inside` but the corners outside of `middle`.
void addGround(std::vector<ColoredRectangle> &rectangles, const QRectF &inside, const QRectF &middle,
               const QColor &color)
{
    const qreal top = std::max(inside.top(), middle.top());
    const qreal bottom = std::min(inside.bottom(), middle.bottom());
    rectangles.push_back({{QPointF(inside.left(), top), QPointF(inside.right(), bottom)}, color});
    rectangles.push_back({{QPointF(middle.left(), inside.top()), QPointF(middle.right(), top)}, color});
    rectangles.push_back({{QPointF(middle.left(), bottom), QPointF(middle.right(), inside.bottom())}, color});
}

void addMarks(std::vector<ColoredRectangle> &rectangles, const QRectF &rect, qreal size, const QColor &color)
{
    for (const qreal x : {rect.left(), rect.right() - size}) {
        for (const qreal y : {rect.top(), rect.bottom() - size})
            rectangles.push_back({{x, y, size, size}, color});
    }
}

void center(QQuickItem &item, qreal x, qreal y)
{
    item.setPosition({std::round(x - item.width() / 2.0), std::round(y - item.height() / 2.0)});
}

} // namespace

BlockLook::BlockLook(RWorkspaceBlock &block)
    : QQuickItem(&block)
    , m_block(block)
{
    setFlag(ItemHasContents);
    setZ(behindContent);
}

void BlockLook::refresh()
{
    setSize(m_block.size());
    showTitle();
    const QString &status = m_block.statusIconKey();
    const QString lock = m_block.locked() ? QStringLiteral("lock") : QString();
    if (m_block.detailed()) {
        showIcon(m_icon, m_block.iconKey(), headerIconSize);
        showIcon(m_statusIcon, status, headerIconSize);
        showIcon(m_lockIcon, lock, headerIconSize);
    } else {
        const bool isAlone = !status.isEmpty() || m_block.title().isEmpty();
        showIcon(m_icon, status.isEmpty() ? m_block.iconKey() : status, isAlone ? loneIconSize : overviewIconSize);
        showIcon(m_statusIcon, QString(), headerIconSize);
        showIcon(m_lockIcon, QString(), headerIconSize);
    }
    showValueBar();
    layOut();
    // Not the ground, through which the grid would show.
    for (QQuickItem *part : childItems())
        part->setOpacity(m_block.isEnabled() ? 1.0 : disabledOpacity);
    update();
}

void BlockLook::showTitle()
{
    if (m_title || m_block.title().isEmpty())
        return;
    const QVariantMap properties{{QStringLiteral("block"), QVariant::fromValue<QObject *>(&m_block)}};
    m_title = PartComponents::makeItem(Part::WorkspaceItemTitle, *this, properties);
    if (!m_title)
        return;
    connect(m_title, &QQuickItem::implicitWidthChanged, this, &BlockLook::layOut);
    connect(m_title, &QQuickItem::implicitHeightChanged, this, &BlockLook::layOut);
}

void BlockLook::showIcon(RTintedImage *&icon, const QString &key, qreal size)
{
    if (key.isEmpty()) {
        delete std::exchange(icon, nullptr);
        return;
    }
    if (!icon)
        icon = new RTintedImage(this);
    icon->setVisible(true);
    icon->setEnlargement(m_block.unit());
    icon->setSource(QUrl(QStringLiteral("qrc:/icons/%1_%2x%2.png").arg(key).arg(int(size))));
    icon->setSize(QSizeF(size, size) * m_block.unit());
    icon->setTint(m_block.ssColor());
}

void BlockLook::showValueBar()
{
    QQmlComponent *component = m_block.valueBar();
    if (component && m_block.detailed() && !std::exchange(m_hasAskedForBar, true)) {
        m_valueBar = makePageItem(*component, *this, *this);
        if (m_valueBar) {
            m_valueBar->setZ(belowFrame);
            Q_EMIT m_block.valueBarItemChanged();
        } else {
            qCWarning(controlLog).noquote() << "RWorkspaceItem has no value bar" << component->errorString();
        }
    }
    if (!m_valueBar)
        return;
    m_valueBar->setVisible(m_block.detailed());
    if (auto *bar = qobject_cast<RWorkspaceItemValueBarBase *>(m_valueBar))
        bar->setMarkWidth(m_block.lineWidth());
}

void BlockLook::dropValueBar()
{
    m_hasAskedForBar = false;
    if (!m_valueBar)
        return;
    m_valueBar->setVisible(false);
    std::exchange(m_valueBar, nullptr)->deleteLater();
    Q_EMIT m_block.valueBarItemChanged();
}

void BlockLook::layOut()
{
    if (m_block.detailed())
        layOutHeader();
    else
        layOutOverview();
}

void BlockLook::layOutHeader()
{
    const qreal unit = m_block.unit();
    const qreal gap = partGap * unit;
    const qreal step = headerIconSize * unit + gap;
    const qreal middle = headerHeight * unit / 2.0;
    qreal begin = 2.0 * gap;
    qreal end = width() - 2.0 * gap;
    if (m_icon) {
        center(*m_icon, begin + m_icon->width() / 2.0, middle);
        begin += step;
    }
    for (RTintedImage *icon : {m_lockIcon, m_statusIcon}) {
        if (!icon)
            continue;
        center(*icon, end - icon->width() / 2.0, middle);
        end -= step;
    }
    if (m_title) {
        const qreal room = end - begin;
        m_title->setVisible(room > 0.0);
        m_title->setWidth(std::min(m_title->implicitWidth(), room));
        center(*m_title, begin + m_title->width() / 2.0, middle);
    }
    if (m_valueBar) {
        m_valueBar->setPosition({0.0, height() - m_valueBar->height()});
        m_valueBar->setWidth(width());
    }
}

// The icon above the title; the title alone where both have no room, and what needs attention in the place of both.
void BlockLook::layOutOverview()
{
    const QPointF middle = boundingRect().center();
    const bool hasTitle = m_title && !m_block.title().isEmpty() && m_block.statusIconKey().isEmpty();
    const qreal titleHeight = hasTitle ? m_title->implicitHeight() + overviewGap * m_block.unit() : 0.0;
    const bool hasIcon = m_icon && (!hasTitle || m_icon->height() + titleHeight <= height());
    if (m_icon) {
        m_icon->setVisible(hasIcon);
        center(*m_icon, middle.x(), middle.y() - titleHeight / 2.0);
    }
    if (m_title) {
        const qreal room = width() - 2.0 * overviewBorder * m_block.unit();
        m_title->setVisible(hasTitle && room > 0.0);
        m_title->setWidth(std::min(m_title->implicitWidth(), room));
        const qreal iconHeight = hasIcon ? m_icon->height() + overviewGap * m_block.unit() : 0.0;
        center(*m_title, middle.x(), middle.y() + iconHeight / 2.0);
    }
}

QSGNode *BlockLook::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    return SoftwarePicture::updated(*this, oldNode, [this](QSGNode *old) { return updateFrame(old); });
}

QSGNode *BlockLook::updateFrame(QSGNode *oldNode) const
{
    const qreal unit = m_block.unit();
    const QColor border = m_block.ssBorderColor();
    const bool hasMarks = m_block.selected() && m_block.detailed();
    const qreal least = !m_block.selected() ? plainBorder : hasMarks ? selectedBorder : overviewBorder;
    const qreal width = unit * std::max(least, m_block.lineWidth());
    const qreal mark = hasMarks ? std::max(width, markSize * unit) : width;
    // The value bar has a ground of its own, and the frame goes around both.
    const qreal bar = m_valueBar && m_block.detailed() ? m_valueBar->height() : 0.0;

    const QRectF all = boundingRect();
    const QRectF inside = all.adjusted(width, width, -width, -std::max(width, bar));
    std::vector<ColoredRectangle> rectangles;
    addGround(rectangles, inside, all.adjusted(mark, mark, -mark, -mark), m_block.ssBackground());
    addBorder(rectangles, all, width, border);
    if (hasMarks)
        addMarks(rectangles, all, mark, border);
    auto *node = oldNode ? static_cast<RectanglesNode *>(oldNode) : new RectanglesNode;
    node->setRectangles(rectangles, RectanglesNode::Placing::Apart);
    return node;
}

} // namespace tamble::client
