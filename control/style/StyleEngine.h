#pragma once

#include "base/ControlExport.h"
#include "style/resolution/StylePath.h"

#include <QtCore/QObject>
#include <QtCore/QUrl>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace tamble::client {

class FontFaceLoader;
class ResolvedMap;
class StyleResolver;
class StyleSheet;
class UsageCountedStyleSetProps;
enum class SheetOrigin : std::uint8_t;

/// The styles of the process: the loaded sheets, what they resolve to for each style path, and the report of keys that
/// controls asked for in vain. Made on first use, never replaced; belongs to the GUI thread.
class TAMBLE_CLIENT_CONTROL_EXPORT StyleEngine : public QObject
{
    Q_OBJECT

public:
    static StyleEngine *instance();

    QUrl styleSheetSource() const { return m_userSheet.source; }
    QUrl defaultStyleSheetSource() const { return m_defaultSheet.source; }
    /// The sheets that loadStyles() reads. An empty URL means none. Relative ones are resolved against the base URL of
    /// the time they are set.
    void setStyleSheetSource(const QUrl &url);
    void setDefaultStyleSheetSource(const QUrl &url);
    void setBaseUrl(const QUrl &url) { m_baseUrl = url; }

    /// Reads both sheets and restyles everything. A sheet that does not parse is reported and leaves the styles in
    /// force as they are; while there are none, the other sheet is used alone. A sheet that is missing counts as empty.
    ///
    /// A listener may answer a report by naming another sheet and loading it. That load is the newer one: what is left
    /// of the load that reported is not done.
    void loadStyles();
    /// Forgets that styles were loaded: a missing key is not reported until the next load.
    void unload() { m_loaded = false; }

    /// The values for `path`, shared by all style sets with this path. Those without users are given back at the next
    /// load, at the latest when there are twice as many as were left the last time.
    std::shared_ptr<UsageCountedStyleSetProps> propsFor(const StylePathRef &path);
    /// The declarations in force for `path`; no path has none. Valid until the next load or
    /// propsFor().
    const ResolvedMap &resolve(const StylePath *path);
    /// The rules that match `path`, for the author of a sheet; empty without a sheet.
    QString styleInfo(const StylePath &path);

    /// The file or resource that the declarations in force with this origin stand in.
    const QString &pathInForce(SheetOrigin origin) const { return m_pathsInForce[std::size_t(origin)]; }

    /// A key was asked for and not found.
    void noteMissingKey();
    /// Logs every key that a used path still misses, and raises "propertyNotFound" for it.
    void reportMissingKeys();

Q_SIGNALS:
    /// New sheets are in force and every style set has changed.
    void styleChanged();
    /// A problem of the style system: its kind and a text for the user.
    void exception(const QString &type, const QString &message);
    /// Once per report that is due; serve it by reportMissingKeys().
    void propertiesPotentiallyMissing();

private:
    StyleEngine();
    ~StyleEngine() override;

    /// A sheet as somebody named it.
    struct NamedSheet
    {
        QUrl source;
        QUrl baseUrl;

        QUrl url() const { return baseUrl.resolved(source); }
    };

    std::shared_ptr<const StyleSheet> read(const NamedSheet &named);
    void install(StyleSheet &&sheet);
    void announceChange();
    void loadFonts(const StyleSheet &sheet);
    void dropUnused();
    void signalMissingKeys();

    std::unique_ptr<FontFaceLoader> m_fonts;
    QUrl m_baseUrl;
    NamedSheet m_userSheet;
    NamedSheet m_defaultSheet;
    std::array<QString, 2> m_pathsInForce; // by origin
    std::unique_ptr<StyleSheet> m_sheet;
    std::unique_ptr<StyleResolver> m_resolver;

    // All shared values in the order they were first asked for, and where each path's stand among them.
    std::vector<std::shared_ptr<UsageCountedStyleSetProps>> m_props;
    std::unordered_map<const StylePath *, std::size_t> m_propsByPath;
    std::size_t m_mostProps = 0;

    quint64 m_newestLoad = 0; // counts them
    bool m_loaded = false;
    bool m_missingPending = false;
    bool m_reportSignalled = false;
};

} // namespace tamble::client
