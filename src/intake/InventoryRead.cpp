#include "intake/InventoryRead.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "intake/Staging.h"
#include "platform/db/Connection.h"
#include "platform/vb/Conversion.h"

using namespace Mdl_Access_mdb;

namespace {

// The five codes of a new computer, set to 0 directly behind its name: no location, user,
// manufacturer, model or asset class until the profile window gives it some.
const std::array<QStringView, 5> kCodeFields = {u"Location_Code", u"User_Code", u"Manufacturer_Code", u"Model_Code",
                                                u"Asset_Code"};

} // namespace

void InventoryReader::writeFieldMap(const QString& key)
{
    for (const InventoryFieldRow& row : InventoryFieldMap()) {
        if (row.bulkSkips)
            continue;
        // What staging holds is known when this run wrote it whole: the record is looked up
        // in those lines. Otherwise it is asked of tbl_ReadCsv; staging as this program writes
        // it never holds a Null and has seven columns, so that lookup does not fail in practice,
        // and if it did the row would be written as if no record were found.
        const FieldSelection selection = row.selection(m_language, FieldMapPath::BulkRead);
        FirstRow record;
        if (m_staged)
            record = FieldLookup(*m_staged, selection);
        else
            vb::ResumeNext([&] { record = OpenRecordsetFirstRow(FieldLookupSql(selection)); });
        const QString value = BulkReadValue(row, m_language, record);
        for (const QString& sql : BulkReadStatements(row, value, key))
            ExecuteSql(sql);
        if (row.row == 1) {
            for (QStringView code : kCodeFields)
                ExecuteSql(QStringLiteral("UPDATE tbl_Computer_List SET ") + QStringLiteral("tbl_Computer_List.[") + code
                           + QStringLiteral("] = 0") + QStringLiteral(" WHERE MainKey = ") + key);
        }
    }
}

namespace {
// How much work a batch holds before it is committed.
constexpr qint64 kBatchMilliseconds = 250;
} // namespace

InventoryReader::InventoryReader(InventoryLanguage language, Report onWritten)
    : m_language(language), m_report(std::move(onWritten))
{
}

InventoryReader::~InventoryReader() = default;

void InventoryReader::lose(const vb::VbError& e)
{
    m_failure = e;
    m_batch.reset();
    m_staged.reset();  // rolled back with the batch
    for (InventoryFileResult& r : m_pending) {
        r.outcome = InventoryFileResult::NotWritten;
        r.reason = e.Description();
        if (m_report)
            m_report(r);
    }
    m_pending.clear();
}

bool InventoryReader::Commit()
{
    if (m_failure)
        return false;
    if (m_batch) {
        try {
            m_batch->Commit();
        } catch (const vb::VbError& e) {
            lose(e);
            return false;
        }
        m_batch.reset();
    }
    for (const InventoryFileResult& r : m_pending)
        if (m_report)
            m_report(r);
    m_pending.clear();
    return true;
}

bool InventoryReader::Read(const QString& path)
{
    if (m_failure)
        return false;
    if (!m_batch) {
        try {
            m_batch = std::make_unique<db::Transaction>(Mdl_gData::DbConnection());
        } catch (const vb::VbError& e) {
            InventoryFileResult result;
            result.path = path;
            m_pending.push_back(result);
            lose(e);
            return false;
        }
        m_batchAge.start();
    }
    m_pending.push_back(readOne(path));
    // A failure of the engine lost the batch: its statements after it were refused, so there is
    // no point in going on; the commit reports it.
    if (Mdl_gData::DbConnection().LostTransaction() || m_batchAge.elapsed() >= kBatchMilliseconds)
        return Commit();
    return true;
}

InventoryFileResult InventoryReader::readOne(const QString& path)
{
    InventoryFileResult result;
    result.path = path;

    // From here on a failing statement is skipped and the next one runs. A file that cannot be
    // opened fails inside the test of ReadCsvToStaging, so the test is what is skipped: a
    // computer is made from whatever tbl_ReadCsv still holds.
    try {
        std::optional<StagedLines> lines = ReadInventoryLines(path);
        if (!lines) {
            result.outcome = InventoryFileResult::RefusedHeader;
            return result;
        }
        // a write that fails midway leaves staging with part of the file
        m_staged.reset();
        WriteStaging(*lines);
        m_staged = std::move(lines);
    } catch (const vb::VbError& e) {
        result.outcome = InventoryFileResult::Unreadable;
        result.reason = e.Description();
    }
    if (Mdl_gData::DbConnection().LostTransaction())
        return result;

    try {
        m_key = vb::IntAdd(MaxMainKey(), 1);
    } catch (const vb::VbError&) {
        result.keyOverflow = true;
    }
    const QString key = QString::number(m_key);
    ExecuteSql(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (") + key + QStringLiteral(")"));
    ExecuteSql(QStringLiteral("INSERT INTO tbl_PClist (MainKey) VALUES (") + key + QStringLiteral(")"));
    writeFieldMap(key);
    CopyAllStagingRows(key);
    Mdl_gData::g.LastReadMainKey = m_key;
    result.mainKey = m_key;
    return result;
}

InventoryRunResult ReadInventoryFiles(const QStringList& paths, InventoryLanguage language,
                                      const std::function<void(const InventoryFileResult&)>& onFile)
{
    InventoryReader reader(language, onFile);
    qsizetype next = 0;
    while (next < paths.size() && reader.Read(paths[next]))
        ++next;
    if (next == paths.size())
        reader.Commit();
    else
        ++next;  // the file whose batch failed was reported with it
    if (reader.Failure() && onFile) {
        for (; next < paths.size(); ++next) {
            InventoryFileResult skipped;
            skipped.path = paths[next];
            skipped.outcome = InventoryFileResult::NotAttempted;
            skipped.reason = reader.Failure()->Description();
            onFile(skipped);
        }
    }
    return {reader.Failure()};
}
