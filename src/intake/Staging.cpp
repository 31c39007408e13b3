#include "intake/Staging.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Connection.h"
#include "platform/db/JetSql.h"
#include "platform/db/Recordset.h"
#include "platform/db/Statement.h"
#include "platform/text/Cp932.h"
#include "platform/text/LineInput.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/FixedArray.h"

namespace Mdl_Access_mdb {

using Mdl_gData::DbConnection;

namespace {

// The seven fields of one inventory line, in the file's order.
enum CsvField { Key, Group, Item, SubItem, Contents, Unit, Renewalday, CsvFieldCount };

const std::array<QStringView, CsvFieldCount> kFieldNames = {u"Key", u"Group", u"Item", u"SubItem", u"Contents", u"Unit", u"Renewalday"};

// Splits a line the way the inventory tool's files are read: no quoting and no escape. Each of
// the first six fields is cut off at the next comma; a field that finds no comma stays empty and
// leaves the rest as it was. Whatever remains, commas included, is Renewalday; a line without
// any comma therefore stages as seven empty fields. The first six are kept to 254 characters,
// as staging stores them. The line is [begin, end) of the lines' text.
StagedLine splitLine(const StagedLines& lines, qsizetype begin, qsizetype end)
{
    const QStringView text = lines.text();
    const auto commaIn = [&](qsizetype from) {
        const qsizetype at = text.sliced(from, end - from).indexOf(QLatin1Char(','));
        return at < 0 ? -1 : from + at;
    };
    StagedLine f;
    qsizetype rest = end; // no comma: nothing remains for the fields after Key
    const qsizetype first = commaIn(begin);
    if (first >= 0) {
        f[Key] = lines.field(begin, qMin<qsizetype>(first - begin, 254));
        rest = first + 1;
    }
    for (int i = Group; i <= Unit; ++i) {
        const qsizetype comma = commaIn(rest);
        if (comma >= 0) {
            f[size_t(i)] = lines.field(rest, qMin<qsizetype>(comma - rest, 254));
            rest = comma + 1;
        }
    }
    if (end > begin)
        f[Renewalday] = lines.field(rest, end - rest);
    return f;
}

} // namespace

int StagingColumn(QStringView name)
{
    for (size_t i = 0; i < kFieldNames.size(); ++i)
        if (kFieldNames[i] == name)
            return int(i);
    return -1;
}

bool CheckCsvHeader(const QString& line)
{
    // The test as first written cut the line at each comma and compared the pieces with the six names, then
    // the rest with "Renewalday" as a whole: that is the same as comparing the whole line.
    return line == QLatin1String("Key,Group,Item,SubItem,Contents,Unit,Renewalday");
}

std::optional<StagedLines> ReadInventoryLines(const QString& path)
{
    // The name without its folder and its last four characters, and the last three characters.
    // Windows paths end their folder at the last backslash; here either separator ends the folder,
    // and a path of fewer than four characters gives an empty name instead of an error.
    const QString withoutExtension = path.left(qMax<qsizetype>(0, path.size() - 4));
    const qsizetype cut = qMax(withoutExtension.lastIndexOf(QLatin1Char('\\')), withoutExtension.lastIndexOf(QLatin1Char('/')));
    Mdl_gData::g.CsvFileBaseName = withoutExtension.mid(cut + 1);
    Mdl_gData::g.CsvFileExtension = path.right(3);

    // Each line is decoded by itself, as line input decodes it (CR LF, LF and CR each end a
    // line; a file that ends with a line end has no empty line after it), into one text for the
    // whole file; the fields are cut from that text when it is complete.
    const QByteArray bytes = text::ReadWholeFile(path);
    const char* const data = bytes.constData();
    const qsizetype size = bytes.size();
    QString text;
    text.reserve(size);
    std::vector<std::pair<qsizetype, qsizetype>> spans; // [begin, end) of each line in text
    qsizetype at = 0;
    while (at < size) {
        qsizetype end = at;
        bool ascii = true;
        while (end < size && data[end] != '\r' && data[end] != '\n') {
            ascii = ascii && static_cast<unsigned char>(data[end]) < 0x80;
            ++end;
        }
        const QByteArrayView line(data + at, end - at);
        const qsizetype begin = text.size();
        if (ascii)
            text.append(QLatin1StringView(line));
        else
            text.append(text::FromCp932(line));
        spans.emplace_back(begin, text.size());
        at = end < size && data[end] == '\r' && end + 1 < size && data[end + 1] == '\n' ? end + 2 : end + 1;
    }
    if (spans.empty() || spans[0].first == spans[0].second
        || !CheckCsvHeader(QStringView(text).sliced(spans[0].first, spans[0].second - spans[0].first).toString()))
        return std::nullopt;
    StagedLines lines(std::move(text));
    for (size_t i = 1; i < spans.size(); ++i)
        lines.append(splitLine(lines, spans[i].first, spans[i].second));
    return lines;
}

namespace {

const QString kInsertStaged =
    QStringLiteral("INSERT INTO tbl_ReadCsv (\"Key\", \"Group\", Item, SubItem, Contents, Unit, Renewalday) VALUES (?, ?, ?, ?, ?, ?, ?)");

} // namespace

void WriteStaging(const StagedLines& lines)
{
    // Rows go in as bound values, not as SQL text, so quotes in a value arrive as they are;
    // sanitising waits until a value leaves staging.
    db::Connection& c = DbConnection();
    c.Execute(QStringLiteral("DELETE FROM tbl_ReadCsv"));
    std::vector<db::Literal> values(CsvFieldCount);
    for (const StagedLine& line : lines) {
        for (size_t i = 0; i < CsvFieldCount; ++i)
            values[i] = line[i];
        db::Statement s = c.prepareSql(kInsertStaged);
        s.bind(values);
        s.runToEnd(c);
    }
}

bool StagingAcceptsWhole(const StagedLines& lines)
{
    // The first six fields are kept to 254 characters already. Renewalday has no limit in the
    // ledger; a longer one than 255 answers false all the same, to be safe: such a file is only
    // staged at once. A text of n UTF-16 units has at most n characters.
    for (const StagedLine& line : lines)
        if (line[Renewalday].size() > 255)
            return false;
    return true;
}

bool StagingRunsTriggers(db::Connection& connection)
{
    return connection.runsTriggers(QStringLiteral("DELETE FROM tbl_ReadCsv")) || connection.runsTriggers(kInsertStaged);
}

bool ReadCsvToStaging(const QString& path)
{
    const std::optional<StagedLines> lines = ReadInventoryLines(path);
    if (!lines)
        return false;
    WriteStaging(*lines);
    return true;
}

namespace {

// The fields that a mode writes, in order, before the key; none for a mode outside 1 to 8.
std::vector<CsvField> fieldsOf(std::int16_t mode)
{
    switch (mode) {
    case 1: return {Item, SubItem};
    case 2: return {SubItem, Contents};
    case 3: return {SubItem, Contents, Unit};
    case 4: return {Item, SubItem, Contents, Unit};
    case 5: return {Renewalday, SubItem, Contents, Unit};
    case 6: return {Renewalday, Item, SubItem, Contents, Unit};
    case 7: return {Renewalday, SubItem, Contents};
    case 8: return {Renewalday, Item, SubItem};
    default: return {};
    }
}

} // namespace

void CopyStagingRows(const QString& selection, const QString& prefix, const QString& key, std::int16_t mode)
{
    // Errors are ignored statement by statement, as VB's On Error Resume Next ran this routine.
    db::Recordset rs;
    try {
        rs.Open(selection, DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    } catch (const vb::VbError&) {
        return;
    }
    if (rs.RecordCount() == 0) {
        rs.Close();
        return;
    }
    const std::vector<CsvField> fields = fieldsOf(mode);
    std::vector<int> columns;
    for (CsvField f : fields)
        columns.push_back(rs.FieldIndex(kFieldNames[f]));

    // Kept across rows: a value that cannot be read (a Null) leaves the previous row's in place.
    std::vector<QString> values(fields.size());
    for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
        QString sql = prefix;
        for (size_t i = 0; i < fields.size(); ++i) {
            vb::ResumeNext([&] { values[i] = SanitizeField(vb::CStr(rs.Value(columns[i]))); });
            sql += QLatin1Char('\'') + values[i] + QStringLiteral("', ");
        }
        if (!fields.empty())
            sql += QLatin1Char('\'') + key + QStringLiteral("');");
        ExecuteSql(sql);
    }
    rs.Close();
}

// clang-format off
const std::array<StagingCopy, 4> StagingCopies = {{
    {u"SELECT * FROM tbl_ReadCsv WHERE (Group = 'Soft' AND Item = 'Application')",
     u"INSERT INTO tbl_ApplicationsList ( [Update], Application_Name, Application_Version, Application_Path, [Key] ) VALUES(", 5,
     u"Soft", u"Application"},
    {u"SELECT * FROM tbl_ReadCsv WHERE (Group = 'Device')",
     u"INSERT INTO tbl_Device_Management ( [Update], Device_Category, Device_Name, Device_Provider, Device_Version, [Key] ) VALUES(", 6,
     u"Device", {}},
    {u"SELECT * FROM tbl_ReadCsv WHERE (Group = 'Hard' AND Item = 'Printer')",
     u"INSERT INTO tbl_Printer_Management ( [Update], Printer_Name, PrinterPorts_Name, [Key] ) VALUES(", 7,
     u"Hard", u"Printer"},
    {u"SELECT * FROM tbl_ReadCsv WHERE (Group = 'Environmental')",
     u"INSERT INTO tbl_Environmental ( [Update], Environmental_Name, Environmental_Path, [Key] ) VALUES(", 8,
     u"Environmental", {}},
}};
// clang-format on

void CopyAllStagingRows(const QString& key)
{
    for (const StagingCopy& copy : StagingCopies)
        CopyStagingRows(copy.selection.toString(), copy.prefix.toString(), key, copy.mode);
}

bool StagedEquals(QStringView stored, QStringView value)
{
    if (stored.size() != value.size())
        return false;
    const auto fold = [](char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c; };
    for (qsizetype i = 0; i < stored.size(); ++i)
        if (stored[i] != value[i] && fold(stored[i].unicode()) != fold(value[i].unicode()))
            return false;
    return true;
}

void CopyAllStagedLines(const StagedLines& lines, const QString& key)
{
    db::Connection& c = DbConnection();
    // Each copy's INSERT, rewritten once: its values are quoted literals, one a field and the key.
    struct Shape {
        QString sql;
        std::vector<CsvField> fields;
    };
    static const std::array<Shape, 4> shapes = [] {
        std::array<Shape, 4> out;
        for (size_t i = 0; i < StagingCopies.size(); ++i) {
            out[i].fields = fieldsOf(StagingCopies[i].mode);
            const QString jet = StagingCopies[i].prefix.toString() + QStringLiteral("'', ").repeated(qsizetype(out[i].fields.size()))
                                + QStringLiteral("'');");
            out[i].sql = db::JetSql::ParseShape(jet).shape;
        }
        return out;
    }();
    std::vector<db::Literal> values;
    for (size_t i = 0; i < StagingCopies.size(); ++i) {
        const StagingCopy& copy = StagingCopies[i];
        const Shape& shape = shapes[i];
        for (const StagedLine& line : lines) {
            if (!StagedEquals(line[Group], copy.group) || (!copy.item.isEmpty() && !StagedEquals(line[Item], copy.item)))
                continue;
            values.clear();
            for (CsvField f : shape.fields)
                values.emplace_back(SanitizeField(line[f]));
            values.emplace_back(key);
            // a row the ledger refuses is skipped, as ExecuteSql skips it
            vb::ResumeNext([&] {
                db::Statement s = c.prepareSql(shape.sql);
                s.bind(values);
                s.runToEnd(c);
            });
        }
    }
}

} // namespace Mdl_Access_mdb
