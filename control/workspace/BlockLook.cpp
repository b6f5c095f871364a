#include "workspace/BlockLook.h"

#include "base/ControlLog.h"
#include "base/PageItem.h"
#include "base/PartComponents.h"
#include "controls/RTintedImage.h"
#include "scenegraph/RectanglesNode.h"
#include "scenegraph/SoftwarePicture.h"
#include "workspace/RWorkspaceBlock.h"

#include <QtQml/QQmlEngine>

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
constexpr qreal loneIconSize = 48.0;
constexpr qreal markSize = 6.0;
constexpr qreal plainBorder = 1.0;
constexpr qreal selectedBorder = 2.0;
// Where the zoom leaves a third and less of it.
constexpr qreal overviewBorder = 6.0;

constexpr qreal disabledOpacity = 0.4;
constexpr qreal behindContent = -1.0;

void addBorder(std::vector<ColoredRectangle> &rectangles, const QRectF &rect, qreal width, const QColor &color)
{
    const qreal inner = rect.height() - 2.0 * width;
    rectangles.push_back({{rect.left(), rect.top(), rect.width(), width}, color});
    rectangles.push_back({{rect.left(), rect.bottom() - width, rect.width(), width}, color});
    rectangles.push_back({{rect.left(), rect.top() + width, width, inner}, color});
    rectangles.push_back({{rect.right() - width, rect.top() + width, width, inner}, color});
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
    if (!m_title && !m_block.title().isEmpty()) {
        if (QQmlEngine *engine = qmlEngine(&m_block)) {
            const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue<QQuickItem *>(this)},
                                         {QStringLiteral("block"), QVariant::fromValue<QObject *>(&m_block)}};
            m_title =
                qobject_cast<QQuickItem *>(PartComponents::of(engine).make(Part::WorkspaceItemTitle, this, properties));
        }
        if (m_title) {
            connect(m_title, &QQuickItem::implicitWidthChanged, this, &BlockLook::layOut);
            connect(m_title, &QQuickItem::implicitHeightChanged, this, &BlockLook::layOut);
        }
    }
    const bool isDetailed = m_block.detailed();
    const qreal loneSize = m_block.title().isEmpty() ? loneIconSize : overviewIconSize;
    showIcon(m_icon, m_block.iconKey(), isDetailed ? headerIconSize : loneSize);
    showIcon(m_statusIcon, isDetailed ? m_block.statusIconKey() : QString(), headerIconSize);
    showIcon(m_lockIcon, isDetailed && m_block.locked() ? QStringLiteral("lock") : QString(), headerIconSize);
    showValueBar();
    showFocus();
    layOut();
    // Not the ground, through which the grid would show.
    for (QQuickItem *part : childItems())
        part->setOpacity(m_block.isEnabled() ? 1.0 : disabledOpacity);
    update();
}

void BlockLook::showIcon(RTintedImage *&icon, const QString &key, qreal size)
{
    if (!icon && key.isEmpty())
        return;
    if (!icon)
        icon = new RTintedImage(this);
    icon->setVisible(!key.isEmpty());
    if (key.isEmpty())
        return;
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
        if (m_valueBar)
            Q_EMIT m_block.valueBarItemChanged();
        else
            qCWarning(controlLog).noquote() << "RWorkspaceItem has no value bar" << component->errorString();
    }
    if (m_valueBar)
        m_valueBar->setVisible(m_block.detailed());
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

void BlockLook::showFocus()
{
    if (!m_focusFrame && m_block.keyFocus())
        m_focusFrame = PartComponents::makeItem(Part::FocusFrame, *this);
    if (m_focusFrame)
        m_focusFrame->setVisible(m_block.keyFocus());
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
    if (m_icon && m_icon->isVisible()) {
        center(*m_icon, begin + m_icon->width() / 2.0, middle);
        begin += step;
    }
    for (RTintedImage *icon : {m_lockIcon, m_statusIcon}) {
        if (!icon || !icon->isVisible())
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

// The icon above the title; the title alone where both have no room.
void BlockLook::layOutOverview()
{
    const qreal edge = overviewBorder * m_block.unit();
    const QPointF middle = boundingRect().center();
    const qreal titleHeight = m_title && !m_block.title().isEmpty() ? m_title->implicitHeight() : 0.0;
    if (m_icon) {
        const qreal all = m_icon->height() + titleHeight;
        m_icon->setVisible(!m_block.iconKey().isEmpty() && (titleHeight == 0.0 || all <= height()));
        center(*m_icon, middle.x(), middle.y() - titleHeight / 2.0);
    }
    if (m_title) {
        const qreal room = width() - 2.0 * edge;
        m_title->setVisible(room > 0.0);
        m_title->setWidth(std::min(m_title->implicitWidth(), room));
        const bool hasIcon = m_icon && m_icon->isVisible();
        center(*m_title, middle.x(), middle.y() + (hasIcon ? m_icon->height() / 2.0 : 0.0));
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
    const bool isSelected = m_block.selected();
    const qreal width = !isSelected ? plainBorder : m_block.detailed() ? selectedBorder : overviewBorder;
    std::vector<ColoredRectangle> rectangles{{boundingRect(), m_block.ssBackground()}};
    addBorder(rectangles, boundingRect(), width * unit, border);
    if (isSelected && m_block.detailed())
        addMarks(rectangles, boundingRect(), markSize * unit, border);
    auto *node = oldNode ? static_cast<RectanglesNode *>(oldNode) : new RectanglesNode;
    node->setRectangles(rectangles);
    return node;
}

} // namespace tamble::client
