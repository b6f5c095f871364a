#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QString>

namespace tamble::client {

/// What is typed to find an entry in a list: letters within a second of each other count together, and the same one
/// again means the next entry that begins with it.
class TypedLetters
{
public:
    struct Search
    {
        QString beginning; ///< How the text of the entry begins.
        bool mayStay;      ///< Whether the entry that was found so far may be the one still.
    };

    Search type(const QString &letters);
    /// Whether the next letter belongs to those before, as a blank may.
    bool isUnderWay() const;
    void clear() { m_letters.clear(); }

private:
    QString m_letters;
    QElapsedTimer m_lastTyped;
};

} // namespace tamble::client
