#pragma once

#include <QString>

#include <cstdint>
#include <variant>
#include <vector>

namespace db {

// A literal lifted out of a statement so that statements of one shape share one prepared
// statement: "UPDATE tbl_Pclist SET Workgroup = 'A' WHERE MainKey = 5" and the same with 'B' and
// 6 both run as UPDATE tbl_Pclist SET Workgroup = ? WHERE MainKey = ?.
using Literal = std::variant<std::int64_t, double, QString>;

struct JetStatement {
    enum class Kind { Select, Insert, Update, Delete, Other };

    Kind kind = Kind::Other;
    QString sql;                 // SQLite text with the literals in place
    QString shape;               // SQLite text with parameters for the lifted literals
    std::vector<Literal> params; // the lifted literals, in order
    bool distinct = false;       // SELECT DISTINCT
    bool grouped = false;        // has GROUP BY
    qsizetype selectListAt = -1; // offset in shape where the select list starts
};

// Rewrites Jet SQL, as the system writes its statements, into SQLite SQL with the same meaning.
// One pass of a tokenizer over the text:
//  - "DELETE * FROM" loses its star;
//  - a qualified column on the left of SET loses its table ("SET tbl_Pclist.[Update] = ");
//  - [bracketed] names become "quoted" names, and so do the bare names that SQLite reserves:
//    Key always, Group unless "Group By", Update unless it opens the statement, and any
//    SQLite keyword that follows a table name and a dot;
//  - "double quoted" text is Jet's string literal and becomes a 'single quoted' one;
//  - #m/d/yyyy# date literals become 'yyyy/mm/dd' text, the form the ledger stores.
// Everything else, doubled blanks included, passes through unchanged.
class JetSql {
public:
    static JetStatement Parse(QStringView jet);
    // The same without the sql text: the shape and its literals are all that running needs.
    static JetStatement ParseShape(QStringView jet);
    static QString Rewrite(QStringView jet) { return Parse(jet).sql; }
};

// A table or column name as SQLite quotes it: in double quotes, a double quote inside doubled.
// Every statement the layer writes itself quotes its names through here.
QString QuoteName(QStringView name);

} // namespace db
