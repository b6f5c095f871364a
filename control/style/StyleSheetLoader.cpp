#include "style/StyleSheetLoader.h"

#include "style/ParseException.h"
#include "style/StyleLog.h"
#include "style/StyleSheetParser.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

namespace tamble::client {

namespace {

constexpr unsigned long MissingFileWaitMs = 1000;

bool isResource(const QString &text)
{
    return text.startsWith(QStringLiteral("qrc:/")) || text.startsWith(QStringLiteral(":/"));
}

bool appears(const QString &path)
{
    if (path.isEmpty() || !QFileInfo(path).isFile())
        QThread::msleep(MissingFileWaitMs);
    return QFileInfo(path).isFile();
}

} // namespace

StyleSheetLoader::StyleSheetLoader(QUrl baseUrl, Report report)
    : m_baseUrl(std::move(baseUrl))
    , m_report(std::move(report))
{}

std::optional<StyleSheet> StyleSheetLoader::load(const QUrl &url) const
{
    if (url.isEmpty())
        return StyleSheet();
    qCInfo(styleLog).noquote().nospace() << "INFO: Load style from '" << url.toString() << "'";

    const bool wellFormed = url.isLocalFile() || url.isRelative() || (url.isValid() && isResource(url.toString()));
    if (!wellFormed) {
        const QString message =
            QStringLiteral("wrong path format '%1': missing 'file:///' or 'qrc:/' ? ").arg(url.toString());
        qCCritical(styleLog).noquote() << "CRITICAL: loading style sheet failed:" << message;
        m_report(QStringLiteral("loadingStyleSheetFailed"),
                 QStringLiteral("Loading style sheet failed '%1'.").arg(message));
        return StyleSheet();
    }

    const QString path = filePath(url);
    if (!appears(path)) {
        qCCritical(styleLog).noquote().nospace() << "CRITICAL: Style '" << path << "' not found";
        m_report(QStringLiteral("styleSheetNotFound"), QStringLiteral("Style '%1' not found.").arg(path));
        return StyleSheet();
    }
    return parse(path);
}

QString StyleSheetLoader::filePath(const QUrl &url) const
{
    const QString text = url.toString();
    if (text.startsWith(QStringLiteral("qrc:/")))
        return text.mid(3);
    if (text.startsWith(QStringLiteral(":/")))
        return text;
    const QUrl resolved = m_baseUrl.resolved(url);
    return isResource(resolved.toString()) ? resolved.toString().mid(3) : resolved.toLocalFile();
}

std::optional<StyleSheet> StyleSheetLoader::parse(const QString &path) const
{
    qCInfo(styleLog).noquote().nospace() << "INFO: Load style from '" << path << "' ...";
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        m_report(QStringLiteral("loadingStyleSheetFailed"),
                 QStringLiteral("Loading style sheet failed '%1'.").arg(path + u' ' + file.errorString()));
        return std::nullopt;
    }
    try {
        return parseStdString(file.readAll().toStdString());
    } catch (const ParseException &error) {
        const QString message = QStringLiteral("%1: %2 at line %3 column %4: %5")
                                    .arg(path, QString::fromStdString(error.message()))
                                    .arg(error.line())
                                    .arg(error.column())
                                    .arg(QString::fromStdString(error.lineText()).trimmed());
        qCCritical(styleLog).noquote() << "CRITICAL: loading style sheet failed:" << message;
        m_report(QStringLiteral("loadingStyleSheetFailed"),
                 QStringLiteral("Loading style sheet failed '%1'.").arg(message));
        return std::nullopt;
    }
}

} // namespace tamble::client
