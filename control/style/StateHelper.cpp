#include "style/StateHelper.h"

namespace tamble::client {

StateHelper::StateHelper(QObject *parent)
    : QObject(parent)
{}

void StateHelper::setHovered(bool hovered)
{
    assign(m_hovered, hovered, &StateHelper::hoveredChanged);
}

void StateHelper::setSelected(bool selected)
{
    assign(m_selected, selected, &StateHelper::selectedChanged);
}

void StateHelper::setDisabled(bool disabled)
{
    assign(m_disabled, disabled, &StateHelper::disabledChanged);
}

void StateHelper::setReadOnly(bool readOnly)
{
    assign(m_readOnly, readOnly, &StateHelper::readOnlyChanged);
}

void StateHelper::setInconsistent(bool inconsistent)
{
    assign(m_inconsistent, inconsistent, &StateHelper::inconsistentChanged);
}

void StateHelper::setFocus(bool focus)
{
    assign(m_focus, focus, &StateHelper::focusChanged);
}

void StateHelper::setPressed(bool pressed)
{
    assign(m_pressed, pressed, &StateHelper::pressedChanged);
}

void StateHelper::setActive(bool active)
{
    assign(m_active, active, &StateHelper::activeChanged);
}

QString StateHelper::stateText() const
{
    struct Word
    {
        bool set;
        const char *text;
    };
    // In style sheets "readonly" is written without a capital.
    const Word words[] = {
        {m_pressed, "pressed "},   {m_hovered, "hovered "},   {m_disabled, "disabled "},
        {m_readOnly, "readonly "}, {m_selected, "selected "}, {m_inconsistent, "inconsistent "},
        {m_focus, "focus "},       {m_active, "active "},
    };

    QString text;
    for (const Word &word : words) {
        if (word.set)
            text += QLatin1String(word.text);
    }
    return text;
}

void StateHelper::assign(bool &state, bool value, void (StateHelper::*notify)())
{
    if (state == value)
        return;
    state = value;
    Q_EMIT stateTextChanged(stateText());
    Q_EMIT(this->*notify)();
}

} // namespace tamble::client
