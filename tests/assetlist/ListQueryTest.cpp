#include "AssetListFixture.h"

#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"

using namespace Mdl_gData;

namespace {

// The statement up to the end of its WHERE clause, for every view.
const QString kHead = QStringLiteral(
    "SELECT tbl_Pclist.*, tbl_Computer_List.*, tbl_Location.Location_Name, tbl_Location.Available_flug, "
    "tbl_User.User_Name, tbl_User.User_Comment, tbl_User.Available_flug, tbl_User.kana, tbl_User.Employee_SerialNumber, "
    "tbl_User.Acount_Name, tbl_User.logon_Password, tbl_Section.Section_Name, tbl_Section.Available_flug, "
    "tbl_Division.Division_Name, tbl_Division.Available_flug, tbl_Manufacturer.Manufacturer_Name, "
    "tbl_Manufacturer.Available_flug, tbl_Model.Model_Name, tbl_Model.Available_flug "
    "FROM tbl_Computer_List, tbl_Pclist, tbl_User, tbl_Section, tbl_Location, tbl_Division, tbl_Manufacturer, tbl_Model"
    " WHERE (((tbl_Computer_List.Location_Code)=([tbl_Location].[Location_Code]))"
    " AND ((tbl_Computer_List.User_Code)=([tbl_User].[User_Code]))"
    " AND ((tbl_User.Section_Code)=([tbl_Section].[Section_Code]))"
    " AND ((tbl_User.Division_Code)=([tbl_Division].[Division_Code]))"
    " AND ((tbl_Computer_List.Manufacturer_Code)=([tbl_Manufacturer].[Manufacturer_Code]))"
    " AND ((tbl_Computer_List.Model_Code)=([tbl_Model].[Model_Code]))"
    " AND ((tbl_Pclist.MainKey) = (tbl_Computer_List.MainKey))) ");

using ListQuery = AssetListFixture;

TEST_F(ListQuery, StatementTextForEachViewShape)
{
    struct Case {
        const char* name;
        std::int16_t optDel;
        std::int16_t selectNumber;
        QString tail;
    } cases[] = {
        {"installed, no sort: no ORDER BY, still the ';'", 0, 0, QStringLiteral(" AND (tbl_Computer_List.Deleted_Flug = 0) ;")},
        {"retired, one key", 1, 1, QStringLiteral(" AND (tbl_Computer_List.Deleted_Flug = 1)  ORDER BY Location_Name ASC;")},
        {"both, three keys", 2, 3,
         QStringLiteral(" ORDER BY Location_Name ASC,tbl_Computer_List.Update DESC,Computer_Name ASC;")},
        {"four keys: neither ORDER BY nor ';'", 0, 4, QStringLiteral(" AND (tbl_Computer_List.Deleted_Flug = 0) ")},
        {"negative count: neither ORDER BY nor ';'", -1, -1, QString()},
    };
    g.SortKeyName[0] = QStringLiteral("Location_Name");
    g.SortKeyName[1] = QStringLiteral("tbl_Computer_List.Update");
    g.SortKeyName[2] = QStringLiteral("Computer_Name");
    g.SortKeyDirection[0] = QStringLiteral("ASC");
    g.SortKeyDirection[1] = QStringLiteral("DESC");
    g.SortKeyDirection[2] = QStringLiteral("ASC");
    for (const Case& c : cases) {
        g.OptDel = c.optDel;
        g.SelectNumber = c.selectNumber;
        gSetSQLVal();
        EXPECT_EQ(g.ListSql, kHead + c.tail) << c.name;
    }
}

TEST_F(ListQuery, OptDelChoosesInstalledRetiredOrBoth)
{
    computer(1);
    computer(2, 1);
    computer(3);
    computer(4, 1);
    computer(5, 0, 9);   // a user code without a master row: never listed
    writeColumns(0, {8});
    const auto listedKeys = [this] {
        QStringList keys;
        for (int r = 1; r < grid->Rows(); ++r)
            keys << grid->TextMatrix(r, 1);
        return keys;
    };

    ASSERT_TRUE(loadList());
    EXPECT_EQ(listedKeys(), (QStringList{QStringLiteral("1"), QStringLiteral("3")}));

    mdl_ini::IniWrite(QStringLiteral("0"), QStringLiteral("OptDel"), QStringLiteral("1"));
    ASSERT_TRUE(loadList());
    EXPECT_EQ(listedKeys(), (QStringList{QStringLiteral("2"), QStringLiteral("4")}));

    // Any other value lists both; computer 0, whose flag is Null, is read and skipped.
    mdl_ini::IniWrite(QStringLiteral("0"), QStringLiteral("OptDel"), QStringLiteral("2"));
    ASSERT_TRUE(loadList());
    EXPECT_EQ(listedKeys(), (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")}));
    EXPECT_EQ(g.ListRowCount, 4);
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(ListQuery, SortKeysOrderTheListAndAnUnknownKeyFailsAtTheFill)
{
    master(QStringLiteral("tbl_Location"), 1, QStringLiteral("本社"));
    master(QStringLiteral("tbl_Location"), 2, QStringLiteral("支社"));
    computer(1, 0, 0, QStringLiteral("Computer_Name = 'PC-A'"), QStringLiteral("Location_Code = 2"));
    computer(2, 0, 0, QStringLiteral("Computer_Name = 'PC-B'"), QStringLiteral("Location_Code = 1"));
    computer(3, 0, 0, QStringLiteral("Computer_Name = 'PC-C'"), QStringLiteral("Location_Code = 2"));
    writeColumns(0, {1, 8});
    writeView(0, {{QStringLiteral("SelectNumber"), QStringLiteral("2")},
                  {QStringLiteral("KeyName0"), QStringLiteral("Location_Name")},
                  {QStringLiteral("KeyASCDESC0"), QStringLiteral("ASC")},
                  {QStringLiteral("KeyName1"), QStringLiteral("Computer_Name")},
                  {QStringLiteral("KeyASCDESC1"), QStringLiteral("DESC")}});
    ASSERT_TRUE(loadList());
    // 支社 sorts before 本社 in the engine's text order
    EXPECT_EQ(rowTexts(1), (QStringList{"1", "3", "支社", "PC-C"}));
    EXPECT_EQ(rowTexts(2), (QStringList{"2", "1", "支社", "PC-A"}));
    EXPECT_EQ(rowTexts(3), (QStringList{"3", "2", "本社", "PC-B"}));

    // a name the engine does not know fails when the fill opens the statement; the grid is
    // left as it stood
    mdl_ini::IniWrite(QStringLiteral("0"), QStringLiteral("KeyName1"), QStringLiteral("Computer_Nmae"));
    LoadView();
    EXPECT_EQ(list->fnc_View_PClist(), ui::FillResult::Failed);
    EXPECT_EQ(errorBoxes().size(), 1u);
    EXPECT_TRUE(grid->Visible());
    EXPECT_EQ(rowTexts(1), (QStringList{"1", "3", "支社", "PC-C"}));
}

TEST_F(ListQuery, JoinedFieldNamesAnswerAsAdoNamedThem)
{
    user(1, QStringLiteral("山田太郎"), QStringLiteral("1"));
    computer(1, 0, 1, QStringLiteral("IPAddress = '10.0.0.1', \"Update\" = '2004/01/01'"),
             QStringLiteral("\"Update\" = '2005/04/01'"));
    gSetSQLVal();
    db::Recordset rs;
    rs.Open(g.ListSql, DbConnection(), db::adOpenStatic, db::adLockOptimistic, -1);
    ASSERT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(vb::CStr(rs.Fields(u"tbl_Pclist.MainKey").Value()), QStringLiteral("1"));
    EXPECT_EQ(vb::CStr(rs.Fields(u"tbl_Computer_List.Update").Value()), QStringLiteral("2005/04/01"));
    EXPECT_EQ(vb::CStr(rs.Fields(u"tbl_Pclist.Update").Value()), QStringLiteral("2004/01/01"));
    EXPECT_EQ(vb::CStr(rs.Fields(u"tbl_User.Available_flug").Value()), QStringLiteral("1"));
    EXPECT_EQ(vb::CStr(rs.Fields(u"ipaddress").Value()), QStringLiteral("10.0.0.1"));
    EXPECT_EQ(vb::CStr(rs.Fields(u"user_name").Value()), QStringLiteral("山田太郎"));
    EXPECT_EQ(rs.FieldIndex(u"tbl_User.Available_flug"), rs.FieldIndex(u"TBL_USER.AVAILABLE_FLUG"));
    // a bare name that two tables share answers to neither
    try {
        rs.Fields(u"Available_flug");
        FAIL() << "a shared bare name resolved";
    } catch (const vb::VbError& e) {
        EXPECT_EQ(e.Number(), 3265);
    }
    rs.Close();
}

} // namespace
