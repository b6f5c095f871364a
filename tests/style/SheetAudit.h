#pragma once

#include "style/language/StyleSheet.h"
#include "style/resolution/StylePathPool.h"
#include "style/resolution/StyleResolver.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QColor>

#include <optional>
#include <vector>

/// One row of contrast-pairs.txt: a colour and what is behind it.
struct ContrastPair
{
    QString row; ///< as written, for messages
    QString path;
    QString key;
    QString kind;
    QStringList layers;
    QString condition;
    bool contrastSheetsOnly = false;
};

struct ContrastPairs
{
    QStringList pages; ///< controls whose background other controls are put on
    std::vector<ContrastPair> pairs;
};

/// The fields of each row of a data file; comments and empty lines are left out.
std::vector<QStringList> dataRows(const QString &file);
ContrastPairs contrastPairs(const QString &file);

/// A pair in one combination of states and classes, on one page.
struct ContrastReading
{
    QString place; ///< path and colours, for messages
    double ratio;
    bool plain; ///< all colours are plain values of their controls
};

/// Reads what a sheet shows, through the resolver that controls use.
class SheetAudit
{
public:
    explicit SheetAudit(const QByteArray &text);

    /// The keys declared under each selector, in the order of the text and with repetitions.
    const QHash<QString, QStringList> &declaredKeys() const { return m_declaredKeys; }
    qsizetype declarationCount() const;
    /// The value as written, without quotes; nothing when the key is not set on the path.
    std::optional<QString> value(const QString &path, const QString &key);
    QColor colour(const QString &path, const QString &key);

    /// All readings of `pair`, over every combination of the states that the sheet's selectors know for an element with
    /// "*", `disabled` excepted, without a class and with each class. Keys that are not set give no reading.
    std::vector<ContrastReading> readings(const ContrastPair &pair, const QStringList &pages);

private:
    struct Layer
    {
        QColor colour;
        bool plain;
    };

    const tamble::client::PropertySpec *declaration(const QString &path, const QString &key);
    std::optional<Layer> layer(const QString &path, const QString &key);
    QStringList combinations(const QString &element) const;
    QStringList combinedPaths(const QString &path) const;
    bool holds(const QString &condition, const QString &path);

    tamble::client::StyleSheet m_sheet;
    tamble::client::StylePathPool m_pool;
    tamble::client::StyleResolver m_resolver{m_sheet};
    QHash<QString, QStringList> m_declaredKeys;
    QSet<const tamble::client::PropertySpec *> m_plainDeclarations;
};
