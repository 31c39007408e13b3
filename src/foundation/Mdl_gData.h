#pragma once

#include "platform/vb/FixedArray.h"

#include <QString>

#include <cstdint>
#include <functional>

namespace db {
class Connection;
}

// The global data through which the windows talk: the opener of a window writes what the
// window needs, and the window reads it at load. Names and bounds are the system's own; an index
// outside an array's bounds raises error 9, as it did.
//
// All of it stands in one struct, Mdl_gData::g, so that Reset() (g = {}) returns every global a
// window adds to its first state, and no test leaks one into the next.
namespace Mdl_gData {

// One row of CodeTables: the master tables that the code editor and the profile combos serve.
struct CodeTableRow {
    QString caption;
    QString table;
    QString nameField;
    QString codeField;
};

// One row of ColumnTable: a column the main list can show.
struct ColumnDescriptor {
    QString field;
    QString caption;
};

struct Globals {
    std::int16_t SelectedMainKey = 0;
    std::int16_t SelectedGridRow = 0;
    vb::FixedArray<std::int16_t, 2561> ListRowKeys;
    std::int16_t ListRowCount = 0;

    QString CurrentTableName;
    QString CurrentTableCaption;
    std::int16_t CurrentTableIndex = 0;
    vb::FixedArray<CodeTableRow, 11> CodeTables;

    vb::FixedArray<ColumnDescriptor, 256> ColumnTable;
    std::int16_t ColumnCount = 0;
    vb::FixedArray<std::int16_t, 257> SelectedColumns;
    std::int16_t SelectedColumnCount = 0;
    QString ListSql;

    std::int16_t SectionNumber = 0;
    vb::FixedArray<QString, 17> ViewNames;
    vb::FixedArray<QString, 4> SortKeyName;
    vb::FixedArray<QString, 4> SortKeyCaption;
    vb::FixedArray<QString, 4> SortKeyDirection;
    std::int16_t SelectNumber = 0;
    std::int16_t OptDel = 0;

    // size and place of the main window, in twips
    std::int32_t MainFormWidth = 0;
    std::int32_t MainFormHeight = 0;
    std::int32_t MainFormTop = 0;
    std::int32_t MainFormLeft = 0;

    // set by the inventory read; nothing reads them
    std::int16_t LastReadMainKey = 0;
    QString CsvFileBaseName;
    QString CsvFileExtension;

    // Hooks: the one way in which a window of a lower folder reaches the main window. The window
    // program sets them at start (frm_Main's load), tests set their own; unset, nothing happens.

    // Writes panel 1 of the main window's status bar.
    std::function<void(const QString&)> StatusPanelText;
    // Fills the main list again from ListSql (fnc_View_PClist), as the bulk read and the view
    // window do at their end.
    std::function<void()> RefillMainList;
};

inline Globals g;

// The one connection to the ledger, created (unopened) on first use when absent.
db::Connection& DbConnection();
bool HasDbConnection();
// Releases the connection object; the next use creates a new, unopened one.
void ReleaseDbConnection();

// Fills CodeTables with the six master tables (Form_Load's step).
void FillCodeTables();

// Everything back to its state before the first window loads, the connection released; for
// tests and for the companion program between commands.
void Reset();

} // namespace Mdl_gData
