#include "cells/RCellBase.h"

#include "base/PartComponents.h"
#include "cells/CellViewFocus.h"
#include "cells/RCellContainerBase.h"
#include "controls/RButtonBase.h"

#include <QtCore/QVariantMap>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRectangleNode>
#include <QtQuick/private/qquickaccessibleattached_p.h>

#include <utility>

// What a cell is and shows. Keys and the mouse are in RCellInput.cpp.

namespace tamble::client {

namespace {

/// A table is one stop of the Tab key.
void passByTab(QQuickItem &item)
{
    item.setActiveFocusOnTab(false);
    for (QQuickItem *child : item.childItems())
        passByTab(*child);
}

} // namespace

RCellBase::RCellBase(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    setFiltersChildMouseEvents(true);
    QAccessible::installActivationObserver(this);
}

RCellBase::~RCellBase()
{
    // It loses the focus when nothing of this is left.
    if (m_control)
        m_control->disconnect(this);
    QAccessible::removeActivationObserver(this);
}

void RCellBase::setRow(int row)
{
    place(m_row, row, &RCellBase::rowChanged);
}

void RCellBase::setColumn(int column)
{
    place(m_column, column, &RCellBase::columnChanged);
}

void RCellBase::setRowSpan(int span)
{
    place(m_rowSpan, span, &RCellBase::rowSpanChanged);
}

void RCellBase::setColumnSpan(int span)
{
    place(m_columnSpan, span, &RCellBase::columnSpanChanged);
}

void RCellBase::place(int &part, int value, void (RCellBase::*changed)())
{
    if (std::exchange(part, value) == value)
        return;
    followRaster();
    Q_EMIT(this->*changed)();
}

RCellGridPropertiesBase *RCellBase::gridProperties() const
{
    return m_ownGrid || !m_container ? m_ownGrid.get() : m_container->gridProperties();
}

void RCellBase::setGridProperties(RCellGridPropertiesBase *properties)
{
    if (m_ownGrid == properties)
        return;
    if (m_ownGrid)
        m_ownGrid->disconnect(this);
    m_ownGrid = properties;
    if (properties)
        connect(properties, &RCellGridPropertiesBase::rasterChanged, this, &RCellBase::followRaster);
    followRaster();
    Q_EMIT gridPropertiesChanged();
}

void RCellBase::setLabel(const QString &label)
{
    if (std::exchange(m_label, label) == label)
        return;
    nameControl();
    announce(*this, QAccessible::NameChanged);
    Q_EMIT labelChanged();
}

void RCellBase::setSelected(bool selected)
{
    if (std::exchange(m_selected, selected) == selected)
        return;
    updateFrames();
    Q_EMIT selectedChanged();
}

void RCellBase::setSelectable(bool selectable)
{
    if (std::exchange(m_selectable, selectable) == selectable)
        return;
    if (m_container)
        m_container->arrange();
    Q_EMIT selectableChanged();
}

// The current cell is where the focus is when its table has it.
void RCellBase::setCurrent(bool current)
{
    // Also without a change: a view hides cells, which costs them the focus, and uses them again.
    if (current || hasFocus())
        setFocus(current);
    if (std::exchange(m_current, current) != current)
        Q_EMIT currentChanged();
}

void RCellBase::setReadOnly(bool readOnly)
{
    if (std::exchange(m_readOnly, readOnly) == readOnly)
        return;
    followLock();
    Q_EMIT readOnlyChanged();
}

bool RCellBase::isLocked() const
{
    return m_readOnly || (m_container && m_container->isReadOnly());
}

void RCellBase::setControl(QQuickItem *control)
{
    // What the cell is placed in, or is itself, cannot be placed in it.
    if (m_control == control || control == this || (control && control->isAncestorOf(this)))
        return;
    if (m_control)
        m_control->disconnect(this);
    m_control = control;
    if (control) {
        passByTab(*control);
        nameControl();
    }
    placeControl();
    followLock();
    Q_EMIT controlChanged();
}

void RCellBase::setControlPadded(bool padded)
{
    if (std::exchange(m_controlPadded, padded) == padded)
        return;
    placeControl();
    Q_EMIT controlPaddedChanged();
}

void RCellBase::setUnit(qreal unit)
{
    if (std::exchange(m_unit, unit) == unit)
        return;
    followRaster();
    Q_EMIT unitChanged();
}

void RCellBase::setRefusal(const QString &reason)
{
    if (std::exchange(m_refusal, reason) == reason)
        return;
    PartComponents::show(m_refusalMark, Part::CellRefusal, *this, !reason.isEmpty());
    if (m_refusalMark)
        m_refusalMark->setProperty("text", reason);
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT refusalChanged();
}

void RCellBase::setContainer(RCellContainerBase *container)
{
    if (m_container == container)
        return;
    if (m_container)
        disconnect(m_container);
    m_container = container;
    if (container)
        connect(this, &RCellBase::activated, container, [this, container] { container->activate(*this); });
    followRaster();
    Q_EMIT gridPropertiesChanged();
    followLock();
}

void RCellBase::setHighlighted(bool highlighted)
{
    if (std::exchange(m_highlighted, highlighted) != highlighted)
        updateFrames();
}

void RCellBase::setGround(const QColor &ground)
{
    if (std::exchange(m_ground, ground) == ground)
        return;
    setFlag(ItemHasContents, ground.isValid());
    update();
}

QString RCellBase::takeText(const QString &)
{
    return tr("This cell takes no text");
}

QString RCellBase::textToCopy() const
{
    QString text;
    QMetaObject::invokeMethod(const_cast<RCellBase *>(this), "cellText", Q_RETURN_ARG(QString, text));
    return text;
}

QString RCellBase::pasteText(const QString &text)
{
    if (isLocked())
        return tr("This cell cannot be edited");
    QString reason;
    QMetaObject::invokeMethod(this, "takeText", Q_RETURN_ARG(QString, reason), Q_ARG(QString, text));
    return reason;
}

QString RCellBase::spokenName() const
{
    return m_label.isEmpty() ? textToCopy() : m_label;
}

QString RCellBase::spokenDescription(const QString &given) const
{
    QStringList parts{tr("row %1, column %2").arg(m_row + 1).arg(m_column + 1)};
    const QString text = m_label.isEmpty() ? QString() : textToCopy();
    for (const QString &part : {text, given, m_consistent ? QString() : tr("mixed"), m_refusal}) {
        if (!part.isEmpty())
            parts.append(part);
    }
    return parts.join(QStringLiteral(", "));
}

void RCellBase::addSpokenStates(QAccessible::State &state) const
{
    state.focusable = true;
    state.selectable = m_selectable;
    state.selected = m_selected || m_highlighted;
    state.readOnly = isLocked();
}

bool RCellBase::pressBySpeech()
{
    use();
    return true;
}

void RCellBase::accessibilityActiveChanged(bool active)
{
    if (!active)
        return;
    beginToSpeak(*this);
    nameControl();
}

void RCellBase::componentComplete()
{
    QQuickItem::componentComplete();
    followRaster();
    if (QQuickItem *view = tableView())
        CellViewFocus::follow(*view);
    if (QAccessible::isActive())
        accessibilityActiveChanged(true);
}

void RCellBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        placeControl();
}

void RCellBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    switch (change) {
    case ItemActiveFocusHasChanged:
        // Moves between the cell and its control matter while the focus is here only.
        if (m_control && data.boolValue)
            connect(m_control, &QQuickItem::activeFocusChanged, this, &RCellBase::followFocus, Qt::UniqueConnection);
        else if (m_control)
            disconnect(m_control, &QQuickItem::activeFocusChanged, this, &RCellBase::followFocus);
        followFocus();
        if (data.boolValue && m_container)
            m_container->makeCurrent(*this);
        else if (data.boolValue)
            tellView();
        break;
    case ItemParentHasChanged:
        setContainer(qobject_cast<RCellContainerBase *>(data.item));
        break;
    case ItemVisibleHasChanged:
        if (m_current && data.boolValue)
            setFocus(true);
        [[fallthrough]];
    case ItemEnabledHasChanged:
        if (m_container)
            m_container->arrange();
        break;
    default:
        break;
    }
}

QSGNode *RCellBase::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGRectangleNode *>(oldNode);
    if (!m_ground.isValid()) {
        delete node;
        return nullptr;
    }
    if (!node)
        node = window()->createRectangleNode();
    node->setRect(boundingRect());
    node->setColor(m_ground);
    return node;
}

void RCellBase::followRaster()
{
    if (!isComponentComplete())
        return;
    if (const RCellGridPropertiesBase *grid = gridProperties()) {
        const CellArea taken = area();
        setImplicitSize(grid->spanWidth(taken.column, taken.columns), grid->spanHeight(taken.row, taken.rows));
    } else {
        setImplicitSize(144.0 * m_unit, 32.0 * m_unit);
    }
    placeControl();
    if (m_container)
        m_container->arrange();
}

// The button of a cell has the focus of its cell and looks the same when it must not be pressed.
void RCellBase::followLock()
{
    auto *button = qobject_cast<QQuickAbstractButton *>(m_control.get());
    if (button)
        button->setFocus(!isLocked());
    followFocus();
    Q_EMIT lockedChanged();
}

void RCellBase::placeControl()
{
    if (!m_control)
        return;
    const RCellGridPropertiesBase *grid = gridProperties();
    const double padding = !m_controlPadded ? 0.0 : grid ? grid->padding() : 4.0 * m_unit;
    m_control->setX(padding);
    m_control->setSize({std::max(0.0, width() - 2.0 * padding), height()});
}

// Only for tools that listen: the attached object costs 2.4 KB.
void RCellBase::nameControl()
{
    if (!QAccessible::isActive() || !m_control || m_label.isEmpty())
        return;
    auto *accessible = qobject_cast<QQuickAccessibleAttached *>(
        qmlAttachedPropertiesObject<QQuickAccessibleAttached>(m_control.get(), true));
    accessible->setName(m_label);
}

void RCellBase::updateFrames()
{
    PartComponents::show(m_focusFrame, Part::FocusFrame, *this,
                         hasActiveFocus() && !(m_control && m_control->hasActiveFocus()));
    // Without a tint, the current cell is seen among selected ones.
    PartComponents::show(m_selectionFrame, Part::CellSelection, *this,
                         m_selected || (m_highlighted && !hasActiveFocus()));
}

} // namespace tamble::client
