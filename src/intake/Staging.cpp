#include "intake/Staging.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Connection.h"
#include "platform/db/JetSql.h"
#include "platform/db/Recordset.h"
#include "platform/db/Statement.h"
#include "platform/text/LineInput.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/FixedArray.h"

namespace Mdl_Access_mdb {

using Mdl_gData::DbConnection;

namespace {

// The seven fields of one inventory line, in the file's order.
enum CsvField { Key, Group, Item, SubItem, Contents, Unit, Renewalday, CsvFieldCount };

const std::array<QStringView, CsvFieldCount> kFieldNames = {u"Key", u"Group", u"Item", u"SubItem",
                                                            u"Contents", u"Unit", u"Renewalday"};

// Splits a line the way the inventory tool's files are read: no quoting and no escape. Each of
// the first six fields is cut off at the next comma; a field that finds no comma stays empty and
// leaves the rest as it was. Whatever remains, commas included, is Renewalday; a line without
// any comma therefore stages as seven empty fields. The first six are kept to 254 characters,
// as staging stores them.
StagedLine splitLine(QStringView line)
{
    StagedLine f;
    QStringView rest;
    const qsizetype first = line.indexOf(QLatin1Char(','));
    if (first >= 0) {
        f[Key] = line.left(first).left(254).toString();
        rest = line.mid(first + 1);
    }
    for (int i = Group; i <= Unit; ++i) {
        const qsizetype comma = rest.indexOf(QLatin1Char(','));
        if (comma >= 0) {
            f[size_t(i)] = rest.left(comma).left(254).toString();
            rest = rest.mid(comma + 1);
        }
    }
    if (!line.isEmpty())
        f[Renewalday] = rest.toString();
    return f;
}

} // namespace

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

    text::LineInput input(text::ReadWholeFile(path));
    const QString header = input.next();
    if (header.isEmpty() || !CheckCsvHeader(header))
        return std::nullopt;
    StagedLines lines;
    while (!input.atEnd())
        lines.push_back(splitLine(input.next()));
    return lines;
}

namespace {

const QString kInsertStaged = QStringLiteral(
    "INSERT INTO tbl_ReadCsv (\"Key\", \"Group\", Item, SubItem, Contents, Unit, Renewalday) VALUES (?, ?, ?, ?, ?, ?, ?)");

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
