#pragma once

#include "controls/RButtonBase.h"

namespace tamble::client {

/// A button that stands for on, off or mixed. `selected` and `consistent` alone say which; a click edits them.
///
/// Keys: Space turns over. Enter goes on to the dialog.
class TAMBLE_CLIENT_CONTROL_EXPORT RCheckBoxBase : public tamble::client::RButtonBase
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RCheckBoxBase)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkStateChanged FINAL)
    /// Whether the box is shown and can have the focus, but a click edits nothing; false by default.
    Q_PROPERTY(bool readOnly MEMBER m_readOnly NOTIFY readOnlyChanged FINAL)
    Q_PROPERTY(bool confirmed READ isConfirmed WRITE setConfirmed NOTIFY confirmedChanged FINAL)
    Q_PROPERTY(bool focusVisible READ focusVisible WRITE setFocusVisible NOTIFY focusVisibleChanged FINAL)
    /// Of the style: the edge of the box.
    Q_PROPERTY(QColor ssBorderColor MEMBER m_ssBorderColor NOTIFY ssBorderColorChanged)

public:
    explicit RCheckBoxBase(QQuickItem *parent = nullptr);

    /// The three as one: mixed is partially checked.
    Qt::CheckState checkState() const;
    /// False while the page waits for the device to acknowledge; true by default.
    bool isConfirmed() const { return m_confirmed; }
    void setConfirmed(bool confirmed);

    /// Whether the frame of the keyboard focus shows; false by default.
    bool focusVisible() const { return m_focusVisible; }
    void setFocusVisible(bool visible);

    void editSelection(bool selected) override;

    QAccessible::Role spokenRole() const override { return QAccessible::CheckBox; }
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void checkStateChanged();
    void readOnlyChanged();
    void confirmedChanged();
    void focusVisibleChanged();
    void ssBorderColorChanged();

protected:
    void selectionChange() override;

private:
    QColor m_ssBorderColor;
    QQuickItem *m_icon = nullptr; // these are children, made when first shown
    QQuickItem *m_dot = nullptr;
    QQuickItem *m_focusFrame = nullptr;
    bool m_readOnly = false;
    bool m_confirmed = true;
    bool m_focusVisible = false;
};

} // namespace tamble::client
