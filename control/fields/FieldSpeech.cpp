#include "fields/FieldSpeech.h"

#include "fields/FieldEdit.h"

namespace tamble::client {

QString FieldSpeech::spokenDescription(const QString &given) const
{
    // Qt gives the placeholder, which says "mixed" as well.
    return m_edit ? m_edit->description(m_edit->isConsistent() ? given : QString()) : given;
}

} // namespace tamble::client
