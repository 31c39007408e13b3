#include "SqliteFloor.h"

#include "foundation/Mdl_Access_mdb.h"
#include "intake/InventoryFieldMap.h"
#include "intake/Staging.h"
#include "platform/text/Cp932.h"

#include <QFile>

#include <sqlite3.h>

#include <array>
#include <memory>
#include <vector>

namespace bench {

namespace {

using Record = std::array<QString, 7>;

struct Db {
    sqlite3* h = nullptr;
    ~Db() { sqlite3_close(h); }
};

struct Stmt {
    sqlite3_stmt* h = nullptr;
    ~Stmt() { sqlite3_finalize(h); }
};

void bindText(sqlite3_stmt* s, int at, const QString& v) { sqlite3_bind_text16(s, at, v.utf16(), int(v.size() * 2), SQLITE_TRANSIENT); }

// The same split as the staging routine: no quoting, the seventh field takes the rest.
Record split(QStringView line)
{
    Record r;
    QStringView rest;
    const qsizetype first = line.indexOf(QLatin1Char(','));
    if (first >= 0) {
        r[0] = line.left(first).left(254).toString();
        rest = line.mid(first + 1);
    }
    for (int i = 1; i <= 5; ++i) {
        const qsizetype comma = rest.indexOf(QLatin1Char(','));
        if (comma >= 0) {
            r[size_t(i)] = rest.left(comma).left(254).toString();
            rest = rest.mid(comma + 1);
        }
    }
    if (!line.isEmpty())
        r[6] = rest.toString();
    return r;
}

// The first record of the file that meets both conditions (text compared without case, as the
// staging table's columns compare), sanitised; nine empty strings when there is none.
Mdl_Access_mdb::FirstRow lookup(const std::vector<Record>& records, const FieldSelection& s)
{
    const int a = Mdl_Access_mdb::StagingColumn(s.firstColumn), b = Mdl_Access_mdb::StagingColumn(s.secondColumn);
    Mdl_Access_mdb::FirstRow row;
    for (const Record& r : records) {
        if (r[size_t(a)].compare(s.firstValue, Qt::CaseInsensitive) == 0 && r[size_t(b)].compare(s.secondValue, Qt::CaseInsensitive) == 0) {
            for (size_t i = 0; i < r.size(); ++i)
                row[i] = Mdl_Access_mdb::SanitizeField(r[i]);
            break;
        }
    }
    return row;
}

bool isNumber(const InventoryFieldRow& row) { return row.kind == FieldKind::Number || row.kind == FieldKind::GuardedNumber; }
bool isFlag(const InventoryFieldRow& row) { return row.kind == FieldKind::Flag || row.kind == FieldKind::SettingFlag; }

} // namespace

QString FloorRead(const QString& ledgerPath, const QStringList& files)
{
    Db db;
    if (sqlite3_open_v2(QFile::encodeName(ledgerPath).constData(), &db.h, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        return QStringLiteral("cannot open ") + ledgerPath;
    sqlite3_exec(db.h, "PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL", nullptr, nullptr, nullptr);

    // the Pclist columns of the map, in walking order, and what goes to tbl_Computer_List
    std::vector<const InventoryFieldRow*> pclist;
    const InventoryFieldRow* typeNumber = nullptr;
    const InventoryFieldRow* serial = nullptr;
    const InventoryFieldRow* update = nullptr;
    QString names, marks;
    for (const InventoryFieldRow& row : InventoryFieldMap()) {
        if (row.bulkSkips)
            continue;
        if (row.table == QLatin1String("tbl_Computer_List")) {
            (row.field == QLatin1String("Type_Number") ? typeNumber : serial) = &row;
            continue;
        }
        if (row.kind == FieldKind::Date)
            update = &row;
        pclist.push_back(&row);
        names += QStringLiteral(", \"%1\"").arg(row.writtenField(FieldMapPath::BulkRead));
        marks += QStringLiteral(", ?");
    }
    const struct {
        const char* sql;
        const char* table;
    } perComputer[] = {
        {"INSERT INTO tbl_ApplicationsList (\"Update\", Application_Name, Application_Version, Application_Path, \"Key\") VALUES (?, ?, ?, "
         "?, ?)",
         "Application"},
        {"INSERT INTO tbl_Device_Management (\"Update\", Device_Category, Device_Name, Device_Provider, Device_Version, \"Key\") VALUES "
         "(?, ?, ?, ?, "
         "?, ?)",
         "Device"},
        {"INSERT INTO tbl_Printer_Management (\"Update\", Printer_Name, PrinterPorts_Name, \"Key\") VALUES (?, ?, ?, ?)", "Printer"},
        {"INSERT INTO tbl_Environmental (\"Update\", Environmental_Name, Environmental_Path, \"Key\") VALUES (?, ?, ?, ?)",
         "Environmental"},
    };
    Stmt computer, pc, rowwise[4];
    const QByteArray pcSql = QStringLiteral("INSERT INTO tbl_Pclist (MainKey%1) VALUES (?%2)").arg(names, marks).toUtf8();
    if (sqlite3_prepare_v2(db.h,
                           "INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, Model_Code, "
                           "Asset_Code, Type_Number, Sereals_Number, \"Update\") VALUES (?, 0, 0, 0, 0, '0', ?, ?, ?)",
                           -1, &computer.h, nullptr)
            != SQLITE_OK
        || sqlite3_prepare_v2(db.h, pcSql.constData(), -1, &pc.h, nullptr) != SQLITE_OK)
        return QString::fromUtf8(sqlite3_errmsg(db.h));
    for (int t = 0; t < 4; ++t)
        if (sqlite3_prepare_v2(db.h, perComputer[t].sql, -1, &rowwise[t].h, nullptr) != SQLITE_OK)
            return QString::fromUtf8(sqlite3_errmsg(db.h));

    sqlite3_exec(db.h, "BEGIN", nullptr, nullptr, nullptr);
    int key = 0;
    {
        Stmt max;
        sqlite3_prepare_v2(db.h, "SELECT MAX(MainKey) FROM tbl_Computer_List", -1, &max.h, nullptr);
        if (sqlite3_step(max.h) == SQLITE_ROW)
            key = sqlite3_column_int(max.h, 0);
    }
    for (const QString& path : files) {
        QFile f(path);
        if (!f.open(QIODevice::ReadOnly))
            continue;
        const QString text = text::FromCp932(f.readAll());
        std::vector<Record> records;
        records.reserve(320);
        bool header = true;
        for (QStringView line : QStringView(text).split(QStringLiteral("\r\n"))) {
            if (header) {
                header = false;
                continue;
            }
            records.push_back(split(line));
        }
        if (!records.empty() && records.back() == Record{})
            records.pop_back(); // the end of the last line
        ++key;

        sqlite3_bind_int(pc.h, 1, key);
        int at = 2;
        for (const InventoryFieldRow* row : pclist) {
            const QString v = BulkReadValue(*row, InventoryLanguage::Japanese,
                                            lookup(records, row->selection(InventoryLanguage::Japanese, FieldMapPath::BulkRead)));
            if (isNumber(*row) || isFlag(*row))
                sqlite3_bind_int64(pc.h, at++, v.toLongLong());
            else
                bindText(pc.h, at++, v);
        }
        sqlite3_step(pc.h);
        sqlite3_reset(pc.h);

        const auto value = [&](const InventoryFieldRow* row) {
            return BulkReadValue(*row, InventoryLanguage::Japanese,
                                 lookup(records, row->selection(InventoryLanguage::Japanese, FieldMapPath::BulkRead)));
        };
        sqlite3_bind_int(computer.h, 1, key);
        bindText(computer.h, 2, value(typeNumber));
        bindText(computer.h, 3, value(serial));
        bindText(computer.h, 4, value(update));
        sqlite3_step(computer.h);
        sqlite3_reset(computer.h);

        for (const Record& r : records) {
            const QString& group = r[1];
            int t = -1;
            if (group.compare(QLatin1String("Soft"), Qt::CaseInsensitive) == 0
                && r[2].compare(QLatin1String("Application"), Qt::CaseInsensitive) == 0)
                t = 0;
            else if (group.compare(QLatin1String("Device"), Qt::CaseInsensitive) == 0)
                t = 1;
            else if (group.compare(QLatin1String("Hard"), Qt::CaseInsensitive) == 0
                     && r[2].compare(QLatin1String("Printer"), Qt::CaseInsensitive) == 0)
                t = 2;
            else if (group.compare(QLatin1String("Environmental"), Qt::CaseInsensitive) == 0)
                t = 3;
            if (t < 0)
                continue;
            // modes 5 to 8 of the staging copy
            static const std::vector<int> fields[4] = {{6, 3, 4, 5}, {6, 2, 3, 4, 5}, {6, 3, 4}, {6, 2, 3}};
            sqlite3_stmt* s = rowwise[t].h;
            int i = 1;
            for (int field : fields[t])
                bindText(s, i++, Mdl_Access_mdb::SanitizeField(r[size_t(field)]));
            sqlite3_bind_int(s, i, key);
            sqlite3_step(s);
            sqlite3_reset(s);
        }
    }
    if (sqlite3_exec(db.h, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        return QString::fromUtf8(sqlite3_errmsg(db.h));
    return {};
}

QString CopyFloor(const QString& readLedger, const QString& freshLedger)
{
    Db from, to;
    if (sqlite3_open_v2(QFile::encodeName(readLedger).constData(), &from.h, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK
        || sqlite3_open_v2(QFile::encodeName(freshLedger).constData(), &to.h, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        return QStringLiteral("cannot open the ledgers");
    sqlite3_exec(to.h, "PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL", nullptr, nullptr, nullptr);
    sqlite3_exec(to.h, "BEGIN", nullptr, nullptr, nullptr);
    for (const char* table : {"tbl_Computer_List", "tbl_Pclist", "tbl_ApplicationsList", "tbl_Device_Management", "tbl_Printer_Management",
                              "tbl_Environmental", "tbl_ReadCsv"}) {
        // the rows a fresh ledger has already (the computer of key 0) stay as they are
        Stmt max;
        sqlite3_prepare_v2(to.h, QByteArray("SELECT coalesce(max(rowid), 0) FROM ").append(table).constData(), -1, &max.h, nullptr);
        sqlite3_step(max.h);
        Stmt read;
        sqlite3_prepare_v2(from.h, QByteArray("SELECT rowid, * FROM ").append(table).append(" WHERE rowid > ?").constData(), -1, &read.h,
                           nullptr);
        sqlite3_bind_int64(read.h, 1, sqlite3_column_int64(max.h, 0));
        const int columns = sqlite3_column_count(read.h);
        QByteArray names = "rowid";
        for (int c = 1; c < columns; ++c)
            names += ", \"" + QByteArray(sqlite3_column_name(read.h, c)) + "\"";
        const QByteArray insert =
            "INSERT INTO " + QByteArray(table) + " (" + names + ") VALUES (" + QByteArray("?, ").repeated(columns - 1) + "?)";
        Stmt write;
        if (sqlite3_prepare_v2(to.h, insert.constData(), -1, &write.h, nullptr) != SQLITE_OK)
            return QString::fromUtf8(sqlite3_errmsg(to.h));
        while (sqlite3_step(read.h) == SQLITE_ROW) {
            for (int c = 0; c < columns; ++c)
                sqlite3_bind_value(write.h, c + 1, sqlite3_column_value(read.h, c));
            if (sqlite3_step(write.h) != SQLITE_DONE)
                return QString::fromUtf8(sqlite3_errmsg(to.h));
            sqlite3_reset(write.h);
        }
    }
    if (sqlite3_exec(to.h, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        return QString::fromUtf8(sqlite3_errmsg(to.h));
    return {};
}

QStringList DumpComputers(const QString& ledgerPath)
{
    Db db;
    QStringList out;
    if (sqlite3_open_v2(QFile::encodeName(ledgerPath).constData(), &db.h, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
        return out;
    for (const char* table : {"tbl_Computer_List", "tbl_Pclist", "tbl_ApplicationsList", "tbl_Device_Management", "tbl_Printer_Management",
                              "tbl_Environmental"}) {
        Stmt s;
        sqlite3_prepare_v2(db.h, QByteArray("SELECT * FROM ").append(table).append(" ORDER BY rowid").constData(), -1, &s.h, nullptr);
        while (sqlite3_step(s.h) == SQLITE_ROW) {
            QString line = QLatin1String(table);
            for (int c = 0; c < sqlite3_column_count(s.h); ++c)
                line += QStringLiteral("|%1:%2")
                            .arg(sqlite3_column_type(s.h, c))
                            .arg(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(s.h, c))));
            out << line;
        }
    }
    return out;
}

} // namespace bench
