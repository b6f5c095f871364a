#include "style/StyleSet.h"

namespace tamble::client {

StyleSet::StyleSet(QObject *parent)
    : QObject(parent)
    , m_props(new StyleSetProps(this))
    , m_stateHelper(new StateHelper(this))
{
    connect(m_stateHelper, &StateHelper::stateTextChanged, this, &StyleSet::setState);
}

StyleSet *StyleSet::qmlAttachedProperties(QObject *object)
{
    return new StyleSet(object);
}

void StyleSet::setState(const QString &state)
{
    if (m_state == state)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

} // namespace tamble::client
