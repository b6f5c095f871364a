// Build tool: makes the library's interface font of a font file, under a name of its own, as the licence asks.
//
//     tamble-derive-font <TrueType file> <reserved name> <new name> <output file>
//
// All glyphs look as they did. But where the font's control program (its table "prep") switches hinting off for large
// sizes, it now ends there instead of preparing for hints that no glyph will use. Qt Quick has FreeType run it once for
// each glyph that it makes a distance field of: ten times what the rest of that glyph costs.

#include <QByteArray>
#include <QFile>
#include <QMap>
#include <QString>
#include <QTextStream>
#include <QtEndian>

#include <algorithm>

namespace {

using Tables = QMap<QByteArray, QByteArray>; ///< by tag

int fail(const QString &message)
{
    QTextStream(stderr) << "tamble-derive-font: " << message << Qt::endl;
    return 1;
}

template <typename Number>
Number numberAt(const QByteArray &data, qsizetype place)
{
    return place + qsizetype(sizeof(Number)) <= data.size() ? qFromBigEndian<Number>(data.constData() + place)
                                                            : Number(0);
}

template <typename Number>
QByteArray bytesOf(Number number)
{
    QByteArray bytes(qsizetype(sizeof(Number)), '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

constexpr qsizetype directoryStart = 12;
constexpr qsizetype directoryEntry = 16;

Tables tablesOf(const QByteArray &font)
{
    Tables tables;
    const int count = numberAt<quint16>(font, 4);
    for (int i = 0; i < count; ++i) {
        const qsizetype entry = directoryStart + directoryEntry * i;
        tables.insert(font.mid(entry, 4),
                      font.mid(numberAt<quint32>(font, entry + 8), numberAt<quint32>(font, entry + 12)));
    }
    return tables;
}

QByteArray padded(const QByteArray &table)
{
    return table + QByteArray((4 - table.size() % 4) % 4, '\0');
}

quint32 sumOf(const QByteArray &data)
{
    quint32 sum = 0;
    for (qsizetype place = 0; place < data.size(); place += 4)
        sum += numberAt<quint32>(data, place);
    return sum;
}

/// The file of these tables; `begin` is that of the original, whose tables have the same tags.
QByteArray fontOf(Tables tables, const QByteArray &begin)
{
    constexpr qsizetype adjustment = 8; // within the table "head"
    QByteArray &head = tables["head"];
    head.replace(adjustment, 4, bytesOf<quint32>(0));

    QByteArray directory = begin.left(directoryStart);
    QByteArray body;
    qsizetype headPlace = 0;
    const qsizetype bodyStart = directoryStart + directoryEntry * tables.size();
    for (auto table = tables.cbegin(); table != tables.cend(); ++table) {
        const qsizetype place = bodyStart + body.size();
        if (table.key() == "head")
            headPlace = place;
        body += padded(*table);
        directory +=
            table.key() + bytesOf(sumOf(padded(*table))) + bytesOf(quint32(place)) + bytesOf(quint32(table->size()));
    }
    QByteArray font = directory + body;
    constexpr quint32 wholeSum = 0xB1B0AFBA;
    font.replace(headPlace + adjustment, 4, bytesOf(wholeSum - sumOf(font)));
    return font;
}

/// The table "name" with the names by which programs know the font changed; who made it and under what terms stays.
QByteArray renamed(const QByteArray &table, const QString &reserved, const QString &name)
{
    constexpr int windows = 3;
    constexpr int uniqueId = 3;
    constexpr int fullName = 4;
    constexpr int postScriptName = 6;
    constexpr qsizetype header = 6;
    constexpr qsizetype recordSize = 12;
    const int count = numberAt<quint16>(table, 2);
    const qsizetype texts = numberAt<quint16>(table, 4);
    QByteArray records;
    QByteArray newTexts;
    for (int i = 0; i < count; ++i) {
        const qsizetype record = header + recordSize * i;
        const bool wide = numberAt<quint16>(table, record) == windows;
        const int id = numberAt<quint16>(table, record + 6);
        QByteArray text =
            table.mid(texts + numberAt<quint16>(table, record + 10), numberAt<quint16>(table, record + 8));
        if (id == 1 || (id >= uniqueId && id <= fullName) || id == postScriptName) {
            const bool oneWord = id == uniqueId || id == postScriptName;
            const QString with = oneWord ? QString(name).remove(u' ') : name;
            const auto encoded = [wide](const QString &plain) {
                QByteArray bytes;
                for (const QChar character : plain)
                    bytes += wide ? bytesOf(character.unicode()) : QByteArray(1, character.toLatin1());
                return bytes;
            };
            text.replace(encoded(reserved), encoded(with));
        }
        records += table.mid(record, 8) + bytesOf(quint16(text.size())) + bytesOf(quint16(newTexts.size()));
        newTexts += text;
    }
    return table.left(4) + bytesOf(quint16(header + records.size())) + records + newTexts;
}

/// The control program with an end where it switches hinting off; as it is, where it does not begin with that.
QByteArray shortened(QByteArray program)
{
    // SVTCA[y], MPPEM[], PUSHW[200], GT[], IF[], PUSHB[1 1], INSTCTRL[], EIF[]
    const auto hintingOff = QByteArray::fromHex("004bb800c85258b101018e59");
    const auto otherwise = '\x1b'; // ELSE[]
    const auto endIf = '\x59';
    if (!program.startsWith(hintingOff)) {
        QTextStream(stdout) << "tamble-derive-font: the control program is not known and stays as it is" << Qt::endl;
        return program;
    }
    program[hintingOff.size() - 1] = otherwise;
    return program + endIf;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 5)
        return fail(
            QStringLiteral("usage: tamble-derive-font <TrueType file> <reserved name> <new name> <output file>"));
    QFile source(QString::fromLocal8Bit(argv[1]));
    if (!source.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("cannot read %1").arg(source.fileName()));
    const QByteArray original = source.readAll();
    Tables tables = tablesOf(original);
    for (const char *needed : {"head", "name", "prep"}) {
        if (!tables.contains(needed))
            return fail(QStringLiteral("%1 has no table \"%2\"").arg(source.fileName(), QLatin1String(needed)));
    }
    tables["name"] = renamed(tables["name"], QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    tables["prep"] = shortened(tables["prep"]);

    QFile output(QString::fromLocal8Bit(argv[4]));
    const QByteArray derived = fontOf(tables, original);
    if (!output.open(QIODevice::WriteOnly) || output.write(derived) != derived.size())
        return fail(QStringLiteral("cannot write %1").arg(output.fileName()));
    return 0;
}
