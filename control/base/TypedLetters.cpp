#include "base/TypedLetters.h"

namespace tamble::client {

namespace {

constexpr qint64 typingPause = 1000; // ms

} // namespace

bool TypedLetters::isUnderWay() const
{
    return !m_letters.isEmpty() && !m_lastTyped.hasExpired(typingPause);
}

TypedLetters::Search TypedLetters::type(const QString &letters)
{
    const bool goesOn = isUnderWay();
    const bool isSameAgain = goesOn && m_letters == letters;
    if (!isSameAgain)
        m_letters = goesOn ? m_letters + letters : letters;
    m_lastTyped.start();
    return {m_letters, goesOn && !isSameAgain};
}

} // namespace tamble::client
