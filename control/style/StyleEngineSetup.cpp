#include "style/StyleEngineSetup.h"

#include "style/StyleEngine.h"
#include "style/loading/StyleLocations.h"

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
    nameSheets(std::nullopt, url);
}

void StyleEngineSetup::setDefaultStyleSheetSource(const QUrl &url)
{
    nameSheets(url, std::nullopt);
}

void StyleEngineSetup::setStyleSheetSources(const QUrl &defaultSource, const QUrl &userSource)
{
    nameSheets(defaultSource, userSource);
}

void StyleEngineSetup::componentComplete()
{
    m_complete = true;
    load(true, true);
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
        return !name.isEmpty() && QFileInfo(path).isFile() ? NamedSource(QUrl::fromLocalFile(path)) : std::nullopt;
    };
    nameSheets(fileUrl(m_defaultStyleName), fileUrl(m_styleName));
}

void StyleEngineSetup::nameSheets(const NamedSource &defaultSource, const NamedSource &userSource)
{
    const bool defaultDiffers = defaultSource && m_defaultStyleSheetSource != defaultSource;
    const bool userDiffers = userSource && m_styleSheetSource != userSource;
    const QUrl defaultBefore = defaultStyleSheetSource();
    const QUrl userBefore = styleSheetSource();
    if (defaultDiffers)
        m_defaultStyleSheetSource = defaultSource;
    if (userDiffers)
        m_styleSheetSource = userSource;
    if (defaultStyleSheetSource() != defaultBefore)
        Q_EMIT defaultStyleSheetSourceChanged(defaultStyleSheetSource());
    if (styleSheetSource() != userBefore)
        Q_EMIT styleSheetSourceChanged(styleSheetSource());
    if (m_complete && (defaultDiffers || userDiffers))
        load(defaultDiffers, userDiffers);
}

// Only what has been named anew is forwarded: meanwhile another setup may have named the other kind.
void StyleEngineSetup::load(bool forwardDefault, bool forwardUser)
{
    StyleEngine *engine = StyleEngine::instance();
    engine->setBaseUrl(styleBaseUrl(this));
    if (forwardDefault && m_defaultStyleSheetSource)
        engine->setDefaultStyleSheetSource(*m_defaultStyleSheetSource);
    if (forwardUser && m_styleSheetSource)
        engine->setStyleSheetSource(*m_styleSheetSource);

    QStringList files = {localStylePath(defaultStyleSheetSource(), this), localStylePath(styleSheetSource(), this)};
    files.removeAll(QString());
    m_files.setFiles(files);
    engine->loadStyles();
}

} // namespace tamble::client
