#pragma once

#include "base/ControlExport.h"
#include "fields/StyledComboBox.h"

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>
#include <QtQmlModels/private/qqmlobjectmodel_p.h>

class QQmlChangeSet;

namespace tamble::client {

class PendingValue;

/// A combo box that shows which of its entries a device stores, and how sure that is.
///
/// A box whose page gives it a `value` shows the entry with that, wherever the model comes to have it; any other shows
/// the entry `currentIndex`.
class TAMBLE_CLIENT_CONTROL_EXPORT ValueComboBox : public tamble::client::StyledComboBox
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(bool consistent READ isConsistent WRITE setConsistent NOTIFY consistentChanged FINAL)
    Q_PROPERTY(bool confirmed READ isConfirmed WRITE setConfirmed NOTIFY confirmedChanged FINAL)
    /// How long, in ms, a choice is shown before the bound value counts again; 300 by default.
    Q_PROPERTY(int settleTime MEMBER m_settleTime NOTIFY settleTimeChanged FINAL)
    Q_PROPERTY(QString unknownText READ unknownText WRITE setUnknownText NOTIFY unknownTextChanged FINAL)
    Q_PROPERTY(QString enabledRole READ enabledRole WRITE setEnabledRole NOTIFY enabledRoleChanged FINAL)
    Q_PROPERTY(QString iconRole READ iconRole WRITE setIconRole NOTIFY iconRoleChanged FINAL)
    Q_PROPERTY(bool mixed READ isMixed NOTIFY mixedChanged FINAL)
    Q_PROPERTY(QString otherText READ otherText NOTIFY otherTextChanged FINAL)
    Q_PROPERTY(QQmlInstanceModel *entries READ entries NOTIFY entriesReplaced FINAL)

public:
    explicit ValueComboBox(QQuickItem *parent = nullptr);
    ~ValueComboBox() override;

    /// What the device or model says, one of the entries' values (`valueRole`); undefined by default. Undefined, null
    /// and NaN choose nothing.
    QVariant value() const { return m_value; }
    void setValue(const QVariant &value);
    /// False while several devices differ ("mixed"); a choice goes to all. True by default.
    bool isConsistent() const { return m_isConsistent; }
    void setConsistent(bool consistent);
    /// False while the page waits for the device to acknowledge; true by default.
    bool isConfirmed() const { return m_isConfirmed; }
    void setConfirmed(bool confirmed);
    /// Text shown for a `value` that no entry has, with "%1" for it; "unknown (%1)" by default.
    QString unknownText() const;
    void setUnknownText(const QString &text);
    /// Of the model: the role that says whether an entry can be chosen (`enabledRole`), and that of its icon's key
    /// (`iconRole`); empty, the default, for none.
    QString enabledRole() const { return m_enabledRole; }
    void setEnabledRole(const QString &role);
    QString iconRole() const { return m_iconRole; }
    void setIconRole(const QString &role);
    /// Whether "mixed" is shown: not while a choice settles.
    bool isMixed() const;
    /// What stands in the box while no entry is chosen: an unknown value, or what was typed; else empty.
    QString otherText() const;
    /// The model of the list, watched from then on.
    QQmlInstanceModel *entries();

    // The template's signals lead here by handlers in QML: connections would be a tenth of a box's memory.
    /// Another model is there (`watchModel`), and the template has chosen its first entry (`followModel`).
    Q_INVOKABLE void watchModel();
    Q_INVOKABLE virtual void followModel();

    bool isEntryEnabled(int index) const;
    QString entryIcon(int index) const;

Q_SIGNALS:
    void valueChanged();
    void consistentChanged();
    void confirmedChanged();
    void settleTimeChanged();
    void unknownTextChanged();
    void enabledRoleChanged();
    void iconRoleChanged();
    void mixedChanged();
    void otherTextChanged();
    void entriesReplaced();
    void entriesChanged();
    /// The user has chosen the entry with this value.
    void valueEdited(const QVariant &value);

protected:
    /// The list has made an entry.
    virtual void entryCreation(QObject *entry) = 0;
    /// Entries have come, gone or moved; after a `reset` none is the same.
    virtual void entriesChange(const QQmlChangeSet &change, bool reset) = 0;

    /// The user has chosen the entry at `index`, which has this value.
    void tellChoice(int index, const QVariant &value);
    /// The user has entered a text that no entry has; to be committed when that was told.
    void showEntered(const QString &text);
    void commitEntered();
    /// A text that stands in the box as it is.
    void setEnteredText(const QString &text);

    void componentComplete() override;

private:
    void needMarks();
    void takeModel();
    void onModelUpdated(const QQmlChangeSet &change, bool reset);
    void followValue();
    void followValueLater();
    PendingValue &pending();

    QVariant m_value;
    QString m_unknownText;
    QString m_enabledRole;
    QString m_iconRole;
    QString m_enteredText; ///< A text of the user's own in an editable box.
    QPointer<QQmlInstanceModel> m_watchedModel;
    QQuickItem *m_marks = nullptr;     // a child, made when first shown
    PendingValue *m_pending = nullptr; // a child, made at the first choice
    int m_settleTime = 300;
    bool m_isConsistent = true;
    bool m_isConfirmed = true;
    bool m_isValueGiven = false; ///< A page has bound or set `value`, if only to undefined.
    bool m_hadValue = false;     ///< `value` has named something: from then on it counts, not `currentIndex`.
    bool m_watches = false;      ///< Somebody has asked for the entries, or a value is looked for among them.
    bool m_followsLater = false;
};

} // namespace tamble::client
