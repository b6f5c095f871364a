#include "RequestStep.h"

#include "GalleryInstallation.h"

#include <algorithm>

namespace {

QString gestureOf(const QList<RequestStep::Edit> &edits)
{
    QString gesture;
    for (const RequestStep::Edit &edit : edits)
        gesture += QStringLiteral("%1.%2 ").arg(edit.request.place.device).arg(edit.request.place.field);
    return gesture;
}

} // namespace

RequestStep::RequestStep(GalleryInstallation &installation, const QList<Edit> &edits, const QString &text)
    : EditStep(text, gestureOf(edits))
    , m_installation(installation)
    , m_edits(edits)
{}

void RequestStep::undo()
{
    for (const Edit &edit : m_edits)
        m_installation.send({edit.request.place, edit.before});
}

void RequestStep::redo()
{
    for (const Edit &edit : m_edits)
        m_installation.send(edit.request);
}

bool RequestStep::extend(const EditStep &later)
{
    const QList<Edit> &edits = static_cast<const RequestStep &>(later).m_edits;
    for (qsizetype i = 0; i < m_edits.size(); ++i)
        m_edits[i].request.value = edits[i].request.value;
    return std::any_of(m_edits.begin(), m_edits.end(),
                       [](const Edit &edit) { return edit.request.value != edit.before; });
}
