#include "AssetListFixture.h"

using namespace Mdl_gData;

namespace {

using ListQuery = AssetListFixture;

// The joins and columns of the statement are checked against the ledger where the list is
// filled; here the part that each view's shape changes.
TEST_F(ListQuery, StatementTailForEachViewShape)
{
    const char* const keys[][2] = {{"Location_Name", "ASC"}, {"tbl_Computer_List.Update", "DESC"}, {"Computer_Name", "ASC"}};
    for (int i = 0; i < 3; ++i) {
        g.SortKeyName[i] = QString::fromUtf8(keys[i][0]);
        g.SortKeyDirection[i] = QString::fromUtf8(keys[i][1]);
    }
    // a negative count adds neither the flag's condition, nor ORDER BY, nor ';'
    g.OptDel = g.SelectNumber = -1;
    gSetSQLVal();
    const QString head = g.ListSql;
    EXPECT_TRUE(head.endsWith(QStringLiteral(" AND ((tbl_Pclist.MainKey) = (tbl_Computer_List.MainKey))) "))) << head.toStdString();
    const struct {
        const char* name;
        std::int16_t optDel;
        std::int16_t selectNumber;
        QString tail;
    } cases[] = {
        {"installed, no sort: no ORDER BY, still the ';'", 0, 0, QStringLiteral(" AND (tbl_Computer_List.Deleted_Flug = 0) ;")},
        {"both, three keys", 2, 3, QStringLiteral(" ORDER BY Location_Name ASC,tbl_Computer_List.Update DESC,Computer_Name ASC;")},
        {"four keys: neither ORDER BY nor ';'", 0, 4, QStringLiteral(" AND (tbl_Computer_List.Deleted_Flug = 0) ")},
    };
    for (const auto& c : cases) {
        g.OptDel = c.optDel;
        g.SelectNumber = c.selectNumber;
        gSetSQLVal();
        EXPECT_EQ(g.ListSql, head + c.tail) << c.name;
    }
}

TEST_F(ListQuery, OptDelChoosesInstalledRetiredOrBoth)
{
    for (int key : {1, 2, 3, 4})
        ledger.computer(key, key % 2 ? 0 : 1);
    ledger.computer(5, 0, 9); // a user code without a master row: never listed
    writeColumns(0, {8});

    ASSERT_TRUE(loadList());
    EXPECT_EQ(listedKeys(), (QStringList{"1", "3"}));

    // (1 lists the retired alone: the view window's switch shows it.) Any other value lists both; computer 0, whose flag is Null, is read
    // and skipped.
    writeView(0, {"OptDel=2"});
    ASSERT_TRUE(loadList());
    EXPECT_EQ(listedKeys(), (QStringList{"1", "2", "3", "4"}));
}

} // namespace
