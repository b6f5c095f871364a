#pragma once

#include "ControlExport.h"
#include "style/StylePath.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtCore/QVariant>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

class ResolvedMap;
struct PropertySpec;

/// The values that the style sheets give to one style path, reached as `RStyleSet.props`.
///
/// The getters of one type give that type's default (an invalid colour, 0, false, the default font, an empty text or
/// URL) for a key that no rule sets, and for a value that is not exactly one or cannot be converted; the latter is
/// logged. A value is converted once, however many bindings read it.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleSetProps : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStyleSetProps)
    QML_UNCREATABLE("Exposed as RStyleSet.props")

public:
    explicit StyleSetProps(StylePathRef path);
    ~StyleSetProps() override;

    /// Whether any key has a value.
    Q_INVOKABLE bool isValid() const;
    Q_INVOKABLE bool isSet(const QString &key) const;
    /// The value: a text, or what its function gives; a list when there are several; invalid when there is none.
    Q_INVOKABLE QVariant get(const QString &key);
    /// All values of the key, as get() gives them one by one; an empty list when there is none.
    Q_INVOKABLE QVariant values(const QString &key);
    Q_INVOKABLE QColor color(const QString &key);
    Q_INVOKABLE bool boolean(const QString &key);
    Q_INVOKABLE double number(const QString &key);
    Q_INVOKABLE QFont font(const QString &key);
    Q_INVOKABLE QString string(const QString &key);
    Q_INVOKABLE QUrl url(const QString &key);

    const StylePathRef &path() const { return m_path; }

    /// Forgets all values, which are looked up anew when they are next asked for. Emits nothing.
    virtual void invalidate();

Q_SIGNALS:
    /// Every value may be another one.
    void propsChanged();

protected:
    /// A getter found no value for `key`.
    virtual void noteMissing(const QString &key);

private:
    const PropertySpec *find(const QString &key) const;
    template <typename T>
    T converted(const QString &key, const char *typeName, T (*convert)(const PropertySpec &));

    StylePathRef m_path;
    mutable const ResolvedMap *m_resolved = nullptr; // null until asked for, and again after a style load
    QHash<std::pair<QString, const char *>, QVariant> m_converted;
};

} // namespace tamble::client
