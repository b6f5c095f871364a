#include "style/StyleSet.h"

#include "style/StyleEngine.h"
#include "style/StyleTree.h"
#include "style/UsageCountedStyleSetProps.h"
#include "style/loading/StyleLog.h"
#include "style/resolution/StylePathPool.h"

#include <QtCore/QPointer>
#include <QtCore/QVariantMap>
#include <QtQuick/QQuickItem>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qquickitemchangelistener_p.h>

namespace tamble::client {

// Told of the item's new parents at a tenth of the memory of a connection.
class StyleSet::ItemListener : public QQuickItemChangeListener
{
public:
    ItemListener(StyleSet &styleSet, QQuickItem *item)
        : m_styleSet(styleSet)
        , m_item(item)
    {
        QQuickItemPrivate::get(m_item)->addItemChangeListener(this, changes);
    }

    ~ItemListener() override
    {
        if (m_item)
            QQuickItemPrivate::get(m_item)->removeItemChangeListener(this, changes);
    }

    Q_DISABLE_COPY_MOVE(ItemListener)

    /// Null while the item is being destroyed.
    QQuickItem *item() const { return m_item; }

    void itemParentChanged(QQuickItem *, QQuickItem *parent) override { m_styleSet.onParentChanged(parent); }
    void itemDestroyed(QQuickItem *) override { m_item = nullptr; }

private:
    static constexpr QQuickItemPrivate::ChangeTypes changes = QQuickItemPrivate::Parent | QQuickItemPrivate::Destroyed;

    StyleSet &m_styleSet;
    QQuickItem *m_item;
};

StyleSet::StyleSet(QObject *parent)
    : QObject(parent)
{
    if (auto *item = qobject_cast<QQuickItem *>(parent)) {
        m_listener = std::make_unique<ItemListener>(*this, item);
    } else if (parent) {
        qCInfo(styleLog).noquote().nospace()
            << "INFO: Parent to StyleSet is not a QQuickItem but '" << parent->metaObject()->className() << "'";
        Q_EMIT StyleEngine::instance()->exception(
            QStringLiteral("noParentChangeReports"),
            QStringLiteral("Hierarchy changes for this component won't be detected"));
    }
}

StyleSet::~StyleSet() = default;

StyleSet *StyleSet::qmlAttachedProperties(QObject *object)
{
    return new StyleSet(object);
}

void StyleSet::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    placeAnew();
    Q_EMIT nameChanged();
}

void StyleSet::setTypeName(const QString &typeName)
{
    if (m_typeName == typeName)
        return;
    m_typeName = typeName;
    placeAnew();
    Q_EMIT typeNameChanged();
}

void StyleSet::setState(const QString &state)
{
    if (m_state == state)
        return;
    m_state = state;
    placeAnew();
    Q_EMIT stateChanged();
}

QVariantList StyleSet::path()
{
    QVariantList elements;
    for (const StylePath *path = stylePath().get(); path; path = path->parent()) {
        const StyleElement &element = path->element();
        elements.prepend(QVariantMap{{QStringLiteral("typeName"), element.typeName},
                                     {QStringLiteral("classes"), element.classes},
                                     {QStringLiteral("states"), element.states}});
    }
    return elements;
}

StyleSetProps *StyleSet::props()
{
    if (!m_props)
        followProps();
    return m_props.get();
}

QString StyleSet::styleInfo()
{
    return stylePath() ? StyleEngine::instance()->styleInfo(*stylePath()) : QString();
}

QString StyleSet::styleInfoOf(QObject *object) const
{
    StyleSet *styleSet = object ? attachedStyleSet(object) : nullptr;
    return styleSet ? styleSet->styleInfo() : QString();
}

StateHelper *StyleSet::stateHelper()
{
    if (!m_stateHelper)
        m_stateHelper = new StateHelper(*this);
    return m_stateHelper;
}

const StylePathRef &StyleSet::stylePath()
{
    if (!m_path)
        takePath(makePath());
    return m_path;
}

void StyleSet::leaveParentToItem()
{
    m_listener.reset();
}

void StyleSet::onParentChanged(QQuickItem *pNewParent)
{
    if (pNewParent)
        placeAnew();
}

// Whether others may have seen where the item stands. An item that QML is still building is placed when it is needed.
bool StyleSet::isPlaced() const
{
    if (m_path)
        return true;
    return !m_listener || (m_listener->item() && QQuickItemPrivate::get(m_listener->item())->componentComplete);
}

void StyleSet::placeAnew()
{
    if (!isPlaced())
        return;
    StylePathRef path = makePath();
    if (path == m_path)
        return;
    takePath(std::move(path));
    if (m_props)
        followProps();
    onPropsChanged();
    Q_EMIT pathChanged();
    if (isRooted(m_path.get()))
        propagate();
}

StylePathRef StyleSet::makePath() const
{
    if (!parent())
        return {};
    return StylePathPool::instance().child(pathOf(visualParent(parent())).get(), styleTypeName(parent(), m_typeName),
                                           m_name, m_state);
}

// An item below unstyled ones hears nothing when one of these gets its parent, but of the window it does.
void StyleSet::takePath(StylePathRef path)
{
    m_path = std::move(path);
    if (m_followsWindow || !m_listener || !m_listener->item() || isInScene(m_path.get()))
        return;
    m_followsWindow = true;
    QQuickItem *item = m_listener->item();
    connect(item, &QQuickItem::windowChanged, this, [this, item](QQuickWindow *window) {
        if (window)
            onParentChanged(item->parentItem());
    });
}

void StyleSet::followProps()
{
    unlink();
    m_props = StyleEngine::instance()->propsFor(stylePath());
    m_props->addUser(*this);
}

void StyleSet::onPropsChanged()
{
    if (m_follower)
        m_follower->onStyleChanged();
    Q_EMIT propsChanged();
}

// Handlers of one descendant's change may destroy or move another.
void StyleSet::propagate()
{
    QList<QPointer<StyleSet>> descendants;
    collectNearestStyleSets(parent(), descendants);
    for (const QPointer<StyleSet> &descendant : std::as_const(descendants)) {
        if (descendant)
            descendant->placeAnew();
    }
}

} // namespace tamble::client
