#include "base/Mnemonic.h"

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

qsizetype mnemonicPosition(const QString &text)
{
    for (qsizetype i = text.indexOf(u'&'); i >= 0 && i + 1 < text.size(); i = text.indexOf(u'&', i)) {
        if (text[i + 1].isLetterOrNumber())
            return i;
        i += text[i + 1] == u'&' ? 2 : 1;
    }
    return -1;
}

} // namespace tamble::client
