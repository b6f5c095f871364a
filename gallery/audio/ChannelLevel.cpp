#include "ChannelLevel.h"

void ChannelLevel::setLevel(const BlockLevel &level)
{
    if (level == m_level)
        return;
    m_level = level;
    Q_EMIT levelChanged();
}
