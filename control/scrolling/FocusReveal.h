#pragma once

#include "base/ControlExport.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Keeps what has the keyboard focus in sight while the interface of the window around it gets another size, which
/// would move it out of the views that scroll it. It shows nothing itself.
class TAMBLE_CLIENT_CONTROL_EXPORT FocusReveal : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RFocusReveal)
    /// Whether all sizes are at rest; true by default. Set to false before they change, which has the views scroll
    /// once everything has its new place.
    Q_PROPERTY(bool settled READ isSettled WRITE setSettled NOTIFY settledChanged FINAL)

public:
    explicit FocusReveal(QQuickItem *parent = nullptr);

    bool isSettled() const { return m_isSettled; }
    void setSettled(bool settled);

Q_SIGNALS:
    void settledChanged();

protected:
    void updatePolish() override;

private:
    bool m_isSettled = true;
};

} // namespace tamble::client
