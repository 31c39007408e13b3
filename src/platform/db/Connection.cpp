#include "platform/db/Connection.h"

#include "platform/db/EngineError.h"
#include "platform/db/StatementCache.h"

#include <QFileInfo>
#include <QSet>

#include <sqlite3.h>

namespace db {

QString DataSourceOf(const QString& cs)
{
    const QStringList parts = cs.split(QLatin1Char(';'));
    for (const QString& p : parts) {
        const qsizetype eq = p.indexOf(QLatin1Char('='));
        if (eq > 0 && p.left(eq).trimmed().compare(QLatin1String("Data Source"), Qt::CaseInsensitive) == 0)
            return p.mid(eq + 1).trimmed();
    }
    return {};
}

namespace {

// SQLite counts its memory use under a global mutex on every allocation; nothing here reads the
// counts. The setting only takes before SQLite starts, so it is made once, before the first open.
void configureEngine()
{
    static const bool configured = [] { return sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0) == SQLITE_OK; }();
    (void)configured;
}

} // namespace

Connection::Connection() = default;

Connection::~Connection() { Close(); }

void Connection::run(const char* sql)
{
    char* err = nullptr;
    const int rc = sqlite3_exec(m_db, sql, nullptr, nullptr, &err);
    sqlite3_free(err);
    if (rc != SQLITE_OK)
        throw EngineError::FromSqlite(m_db, sqlite3_extended_errcode(m_db), m_path);
}

void Connection::Open(const QString& connectionString)
{
    if (m_db)
        throw EngineError::ObjectOpen();
    if (!connectionString.isEmpty())
        ConnectionString = connectionString;
    const QString path = DataSourceOf(ConnectionString);
    if (path.isEmpty() || !QFileInfo(path).isFile())
        throw EngineError::FileNotFound(path);

    configureEngine();
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (rc != SQLITE_OK) {
        vb::VbError e = EngineError::FromSqlite(db, rc, path);
        sqlite3_close(db);
        throw e;
    }
    m_db = db;
    m_path = path;
    try {
        sqlite3_extended_result_codes(m_db, 1);
        sqlite3_busy_timeout(m_db, BusyTimeoutMilliseconds);
        // reading the schema tells a ledger from any other file
        run("SELECT count(*) FROM sqlite_master");
    } catch (const vb::VbError&) {
        sqlite3_close(m_db);
        m_db = nullptr;
        throw EngineError::UnrecognisedFormat(path);
    }
    try {
        // The rollback journal keeps the ledger in its one file between commits; a ledger of an
        // earlier version in WAL mode is turned back here (that needs no other process on it).
        run("PRAGMA journal_mode = DELETE");
        run("PRAGMA synchronous = FULL");
        run("PRAGMA foreign_keys = OFF");
    } catch (const vb::VbError&) {
        sqlite3_close(m_db);
        m_db = nullptr;
        throw;
    }
    m_cache = std::make_unique<StatementCache>(m_db);
    m_level = 0;
}

void Connection::Close()
{
    if (!m_db)
        return;
    m_cache.reset();
    m_rowidShape.clear();
    m_rowidTables.clear();
    m_selects.clear();
    if (!sqlite3_get_autocommit(m_db))
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    m_level = 0;
    m_savepoints = 0;
    m_lost.reset();
    sqlite3_close_v2(m_db);
    m_db = nullptr;
}

void Connection::requireOpen() const
{
    if (!m_db)
        throw EngineError::ConnectionClosed();
    if (m_lost)
        throw *m_lost;
}

namespace {

// Failures of the engine or the file, as opposed to a statement the ledger refuses: after one of
// these the transaction cannot be trusted to hold what its statements wrote. A read-only file and
// a file held by another writer belong here too: every write of the transaction would fail alone
// and its commit would then succeed with nothing in it.
bool losesTransaction(int extendedCode)
{
    switch (extendedCode & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_READONLY:
    case SQLITE_FULL:
    case SQLITE_IOERR:
    case SQLITE_NOMEM:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_CANTOPEN:
    case SQLITE_PROTOCOL: return true;
    default: return false;
    }
}

} // namespace

vb::VbError Connection::failure(int extendedCode)
{
    vb::VbError e = EngineError::FromSqlite(m_db, extendedCode, m_path);
    if (m_db && inTransaction() && !m_lost && (losesTransaction(extendedCode) || sqlite3_get_autocommit(m_db))) {
        // The engine may have rolled back already (it does for some of these); make it definite.
        if (!sqlite3_get_autocommit(m_db))
            sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        m_lost = e;
    }
    return e;
}

void Connection::commitOutermost(const char* sql)
{
    char* err = nullptr;
    const int rc = sqlite3_exec(m_db, sql, nullptr, nullptr, &err);
    sqlite3_free(err);
    if (rc == SQLITE_OK)
        return;
    // A commit kept from the disk (full, read-only, held by another process past the timeout)
    // leaves the transaction open; end it, so that the ledger is what it was before it began.
    const vb::VbError e = EngineError::FromSqlite(m_db, sqlite3_extended_errcode(m_db), m_path);
    if (!sqlite3_get_autocommit(m_db))
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    throw e;
}

void Connection::scopeEnded()
{
    if (!inTransaction())
        m_lost.reset();
}

long Connection::Execute(const QString& jetSql)
{
    requireOpen();
    const JetStatement st = JetSql::ParseShape(jetSql);
    Statement s = m_cache->acquire(st.shape);
    s.bind(st.params);
    return s.runToEnd(*this);
}

JetStatement Connection::parse(const QString& jetSql)
{
    const auto known = m_selects.constFind(jetSql);
    if (known != m_selects.constEnd())
        return *known;
    JetStatement st = JetSql::ParseShape(jetSql);
    if (st.kind == JetStatement::Kind::Select) {
        if (m_selects.size() >= 512)
            m_selects.clear();
        m_selects.insert(jetSql, st);
    }
    return st;
}

Statement Connection::prepareSql(const QString& sqliteText)
{
    requireOpen();
    return m_cache->acquire(sqliteText);
}

bool Connection::runsTriggers(const QString& sqliteText)
{
    requireOpen();
    // EXPLAIN reads the schema this connection has; a read of the schema table first takes in
    // what another connection changed since (a trigger made after this connection last ran).
    run("SELECT count(*) FROM sqlite_master");
    const QByteArray sql = "EXPLAIN " + sqliteText.toUtf8();
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(m_db, sql.constData(), int(sql.size()), &st, nullptr) != SQLITE_OK || !st) {
        sqlite3_finalize(st);
        return true;
    }
    bool found = false;
    while (!found && sqlite3_step(st) == SQLITE_ROW)
        found = qstrcmp(reinterpret_cast<const char*>(sqlite3_column_text(st, 1)), "Program") == 0;
    sqlite3_finalize(st);
    return found;
}

Statement Connection::prepare(const JetStatement& st, bool withRowids)
{
    requireOpen();
    if (!withRowids || st.kind != JetStatement::Kind::Select || st.distinct || st.grouped || st.selectListAt < 0)
        return m_cache->acquire(st.shape);

    auto known = m_rowidShape.constFind(st.shape);
    if (known == m_rowidShape.constEnd()) {
        // Learn the source tables from the plain statement; the result is updatable when every
        // column comes straight from a table.
        QString injected;
        std::vector<QString> tables;
        {
            Statement plain = m_cache->acquire(st.shape);
            bool updatable = !plain.columns()->columns.empty();
            QSet<QString> seen;
            for (const ColumnInfo& c : plain.columns()->columns) {
                if (c.table.isEmpty()) {
                    updatable = false;
                    break;
                }
                if (!seen.contains(c.table.toCaseFolded())) {
                    seen.insert(c.table.toCaseFolded());
                    tables.push_back(c.table);
                }
            }
            if (updatable) {
                QString list;
                for (const QString& t : tables)
                    list += QLatin1Char(' ') + QuoteName(t) + QStringLiteral(".rowid,");
                injected = st.shape;
                injected.insert(st.selectListAt, list);
            }
        }
        // A table named under another name (an alias) cannot be reached by its own name:
        // such a result stays read-only.
        if (!injected.isEmpty()) {
            try {
                m_cache->acquire(injected, int(tables.size()), tables);
            } catch (const vb::VbError&) {
                injected.clear();
            }
        }
        known = m_rowidShape.insert(st.shape, injected);
        m_rowidTables.insert(st.shape, tables);
    }
    if (known->isEmpty())
        return m_cache->acquire(st.shape);
    return m_cache->acquire(*known, int(m_rowidTables.value(st.shape).size()), m_rowidTables.value(st.shape));
}

// Ends the innermost ADO level on leaving CommitTrans or RollbackTrans, whether its statement
// succeeded or not: after a failed commit the level is gone with its transaction.
struct Connection::LevelEnd {
    Connection& c;
    explicit LevelEnd(Connection& connection) : c(connection) {}
    ~LevelEnd()
    {
        --c.m_level;
        c.scopeEnded();
    }
};

long Connection::BeginTrans()
{
    requireOpen();
    if (!inTransaction())
        run("BEGIN");
    else
        run(QByteArray("SAVEPOINT ado_level_" + QByteArray::number(qlonglong(m_level + 1))).constData());
    return ++m_level;
}

void Connection::CommitTrans()
{
    if (!m_db)
        throw EngineError::ConnectionClosed();
    if (m_level == 0)
        throw EngineError::NoTransaction();
    const LevelEnd end(*this);
    if (m_lost)
        throw *m_lost;
    if (m_level == 1 && m_savepoints == 0)
        commitOutermost("COMMIT");
    else
        run(QByteArray("RELEASE ado_level_" + QByteArray::number(qlonglong(m_level))).constData());
}

void Connection::RollbackTrans()
{
    if (!m_db)
        throw EngineError::ConnectionClosed();
    if (m_level == 0)
        throw EngineError::NoTransaction();
    const LevelEnd end(*this);
    if (m_lost)
        return; // already rolled back
    if (m_level == 1 && m_savepoints == 0) {
        run("ROLLBACK");
    } else {
        const QByteArray name = "ado_level_" + QByteArray::number(qlonglong(m_level));
        run(QByteArray("ROLLBACK TO " + name).constData());
        run(QByteArray("RELEASE " + name).constData());
    }
}

Transaction::Transaction(Connection& c) : m_conn(c)
{
    static unsigned counter = 0;
    m_conn.requireOpen();
    m_name = "fenwold_" + QByteArray::number(++counter);
    const QByteArray sql = "SAVEPOINT " + m_name;
    if (sqlite3_exec(m_conn.handle(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw EngineError::FromSqlite(m_conn.handle(), sqlite3_extended_errcode(m_conn.handle()), m_conn.m_path);
    ++m_conn.m_savepoints;
}

void Transaction::Commit()
{
    if (m_done)
        return;
    if (m_conn.m_lost)
        throw *m_conn.m_lost;
    const bool outermost = m_conn.m_savepoints == 1 && m_conn.m_level == 0;
    const QByteArray sql = "RELEASE " + m_name;
    if (outermost) {
        // whatever happens, the savepoint is gone afterwards: released, or rolled back with the
        // transaction it opened
        m_done = true;
        struct End {
            Connection& c;
            ~End()
            {
                --c.m_savepoints;
                c.scopeEnded();
            }
        } end{m_conn};
        m_conn.commitOutermost(sql.constData());
        return;
    }
    if (sqlite3_exec(m_conn.handle(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw m_conn.failure(sqlite3_extended_errcode(m_conn.handle()));
    m_done = true;
    --m_conn.m_savepoints;
    m_conn.scopeEnded();
}

Transaction::~Transaction()
{
    if (m_done || !m_conn.handle())
        return;
    if (!m_conn.m_lost) {
        const QByteArray sql = "ROLLBACK TO " + m_name + "; RELEASE " + m_name;
        sqlite3_exec(m_conn.handle(), sql.constData(), nullptr, nullptr, nullptr);
    }
    --m_conn.m_savepoints;
    m_conn.scopeEnded();
}

} // namespace db
