#pragma once

#include "base/ControlExport.h"
#include "controls/RButtonBase.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// The behaviour of tabs. Those with a common parent are a row, which is one stop of the Tab key: it reaches the
/// selected tab, and leaves the row from any.
///
/// Keys: Left and Right move the focus within the row, Home and End to its ends. Space and Enter choose, Delete asks to
/// close a closable tab.
class TAMBLE_CLIENT_CONTROL_EXPORT RTabButtonBase : public tamble::client::RButtonBase
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTabButtonBase)
    /// Whether the user can ask to close the tab; false by default.
    Q_PROPERTY(bool closable MEMBER m_isClosable NOTIFY closableChanged FINAL)
    /// Whether what the tab stands for has changes that are not stored; false by default.
    Q_PROPERTY(bool modified MEMBER m_isModified NOTIFY modifiedChanged FINAL)
    /// A short text in a mark of its own, such as a number of faults; empty, the default, for none.
    Q_PROPERTY(QString badge MEMBER m_badge NOTIFY badgeChanged FINAL)

public:
    explicit RTabButtonBase(QQuickItem *parent = nullptr);

    QAccessible::Role spokenRole() const override { return QAccessible::PageTab; }
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;

Q_SIGNALS:
    void closableChanged();
    void modifiedChanged();
    void badgeChanged();
    /// The user wants the tab closed; whether that happens is up to the page.
    void closeRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    QList<RTabButtonBase *> row() const;
    RTabButtonBase *tabAt(int key) const;
    bool leaveRow(bool forwards);
    void passFocusToSelected();

    QString m_badge;
    bool m_isClosable = false;
    bool m_isModified = false;
};

} // namespace tamble::client
