#include "style/loading/StyleSheetLoader.h"

#include "style/language/ParseException.h"
#include "style/language/StyleSheetParser.h"
#include "style/loading/SheetFile.h"
#include "style/loading/StyleLog.h"

#include <QtCore/QCache>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QThread>

#include <string_view>

namespace tamble::client {

namespace {

constexpr unsigned long missingFileWaitMs = 1000;

/// A sheet as parsed before, if its text is the same: themes are switched back and forth. Throws ParseException.
std::shared_ptr<const StyleSheet> parsed(const QByteArray &text)
{
    constexpr qsizetype keptBytes = qsizetype(512) * 1024;
    static QCache<QByteArray, std::shared_ptr<const StyleSheet>> known(keptBytes);
    if (const auto *sheet = known.object(text))
        return *sheet;
    const std::string_view view(text.constData(), std::size_t(text.size()));
    auto sheet = std::make_shared<const StyleSheet>(parseSheet(view));
    known.insert(text, new std::shared_ptr<const StyleSheet>(sheet), text.size());
    return sheet;
}

/// What to tell of a missing sheet called "<key>.<theme>.style": the themes that there are for the key.
QString themeHint(const QString &path)
{
    static const QRegularExpression pattern(QStringLiteral("^(.+)\\.([^.]+)\\.style$"));
    const QFileInfo missing(path);
    const QRegularExpressionMatch wanted = pattern.match(missing.fileName());
    if (!wanted.hasMatch())
        return {};
    QStringList themes;
    const QStringList files = missing.dir().entryList(QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const QRegularExpressionMatch present = pattern.match(file);
        if (present.captured(1) == wanted.captured(1))
            themes.append(present.captured(2));
    }
    return themes.isEmpty() ? QString()
                            : QStringLiteral(" '%1' is none of the themes %2")
                                  .arg(wanted.captured(2), themes.join(QStringLiteral(", ")));
}

bool appears(const QString &path)
{
    if (!isSheetFile(path))
        QThread::msleep(missingFileWaitMs);
    return isSheetFile(path);
}

} // namespace

StyleSheetLoader::StyleSheetLoader(QUrl baseUrl, Report report)
    : m_baseUrl(std::move(baseUrl))
    , m_report(std::move(report))
{}

std::shared_ptr<const StyleSheet> StyleSheetLoader::load(const QUrl &url) const
{
    if (url.isEmpty())
        return std::make_shared<const StyleSheet>();
    qCInfo(styleLog).noquote().nospace() << "INFO: Load style from '" << url.toString() << "'";

    const bool wellFormed =
        url.isLocalFile() || url.isRelative() || (url.isValid() && !sheetPath(url, QUrl()).isEmpty());
    if (!wellFormed) {
        reportFailure(QStringLiteral("wrong path format '%1': missing 'file:///' or 'qrc:/' ? ").arg(url.toString()));
        return std::make_shared<const StyleSheet>();
    }

    const QString path = sheetPath(url, m_baseUrl);
    if (!appears(path)) {
        const QString hint = themeHint(path);
        qCCritical(styleLog).noquote().nospace() << "CRITICAL: Style '" << path << "' not found" << hint;
        m_report(QStringLiteral("styleSheetNotFound"), QStringLiteral("Style '%1' not found.").arg(path) + hint);
        return std::make_shared<const StyleSheet>();
    }
    return read(path);
}

std::shared_ptr<const StyleSheet> StyleSheetLoader::read(const QString &path) const
{
    qCInfo(styleLog).noquote().nospace() << "INFO: Load style from '" << path << "' ...";
    QString error;
    const std::optional<QByteArray> text = readSheetFile(path, &error);
    if (!text) {
        reportFailure(path + u' ' + error);
        return nullptr;
    }
    if (text->size() > maximumSheetBytes) {
        reportFailure(QStringLiteral("%1: longer than %2 MiB").arg(path).arg(maximumSheetBytes >> 20));
        return nullptr;
    }
    try {
        return parsed(*text);
    } catch (const ParseException &fault) {
        reportFailure(QStringLiteral("%1: %2 at line %3 column %4: %5")
                          .arg(path, QString::fromStdString(fault.message()))
                          .arg(fault.line())
                          .arg(fault.column())
                          .arg(QString::fromStdString(fault.lineText()).trimmed()));
        return nullptr;
    }
}

void StyleSheetLoader::reportFailure(const QString &message) const
{
    qCCritical(styleLog).noquote() << "CRITICAL: loading style sheet failed:" << message;
    m_report(QStringLiteral("loadingStyleSheetFailed"),
             QStringLiteral("Loading style sheet failed '%1'.").arg(message));
}

} // namespace tamble::client
