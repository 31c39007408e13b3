#pragma once

#include "platform/db/Ado.h"

#include <QHash>
#include <QString>

#include <vector>

namespace db {

// What a prepared SELECT returns, column by column, named the way ADO named the fields of a Jet
// recordset: a column whose name two tables of the result share is "table.column" (as
// "tbl_Pclist.MainKey"), any other has its plain name and answers to "table.column" as well.
// Names are found without regard to case, as Jet found them.
struct ColumnInfo {
    QString name;   // the field's name as ADO gave it
    QString table;  // source table, empty for an expression
    QString origin; // source column, empty for an expression
    DataType type = adEmpty;
};

class ColumnSet {
public:
    static constexpr int NotFound = -1;
    static constexpr int Ambiguous = -2;

    // hidden leading columns that carry the rowid of each source table of an updatable result
    int rowidCount = 0;
    std::vector<QString> rowidTables;
    std::vector<ColumnInfo> columns;

    // Fills the name lookup; call once the columns stand.
    void index();
    // The field number of a name, NotFound or Ambiguous (a bare name two tables share).
    int indexOf(QStringView name) const;
    // The rowid column (0-based among the hidden ones) of a table, -1 when it has none.
    int rowidSlotOf(const QString& table) const;

private:
    QHash<QString, int> m_lookup;
};

// The ADO type of a declared SQLite column type ("SMALLINT" -> adSmallInt ...).
DataType TypeOfDeclaration(const char* decltype_);

} // namespace db
