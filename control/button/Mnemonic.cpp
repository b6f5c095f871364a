#include "button/Mnemonic.h"

namespace tamble::client {

QString withoutMnemonic(const QString &text)
{
    if (!text.contains(u'&'))
        return text;
    QString shown;
    shown.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool marksNext =
            text[i] == u'&' && i + 1 < text.size() && (text[i + 1] == u'&' || text[i + 1].isLetterOrNumber());
        if (marksNext)
            ++i;
        shown += text[i];
    }
    return shown;
}

} // namespace tamble::client
