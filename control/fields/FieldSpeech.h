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

    /// Names a field without a label.
    virtual QString spokenHint() const { return {}; }

    QString m_label;
    QPointer<FieldEdit> m_edit;
};

} // namespace tamble::client
