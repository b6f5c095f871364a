#include "controls/RPaneBase.h"

#include "base/PendingValue.h"

#include <QtCore/QScopedValueRollback>
#include <QtQml/QQmlEngine>
#include <QtQuickTemplates2/private/qquickpane_p_p.h>

#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

/// What no page gives, so that the page's is known by the change.
constexpr qreal noPadding = -1.0;

} // namespace

RPaneBase::RPaneBase(QQuickItem *parent)
    : TitledPane(parent)
{
    const QScopedValueRollback guard(m_isPadding, true);
    setPadding(noPadding);
}

QQmlListProperty<QObject> RPaneBase::content()
{
    return static_cast<QQuickPanePrivate *>(QQuickItemPrivate::get(this))->contentData();
}

void RPaneBase::setCollapsible(bool collapsible)
{
    if (m_isCollapsible == collapsible)
        return;
    m_isCollapsible = collapsible;
    updateHeader();
    updateToggle();
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT collapsibleChanged();
}

void RPaneBase::updateToggle()
{
    if (m_isCollapsible && !m_toggle && header()) {
        const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue(header())},
                                     {QStringLiteral("pane"), QVariant::fromValue<QObject *>(this)}};
        auto &parts = PartComponents::of(qmlEngine(this));
        m_toggle = qobject_cast<QQuickItem *>(parts.make(Part::PaneToggle, header(), properties));
    }
    if (m_toggle)
        m_toggle->setVisible(m_isCollapsible);
}

void RPaneBase::assignContentPadding(std::optional<qreal> padding)
{
    if (m_contentPadding == padding)
        return;
    m_contentPadding = padding;
    if (isComponentComplete())
        updatePadding();
    Q_EMIT contentPaddingChanged();
}

void RPaneBase::setUnit(qreal unit)
{
    if (!std::isfinite(unit) || std::exchange(m_unit, unit) == unit)
        return;
    lookChange();
    if (isComponentComplete())
        updatePadding();
    Q_EMIT unitChanged();
    Q_EMIT contentPaddingChanged();
}

void RPaneBase::updatePadding()
{
    const QScopedValueRollback guard(m_isPadding, true);
    setPadding(contentPadding());
    const bool hasHeader = headerHeight() > 0.0;
    if (hasHeader)
        setTopPadding(contentPadding() + headerHeight());
    else if (m_hasHeaderPadding)
        resetTopPadding();
    m_hasHeaderPadding = hasHeader;
}

void RPaneBase::headerChange()
{
    if (isComponentComplete())
        updatePadding();
}

void RPaneBase::paddingChange(const QMarginsF &newPadding, const QMarginsF &oldPadding)
{
    TitledPane::paddingChange(newPadding, oldPadding);
    if (!m_isPadding && padding() != noPadding && padding() != contentPadding())
        setContentPadding(padding());
}

void RPaneBase::componentComplete()
{
    if (!background()) {
        m_ground = new QQuickRectangle(this);
        setBackground(m_ground);
        lookChange();
    }
    updatePadding();
    TitledPane::componentComplete();
}

// Paddings and colours are set here, since bindings to them would be a third of what a pane without a header takes.
void RPaneBase::lookChange()
{
    if (!m_ground)
        return;
    m_ground->setColor(ssBackground());
    m_hasPen = m_hasPen || isBorderShown();
    if (m_hasPen) {
        m_ground->border()->setColor(ssBorderColor());
        m_ground->border()->setWidth(isBorderShown() ? m_unit : 0.0);
    }
}

void RPaneBase::toggle()
{
    if (!m_isCollapsible)
        return;
    if (!m_pendingCollapse)
        m_pendingCollapse = new PendingValue(this, QStringLiteral("collapsed"));
    const bool collapsed = !isCollapsed();
    const QPointer<RPaneBase> guard(this);
    m_pendingCollapse->show(collapsed);
    Q_EMIT collapsedEdited(collapsed);
    if (guard)
        m_pendingCollapse->commit();
}

QString RPaneBase::spokenDescription(const QString &given) const
{
    if (!given.isEmpty() || !m_isCollapsible)
        return TitledPane::spokenDescription(given);
    return isCollapsed() ? tr("collapsed") : tr("expanded");
}

} // namespace tamble::client
