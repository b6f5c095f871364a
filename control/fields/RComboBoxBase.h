#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "fields/ComboList.h"
#include "fields/ValueComboBox.h"

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

class RTextFieldBase;

/// One of a list, which a device stores. Nothing but a choice in the open list edits it: what is routed must not change
/// by a stray key or turn of the wheel.
///
/// A box whose page gives it a `value` shows the entry with that; any other shows the entry `currentIndex`.
///
/// Keys: Space, Enter, F4, Up, Down and Alt+Down open the list. There Up, Down, PageUp, PageDown, Home, End and the
/// first letters of an entry move the highlight, Enter and Space choose, Esc closes without a choice.
class TAMBLE_CLIENT_CONTROL_EXPORT RComboBoxBase : public tamble::client::ValueComboBox, public SpokenControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RComboBoxBase)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged FINAL)
    Q_PROPERTY(bool editing READ isEditing NOTIFY editingChanged FINAL)
    /// What the box is called, for people who cannot see it.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged FINAL)
    /// Text shown while nothing is chosen.
    Q_PROPERTY(QString placeholderText MEMBER m_placeholderText NOTIFY placeholderTextChanged FINAL)
    /// Most entries that the list shows at once; 8 by default.
    Q_PROPERTY(int maximumVisibleItems MEMBER m_maximumVisibleItems NOTIFY maximumVisibleItemsChanged FINAL)
    /// Whether a letter opens the list as well, at the first entry that begins with it; false by default.
    Q_PROPERTY(bool opensByTyping MEMBER m_opensByTyping NOTIFY opensByTypingChanged FINAL)
    Q_PROPERTY(int highlightedEntry READ highlightedEntry NOTIFY highlightedEntryChanged FINAL)
    Q_PROPERTY(qreal entryWidth READ entryWidth NOTIFY entryWidthChanged FINAL)

public:
    explicit RComboBoxBase(QQuickItem *parent = nullptr);
    ~RComboBoxBase() override;

    /// Whether the box shows and can have the focus, but does not open; false by default.
    bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool readOnly);
    /// Whether the list is open, or something was typed and not entered.
    bool isEditing() const;
    /// The entry that Enter would choose; -1 for none.
    int highlightedEntry() const { return m_list.highlight(); }
    /// Width of the widest entry that was in view since the list opened, in pixels.
    qreal entryWidth() const { return m_entryWidth; }
    int maximumVisibleItems() const { return m_maximumVisibleItems; }
    bool opensByTyping() const { return m_opensByTyping; }

    // Called by handlers in QML, like watchModel().
    /// An entry was chosen, whichever way.
    Q_INVOKABLE void editTo(int index);
    /// The box has become editable, or ceased to be.
    Q_INVOKABLE void needField();
    void followModel() override;

    bool canOpen() const;
    /// Opens the list, unless it is empty or the box read-only.
    Q_INVOKABLE void open();
    /// Closes the list without a choice.
    Q_INVOKABLE void close();
    /// Chooses an entry as a click does; nothing for one that is disabled.
    Q_INVOKABLE void choose(int index);
    /// Chooses the entry with this text, in upper or lower case, and says why not: empty when it was chosen.
    Q_INVOKABLE QString chooseText(const QString &text);

    /// The pointer has come to a place, in the scene, above an entry.
    void pointAt(int index, const QPointF &place) { m_list.pointAt(index, place); }
    void fitEntry(qreal width);
    void onListVisible(bool visible);

    QAccessible::Role spokenRole() const override { return QAccessible::ComboBox; }
    QString spokenName() const override;
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;
    bool pressBySpeech() override;

Q_SIGNALS:
    void readOnlyChanged();
    void editingChanged();
    void labelChanged();
    void placeholderTextChanged();
    void maximumVisibleItemsChanged();
    void opensByTypingChanged();
    void highlightedEntryChanged();
    void entryWidthChanged();
    /// Keys have moved the highlight to an entry, which is to be in view.
    void highlightMoved(int index);

protected:
    void entryCreation(QObject *entry) override;
    void entriesChange(const QQmlChangeSet &change, bool reset) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void componentComplete() override;
    void contentItemChange(QQuickItem *newItem, QQuickItem *oldItem) override;
    void accessibilityActiveChanged(bool active) override;

private:
    void onTextEntered(const QString &text);
    void onEditTextChanged();

    QString m_label;
    QString m_placeholderText;
    QPointer<RTextFieldBase> m_field;
    ComboList m_list;
    qreal m_entryWidth = 0.0;
    int m_maximumVisibleItems = 8;
    bool m_isReadOnly = false;
    bool m_opensByTyping = false;
};

} // namespace tamble::client
