#pragma once

#include "platform/db/Ado.h"
#include "platform/db/ColumnSet.h"
#include "platform/db/Field.h"
#include "platform/vb/Variant.h"

#include <map>
#include <memory>
#include <vector>

namespace db {

class Connection;

// An ADO recordset with a static cursor: Open runs the query once and keeps the rows it found
// (a snapshot; later changes by others are not seen). Fields answer by name or number, with the
// joined names ADO used ("tbl_Pclist.MainKey" where two tables share MainKey). Values come back
// as Variants typed by the column's declared type.
//
// With optimistic locking a SELECT that reads straight from its tables is updatable: a record's
// fields are assigned, and Update writes the changed columns of each table of the row, all in
// one transaction. AddNew/Update inserts a row into the one table of the recordset.
class Recordset {
public:
    Recordset() = default;
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    void Open(const QString& source, Connection& connection, CursorType cursor = adOpenStatic, LockType lock = adLockReadOnly,
              long options = adCmdUnspecified);
    void Close();
    // Closes when open; the cleanup step of every error handler.
    void CloseIfOpen();
    ObjectState State() const { return m_open ? adStateOpen : adStateClosed; }

    long RecordCount() const;
    bool Eof() const; // ADO's EOF (the C library owns that name)
    bool Bof() const; // ADO's BOF
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    int FieldCount() const;
    Field Fields(int index);
    Field Fields(QStringView name);
    Field operator()(QStringView name) { return Fields(name); }
    // The number of a field, or -1; for loops that read one field of every record.
    int FieldIndex(QStringView name) const;
    // The value of field number index of the current record.
    const vb::Variant& Value(int index) const;

    void AddNew();
    void Update();
    void CancelUpdate();
    void Delete();
    EditMode EditModeState() const { return m_edit; }

private:
    friend class Field;
    const ColumnInfo& column(int index) const;
    void assign(int index, const vb::Variant& v);
    void requireOpen() const;
    void requireCurrent() const;
    void requireUpdatable() const;
    void finishPendingEdit();
    void refreshRow(long row);
    long visibleCount() const;
    void skipDeleted(int direction);

    Connection* m_conn = nullptr;
    std::shared_ptr<const ColumnSet> m_columns;
    int m_cols = 0;
    std::vector<vb::Variant> m_cells; // rows * m_cols
    std::vector<long long> m_rowids;  // rows * rowidCount
    std::vector<char> m_deleted;      // per row
    std::vector<char> m_stale;        // per row: added, re-read on first access
    long m_rows = 0;
    long m_pos = 0; // -1 BOF, m_rows EOF
    bool m_open = false;
    bool m_updatable = false;
    LockType m_lock = adLockReadOnly;
    EditMode m_edit = adEditNone;
    std::map<int, vb::Variant> m_pending; // assigned, not yet written
    // the INSERT of the last AddNew and the fields it named: a run of added rows that assign the
    // same fields builds its text once
    QString m_insertSql;
    std::vector<int> m_insertFields;
};

} // namespace db
