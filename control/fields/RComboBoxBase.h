#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "fields/ComboHighlight.h"
#include "fields/StyledComboBox.h"

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>
#include <QtQmlModels/private/qqmlobjectmodel_p.h>

class QQmlChangeSet;

namespace tamble::client {

class PendingValue;
class RTextFieldBase;

/// One of a list, which a device stores. Nothing but a choice in the open list edits it: what is routed must not change
/// by a stray key or turn of the wheel.
///
/// A box whose page gives it a `value` shows the entry with that; any other shows the entry `currentIndex`.
///
/// Keys: Space, Enter, F4, Up, Down and Alt+Down open the list. There Up, Down, PageUp, PageDown, Home, End and the
/// first letters of an entry move the highlight, Enter and Space choose, Esc closes without a choice.
class TAMBLE_CLIENT_CONTROL_EXPORT RComboBoxBase : public tamble::client::StyledComboBox, public SpokenControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RComboBoxBase)
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(bool consistent READ isConsistent WRITE setConsistent NOTIFY consistentChanged FINAL)
    Q_PROPERTY(bool confirmed READ isConfirmed WRITE setConfirmed NOTIFY confirmedChanged FINAL)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged FINAL)
    Q_PROPERTY(bool editing READ isEditing NOTIFY editingChanged FINAL)
    /// How long, in ms, a choice is shown before the bound value counts again; 300 by default.
    Q_PROPERTY(int settleTime MEMBER m_settleTime NOTIFY settleTimeChanged FINAL)
    /// What the box is called, for people who cannot see it.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    /// Text shown while nothing is chosen.
    Q_PROPERTY(QString placeholderText MEMBER m_placeholderText NOTIFY placeholderTextChanged FINAL)
    Q_PROPERTY(QString unknownText READ unknownText WRITE setUnknownText NOTIFY unknownTextChanged FINAL)
    Q_PROPERTY(QString enabledRole READ enabledRole WRITE setEnabledRole NOTIFY enabledRoleChanged FINAL)
    Q_PROPERTY(QString iconRole READ iconRole WRITE setIconRole NOTIFY iconRoleChanged FINAL)
    /// Most entries that the list shows at once; 8 by default.
    Q_PROPERTY(int maximumVisibleItems MEMBER m_maximumVisibleItems NOTIFY maximumVisibleItemsChanged FINAL)
    /// Whether a letter opens the list as well, at the first entry that begins with it; false by default.
    Q_PROPERTY(bool opensByTyping MEMBER m_opensByTyping NOTIFY opensByTypingChanged FINAL)
    Q_PROPERTY(bool mixed READ isMixed NOTIFY mixedChanged FINAL)
    Q_PROPERTY(QString otherText READ otherText NOTIFY otherTextChanged FINAL)
    Q_PROPERTY(QQmlInstanceModel *entries READ entries NOTIFY entriesReplaced FINAL)
    Q_PROPERTY(int highlightedEntry READ highlightedEntry NOTIFY highlightedEntryChanged FINAL)
    Q_PROPERTY(qreal entryWidth READ entryWidth NOTIFY entryWidthChanged FINAL)

public:
    explicit RComboBoxBase(QQuickItem *parent = nullptr);
    ~RComboBoxBase() override;

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
    /// Whether the box shows and can have the focus, but does not open; false by default.
    bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool readOnly);
    /// Text shown for a `value` that no entry has, with "%1" for it; "unknown (%1)" by default.
    QString unknownText() const;
    void setUnknownText(const QString &text);
    /// Of the model: the role that says whether an entry can be chosen (`enabledRole`), and that of its icon's key
    /// (`iconRole`); empty, the default, for none.
    QString enabledRole() const { return m_enabledRole; }
    void setEnabledRole(const QString &role);
    QString iconRole() const { return m_iconRole; }
    void setIconRole(const QString &role);
    /// Whether the list is open, or something was typed and not entered.
    bool isEditing() const;
    /// Whether "mixed" is shown: not while a choice settles.
    bool isMixed() const;
    /// What stands in the box while no entry is chosen: an unknown value, or what was typed; else empty.
    QString otherText() const;
    /// The model of the list, watched from then on.
    QQmlInstanceModel *entries();
    /// The entry that Enter would choose; -1 for none.
    int highlightedEntry() const { return m_highlight.entry(); }
    /// Width of the widest entry that was in view since the list opened, in pixels.
    qreal entryWidth() const { return m_entryWidth; }

    // The template's signals lead here by handlers in QML: connections would be a tenth of a box's memory.
    /// An entry was chosen, whichever way.
    Q_INVOKABLE void editTo(int index);
    /// The box has become editable, or ceased to be.
    Q_INVOKABLE void needField();
    /// Another model is there (`watchModel`), and the template has chosen its first entry (`followModel`).
    Q_INVOKABLE void watchModel();
    Q_INVOKABLE void followModel();

    bool canOpen() const;
    /// Opens the list, unless it is empty or the box read-only.
    Q_INVOKABLE void open();
    /// Closes the list without a choice.
    Q_INVOKABLE void close();
    /// Chooses an entry as a click does; nothing for one that is disabled.
    Q_INVOKABLE void choose(int index);
    /// Chooses the entry with this text, in upper or lower case, and says why not: empty when it was chosen.
    Q_INVOKABLE QString chooseText(const QString &text);

    bool isEntryEnabled(int index) const;
    QString entryIcon(int index) const;
    /// The pointer has come to a place, in the scene, above an entry.
    void pointAt(int index, const QPointF &place);
    void fitEntry(qreal width);
    void onListVisible(bool visible);

    QAccessible::Role spokenRole() const override { return QAccessible::ComboBox; }
    QString spokenName() const override;
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;
    bool pressBySpeech() override;

Q_SIGNALS:
    void valueChanged();
    void consistentChanged();
    void confirmedChanged();
    void readOnlyChanged();
    void editingChanged();
    void settleTimeChanged();
    void labelChanged();
    void placeholderTextChanged();
    void unknownTextChanged();
    void enabledRoleChanged();
    void iconRoleChanged();
    void maximumVisibleItemsChanged();
    void opensByTypingChanged();
    void mixedChanged();
    void otherTextChanged();
    void highlightedEntryChanged();
    void entryWidthChanged();
    void entriesReplaced();
    void entriesChanged();
    /// Keys have moved the highlight to an entry, which is to be in view.
    void highlightMoved(int index);
    /// The user has chosen the entry with this value.
    void valueEdited(const QVariant &value);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void componentComplete() override;
    void contentItemChange(QQuickItem *newItem, QQuickItem *oldItem) override;
    void accessibilityActiveChanged(bool active) override;

private:
    void needMarks();
    void takeModel();
    void onTextEntered(const QString &text);
    void onEditTextChanged();
    void onTextTyped();
    void onModelUpdated(const QQmlChangeSet &change, bool reset);
    void followValue();
    void followValueLater();

    bool handleListKey(const QKeyEvent &event);
    bool handleClosedKey(const QKeyEvent &event);
    bool handleFieldKey(const QKeyEvent &event);
    bool takesFirst(const QEvent &event) const;
    template <typename Move>
    void moveHighlight(Move move);
    PendingValue &pending();

    QVariant m_value;
    QString m_label;
    QString m_placeholderText;
    QString m_unknownText;
    QString m_enabledRole;
    QString m_iconRole;
    QString m_enteredText; ///< A text of the user's own in an editable box.
    QPointer<QQmlInstanceModel> m_watchedModel;
    QPointer<RTextFieldBase> m_field;
    QQuickItem *m_marks = nullptr;     // a child, made when first shown
    PendingValue *m_pending = nullptr; // a child, made at the first choice
    ComboHighlight m_highlight;
    qreal m_entryWidth = 0.0;
    int m_settleTime = 300;
    int m_maximumVisibleItems = 8;
    int m_wheelAngle = 0; ///< In eighths of a degree, what is left of less than a notch.
    bool m_isConsistent = true;
    bool m_isConfirmed = true;
    bool m_isReadOnly = false;
    bool m_isOpen = false;
    bool m_opensByTyping = false;
    bool m_isValueGiven = false; ///< A page has bound or set `value`, if only to undefined.
    bool m_hadValue = false;     ///< `value` has named something: from then on it counts, not `currentIndex`.
    bool m_watches = false;      ///< Somebody has asked for the entries, or a value is looked for among them.
    bool m_followsLater = false;
    bool m_openedByKey = false;
    bool m_typesInField = false; ///< What was typed last counts, not the highlight.
};

} // namespace tamble::client
