#pragma once

#include "base/ControlExport.h"
#include "base/SeenWatch.h"
#include "base/SpokenControl.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickbusyindicator_p.h>

namespace tamble::client {

/// Tells that the user has to wait, but not when the wait is short, and moves only while it is seen.
class TAMBLE_CLIENT_CONTROL_EXPORT RLoadingAnimationBase : public QQuickBusyIndicator, public SpokenControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RLoadingAnimationBase)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged FINAL)
    /// Whether the dots turn: they show, in sight of the user.
    Q_PROPERTY(bool turning READ isTurning NOTIFY turningChanged FINAL)

public:
    explicit RLoadingAnimationBase(QQuickItem *parent = nullptr);
    ~RLoadingAnimationBase() override;

    /// What is waited for; empty by default.
    QString text() const { return m_text; }
    void setText(const QString &text);
    /// Whether there is something to see, which is so from 300 ms after `running` is set until it is not.
    bool isShown() const { return m_isShown; }
    bool isTurning() const { return m_isTurning; }

    QAccessible::Role spokenRole() const override { return QAccessible::Indicator; }
    QString spokenName() const override { return tr("loading"); }
    QString spokenDescription(const QString &given) const override;

Q_SIGNALS:
    void textChanged();
    void shownChanged();
    void turningChanged();

protected:
    void componentComplete() override;
    void timerEvent(QTimerEvent *event) override;
    void accessibilityActiveChanged(bool active) override;

private:
    void useRunning();
    void setShown(bool shown);
    void updateTurning();

    QString m_text;
    QBasicTimer m_wait;
    SeenWatch m_seen;
    bool m_isShown = false;
    bool m_isTurning = false;
};

} // namespace tamble::client
