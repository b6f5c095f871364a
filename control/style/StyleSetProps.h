#pragma once

#include "base/ControlExport.h"
#include "style/resolution/StylePath.h"

#include <QtCore/QObject>
#include <QtCore/QSet>
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
///
/// The keys of the built-in sheets are properties as well, named after the key in camel case ("line-visible" is
/// `lineVisible`), since compiled bindings read a property ten times faster than they call a function. They are
/// constant: when values change, RStyleSet.props itself tells so.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleSetProps : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStyleSetProps)
    QML_UNCREATABLE("Exposed as RStyleSet.props")
    Q_PROPERTY(QColor aggregatedArea READ aggregatedArea CONSTANT FINAL)
    Q_PROPERTY(QColor aggregatedCurve READ aggregatedCurve CONSTANT FINAL)
    Q_PROPERTY(QColor background READ background CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundBar READ backgroundBar CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundDelimiter READ backgroundDelimiter CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundError READ backgroundError CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundFlashing READ backgroundFlashing CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundGreen READ backgroundGreen CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundItem READ backgroundItem CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundItemHover READ backgroundItemHover CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundItemSelected READ backgroundItemSelected CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundRed READ backgroundRed CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundSelected READ backgroundSelected CONSTANT FINAL)
    Q_PROPERTY(QColor backgroundYellow READ backgroundYellow CONSTANT FINAL)
    Q_PROPERTY(QColor border READ border CONSTANT FINAL)
    Q_PROPERTY(QColor borderColorFocus READ borderColorFocus CONSTANT FINAL)
    Q_PROPERTY(QColor borderFocus READ borderFocus CONSTANT FINAL)
    Q_PROPERTY(bool borderVisible READ borderVisible CONSTANT FINAL)
    Q_PROPERTY(QColor bypassCurve READ bypassCurve CONSTANT FINAL)
    Q_PROPERTY(QColor clipIndicatorColor READ clipIndicatorColor CONSTANT FINAL)
    Q_PROPERTY(QColor confirmIndicator READ confirmIndicator CONSTANT FINAL)
    Q_PROPERTY(QColor curve READ curve CONSTANT FINAL)
    Q_PROPERTY(QColor extraTick READ extraTick CONSTANT FINAL)
    Q_PROPERTY(QColor foreground READ foreground CONSTANT FINAL)
    Q_PROPERTY(QColor foregroundDragHandle READ foregroundDragHandle CONSTANT FINAL)
    Q_PROPERTY(QColor foregroundInvalid READ foregroundInvalid CONSTANT FINAL)
    Q_PROPERTY(QColor foregroundItem READ foregroundItem CONSTANT FINAL)
    Q_PROPERTY(QColor foregroundItemHover READ foregroundItemHover CONSTANT FINAL)
    Q_PROPERTY(QColor foregroundItemSelected READ foregroundItemSelected CONSTANT FINAL)
    Q_PROPERTY(QColor foregroundSelection READ foregroundSelection CONSTANT FINAL)
    Q_PROPERTY(QColor handle READ handle CONSTANT FINAL)
    Q_PROPERTY(QColor handleBorder READ handleBorder CONSTANT FINAL)
    Q_PROPERTY(QColor handleBorderFocus READ handleBorderFocus CONSTANT FINAL)
    Q_PROPERTY(QColor handleHover READ handleHover CONSTANT FINAL)
    Q_PROPERTY(QColor handleInconsistent READ handleInconsistent CONSTANT FINAL)
    Q_PROPERTY(QColor handleLine READ handleLine CONSTANT FINAL)
    Q_PROPERTY(QColor handleLineHover READ handleLineHover CONSTANT FINAL)
    Q_PROPERTY(QColor handlebar READ handlebar CONSTANT FINAL)
    Q_PROPERTY(QColor inconsistentFlag READ inconsistentFlag CONSTANT FINAL)
    Q_PROPERTY(QColor indexAbove READ indexAbove CONSTANT FINAL)
    Q_PROPERTY(QColor indexBelow READ indexBelow CONSTANT FINAL)
    Q_PROPERTY(QColor indicatorBackground READ indicatorBackground CONSTANT FINAL)
    Q_PROPERTY(QColor indicatorBackgroundHover READ indicatorBackgroundHover CONSTANT FINAL)
    Q_PROPERTY(QColor indicatorColor READ indicatorColor CONSTANT FINAL)
    Q_PROPERTY(QColor individualCurve READ individualCurve CONSTANT FINAL)
    Q_PROPERTY(QColor itemColorCurrent READ itemColorCurrent CONSTANT FINAL)
    Q_PROPERTY(QColor itemColorHover READ itemColorHover CONSTANT FINAL)
    Q_PROPERTY(QColor label READ label CONSTANT FINAL)
    Q_PROPERTY(QColor line READ line CONSTANT FINAL)
    Q_PROPERTY(bool lineAtTop READ lineAtTop CONSTANT FINAL)
    Q_PROPERTY(QColor lineColor READ lineColor CONSTANT FINAL)
    Q_PROPERTY(QColor lineHorizontal READ lineHorizontal CONSTANT FINAL)
    Q_PROPERTY(QColor lineInvalid READ lineInvalid CONSTANT FINAL)
    Q_PROPERTY(QColor lineUnconfirmed READ lineUnconfirmed CONSTANT FINAL)
    Q_PROPERTY(QColor lineVertical READ lineVertical CONSTANT FINAL)
    Q_PROPERTY(bool lineVisible READ lineVisible CONSTANT FINAL)
    Q_PROPERTY(QColor lineXaxis READ lineXaxis CONSTANT FINAL)
    Q_PROPERTY(QColor popupBorderColor READ popupBorderColor CONSTANT FINAL)
    Q_PROPERTY(QColor popupColor READ popupColor CONSTANT FINAL)
    Q_PROPERTY(QColor selectedCurve READ selectedCurve CONSTANT FINAL)
    Q_PROPERTY(QColor selection READ selection CONSTANT FINAL)
    Q_PROPERTY(QColor shadow READ shadow CONSTANT FINAL)
    Q_PROPERTY(QColor tick READ tick CONSTANT FINAL)
    Q_PROPERTY(QColor track READ track CONSTANT FINAL)
    Q_PROPERTY(QColor trackIndicator READ trackIndicator CONSTANT FINAL)

public:
    explicit StyleSetProps(StylePathRef path);
    ~StyleSetProps() override;

    /// Whether any key has a value.
    Q_INVOKABLE bool isValid() const;
    /// Whether a rule sets the key.
    Q_INVOKABLE bool isSet(const QString &key) const;
    /// The value: a text, or what its function gives; a list when there are several; invalid when there is none.
    Q_INVOKABLE QVariant get(const QString &key);
    /// All values of the key, as get() gives them one by one; an empty list when there is none.
    Q_INVOKABLE QVariant values(const QString &key);
    /// The key's value as `color`, `boolean`, `number`, `font`, `string` or `url`.
    Q_INVOKABLE QColor color(const QString &key);
    Q_INVOKABLE bool boolean(const QString &key);
    Q_INVOKABLE double number(const QString &key);
    Q_INVOKABLE QFont font(const QString &key);
    Q_INVOKABLE QString string(const QString &key);
    Q_INVOKABLE QUrl url(const QString &key);

    QColor aggregatedArea() { return color(QStringLiteral("aggregated-area")); }
    QColor aggregatedCurve() { return color(QStringLiteral("aggregated-curve")); }
    QColor background() { return color(QStringLiteral("background")); }
    QColor backgroundBar() { return color(QStringLiteral("background-bar")); }
    QColor backgroundDelimiter() { return color(QStringLiteral("background-delimiter")); }
    QColor backgroundError() { return color(QStringLiteral("background-error")); }
    QColor backgroundFlashing() { return color(QStringLiteral("background-flashing")); }
    QColor backgroundGreen() { return color(QStringLiteral("background-green")); }
    QColor backgroundItem() { return color(QStringLiteral("background-item")); }
    QColor backgroundItemHover() { return color(QStringLiteral("background-item-hover")); }
    QColor backgroundItemSelected() { return color(QStringLiteral("background-item-selected")); }
    QColor backgroundRed() { return color(QStringLiteral("background-red")); }
    QColor backgroundSelected() { return color(QStringLiteral("background-selected")); }
    QColor backgroundYellow() { return color(QStringLiteral("background-yellow")); }
    QColor border() { return color(QStringLiteral("border")); }
    QColor borderColorFocus() { return color(QStringLiteral("border-color-focus")); }
    QColor borderFocus() { return color(QStringLiteral("border-focus")); }
    bool borderVisible() { return boolean(QStringLiteral("border-visible")); }
    QColor bypassCurve() { return color(QStringLiteral("bypass-curve")); }
    QColor clipIndicatorColor() { return color(QStringLiteral("clipIndicator-color")); }
    QColor confirmIndicator() { return color(QStringLiteral("confirmIndicator")); }
    QColor curve() { return color(QStringLiteral("curve")); }
    QColor extraTick() { return color(QStringLiteral("extraTick")); }
    QColor foreground() { return color(QStringLiteral("foreground")); }
    QColor foregroundDragHandle() { return color(QStringLiteral("foreground-dragHandle")); }
    QColor foregroundInvalid() { return color(QStringLiteral("foreground-invalid")); }
    QColor foregroundItem() { return color(QStringLiteral("foreground-item")); }
    QColor foregroundItemHover() { return color(QStringLiteral("foreground-item-hover")); }
    QColor foregroundItemSelected() { return color(QStringLiteral("foreground-item-selected")); }
    QColor foregroundSelection() { return color(QStringLiteral("foreground-selection")); }
    QColor handle() { return color(QStringLiteral("handle")); }
    QColor handleBorder() { return color(QStringLiteral("handle-border")); }
    QColor handleBorderFocus() { return color(QStringLiteral("handle-border-focus")); }
    QColor handleHover() { return color(QStringLiteral("handle-hover")); }
    QColor handleInconsistent() { return color(QStringLiteral("handle-inconsistent")); }
    QColor handleLine() { return color(QStringLiteral("handle-line")); }
    QColor handleLineHover() { return color(QStringLiteral("handle-line-hover")); }
    QColor handlebar() { return color(QStringLiteral("handlebar")); }
    QColor inconsistentFlag() { return color(QStringLiteral("inconsistent-flag")); }
    QColor indexAbove() { return color(QStringLiteral("index-above")); }
    QColor indexBelow() { return color(QStringLiteral("index-below")); }
    QColor indicatorBackground() { return color(QStringLiteral("indicator-background")); }
    QColor indicatorBackgroundHover() { return color(QStringLiteral("indicator-background-hover")); }
    QColor indicatorColor() { return color(QStringLiteral("indicator-color")); }
    QColor individualCurve() { return color(QStringLiteral("individual-curve")); }
    QColor itemColorCurrent() { return color(QStringLiteral("item-color-current")); }
    QColor itemColorHover() { return color(QStringLiteral("item-color-hover")); }
    QColor label() { return color(QStringLiteral("label")); }
    QColor line() { return color(QStringLiteral("line")); }
    bool lineAtTop() { return boolean(QStringLiteral("line-at-top")); }
    QColor lineColor() { return color(QStringLiteral("line-color")); }
    QColor lineHorizontal() { return color(QStringLiteral("line-horizontal")); }
    QColor lineInvalid() { return color(QStringLiteral("line-invalid")); }
    QColor lineUnconfirmed() { return color(QStringLiteral("line-unconfirmed")); }
    QColor lineVertical() { return color(QStringLiteral("line-vertical")); }
    bool lineVisible() { return boolean(QStringLiteral("line-visible")); }
    QColor lineXaxis() { return color(QStringLiteral("line-xaxis")); }
    QColor popupBorderColor() { return color(QStringLiteral("popup-border-color")); }
    QColor popupColor() { return color(QStringLiteral("popup-color")); }
    QColor selectedCurve() { return color(QStringLiteral("selected-curve")); }
    QColor selection() { return color(QStringLiteral("selection")); }
    QColor shadow() { return color(QStringLiteral("shadow")); }
    QColor tick() { return color(QStringLiteral("tick")); }
    QColor track() { return color(QStringLiteral("track")); }
    QColor trackIndicator() { return color(QStringLiteral("track-indicator")); }

    const StylePathRef &path() const { return m_path; }

    /// Forgets all values, which are looked up anew when they are next asked for. Emits nothing.
    virtual void invalidate();
    /// Lets go of what the engine has resolved. The values stay the same.
    void releaseResolved() { m_resolved = nullptr; }

Q_SIGNALS:
    /// Every value may be another one.
    void propsChanged();

protected:
    /// A getter found no value for `key`.
    virtual void noteMissing(const QString &key);

private:
    const ResolvedMap &resolved() const;
    const PropertySpec *find(const QString &key) const;
    /// What a getter gives: the name of its type, and what values are called that it takes.
    struct ValueType
    {
        const char *name;
        const char *noun;
    };

    template <typename T>
    T converted(const QString &key, const ValueType &type, T (*convert)(const PropertySpec &));
    void reportInconvertible(const PropertySpec &spec, const ValueType &type, const char *reason) const;

    StylePathRef m_path;
    mutable const ResolvedMap *m_resolved = nullptr;        // null until asked for, and again after a style load
    QSet<std::pair<QString, const char *>> m_inconvertible; // logged already, by key and type
};

} // namespace tamble::client
