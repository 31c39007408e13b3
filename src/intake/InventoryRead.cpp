#include "intake/InventoryRead.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "intake/Staging.h"
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
        // Staging never holds a Null and has seven columns, so the lookup does not fail in
        // practice; if it did, the row would be written as if no record were found.
        FirstRow record;
        vb::ResumeNext([&] { record = OpenRecordsetFirstRow(FieldLookupSql(row.selection(m_language, FieldMapPath::BulkRead))); });
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

InventoryReader::~InventoryReader() { Commit(); }

void InventoryReader::Commit()
{
    // Only an engine that gave up the whole transaction (a full disk) makes this fail; what it
    // kept is then already written.
    if (m_batch)
        vb::ResumeNext([&] { m_batch->Commit(); });
    m_batch.reset();
}

InventoryFileResult InventoryReader::Read(const QString& path)
{
    InventoryFileResult result;
    result.path = path;
    if (!m_batch) {
        m_batch = std::make_unique<db::Transaction>(Mdl_gData::DbConnection());
        m_batchAge.start();
    }
    struct CommitWhenDue {
        InventoryReader& r;
        ~CommitWhenDue()
        {
            if (r.m_batchAge.elapsed() >= kBatchMilliseconds)
                r.Commit();
        }
    } due{*this};

    // From here on a failing statement is skipped and the next one runs. A file that cannot be
    // opened fails inside the test of ReadCsvToStaging, so the test is what is skipped: a
    // computer is made from whatever tbl_ReadCsv still holds.
    try {
        if (!ReadCsvToStaging(path)) {
            result.outcome = InventoryFileResult::RefusedHeader;
            return result;
        }
    } catch (const vb::VbError& e) {
        result.outcome = InventoryFileResult::Unreadable;
        result.reason = e.Description();
    }

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
    Mdl_gData::LastReadMainKey = m_key;
    result.mainKey = m_key;
    return result;
}

void ReadInventoryFiles(const QStringList& paths, InventoryLanguage language,
                        const std::function<void(const InventoryFileResult&)>& onFile)
{
    InventoryReader reader(language);
    for (const QString& path : paths) {
        const InventoryFileResult result = reader.Read(path);
        if (onFile)
            onFile(result);
    }
}
