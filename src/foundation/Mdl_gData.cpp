#include "foundation/Mdl_gData.h"

#include <memory>

namespace Mdl_gData {

namespace {
std::unique_ptr<db::Connection> g_connection;
} // namespace

db::Connection& DbConnection()
{
    if (!g_connection)
        g_connection = std::make_unique<db::Connection>();
    return *g_connection;
}

bool HasDbConnection() { return g_connection != nullptr; }

void ReleaseDbConnection() { g_connection.reset(); }

void FillCodeTables()
{
    CodeTables[0] = {QStringLiteral("ユーザー"), QStringLiteral("tbl_User"), QStringLiteral("User_Name"), QStringLiteral("User_Code")};
    CodeTables[1] = {QStringLiteral("部"), QStringLiteral("tbl_Section"), QStringLiteral("Section_Name"), QStringLiteral("Section_Code")};
    CodeTables[2] = {QStringLiteral("課"), QStringLiteral("tbl_Division"), QStringLiteral("Division_Name"), QStringLiteral("Division_Code")};
    CodeTables[3] = {QStringLiteral("設置場所"), QStringLiteral("tbl_Location"), QStringLiteral("Location_Name"), QStringLiteral("Location_Code")};
    CodeTables[4] = {QStringLiteral("メーカー"), QStringLiteral("tbl_Manufacturer"), QStringLiteral("Manufacturer_Name"),
                     QStringLiteral("Manufacturer_Code")};
    CodeTables[5] = {QStringLiteral("モデル"), QStringLiteral("tbl_Model"), QStringLiteral("Model_Name"), QStringLiteral("Model_Code")};
}

void Reset()
{
    ReleaseDbConnection();
    SelectedMainKey = SelectedGridRow = 0;
    ListRowKeys.fill(0);
    ListRowCount = 0;
    CurrentTableName.clear();
    CurrentTableCaption.clear();
    CurrentTableIndex = 0;
    CodeTables.fill({});
    ColumnTable.fill({});
    ColumnCount = 0;
    SelectedColumns.fill(0);
    SelectedColumnCount = 0;
    ListSql.clear();
    SectionNumber = 0;
    ViewNames.fill({});
    SortKeyName.fill({});
    SortKeyCaption.fill({});
    SortKeyDirection.fill({});
    SelectNumber = OptDel = 0;
    MainFormWidth = MainFormHeight = MainFormTop = MainFormLeft = 0;
    LastReadMainKey = 0;
    CsvFileBaseName.clear();
    CsvFileExtension.clear();
    StatusPanelText = nullptr;
}

} // namespace Mdl_gData
