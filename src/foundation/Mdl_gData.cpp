#include "foundation/Mdl_gData.h"

#include "platform/db/Connection.h"

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
    auto row = [](const char* caption, const char* table, const char* name, const char* code) {
        return CodeTableRow{QString::fromUtf8(caption), QString::fromUtf8(table), QString::fromUtf8(name), QString::fromUtf8(code)};
    };
    g.CodeTables[0] = row("ユーザー", "tbl_User", "User_Name", "User_Code");
    g.CodeTables[1] = row("部", "tbl_Section", "Section_Name", "Section_Code");
    g.CodeTables[2] = row("課", "tbl_Division", "Division_Name", "Division_Code");
    g.CodeTables[3] = row("設置場所", "tbl_Location", "Location_Name", "Location_Code");
    g.CodeTables[4] = row("メーカー", "tbl_Manufacturer", "Manufacturer_Name", "Manufacturer_Code");
    g.CodeTables[5] = row("モデル", "tbl_Model", "Model_Name", "Model_Code");
}

void Reset()
{
    ReleaseDbConnection();
    g = {};
}

} // namespace Mdl_gData
