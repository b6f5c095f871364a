#pragma once

#include "ControlExport.h"
#include "style/StateHelper.h"
#include "style/StyleSetProps.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariantList>
#include <QtQml/qqml.h>

namespace tamble::client {

/// Attached to an item as `RStyleSet`: names the item for style sheets and gives its resolved values.
///
/// `name` holds class words and `state` state words, separated by blanks; `typeName` overrides the type of the item
/// when it is not empty.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleSet : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStyleSet)
    QML_UNCREATABLE("StyleSet is exposed as an attached property")
    QML_ATTACHED(tamble::client::StyleSet)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged)
    Q_PROPERTY(QString typeName MEMBER m_typeName NOTIFY typeNameChanged)
    Q_PROPERTY(QVariantList path READ path NOTIFY pathChanged)
    Q_PROPERTY(tamble::client::StyleSetProps *props READ props NOTIFY propsChanged)
    Q_PROPERTY(QString styleInfo READ styleInfo)
    Q_PROPERTY(QString state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(tamble::client::StateHelper *stateHelper READ stateHelper CONSTANT)

public:
    explicit StyleSet(QObject *parent = nullptr);

    static StyleSet *qmlAttachedProperties(QObject *object);

    QVariantList path() const { return {}; }
    StyleSetProps *props() const { return m_props; }
    QString styleInfo() const { return {}; }
    QString state() const { return m_state; }
    void setState(const QString &state);
    StateHelper *stateHelper() const { return m_stateHelper; }

Q_SIGNALS:
    void nameChanged();
    void typeNameChanged();
    void pathChanged();
    void propsChanged();
    void stateChanged();

private:
    QString m_name;
    QString m_typeName;
    QString m_state;
    StyleSetProps *m_props = nullptr;
    StateHelper *m_stateHelper = nullptr;
};

} // namespace tamble::client

QML_DECLARE_TYPEINFO(tamble::client::StyleSet, QML_HAS_ATTACHED_PROPERTIES)
