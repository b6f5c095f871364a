#include "style/StyleEngineSetup.h"

#include "style/StyleEngine.h"
#include "style/StyleLocations.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace tamble::client {

StyleEngineSetup::StyleEngineSetup(QObject *parent)
    : QObject(parent)
{
    connect(&m_directory, &StylesDirWatcher::stylePathChanged, this, &StyleEngineSetup::stylePathChanged);
    connect(&m_directory, &StylesDirWatcher::fileExtensionsChanged, this, &StyleEngineSetup::fileExtensionsChanged);
    connect(&m_directory, &StylesDirWatcher::availableStylesChanged, this, &StyleEngineSetup::availableStylesChanged);
    connect(&m_files, &SheetFileWatcher::filesChanged, this,
            [this](const QStringList &files) { onFileChanged(files.constFirst()); });
    const StyleEngine *engine = StyleEngine::instance();
    connect(engine, &StyleEngine::styleChanged, this, &StyleEngineSetup::styleChanged);
    connect(engine, &StyleEngine::exception, this, &StyleEngineSetup::exception);
}

StyleEngineSetup::~StyleEngineSetup()
{
    StyleEngine::instance()->unload();
}

void StyleEngineSetup::setStylePath(const QUrl &url)
{
    if (stylePath() == url)
        return;
    m_directory.setStylePath(url);
    update();
}

void StyleEngineSetup::setStyleName(const QString &name)
{
    if (m_styleName == name)
        return;
    m_styleName = name;
    update();
    Q_EMIT styleNameChanged();
}

void StyleEngineSetup::setDefaultStyleName(const QString &name)
{
    if (m_defaultStyleName == name)
        return;
    m_defaultStyleName = name;
    update();
    Q_EMIT defaultStyleNameChanged();
}

void StyleEngineSetup::setStyleSheetSource(const QUrl &url)
{
    if (assignSource(url))
        load();
}

void StyleEngineSetup::setDefaultStyleSheetSource(const QUrl &url)
{
    if (assignDefaultSource(url))
        load();
}

void StyleEngineSetup::setStyleSheetSources(const QUrl &defaultSource, const QUrl &userSource)
{
    const bool defaultChanged = assignDefaultSource(defaultSource);
    const bool userChanged = assignSource(userSource);
    if (defaultChanged || userChanged)
        load();
}

void StyleEngineSetup::componentComplete()
{
    m_complete = true;
    load();
}

void StyleEngineSetup::onFileChanged(const QString &)
{
    StyleEngine::instance()->loadStyles();
}

void StyleEngineSetup::update()
{
    const QString directory = localStylePath(stylePath(), this);
    if (directory.isEmpty())
        return;
    const auto fileUrl = [&directory](const QString &name) {
        const QString path = QDir(directory).filePath(name);
        return !name.isEmpty() && QFileInfo(path).isFile() ? QUrl::fromLocalFile(path) : QUrl();
    };
    const QUrl userSheet = fileUrl(m_styleName);
    const QUrl defaultSheet = fileUrl(m_defaultStyleName);
    setStyleSheetSources(defaultSheet.isEmpty() ? m_defaultStyleSheetSource : defaultSheet,
                         userSheet.isEmpty() ? m_styleSheetSource : userSheet);
}

bool StyleEngineSetup::assignSource(const QUrl &url)
{
    if (m_styleSheetSource == url)
        return false;
    m_styleSheetSource = url;
    Q_EMIT styleSheetSourceChanged(url);
    return true;
}

bool StyleEngineSetup::assignDefaultSource(const QUrl &url)
{
    if (m_defaultStyleSheetSource == url)
        return false;
    m_defaultStyleSheetSource = url;
    Q_EMIT defaultStyleSheetSourceChanged(url);
    return true;
}

void StyleEngineSetup::load()
{
    if (!m_complete)
        return;
    StyleEngine *engine = StyleEngine::instance();
    engine->setBaseUrl(styleBaseUrl(this));
    engine->setDefaultStyleSheetSource(m_defaultStyleSheetSource);
    engine->setStyleSheetSource(m_styleSheetSource);

    QStringList files = {localStylePath(m_defaultStyleSheetSource, this), localStylePath(m_styleSheetSource, this)};
    files.removeAll(QString());
    m_files.setFiles(files);
    engine->loadStyles();
}

} // namespace tamble::client
