#include "intake/InventoryRead.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "intake/Staging.h"
#include "platform/db/Connection.h"
#include "platform/db/Statement.h"
#include "platform/vb/Conversion.h"

#include <algorithm>

using namespace Mdl_Access_mdb;

namespace {

// The five codes of a new computer, set to 0 directly behind its name: no location, user,
// manufacturer, model or asset class until the profile window gives it some.
const std::array<QStringView, 5> kCodeFields = {u"Location_Code", u"User_Code", u"Manufacturer_Code", u"Model_Code", u"Asset_Code"};

QString codeStatement(QStringView code, const QString& key)
{
    return QStringLiteral("UPDATE tbl_Computer_List SET ") + QStringLiteral("tbl_Computer_List.[") + code + QStringLiteral("] = 0")
           + QStringLiteral(" WHERE MainKey = ") + key;
}

bool isNumber(FieldKind kind) { return kind == FieldKind::Number || kind == FieldKind::GuardedNumber; }

} // namespace

// The field map's UPDATEs of one computer gathered into one UPDATE a table. Every statement of
// the walk sets one column of one row; the ledger checks each column by itself, and where no
// trigger runs on such an UPDATE, the statements of the two tables do not touch each other.
// So one UPDATE that sets each column to the value of its last statement leaves the row as the
// walk leaves it, whenever it is accepted whole. When it is refused, nothing of it was written,
// and that table is written statement by statement as the walk writes it, so that a refused
// value drops alone. Where a trigger could run, the walk is kept as it is.
struct InventoryReader::GatheredWrite {
    struct Table {
        QStringView name;
        QString prefix;                  // "UPDATE tbl_Pclist SET ", how the walk's statements begin
        QString sql;                     // UPDATE "t" SET "a" = ?, ... WHERE "MainKey" = ?
        std::vector<db::Literal> values; // one a column, then the key
    };
    struct Slot {
        int table;
        int column;
        bool number;
    };
    std::array<Table, 2> tables;             // tbl_Computer_List, tbl_Pclist
    std::vector<std::vector<Slot>> rowSlots; // per row of the map: where its value goes
    std::vector<Slot> codeSlots;
    bool triggers = false;

    explicit GatheredWrite(db::Connection& c)
    {
        tables[0].name = u"tbl_Computer_List";
        tables[1].name = u"tbl_Pclist";
        std::array<std::vector<QStringView>, 2> columns;
        const auto slotOf = [&](QStringView table, QStringView column, bool number) {
            const int t = table == tables[0].name ? 0 : 1;
            std::vector<QStringView>& list = columns[size_t(t)];
            auto at = std::find_if(list.begin(), list.end(), [&](QStringView c) { return c.compare(column, Qt::CaseInsensitive) == 0; });
            if (at == list.end())
                at = list.insert(list.end(), column);
            return Slot{t, int(at - list.begin()), number};
        };
        for (const InventoryFieldRow& row : InventoryFieldMap()) {
            std::vector<Slot> slots;
            const QStringView field = row.writtenField(FieldMapPath::BulkRead);
            if (row.bulkSkips) {
            } else if (row.kind == FieldKind::Date) {
                slots = {slotOf(tables[0].name, field, false), slotOf(tables[1].name, field, false)};
            } else {
                slots = {slotOf(row.table, field, isNumber(row.kind))};
            }
            rowSlots.push_back(std::move(slots));
            if (row.row == 1)
                for (QStringView code : kCodeFields)
                    codeSlots.push_back(slotOf(tables[0].name, code, true));
        }
        for (size_t t = 0; t < tables.size(); ++t) {
            Table& table = tables[t];
            table.prefix = QStringLiteral("UPDATE ") + table.name + QStringLiteral(" SET ");
            QString sets;
            for (QStringView column : columns[t])
                sets += (sets.isEmpty() ? QString() : QStringLiteral(", ")) + db::QuoteName(column) + QStringLiteral(" = ?");
            table.sql = QStringLiteral("UPDATE ") + db::QuoteName(table.name) + QStringLiteral(" SET ") + sets
                        + QStringLiteral(" WHERE \"MainKey\" = ?");
            table.values.resize(columns[t].size() + 1);
            triggers = triggers || c.runsTriggers(table.sql);
        }
    }
};

void InventoryReader::writeFieldMap(const QString& key)
{
    const auto& map = InventoryFieldMap();
    std::vector<QString> values(map.size());
    for (size_t i = 0; i < map.size(); ++i) {
        const InventoryFieldRow& row = map[i];
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
        values[i] = BulkReadValue(row, m_language, record);
    }

    // The walk as the statements run it, table by table or both at once.
    const auto walk = [&](QStringView table) {
        for (size_t i = 0; i < map.size(); ++i) {
            if (map[i].bulkSkips)
                continue;
            for (const QString& sql : BulkReadStatements(map[i], values[i], key))
                if (table.isEmpty() || sql.startsWith(table))
                    ExecuteSql(sql);
            if (map[i].row == 1 && (table.isEmpty() || table == m_gathered->tables[0].prefix))
                for (QStringView code : kCodeFields)
                    ExecuteSql(codeStatement(code, key));
        }
    };
    db::Connection& c = Mdl_gData::DbConnection();
    if (!m_gathered) {
        try {
            m_gathered = std::make_unique<GatheredWrite>(c);
        } catch (const vb::VbError&) {
            walk({}); // the ledger cannot be asked: the statements fail as they fail
            return;
        }
    }
    GatheredWrite& g = *m_gathered;
    if (g.triggers) {
        walk({});
        return;
    }
    for (size_t i = 0; i < map.size(); ++i)
        for (const GatheredWrite::Slot& slot : g.rowSlots[i])
            g.tables[size_t(slot.table)].values[size_t(slot.column)] =
                slot.number ? db::Literal(std::int64_t(values[i].toLongLong())) : db::Literal(values[i]);
    for (const GatheredWrite::Slot& slot : g.codeSlots)
        g.tables[size_t(slot.table)].values[size_t(slot.column)] = std::int64_t(0);
    for (GatheredWrite::Table& table : g.tables) {
        table.values.back() = std::int64_t(m_key);
        try {
            db::Statement s = c.prepareSql(table.sql);
            s.bind(table.values);
            s.runToEnd(c);
        } catch (const vb::VbError&) {
            if (c.LostTransaction())
                return;
            walk(table.prefix);
        }
    }
}

namespace {
// How much work a batch holds before it is committed.
constexpr qint64 kBatchMilliseconds = 250;
} // namespace

InventoryReader::InventoryReader(InventoryLanguage language, Report onWritten) : m_language(language), m_report(std::move(onWritten))
{
    try {
        m_stageAtCommit = !StagingRunsTriggers(Mdl_gData::DbConnection());
    } catch (const vb::VbError&) {
        m_stageAtCommit = false; // the ledger cannot be asked: every file is staged as it is read
    }
}

InventoryReader::~InventoryReader() = default;

void InventoryReader::lose(const vb::VbError& e)
{
    m_failure = e;
    m_batch.reset();
    m_staged.reset(); // rolled back with the batch
    m_stagingPending = false;
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
            if (m_stagingPending) {
                WriteStaging(*m_staged);
                m_stagingPending = false;
            }
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
        // Staging is seen by no one until the batch is committed, so within a batch only the
        // last file's lines need to reach it, written just before the commit. That holds while
        // no line can be refused (staging's columns refuse only a text longer than 255
        // characters) and no trigger runs on staging; otherwise the file is staged now, and a
        // write that fails midway leaves staging with part of it.
        if (m_stageAtCommit && StagingAcceptsWhole(*lines)) {
            m_staged = std::move(lines);
            m_stagingPending = true;
        } else {
            m_staged.reset();
            m_stagingPending = false;
            WriteStaging(*lines);
            m_staged = std::move(lines);
        }
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
    if (m_staged)
        CopyAllStagedLines(*m_staged, key);
    else
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
        ++next; // the file whose batch failed was reported with it
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
