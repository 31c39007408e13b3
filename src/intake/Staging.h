#pragma once

#include <QString>
#include <QStringView>

namespace db {
class Connection;
}

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

// The staging routines of the database module: an inventory file is tested by its first line,
// loaded line by line into tbl_ReadCsv, and its row-wise sections are copied from there into the
// per-computer tables. Both intake paths (the bulk read and the review window) stand on them, and
// both use the one shared connection.
namespace Mdl_Access_mdb {

// True only for the exact header "Key,Group,Item,SubItem,Contents,Unit,Renewalday" (case counts).
bool CheckCsvHeader(const QString& line);

// The number of a column of tbl_ReadCsv, in the file's order (0 Key to 6 Renewalday); -1 for a
// name that is none of them.
int StagingColumn(QStringView name);

// One line of an inventory file as tbl_ReadCsv holds it: Key, Group, Item, SubItem, Contents and
// Unit cut to their first 254 characters, Renewalday whole.
using StagedLine = std::array<QString, 7>;

// The lines of one inventory file. Their fields are no copies: they point into the file's
// decoded text, which this object owns and never changes. So a field, and every copy made of
// it, may be used only while the StagedLines it came from lives (moving it keeps them valid).
class StagedLines {
public:
    explicit StagedLines(QString text) : m_text(std::move(text)) {}
    StagedLines(StagedLines&&) = default;
    StagedLines& operator=(StagedLines&&) = default;
    StagedLines(const StagedLines&) = delete;
    StagedLines& operator=(const StagedLines&) = delete;

    std::vector<StagedLine>::const_iterator begin() const { return m_lines.begin(); }
    std::vector<StagedLine>::const_iterator end() const { return m_lines.end(); }
    std::size_t size() const { return m_lines.size(); }
    const StagedLine& operator[](std::size_t i) const { return m_lines[i]; }
    // A field of the text: [from, from + size) of text().
    QString field(qsizetype from, qsizetype size) const { return QString::fromRawData(m_text.constData() + from, size); }
    const QString& text() const { return m_text; }
    void append(StagedLine line) { m_lines.push_back(std::move(line)); }

private:
    QString m_text;
    std::vector<StagedLine> m_lines;
};

// Tests one inventory file and loads it into tbl_ReadCsv; true means staging now holds this
// file. Sets CsvFileBaseName and CsvFileExtension first, whatever follows. An empty first line
// or another header gives false and leaves staging as it was. The file is code page 932; CR LF,
// LF and CR all end a line. No handler: a file that cannot be opened or read raises its error
// (53, 75 ...) to the caller, and rows staged before a failure midway stay.
bool ReadCsvToStaging(const QString& path);

// The first half of ReadCsvToStaging: the lines it would stage, or nothing when the first line
// refuses the file. Sets the two names and raises the file's errors as it does; writes nothing.
std::optional<StagedLines> ReadInventoryLines(const QString& path);

// The second half: "DELETE FROM tbl_ReadCsv", then the lines in order, one prepared INSERT each.
// A line the ledger refuses raises its error; the lines before it stay.
void WriteStaging(const StagedLines& lines);

// Whether staging surely takes every line: no field longer than 255 characters, the most any of
// its columns with a limit takes.
bool StagingAcceptsWhole(const StagedLines& lines);
// Whether a trigger could run when WriteStaging writes.
bool StagingRunsTriggers(db::Connection& connection);

// Runs a selection on the staging table and executes prefix + values + ");" for each row found,
// the values in single quotes by mode (5 applications, 6 devices, 7 printers, 8 environment
// variables; 1 to 4 have no caller), each through SanitizeField, the key last. A refused row is
// skipped and the next goes on; a mode outside 1 to 8 gives statements that all fail.
void CopyStagingRows(const QString& selection, const QString& prefix, const QString& key, std::int16_t mode);

// One of the four copies that both intake paths make, in this order. group and item are the
// selection's conditions (item empty when it has none).
struct StagingCopy {
    QStringView selection;
    QStringView prefix;
    std::int16_t mode;
    QStringView group;
    QStringView item;
};
extern const std::array<StagingCopy, 4> StagingCopies;

// The four copies for a computer, in order: applications, devices, printers, environment.
void CopyAllStagingRows(const QString& key);

// Whether a staged value equals a value as staging's columns compare them (COLLATE NOCASE): A to
// Z equal a to z, every other character only itself, and the lengths must agree.
bool StagedEquals(QStringView stored, QStringView value);

// CopyAllStagingRows when tbl_ReadCsv holds these lines: the selections are made among the lines
// in their order, and each row runs the very statement the copy would run, with its Jet text
// rewritten once for all rows.
void CopyAllStagedLines(const StagedLines& lines, const QString& key);

} // namespace Mdl_Access_mdb
