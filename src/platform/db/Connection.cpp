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
        throw vb::VbError(3705, QStringLiteral("オブジェクトが開いている場合は、操作は許可されません。"));
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
        sqlite3_busy_timeout(m_db, 2000);
        // reading the schema tells a ledger from any other file
        run("SELECT count(*) FROM sqlite_master");
        run("PRAGMA journal_mode = WAL");
        run("PRAGMA synchronous = NORMAL");
        run("PRAGMA foreign_keys = OFF");
    } catch (const vb::VbError&) {
        sqlite3_close(m_db);
        m_db = nullptr;
        throw EngineError::UnrecognisedFormat(path);
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
    if (m_level > 0)
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    m_level = 0;
    sqlite3_close_v2(m_db);
    m_db = nullptr;
}

void Connection::requireOpen() const
{
    if (!m_db)
        throw EngineError::ConnectionClosed();
}

long Connection::Execute(const QString& jetSql)
{
    requireOpen();
    const JetStatement st = JetSql::ParseShape(jetSql);
    Statement s = m_cache->acquire(st.shape);
    s.bind(st.params);
    return s.runToEnd(m_db);
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
                    list += QStringLiteral(" \"%1\".rowid,").arg(t);
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

long Connection::BeginTrans()
{
    requireOpen();
    if (m_level == 0)
        run("BEGIN");
    else
        run(QByteArray("SAVEPOINT ado_level_" + QByteArray::number(qlonglong(m_level + 1))).constData());
    return ++m_level;
}

void Connection::CommitTrans()
{
    requireOpen();
    if (m_level == 0)
        throw vb::VbError(EngineError::Fail, QStringLiteral("アクティブなトランザクションがありません。"));
    if (m_level == 1)
        run("COMMIT");
    else
        run(QByteArray("RELEASE ado_level_" + QByteArray::number(qlonglong(m_level))).constData());
    --m_level;
}

void Connection::RollbackTrans()
{
    requireOpen();
    if (m_level == 0)
        throw vb::VbError(EngineError::Fail, QStringLiteral("アクティブなトランザクションがありません。"));
    if (m_level == 1) {
        run("ROLLBACK");
    } else {
        const QByteArray name = "ado_level_" + QByteArray::number(qlonglong(m_level));
        run(QByteArray("ROLLBACK TO " + name).constData());
        run(QByteArray("RELEASE " + name).constData());
    }
    --m_level;
}

Transaction::Transaction(Connection& c) : m_conn(c)
{
    static unsigned counter = 0;
    m_conn.requireOpen();
    m_name = "fenwold_" + QByteArray::number(++counter);
    const QByteArray sql = "SAVEPOINT " + m_name;
    if (sqlite3_exec(m_conn.handle(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw EngineError::FromSqlite(m_conn.handle(), sqlite3_extended_errcode(m_conn.handle()));
}

void Transaction::Commit()
{
    if (m_done)
        return;
    const QByteArray sql = "RELEASE " + m_name;
    if (sqlite3_exec(m_conn.handle(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw EngineError::FromSqlite(m_conn.handle(), sqlite3_extended_errcode(m_conn.handle()));
    m_done = true;
}

Transaction::~Transaction()
{
    if (m_done || !m_conn.handle())
        return;
    const QByteArray sql = "ROLLBACK TO " + m_name + "; RELEASE " + m_name;
    sqlite3_exec(m_conn.handle(), sql.constData(), nullptr, nullptr, nullptr);
}

} // namespace db
