#include "style/FedStates.h"

#include "style/StyleSet.h"

#include <QtQml/qqml.h>

namespace tamble::client {

void FedStates::feed(QObject &control, std::span<const State> states)
{
    for (const auto &[state, isOn] : states) {
        if (bool(m_on & state) == isOn)
            continue;
        m_on ^= state;
        auto *styleSet = static_cast<StyleSet *>(qmlAttachedPropertiesObject<StyleSet>(&control));
        styleSet->stateHelper()->feed(state, isOn);
    }
}

} // namespace tamble::client
