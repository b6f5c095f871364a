#include "style/StyleEngine.h"

#include "style/UsageCountedStyleSetProps.h"
#include "style/loading/FontFaceLoader.h"
#include "style/loading/SheetFile.h"
#include "style/loading/StyleLog.h"
#include "style/loading/StyleSheetLoader.h"
#include "style/resolution/StyleInfoText.h"
#include "style/resolution/StylePathPool.h"
#include "style/resolution/StyleResolver.h"

#include <algorithm>

namespace tamble::client {

StyleEngine::StyleEngine()
    : m_fonts(std::make_unique<FontFaceLoader>())
{}

StyleEngine::~StyleEngine() = default;

StyleEngine *StyleEngine::instance()
{
    // Style sets may outlive every other static object, so the engine is left to the end of the process.
    static auto *const engine = new StyleEngine;
    return engine;
}

void StyleEngine::setStyleSheetSource(const QUrl &url)
{
    qCInfo(styleLog).noquote() << "INFO: StyleEngine::setStyleSheetSource" << url.toString();
    m_userSheet = {url, m_baseUrl};
}

void StyleEngine::setDefaultStyleSheetSource(const QUrl &url)
{
    qCInfo(styleLog).noquote() << "INFO: StyleEngine::setDefaultStyleSheetSource" << url.toString();
    m_defaultSheet = {url, m_baseUrl};
}

void StyleEngine::loadStyles()
{
    qCDebug(styleLog, "DEBUG: StyleEngine::loadStyles");
    const quint64 load = ++m_newestLoad;
    const auto isOvertaken = [this, load] { return m_newestLoad != load; };

    const std::shared_ptr<const StyleSheet> userSheet = read(m_userSheet);
    if (isOvertaken())
        return;
    const std::shared_ptr<const StyleSheet> defaultSheet = read(m_defaultSheet);
    const bool isStyled = m_sheet && !m_sheet->isEmpty();
    if (isOvertaken() || (isStyled && !(userSheet && defaultSheet)))
        return;

    const StyleSheet none;
    StyleSheet sheet = StyleSheet::merged(defaultSheet ? *defaultSheet : none, userSheet ? *userSheet : none);
    loadFonts(sheet);
    if (isOvertaken())
        return;
    install(std::move(sheet));
    announceChange();
    if (isOvertaken())
        return;
    m_loaded = true;
    signalMissingKeys();
    if (!isOvertaken())
        Q_EMIT styleChanged();
}

std::shared_ptr<const StyleSheet> StyleEngine::read(const NamedSheet &named)
{
    const StyleSheetLoader loader(
        named.baseUrl, [this](const QString &type, const QString &message) { Q_EMIT exception(type, message); });
    return loader.load(named.source);
}

void StyleEngine::install(StyleSheet &&sheet)
{
    // Nothing may see a value of the old sheet once somebody hears of the new one, so all forget before any tells.
    for (const auto &shared : m_props)
        shared->invalidate();
    m_resolver.reset(); // refers to the old sheet
    m_sheet = std::make_unique<StyleSheet>(std::move(sheet));
    m_pathsInForce = {sheetPath(m_defaultSheet.source, m_defaultSheet.baseUrl),
                      sheetPath(m_userSheet.source, m_userSheet.baseUrl)};
    dropUnused();
}

void StyleEngine::announceChange()
{
    const quint64 load = m_newestLoad;
    const auto props = m_props; // a listener may make new ones
    for (const auto &shared : props) {
        if (m_newestLoad != load)
            return; // they have all heard of the newer one
        shared->announceChange();
    }
}

void StyleEngine::loadFonts(const StyleSheet &sheet)
{
    const quint64 load = m_newestLoad;
    for (const FontFace &face : sheet.fontFaces()) {
        const QUrl sheetUrl = (face.origin == SheetOrigin::UserSheet ? m_userSheet : m_defaultSheet).url();
        m_fonts->load(QUrl(QString::fromStdString(face.url)), sheetUrl, [&](const QString &message) {
            qCWarning(styleLog).noquote().nospace()
                << "WARN: " << message << " " << QString::fromStdString(face.url) << " (" << sheetUrl.toString()
                << " at line " << face.position.line << " column " << face.position.column << ")";
            Q_EMIT exception(QStringLiteral("fontWasNotLoaded"), message);
        });
        if (m_newestLoad != load)
            return;
    }
}

// The resolver keeps each path that it has met, so it goes too and begins anew.
void StyleEngine::dropUnused()
{
    std::erase_if(m_props, [](const auto &shared) { return shared.use_count() == 1; });
    m_propsByPath.clear();
    for (std::size_t i = 0; i < m_props.size(); ++i) {
        m_propsByPath.emplace(m_props[i]->path().get(), i);
        m_props[i]->releaseResolved();
    }
    m_mostProps = std::max(StylePathPool::minimumGrowth, 2 * m_props.size());
    m_resolver.reset();
    StylePathPool::instance().collect();
    if (m_sheet)
        m_resolver = std::make_unique<StyleResolver>(*m_sheet);
}

std::shared_ptr<UsageCountedStyleSetProps> StyleEngine::propsFor(const StylePathRef &path)
{
    if (const auto known = m_propsByPath.find(path.get()); known != m_propsByPath.end())
        return m_props[known->second];
    if (m_props.size() >= m_mostProps)
        dropUnused();
    m_propsByPath.emplace(path.get(), m_props.size());
    return m_props.emplace_back(std::make_shared<UsageCountedStyleSetProps>(path));
}

const ResolvedMap &StyleEngine::resolve(const StylePath *path)
{
    static const ResolvedMap empty;
    return m_resolver && path ? m_resolver->resolve(*path) : empty;
}

QString StyleEngine::styleInfo(const StylePath &path)
{
    return m_sheet && !m_sheet->isEmpty() ? styleInfoText(*m_sheet, path) : QString();
}

void StyleEngine::noteMissingKey()
{
    m_missingPending = true;
    signalMissingKeys();
}

void StyleEngine::signalMissingKeys()
{
    if (!m_loaded || !m_missingPending || m_reportSignalled)
        return;
    m_reportSignalled = true;
    Q_EMIT propertiesPotentiallyMissing();
}

void StyleEngine::reportMissingKeys()
{
    const quint64 load = m_newestLoad;
    const auto props = m_props; // a listener may make new ones
    for (const auto &shared : props) {
        // The engine holds it, and so does the copy above; further holders are style sets.
        if (shared.use_count() <= 2)
            continue;
        const QString path = shared->path() ? shared->path()->text() : QString();
        const auto keys = shared->missingKeys();
        for (const QString &key : keys) {
            qCWarning(styleLog).noquote().nospace() << "WARN: Property " << key << " not found (" << path << ")";
            Q_EMIT exception(QStringLiteral("propertyNotFound"),
                             QStringLiteral("Property '%1' not found (%2)").arg(key, path));
            if (m_newestLoad != load) {
                // What the listener has loaded misses other keys, and could not yet say so.
                m_reportSignalled = false;
                signalMissingKeys();
                return;
            }
        }
    }
    m_missingPending = false;
    m_reportSignalled = false;
}

} // namespace tamble::client
