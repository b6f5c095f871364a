#include "workspace/RWorkspaceBlock.h"

#include "style/StyleSet.h"
#include "style/StyleTree.h"
#include "workspace/BlockLook.h"

#include <QtQml/qqml.h>
#include <QtQuick/private/qquickitem_p.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

// In density-independent units.
constexpr QSizeF leastBlockSize{96.0, 64.0};
constexpr qreal valueBarHeight = 6.0;

constexpr qreal lineStep = 1.25; // factor

} // namespace

const std::array<SheetColors::Source, 3> RWorkspaceBlock::colorSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::border},
    {&StyleSetProps::foreground, nullptr, -1, "RButton"},
}};

RWorkspaceBlock::RWorkspaceBlock(QQuickItem *parent)
    : WorkspaceItemBase(parent)
    , m_colors(*this, colorSources, [this](std::size_t begin, std::size_t end) { onColorsChanged(begin, end); })
{}

RWorkspaceBlock::~RWorkspaceBlock() = default;

void RWorkspaceBlock::onColorsChanged(std::size_t begin, std::size_t end)
{
    if (m_look)
        m_look->refresh();
    if (begin <= Background)
        Q_EMIT ssBackgroundChanged();
    if (begin <= BorderColor && end > BorderColor)
        Q_EMIT ssBorderColorChanged();
    if (end > Color)
        Q_EMIT ssColorChanged();
}

void RWorkspaceBlock::setTitle(const QString &title)
{
    if (m_title == title)
        return;
    m_title = title;
    announce(*this, QAccessible::NameChanged);
    Q_EMIT titleChanged();
    updateLook();
}

void RWorkspaceBlock::setIconKey(const QString &key)
{
    if (m_iconKey == key)
        return;
    m_iconKey = key;
    updateLook();
    Q_EMIT iconKeyChanged();
}

void RWorkspaceBlock::setStatusIconKey(const QString &key)
{
    if (m_statusIconKey == key)
        return;
    m_statusIconKey = key;
    updateLook();
    Q_EMIT statusIconKeyChanged();
}

QQmlListProperty<QObject> RWorkspaceBlock::content()
{
    return QQuickItemPrivate::get(&makeContentItem())->data();
}

QQuickItem &RWorkspaceBlock::makeContentItem()
{
    if (!contentItem()) {
        auto *item = new QQuickItem(this);
        connect(item, &QQuickItem::childrenRectChanged, this, &RWorkspaceBlock::updateSize);
        setContentItem(item);
        placeContent();
    }
    return *contentItem();
}

void RWorkspaceBlock::setContentComponent(QQmlComponent *component)
{
    if (component)
        makeContentItem();
    WorkspaceItemBase::setContentComponent(component);
}

void RWorkspaceBlock::setValueBar(QQmlComponent *component)
{
    if (m_valueBar == component)
        return;
    m_valueBar = component;
    if (m_look)
        m_look->dropValueBar();
    updateSize();
    updateLook();
    Q_EMIT valueBarChanged();
}

QQuickItem *RWorkspaceBlock::valueBarItem() const
{
    return m_look ? m_look->valueBar() : nullptr;
}

void RWorkspaceBlock::setUnit(qreal unit)
{
    if (!std::isfinite(unit) || std::exchange(m_unit, unit) == unit)
        return;
    updateSize();
    placeContent();
    updateLook();
    Q_EMIT unitChanged();
}

qreal RWorkspaceBlock::barHeight() const
{
    return m_valueBar ? valueBarHeight * m_unit : 0.0;
}

void RWorkspaceBlock::updateSize()
{
    if (!isComponentComplete())
        return;
    const QSizeF least = leastBlockSize * m_unit;
    const QRectF inside = contentItem() ? contentItem()->childrenRect() : QRectF();
    setImplicitSize(std::max(least.width(), inside.right()),
                    std::max(least.height(), BlockLook::headerHeight * m_unit + inside.bottom() + barHeight()));
    placeContent();
}

void RWorkspaceBlock::placeContent()
{
    if (!contentItem() || !isComponentComplete())
        return;
    const qreal top = BlockLook::headerHeight * m_unit;
    contentItem()->setY(top);
    contentItem()->setSize({width(), std::max(0.0, height() - top - barHeight())});
}

void RWorkspaceBlock::updateLook()
{
    if (!isComponentComplete() || (!inView() && !m_look))
        return;
    followZoom();
    fitLines();
    if (inView()) {
        feedStates();
        if (!m_look)
            m_look = new BlockLook(*this);
        m_look->refresh();
    }
    m_look->setVisible(inView());
}

void RWorkspaceBlock::followZoom()
{
    // A workspace that goes leaves its items in view.
    const bool follows = inView() && workspace();
    if (follows == bool(m_zoomConnection))
        return;
    disconnect(m_zoomConnection);
    m_zoomConnection = {};
    if (follows)
        m_zoomConnection = connect(workspace(), &WorkspaceBase::zoomChanged, this, [this] {
            if (fitLines())
                m_look->refresh();
        });
}

bool RWorkspaceBlock::fitLines()
{
    if (!m_zoomConnection)
        return false;
    const qreal zoom = workspace()->zoom();
    // In steps, so that not every zoom draws all lines anew; never too thin to be seen.
    const qreal steps = std::ceil(std::log(1.0 / zoom) / std::log(lineStep) - 1e-6);
    const qreal width = zoom < 1.0 ? std::pow(lineStep, steps) : 1.0;
    return std::exchange(m_lineWidth, width) != width;
}

// Only where somebody sees it, since even this counts with thousands of them.
void RWorkspaceBlock::feedStates()
{
    const std::array<FedStates::State, 4> states = {{
        {StateHelper::Selected, selected()},
        {StateHelper::Hovered, hovered()},
        {StateHelper::Focus, keyFocus()},
        {StateHelper::Disabled, !isEnabled()},
    }};
    m_states.feed(*this, states);
}

void RWorkspaceBlock::componentComplete()
{
    WorkspaceItemBase::componentComplete();
    if (StyleSet *styleSet = attachedStyleSet(this))
        styleSet->leaveParentToItem();
    updateSize();
    updateLook();
}

void RWorkspaceBlock::sizeChange()
{
    placeContent();
    updateLook();
}

void RWorkspaceBlock::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemParentHasChanged || change == ItemSceneChange) {
        if (StyleSet *styleSet = attachedStyleSet(this))
            styleSet->onParentChanged(parentItem());
    }
    WorkspaceItemBase::itemChange(change, data);
    if (change == ItemEnabledHasChanged)
        updateLook();
}

QString RWorkspaceBlock::spokenName() const
{
    return m_title.isEmpty() ? WorkspaceItemBase::spokenName() : m_title;
}

} // namespace tamble::client
