#include "style/SheetName.h"

#include "style/loading/SheetFile.h"
#include "style/loading/StyleLocations.h"

#include <utility>

namespace tamble::client {

SheetName::SheetName(QObject *parent)
    : QObject(parent)
{}

QString SheetName::directory() const
{
    return m_directory.value_or(QStringLiteral("qrc:/style/"));
}

void SheetName::setDirectory(const QString &directory)
{
    m_directory = directory;
    update();
}

void SheetName::setKey(const QString &key)
{
    m_key = key;
    update();
}

void SheetName::setThemeWord(const QString &word)
{
    m_themeWord = word;
    update();
}

void SheetName::setDefaultKey(const QString &key)
{
    m_defaultKey = key;
    update();
}

void SheetName::setDefaultThemeWord(const QString &word)
{
    m_defaultThemeWord = word;
    update();
}

void SheetName::setOptional(bool optional)
{
    m_optional = optional;
    update();
}

void SheetName::update()
{
    const QUrl source = compose();
    const bool isRequired = !m_optional || m_directory || m_key || m_themeWord;
    const QUrl sourceBefore = std::exchange(m_source, isRequired || exists(source) ? source : QUrl());
    const bool namedBefore = std::exchange(m_named, m_named || isRequired || !m_source.isEmpty());
    Q_EMIT partsChanged();
    if (m_source != sourceBefore)
        Q_EMIT sourceChanged();
    if (m_named != namedBefore)
        Q_EMIT namedChanged();
}

QUrl SheetName::compose() const
{
    if (key().isEmpty())
        return {};
    const QString file = key() + u'.' + themeWord() + QStringLiteral(".style");
    const QString name = directory() + file;
    const bool lacksSlash = !directory().isEmpty() && !directory().endsWith(u'/') && !exists(QUrl(name));
    return QUrl(lacksSlash ? directory() + u'/' + file : name);
}

bool SheetName::exists(const QUrl &url) const
{
    return isSheetFile(sheetPath(url, styleBaseUrl(this)));
}

} // namespace tamble::client
