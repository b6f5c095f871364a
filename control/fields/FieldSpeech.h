#pragma once

#include "base/SpokenControl.h"

#include <QtCore/QPointer>

namespace tamble::client {

class FieldEdit;

/// What fields tell assistive tools: their label, and after the page's description what their marks say.
class FieldSpeech : public SpokenControl
{
public:
    QString spokenName() const override { return m_label.isEmpty() ? spokenHint() : m_label; }
    QString spokenDescription(const QString &given) const override;

protected:
    ~FieldSpeech() = default;

    /// Names a field without a label, and describes one with a label that its page does not describe.
    virtual QString spokenHint() const { return {}; }
    /// To be called before the template is complete, which puts its hint in the place of the page's description.
    void keepDescription(QObject &field);

    QString m_label;
    QPointer<FieldEdit> m_edit;

private:
    QString m_givenDescription; ///< By the page.
};

} // namespace tamble::client
