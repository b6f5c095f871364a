#pragma once

#include "base/ControlExport.h"
#include "style/PropsUser.h"
#include "style/StateHelper.h"
#include "style/StyleFollower.h"
#include "style/StyleSetProps.h"
#include "style/resolution/StylePath.h"

#include <QtCore/QObject>
#include <QtCore/QVariantList>
#include <QtQml/qqml.h>

#include <memory>

class QQuickItem;

namespace tamble::client {

class UsageCountedStyleSetProps;

/// Attached to an item as `RStyleSet`: names the item for style sheets, places it in the tree of items, and gives its
/// resolved values.
///
/// While a QML component is being built, its items are not where they will be; the path is made when somebody first
/// needs it.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleSet : public QObject, private PropsUser
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStyleSet)
    QML_UNCREATABLE("StyleSet is exposed as an attached property")
    // Qualified, since the type description takes the name as it stands here.
    QML_ATTACHED(tamble::client::StyleSet)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QString typeName READ typeName WRITE setTypeName NOTIFY typeNameChanged)
    Q_PROPERTY(QVariantList path READ path NOTIFY pathChanged)
    /// The values that the sheets give to the item; it tells a change when sheets, path or state change.
    Q_PROPERTY(tamble::client::StyleSetProps *props READ props NOTIFY propsChanged)
    Q_PROPERTY(QString styleInfo READ styleInfo)
    Q_PROPERTY(QString state READ state WRITE setState NOTIFY stateChanged)
    /// The item's interaction states, which become its state words.
    Q_PROPERTY(tamble::client::StateHelper *stateHelper READ stateHelper CONSTANT)

public:
    explicit StyleSet(QObject *parent = nullptr);
    ~StyleSet() override;

    static StyleSet *qmlAttachedProperties(QObject *object);

    /// Class words, separated by blanks.
    QString name() const { return m_name; }
    void setName(const QString &name);
    /// What style sheets call the type of the item; empty leaves it at the item's own type.
    QString typeName() const { return m_typeName; }
    void setTypeName(const QString &typeName);
    /// State words, separated by blanks. The next change of a flag of the state helper overwrites them.
    QString state() const { return m_state; }
    void setState(const QString &state);

    /// The elements from the scene's root to the item: maps with typeName, classes and states.
    QVariantList path();
    StyleSetProps *props();
    /// The matching rules, strongest first, for the author of a sheet; empty without a sheet.
    QString styleInfo();
    StateHelper *stateHelper();

    /// The style information of any object, without making a style set for it; empty when it has none.
    Q_INVOKABLE QString styleInfoOf(QObject *object) const;

    const StylePathRef &stylePath();

    /// Who is told of each change before propsChanged() is sent: one at the most, null for none. A connection would
    /// take 400 bytes for every item.
    void setFollower(StyleFollower *follower) { m_follower = follower; }

    /// From now on the item itself calls onParentChanged() when it gets another parent or comes into a window. For
    /// items that are moved by hundreds: Qt copies the list of an item's listeners whenever it moves the item.
    void leaveParentToItem();

public Q_SLOTS:
    /// Places the item anew below its new parent; no parent leaves it as it was.
    void onParentChanged(QQuickItem *pNewParent);

Q_SIGNALS:
    void nameChanged();
    void typeNameChanged();
    void pathChanged();
    void propsChanged();
    void stateChanged();

private:
    class ItemListener;

    bool isPlaced() const;
    void placeAnew();
    StylePathRef makePath() const;
    void takePath(StylePathRef path);
    void followProps();
    void onPropsChanged() override;
    void propagate();

    QString m_name;
    QString m_typeName;
    QString m_state;
    StylePathRef m_path;                                // null until somebody needs it
    std::shared_ptr<UsageCountedStyleSetProps> m_props; // null until somebody reads a value
    StyleFollower *m_follower = nullptr;
    StateHelper *m_stateHelper = nullptr;     // a child, made when it is first used
    std::unique_ptr<ItemListener> m_listener; // null when attached to another object or told by the item
    bool m_followsWindow = false;
};

} // namespace tamble::client

QML_DECLARE_TYPEINFO(tamble::client::StyleSet, QML_HAS_ATTACHED_PROPERTIES)
