#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>

namespace tamble::client {

class RComboBoxBase;

/// An entry in the open list of a combo box, which it asks for all that it shows.
class TAMBLE_CLIENT_CONTROL_EXPORT RComboBoxEntryBase : public QQuickAbstractButton, public SpokenControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RComboBoxEntryBase)
    Q_PROPERTY(int index READ index WRITE setIndex NOTIFY entryChanged REQUIRED FINAL)
    Q_PROPERTY(tamble::client::RComboBoxBase *comboBox READ comboBox NOTIFY comboBoxChanged FINAL)
    Q_PROPERTY(QString entryText READ entryText NOTIFY entryChanged FINAL)
    Q_PROPERTY(QString entryIcon READ entryIcon NOTIFY entryChanged FINAL)
    Q_PROPERTY(bool current READ isCurrent NOTIFY marksChanged FINAL)
    Q_PROPERTY(bool highlighted READ isHighlighted NOTIFY marksChanged FINAL)

public:
    explicit RComboBoxEntryBase(QQuickItem *parent = nullptr);

    /// The entry's number in the list, from 0.
    int index() const { return m_index; }
    void setIndex(int index);
    /// The box whose list this is in.
    RComboBoxBase *comboBox() const { return m_comboBox; }
    void setComboBox(RComboBoxBase *box);
    /// The entry's text, without a meaning of "&".
    QString entryText() const { return m_entryText; }
    /// The key of its icon; empty for none.
    QString entryIcon() const { return m_entryIcon; }
    /// Whether the entry is the chosen one.
    bool isCurrent() const { return m_isCurrent; }
    /// Whether Enter would choose the entry.
    bool isHighlighted() const { return m_isHighlighted; }

    QAccessible::Role spokenRole() const override { return QAccessible::ListItem; }
    QString spokenName() const override { return m_entryText; }
    void addSpokenStates(QAccessible::State &state) const override;
    bool pressBySpeech() override;

Q_SIGNALS:
    void comboBoxChanged();
    void entryChanged();
    void marksChanged();

protected:
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void accessibilityActiveChanged(bool active) override;

private:
    void readEntry();
    void readMarks();
    void tellWidth();

    RComboBoxBase *m_comboBox = nullptr; // outlives its list
    QString m_entryText;
    QString m_entryIcon;
    QQuickItem *m_icon = nullptr; // a child, made for the first entry with an icon
    int m_index = -1;
    bool m_isCurrent = false;
    bool m_isHighlighted = false;
};

} // namespace tamble::client
