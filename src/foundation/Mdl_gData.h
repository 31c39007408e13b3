#pragma once

#include "platform/db/Connection.h"
#include "platform/vb/FixedArray.h"

#include <QString>

#include <cstdint>
#include <functional>

// The global data through which the windows talk: the opener of a window writes what the
// window needs, and the window reads it at load. Names and bounds are the system's own; an index
// outside an array's bounds raises error 9, as it did.
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

// The one connection to the ledger, created (unopened) on first use when absent.
db::Connection& DbConnection();
bool HasDbConnection();
// Releases the connection object; the next use creates a new, unopened one.
void ReleaseDbConnection();

inline std::int16_t SelectedMainKey = 0;
inline std::int16_t SelectedGridRow = 0;
inline vb::FixedArray<std::int16_t, 2561> ListRowKeys;
inline std::int16_t ListRowCount = 0;

inline QString CurrentTableName;
inline QString CurrentTableCaption;
inline std::int16_t CurrentTableIndex = 0;
inline vb::FixedArray<CodeTableRow, 11> CodeTables;

inline vb::FixedArray<ColumnDescriptor, 256> ColumnTable;
inline std::int16_t ColumnCount = 0;
inline vb::FixedArray<std::int16_t, 257> SelectedColumns;
inline std::int16_t SelectedColumnCount = 0;
inline QString ListSql;

inline std::int16_t SectionNumber = 0;
inline vb::FixedArray<QString, 17> ViewNames;
inline vb::FixedArray<QString, 4> SortKeyName;
inline vb::FixedArray<QString, 4> SortKeyCaption;
inline vb::FixedArray<QString, 4> SortKeyDirection;
inline std::int16_t SelectNumber = 0;
inline std::int16_t OptDel = 0;

// size and place of the main window, in twips
inline std::int32_t MainFormWidth = 0;
inline std::int32_t MainFormHeight = 0;
inline std::int32_t MainFormTop = 0;
inline std::int32_t MainFormLeft = 0;

// set by the inventory read; nothing reads them
inline std::int16_t LastReadMainKey = 0;
inline QString CsvFileBaseName;
inline QString CsvFileExtension;

// Hook: writes panel 1 of the main window's status bar. The window program sets it at start;
// without it the text goes nowhere.
inline std::function<void(const QString&)> StatusPanelText;

// Fills CodeTables with the six master tables (Form_Load's step).
void FillCodeTables();

// Everything back to its state before the first window loads; for tests.
void Reset();

} // namespace Mdl_gData
