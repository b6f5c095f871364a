#pragma once

#include "base/ControlExport.h"
#include "fields/FieldLimits.h"

#include <tambleclient-common/RValueConverter.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>

class QValidator;

namespace tamble::client {

class FieldRules;

/// What a page says about a field and the device behind it, and what that means for a text.
class TAMBLE_CLIENT_CONTROL_EXPORT FieldSettings : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool required READ isRequired WRITE setRequired NOTIFY requiredChanged FINAL)
    Q_PROPERTY(int maximumBytes READ maximumBytes WRITE setMaximumBytes NOTIFY maximumBytesChanged FINAL)
    Q_PROPERTY(int maximumLines READ maximumLines WRITE setMaximumLines NOTIFY maximumLinesChanged FINAL)
    /// Whether entering takes outer blanks away and lets the validator tidy the text; true by default.
    Q_PROPERTY(bool trim MEMBER m_trim NOTIFY trimChanged FINAL)
    /// Whether an acceptable text is entered when the focus goes elsewhere; else it waits for Enter or Esc. True by
    /// default.
    Q_PROPERTY(bool commitOnFocusLoss MEMBER m_commitsOnFocusLoss NOTIFY commitOnFocusLossChanged FINAL)
    Q_PROPERTY(bool confirmed READ isConfirmed WRITE setConfirmed NOTIFY confirmedChanged FINAL)
    Q_PROPERTY(bool consistent READ isConsistent WRITE setConsistent NOTIFY consistentChanged FINAL)
    /// How long, in ms, an entered value is shown before the bound one counts again; 300 by default.
    Q_PROPERTY(int settleTime MEMBER m_settleTime NOTIFY settleTimeChanged FINAL)
    Q_PROPERTY(
        tamble::client::RValueConverter *converter READ converter WRITE setConverter NOTIFY converterChanged FINAL)

public:
    /// Whether the text must not be empty; false by default.
    bool isRequired() const { return m_limits.isRequired; }
    void setRequired(bool required);
    /// Most bytes of UTF-8 that can be typed or pasted, at whole characters; 0, the default, for no limit.
    int maximumBytes() const { return m_limits.maximumBytes; }
    void setMaximumBytes(int bytes);
    /// Most lines of an acceptable text; more can be typed. 0, the default, for no limit.
    int maximumLines() const { return m_limits.maximumLines; }
    void setMaximumLines(int lines);
    bool commitsOnFocusLoss() const { return m_commitsOnFocusLoss; }
    /// False while the page waits for the device to acknowledge; true by default.
    bool isConfirmed() const { return m_isConfirmed; }
    void setConfirmed(bool confirmed);
    /// False while several devices differ ("mixed"): the field is empty then, and what is entered goes to all. True by
    /// default.
    bool isConsistent() const { return m_isConsistent; }
    void setConsistent(bool consistent);
    /// Turns values into texts and back; null, the default, for values that are texts.
    RValueConverter *converter() const { return m_converter; }
    void setConverter(RValueConverter *converter);

    /// Count in place of the converter and validator while they are set.
    void setRules(FieldRules *rules);
    /// The rules have changed.
    void applyRules();

Q_SIGNALS:
    void requiredChanged();
    void maximumBytesChanged();
    void maximumLinesChanged();
    void trimChanged();
    void commitOnFocusLossChanged();
    void confirmedChanged();
    void consistentChanged();
    void settleTimeChanged();
    void converterChanged();

protected:
    using QObject::QObject;

    const FieldLimits &limits() const { return m_limits; }
    int settleTime() const { return m_settleTime; }
    QString textOf(const QVariant &value) const;
    /// Of a text without a problem.
    QVariant valueOf(const QString &text) const;
    /// As the text is entered. `validator` may be null, here and below.
    QString tidied(const QString &text, const QValidator *validator) const;
    /// Why a tidied text is not acceptable, for people; empty when it is. `isTyped`: by the user, not told by the
    /// device.
    QString problemOf(const QString &text, const QValidator *validator, bool isTyped) const;

    /// What hangs on the settings: the text shown, whether it is acceptable, and the marks.
    virtual void showValue() = 0;
    virtual void judge() = 0;
    virtual void updateMarks() = 0;

private:
    FieldLimits m_limits;
    QPointer<RValueConverter> m_converter;
    FieldRules *m_rules = nullptr;
    int m_settleTime = 300;
    bool m_trim = true;
    bool m_commitsOnFocusLoss = true;
    bool m_isConfirmed = true;
    bool m_isConsistent = true;
};

} // namespace tamble::client
