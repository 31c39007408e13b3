#include "platform/db/Recordset.h"

#include "platform/db/Connection.h"
#include "platform/db/EngineError.h"
#include "platform/db/JetSql.h"
#include "platform/db/Statement.h"
#include "platform/vb/Conversion.h"

#include <QStringEncoder>

#include <sqlite3.h>

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace db {

using vb::Variant;

namespace {

const Variant kNull = Variant::Null();

QString dateText(const QDateTime& d)
{
    if (d.time() == QTime(0, 0))
        return d.date().toString(QStringLiteral("yyyy/MM/dd"));
    return d.toString(QStringLiteral("yyyy/MM/dd HH:mm:ss"));
}

// The texts of one column of a snapshot, each converted once. Ledger columns repeat a handful of
// values over many rows (an OS name, a workgroup, a subnet mask, a lease date), so a repeated
// text costs a lookup and a shared copy instead of a conversion and an allocation. A column whose
// values keep differing stops being looked up.
class ColumnTexts {
public:
    const Variant* find(std::string_view bytes) const
    {
        if (m_full)
            return nullptr;
        const auto it = m_seen.find(bytes);
        return it == m_seen.end() ? nullptr : &it->second;
    }
    void add(std::string_view bytes, const Variant& v)
    {
        if (m_full)
            return;
        if (m_seen.size() >= kLimit) {
            m_full = true;
            m_seen.clear();
            m_keys.clear();
            return;
        }
        m_keys.emplace_back(bytes);
        m_seen.emplace(std::string_view(m_keys.back()), v);
    }

private:
    static constexpr size_t kLimit = 512;
    std::unordered_map<std::string_view, Variant> m_seen;
    std::deque<std::string> m_keys; // owns the bytes the keys view
    bool m_full = false;
};

// A stored value as the Variant the field's type gives it.
Variant readCell(sqlite3_stmt* s, int i, DataType type, ColumnTexts* texts = nullptr)
{
    switch (sqlite3_column_type(s, i)) {
    case SQLITE_NULL: return kNull;
    case SQLITE_INTEGER: {
        const sqlite3_int64 v = sqlite3_column_int64(s, i);
        switch (type) {
        case adSmallInt:
            if (v >= -32768 && v <= 32767)
                return Variant(std::int16_t(v));
            break;
        case adVarWChar:
        case adLongVarWChar: return Variant(QString::number(v));
        case adDouble: return Variant(double(v));
        default: break;
        }
        if (v >= INT32_MIN && v <= INT32_MAX)
            return Variant(int(v));
        return Variant(double(v));
    }
    case SQLITE_FLOAT: {
        const double d = sqlite3_column_double(s, i);
        if (type == adVarWChar || type == adLongVarWChar)
            return Variant(vb::CStr(Variant(d)));
        return Variant(d);
    }
    default: {
        const char* text = reinterpret_cast<const char*>(sqlite3_column_text(s, i));
        const std::string_view bytes(text ? text : "", size_t(sqlite3_column_bytes(s, i)));
        if (texts) {
            if (const Variant* seen = texts->find(bytes))
                return *seen;
        }
        QString str = QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
        Variant v;
        if (type == adDate) {
            if (auto d = vb::ParseDate(str))
                v = Variant(*d);
        }
        if (v.IsEmpty())
            v = Variant(std::move(str));
        if (texts)
            texts->add(bytes, v);
        return v;
    }
    }
}

// A value assigned to a field, converted to the field's type as ADO converted it.
Variant convertForField(const Variant& v, DataType type)
{
    if (v.IsNull() || v.IsEmpty())
        return kNull;
    try {
        switch (type) {
        case adSmallInt: return Variant(vb::CInt(v));
        case adInteger: return Variant(int(vb::CLng(v)));
        case adDouble: return Variant(vb::CDbl(v));
        case adDate: return Variant(vb::CDate(v));
        case adVarWChar:
        case adLongVarWChar: return Variant(vb::CStr(v));
        default: return v;
        }
    } catch (const vb::VbError&) {
        throw EngineError::ConversionFailed();
    }
}

// The UTF-8 bytes of the texts bound for one Update, the ledger's encoding, so that SQLite has
// nothing to translate. One buffer, sized for all of them before the first goes in, so that the
// bytes stay where SQLite was told they are until the statements have run.
class Utf8Texts {
public:
    explicit Utf8Texts(const std::map<int, Variant>& values)
    {
        qsizetype capacity = 0;
        for (const auto& [col, v] : values) {
            if (v.IsString())
                capacity += v.stringValue().size() * 3;
            else if (v.IsDate())
                capacity += 64;
        }
        m_bytes.resize(capacity + 1); // never empty: an empty text must not bind as Null
    }
    QByteArrayView add(QStringView text)
    {
        char* begin = m_bytes.data() + m_used;
        char* end = m_encoder.appendToBuffer(begin, text);
        m_used += end - begin;
        return QByteArrayView(begin, end - begin);
    }

private:
    QByteArray m_bytes;
    qsizetype m_used = 0;
    QStringEncoder m_encoder{QStringEncoder::Utf8};
};

void bindVariant(sqlite3_stmt* s, int at, const Variant& v, Utf8Texts& texts)
{
    switch (v.Type()) {
    case vb::VarType::Null:
    case vb::VarType::Empty: sqlite3_bind_null(s, at); break;
    case vb::VarType::Integer: sqlite3_bind_int64(s, at, v.integerValue()); break;
    case vb::VarType::Long: sqlite3_bind_int64(s, at, v.longValue()); break;
    case vb::VarType::Boolean: sqlite3_bind_int64(s, at, v.booleanValue() ? -1 : 0); break;
    case vb::VarType::Double: sqlite3_bind_double(s, at, v.doubleValue()); break;
    case vb::VarType::Date:
    case vb::VarType::String: {
        const QByteArrayView t = v.IsDate() ? texts.add(dateText(v.dateValue())) : texts.add(v.stringValue());
        sqlite3_bind_text(s, at, t.data(), int(t.size()), SQLITE_STATIC);
        break;
    }
    }
}

} // namespace

Recordset::~Recordset() = default;

void Recordset::Open(const QString& source, Connection& connection, CursorType, LockType lock, long)
{
    if (m_open)
        throw EngineError::ObjectOpen();
    connection.requireOpen();
    const JetStatement st = connection.parse(source);
    const bool wantUpdates = lock != adLockReadOnly && lock != adLockUnspecified;
    Statement s = connection.prepare(st, wantUpdates);
    s.bind(st.params);

    m_conn = &connection;
    m_columns = s.columns();
    m_cols = int(m_columns->columns.size());
    m_lock = lock;
    m_updatable = wantUpdates && m_columns->rowidCount > 0;
    m_cells.clear();
    m_rowids.clear();
    m_pending.clear();
    m_edit = adEditNone;
    m_insertSql.clear();
    m_insertFields.clear();

    const int rid = m_columns->rowidCount;
    std::vector<DataType> types;
    types.reserve(m_cols);
    for (const ColumnInfo& c : m_columns->columns)
        types.push_back(c.type);

    // made at the second row: a result of one row (the lookups of the inventory read) has
    // nothing to repeat
    std::vector<ColumnTexts> texts;
    sqlite3_stmt* h = s.handle();
    long rows = 0;
    int rc;
    while ((rc = sqlite3_step(h)) == SQLITE_ROW) {
        if (rows == 1)
            texts.resize(size_t(m_cols));
        for (int r = 0; r < rid; ++r)
            m_rowids.push_back(sqlite3_column_int64(h, r));
        for (int c = 0; c < m_cols; ++c)
            m_cells.push_back(readCell(h, c + rid, types[size_t(c)], rows == 0 ? nullptr : &texts[size_t(c)]));
        ++rows;
    }
    if (rc != SQLITE_DONE)
        throw connection.failure(sqlite3_extended_errcode(connection.handle()));

    m_rows = rows;
    m_deleted.assign(size_t(rows), 0);
    m_stale.assign(size_t(rows), 0);
    m_pos = 0;
    m_open = true;
}

void Recordset::Close()
{
    requireOpen();
    m_open = false;
    m_cells.clear();
    m_cells.shrink_to_fit();
    m_rowids.clear();
    m_pending.clear();
    m_edit = adEditNone;
    m_columns.reset();
    m_rows = 0;
}

void Recordset::CloseIfOpen()
{
    if (m_open)
        Close();
}

void Recordset::requireOpen() const
{
    if (!m_open)
        throw EngineError::ObjectClosed();
}

long Recordset::visibleCount() const
{
    long n = 0;
    for (char d : m_deleted)
        n += d ? 0 : 1;
    return n;
}

long Recordset::RecordCount() const
{
    requireOpen();
    return visibleCount();
}

// A current row that is not deleted shows that some row is visible, which spares the count of
// visible rows on every step of a walk through the records.
bool Recordset::Eof() const
{
    requireOpen();
    if (m_rows == 0 || m_pos >= m_rows)
        return true;
    if (m_pos >= 0 && !m_deleted[size_t(m_pos)])
        return false;
    return visibleCount() == 0;
}

bool Recordset::Bof() const
{
    requireOpen();
    if (m_rows == 0 || m_pos < 0)
        return true;
    if (m_pos < m_rows && !m_deleted[size_t(m_pos)])
        return false;
    return visibleCount() == 0;
}

void Recordset::skipDeleted(int direction)
{
    while (m_pos >= 0 && m_pos < m_rows && m_deleted[size_t(m_pos)])
        m_pos += direction;
}

void Recordset::finishPendingEdit()
{
    if (m_edit != adEditNone)
        Update();
}

void Recordset::MoveFirst()
{
    requireOpen();
    finishPendingEdit();
    if (visibleCount() == 0)
        throw EngineError::NoCurrentRecord();
    m_pos = 0;
    skipDeleted(+1);
}

void Recordset::MoveLast()
{
    requireOpen();
    finishPendingEdit();
    if (visibleCount() == 0)
        throw EngineError::NoCurrentRecord();
    m_pos = m_rows - 1;
    skipDeleted(-1);
}

void Recordset::MoveNext()
{
    requireOpen();
    finishPendingEdit();
    if (Eof())
        throw EngineError::NoCurrentRecord();
    ++m_pos;
    skipDeleted(+1);
}

void Recordset::MovePrevious()
{
    requireOpen();
    finishPendingEdit();
    if (Bof())
        throw EngineError::NoCurrentRecord();
    --m_pos;
    skipDeleted(-1);
}

int Recordset::FieldCount() const
{
    requireOpen();
    return m_cols;
}

int Recordset::FieldIndex(QStringView name) const
{
    requireOpen();
    const int i = m_columns->indexOf(name);
    return i < 0 ? -1 : i;
}

Field Recordset::Fields(int index)
{
    requireOpen();
    if (index < 0 || index >= m_cols)
        throw EngineError::ItemNotFound();
    return Field(*this, index);
}

Field Recordset::Fields(QStringView name)
{
    requireOpen();
    const int i = m_columns->indexOf(name);
    if (i < 0)
        throw EngineError::ItemNotFound();
    return Field(*this, i);
}

const ColumnInfo& Recordset::column(int index) const { return m_columns->columns[size_t(index)]; }

void Recordset::requireCurrent() const
{
    if (m_edit == adEditAdd)
        return;
    if (m_rows == 0 || m_pos < 0 || m_pos >= m_rows || m_deleted[size_t(m_pos)])
        throw EngineError::NoCurrentRecord();
}

const Variant& Recordset::Value(int index) const
{
    requireOpen();
    requireCurrent();
    if (m_edit != adEditNone) {
        auto it = m_pending.find(index);
        if (it != m_pending.end())
            return it->second;
        if (m_edit == adEditAdd)
            return kNull;
    }
    if (m_stale[size_t(m_pos)])
        const_cast<Recordset*>(this)->refreshRow(m_pos);
    return m_cells[size_t(m_pos) * size_t(m_cols) + size_t(index)];
}

void Recordset::requireUpdatable() const
{
    requireOpen();
    if (m_lock == adLockReadOnly || m_lock == adLockUnspecified)
        throw EngineError::NotSupported();
    if (!m_updatable)
        throw EngineError::NotUpdatableQuery();
}

void Recordset::assign(int index, const Variant& v)
{
    requireUpdatable();
    requireCurrent();
    Variant converted = convertForField(v, column(index).type);
    if (m_edit == adEditNone)
        m_edit = adEditInProgress;
    m_pending[index] = std::move(converted);
}

void Recordset::AddNew()
{
    requireUpdatable();
    finishPendingEdit();
    m_pending.clear();
    m_edit = adEditAdd;
}

void Recordset::CancelUpdate()
{
    requireOpen();
    m_pending.clear();
    m_edit = adEditNone;
}

void Recordset::Update()
{
    requireUpdatable();
    if (m_edit == adEditNone)
        return;
    const ColumnSet& cs = *m_columns;
    Utf8Texts keep(m_pending);

    if (m_edit == adEditAdd) {
        // the table of the new row: the recordset's one table, or the one all assignments go to
        int slot = cs.rowidCount == 1 ? 0 : -1;
        if (slot < 0) {
            for (const auto& [col, value] : m_pending) {
                const int s = cs.rowidSlotOf(column(col).table);
                if (slot >= 0 && s != slot)
                    throw EngineError::NotSupported();
                slot = s;
            }
        }
        if (slot < 0)
            throw EngineError::NotSupported();
        const QString& table = cs.rowidTables[size_t(slot)];
        bool same = !m_insertSql.isEmpty() && m_insertFields.size() == m_pending.size();
        if (same) {
            size_t k = 0;
            for (const auto& [col, value] : m_pending)
                same = same && m_insertFields[k++] == col;
        }
        if (!same) {
            QString names, marks;
            m_insertFields.clear();
            for (const auto& [col, value] : m_pending) {
                if (!names.isEmpty()) {
                    names += QLatin1String(", ");
                    marks += QLatin1String(", ");
                }
                names += QuoteName(column(col).origin);
                marks += QLatin1Char('?');
                m_insertFields.push_back(col);
            }
            m_insertSql = names.isEmpty() ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(QuoteName(table))
                                          : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(QuoteName(table), names, marks);
        }
        Statement s = m_conn->prepareSql(m_insertSql);
        int at = 1;
        for (const auto& [col, value] : m_pending)
            bindVariant(s.handle(), at++, value, keep);
        s.runToEnd(*m_conn);

        const long long rowid = sqlite3_last_insert_rowid(m_conn->handle());
        for (int c = 0; c < m_cols; ++c) {
            auto it = m_pending.find(c);
            m_cells.push_back(it != m_pending.end() ? it->second : kNull);
        }
        for (int r = 0; r < cs.rowidCount; ++r)
            m_rowids.push_back(r == slot ? rowid : 0);
        m_deleted.push_back(0);
        m_stale.push_back(1); // defaults and stored forms are read back when first asked
        m_pos = m_rows++;
    } else {
        // one UPDATE per table of the row, together or not at all
        std::map<int, std::vector<int>> bySlot;
        for (const auto& [col, value] : m_pending) {
            const int s = cs.rowidSlotOf(column(col).table);
            if (s < 0)
                throw EngineError::NotUpdatableQuery();
            bySlot[s].push_back(col);
        }
        Transaction tx(*m_conn);
        for (const auto& [slot, cols] : bySlot) {
            QString sets;
            for (int col : cols) {
                if (!sets.isEmpty())
                    sets += QLatin1String(", ");
                sets += QuoteName(column(col).origin) + QLatin1String(" = ?");
            }
            const QString sql = QStringLiteral("UPDATE %1 SET %2 WHERE rowid = ?").arg(QuoteName(cs.rowidTables[size_t(slot)]), sets);
            Statement s = m_conn->prepareSql(sql);
            int at = 1;
            for (int col : cols)
                bindVariant(s.handle(), at++, m_pending[col], keep);
            sqlite3_bind_int64(s.handle(), at, m_rowids[size_t(m_pos) * size_t(cs.rowidCount) + size_t(slot)]);
            s.runToEnd(*m_conn);
        }
        tx.Commit();
        for (const auto& [col, value] : m_pending)
            m_cells[size_t(m_pos) * size_t(m_cols) + size_t(col)] = value;
    }
    m_pending.clear();
    m_edit = adEditNone;
}

void Recordset::Delete()
{
    requireUpdatable();
    if (m_edit == adEditAdd) {
        CancelUpdate();
        return;
    }
    requireCurrent();
    m_pending.clear();
    m_edit = adEditNone;
    const ColumnSet& cs = *m_columns;
    Transaction tx(*m_conn);
    for (int slot = 0; slot < cs.rowidCount; ++slot) {
        Statement s = m_conn->prepareSql(QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(QuoteName(cs.rowidTables[size_t(slot)])));
        sqlite3_bind_int64(s.handle(), 1, m_rowids[size_t(m_pos) * size_t(cs.rowidCount) + size_t(slot)]);
        s.runToEnd(*m_conn);
    }
    tx.Commit();
    m_deleted[size_t(m_pos)] = 1;
}

void Recordset::refreshRow(long row)
{
    m_stale[size_t(row)] = 0;
    const ColumnSet& cs = *m_columns;
    for (int slot = 0; slot < cs.rowidCount; ++slot) {
        const long long rowid = m_rowids[size_t(row) * size_t(cs.rowidCount) + size_t(slot)];
        if (rowid == 0)
            continue;
        QString names;
        std::vector<int> cols;
        for (int c = 0; c < m_cols; ++c) {
            if (column(c).table.compare(cs.rowidTables[size_t(slot)], Qt::CaseInsensitive) != 0)
                continue;
            if (!names.isEmpty())
                names += QLatin1String(", ");
            names += QuoteName(column(c).origin);
            cols.push_back(c);
        }
        if (cols.empty())
            continue;
        Statement s =
            m_conn->prepareSql(QStringLiteral("SELECT %1 FROM %2 WHERE rowid = ?").arg(names, QuoteName(cs.rowidTables[size_t(slot)])));
        sqlite3_bind_int64(s.handle(), 1, rowid);
        if (sqlite3_step(s.handle()) == SQLITE_ROW) {
            for (size_t k = 0; k < cols.size(); ++k)
                m_cells[size_t(row) * size_t(m_cols) + size_t(cols[k])] = readCell(s.handle(), int(k), column(cols[k]).type);
        }
    }
}

QString Field::Name() const { return m_rs->column(m_index).name; }
DataType Field::Type() const { return m_rs->column(m_index).type; }
const Variant& Field::Value() const { return m_rs->Value(m_index); }
void Field::SetValue(const Variant& v) { m_rs->assign(m_index, v); }

} // namespace db
