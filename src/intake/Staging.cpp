#include "intake/Staging.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Connection.h"
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

void WriteStaging(const StagedLines& lines)
{
    // Rows go in as bound values, not as SQL text, so quotes in a value arrive as they are;
    // sanitising waits until a value leaves staging.
    db::Connection& c = DbConnection();
    c.Execute(QStringLiteral("DELETE FROM tbl_ReadCsv"));
    static const QString insert = QStringLiteral(
        "INSERT INTO tbl_ReadCsv (\"Key\", \"Group\", Item, SubItem, Contents, Unit, Renewalday) VALUES (?, ?, ?, ?, ?, ?, ?)");
    std::vector<db::Literal> values(CsvFieldCount);
    for (const StagedLine& line : lines) {
        for (size_t i = 0; i < CsvFieldCount; ++i)
            values[i] = line[i];
        db::Statement s = c.prepareSql(insert);
        s.bind(values);
        s.runToEnd(c);
    }
}

bool ReadCsvToStaging(const QString& path)
{
    const std::optional<StagedLines> lines = ReadInventoryLines(path);
    if (!lines)
        return false;
    WriteStaging(*lines);
    return true;
}

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
    const int item = rs.FieldIndex(u"Item");
    const int subItem = rs.FieldIndex(u"SubItem");
    const int contents = rs.FieldIndex(u"Contents");
    const int unit = rs.FieldIndex(u"Unit");
    const int renewalday = rs.FieldIndex(u"Renewalday");

    // Kept across rows: a value that cannot be read (a Null) leaves the previous row's in place.
    QString vItem, vSubItem, vContents, vUnit, vRenewalday;
    const auto read = [&rs](int index, QString& into) {
        vb::ResumeNext([&] { into = SanitizeField(vb::CStr(rs.Value(index))); });
    };
    const QString q = QStringLiteral("'");
    const QString sep = QStringLiteral("', '");
    for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
        read(item, vItem);
        read(subItem, vSubItem);
        read(contents, vContents);
        read(unit, vUnit);
        read(renewalday, vRenewalday);
        QString values;
        switch (mode) {
        case 1: values = q + vItem + sep + vSubItem; break;
        case 2: values = q + vSubItem + sep + vContents; break;
        case 3: values = q + vSubItem + sep + vContents + sep + vUnit; break;
        case 4: values = q + vItem + sep + vSubItem + sep + vContents + sep + vUnit; break;
        case 5: values = q + vRenewalday + sep + vSubItem + sep + vContents + sep + vUnit; break;
        case 6: values = q + vRenewalday + sep + vItem + sep + vSubItem + sep + vContents + sep + vUnit; break;
        case 7: values = q + vRenewalday + sep + vSubItem + sep + vContents; break;
        case 8: values = q + vRenewalday + sep + vItem + sep + vSubItem; break;
        default: break;
        }
        if (!values.isEmpty())
            values += sep + key + QStringLiteral("');");
        ExecuteSql(prefix + values);
    }
    rs.Close();
}

// clang-format off
const std::array<StagingCopy, 4> StagingCopies = {{
    {u"SELECT * FROM tbl_ReadCsv WHERE (Group = 'Soft' AND Item = 'Application')",
     u"INSERT INTO tbl_ApplicationsList ( [Update], Application_Name, Application_Version, Application_Path, [Key] ) VALUES(", 5},
    {u"SELECT * FROM tbl_ReadCsv WHERE (Group = 'Device')",
     u"INSERT INTO tbl_Device_Management ( [Update], Device_Category, Device_Name, Device_Provider, Device_Version, [Key] ) VALUES(", 6},
    {u"SELECT * FROM tbl_ReadCsv WHERE (Group = 'Hard' AND Item = 'Printer')",
     u"INSERT INTO tbl_Printer_Management ( [Update], Printer_Name, PrinterPorts_Name, [Key] ) VALUES(", 7},
    {u"SELECT * FROM tbl_ReadCsv WHERE (Group = 'Environmental')",
     u"INSERT INTO tbl_Environmental ( [Update], Environmental_Name, Environmental_Path, [Key] ) VALUES(", 8},
}};
// clang-format on

void CopyAllStagingRows(const QString& key)
{
    for (const StagingCopy& copy : StagingCopies)
        CopyStagingRows(copy.selection.toString(), copy.prefix.toString(), key, copy.mode);
}

} // namespace Mdl_Access_mdb
