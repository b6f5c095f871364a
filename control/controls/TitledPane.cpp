#include "controls/TitledPane.h"

#include "style/StyleSetProps.h"

#include <QtQml/QQmlEngine>
#include <QtQuick/private/qquickitem_p.h>

#include <algorithm>

namespace tamble::client {

const std::array<SheetColors::Source, 2> TitledPane::colorSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::border, "border"},
}};

TitledPane::TitledPane(QQuickItem *parent)
    : QQuickPane(parent)
    , m_colors(*this, colorSources, [this](std::size_t begin, std::size_t end) {
        lookChange();
        if (begin <= Background)
            Q_EMIT ssBackgroundChanged();
        if (end > BorderColor) {
            Q_EMIT ssBorderColorChanged();
            Q_EMIT borderShownChanged();
        }
    })
{}

void TitledPane::setTitle(const QString &title)
{
    if (m_title == title)
        return;
    const bool wasNameless = m_title.isEmpty();
    m_title = title;
    updateHeader();
    if (wasNameless)
        accessibilityActiveChanged(QAccessible::isActive());
    else
        announce(*this, QAccessible::NameChanged);
    Q_EMIT titleChanged();
}

QQmlListProperty<QObject> TitledPane::headerContent()
{
    if (!m_header)
        makeHeader();
    return m_itemRow ? QQuickItemPrivate::get(m_itemRow)->data() : QQmlListProperty<QObject>();
}

void TitledPane::setCollapsed(bool collapsed)
{
    if (m_isCollapsed == collapsed)
        return;
    m_isCollapsed = collapsed;
    if (isComponentComplete())
        showBody();
    collapsedChange();
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT collapsedChanged();
}

void TitledPane::setBorderVisible(bool visible)
{
    if (m_isBorderVisible == visible)
        return;
    m_isBorderVisible = visible;
    lookChange();
    Q_EMIT borderVisibleChanged();
    Q_EMIT borderShownChanged();
}

void TitledPane::showBody()
{
    QQuickItem *focused = scopedFocusItem();
    if (m_isCollapsed && focused && contentItem()->isAncestorOf(focused))
        focused->setFocus(false);
    contentItem()->setVisible(!m_isCollapsed);
    updateInset();
}

// A page may have fixed the height.
void TitledPane::updateInset()
{
    setBottomInset(m_isCollapsed ? std::max(0.0, height() - headerHeight()) : 0.0);
}

qreal TitledPane::headerHeight() const
{
    return isHeaderShown() ? m_header->implicitHeight() : 0.0;
}

qreal TitledPane::headerWidth() const
{
    return isHeaderShown() ? m_header->implicitWidth() : 0.0;
}

// Whether or not the pane itself can be seen.
bool TitledPane::isHeaderShown() const
{
    return m_header && QQuickItemPrivate::get(m_header)->explicitVisible;
}

QString TitledPane::spokenDescription(const QString &given) const
{
    return given.isEmpty() && m_isCollapsed ? tr("collapsed") : given;
}

bool TitledPane::contains(const QPointF &point) const
{
    return QQuickPane::contains(point) && (!m_isCollapsed || point.y() < headerHeight());
}

bool TitledPane::wantsHeader() const
{
    return !m_title.isEmpty() || (m_itemRow && !m_itemRow->childItems().isEmpty());
}

void TitledPane::updateHeader()
{
    const bool isWanted = wantsHeader();
    if (isWanted && !m_header && !makeHeader())
        return;
    if (isHeaderShown() == isWanted)
        return;
    m_header->setVisible(isWanted);
    tellHeaderSize();
}

void TitledPane::tellHeaderSize()
{
    headerChange();
    if (m_isCollapsed)
        updateInset();
    Q_EMIT headerSizeChanged();
}

QQuickItem *TitledPane::makeHeader()
{
    QQmlEngine *engine = qmlEngine(this);
    if (!engine)
        return nullptr;
    const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue<QQuickItem *>(this)},
                                 {QStringLiteral("pane"), QVariant::fromValue<QObject *>(this)},
                                 {QStringLiteral("visible"), false}};
    m_header = qobject_cast<QQuickItem *>(PartComponents::of(engine).make(headerPart(), this, properties));
    if (!m_header)
        return nullptr;
    m_itemRow = m_header->property("itemRow").value<QQuickItem *>();
    connect(m_header, &QQuickItem::implicitHeightChanged, this, &TitledPane::tellHeaderSize);
    connect(m_header, &QQuickItem::implicitWidthChanged, this, &TitledPane::tellHeaderSize);
    if (m_itemRow)
        connect(m_itemRow, &QQuickItem::childrenChanged, this, &TitledPane::updateHeader);
    return m_header;
}

void TitledPane::componentComplete()
{
    QQuickPane::componentComplete();
    if (m_isCollapsed)
        showBody();
}

void TitledPane::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPane::geometryChange(newGeometry, oldGeometry);
    if (m_isCollapsed && newGeometry.height() != oldGeometry.height())
        updateInset();
}

void TitledPane::contentItemChange(QQuickItem *newItem, QQuickItem *oldItem)
{
    QQuickPane::contentItemChange(newItem, oldItem);
    if (newItem && m_isCollapsed)
        newItem->setVisible(false);
}

// In place of the template, which makes an attached object. A surface without a name says nothing to tools.
void TitledPane::accessibilityActiveChanged(bool active)
{
    if (active && !m_title.isEmpty())
        beginToSpeak(*this);
}

} // namespace tamble::client
