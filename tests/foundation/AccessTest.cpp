#include "foundation/Mdl_Access_mdb.h"

#include "support/VbErrors.h"
#include "support/WindowTest.h"

#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"

#include <QFile>

using namespace Mdl_Access_mdb;
using vb::VbError;

namespace {

using Access = WindowTest;

// Without a ledger the window's status panel says why (the main window's tests show it); a file
// that is no ledger is refused by the engine, and the error box says so.
TEST_F(Access, ConnectsAndDisconnectsOnceAndRefusesAFileThatIsNoLedger)
{
    EXPECT_EQ(Mdl_gData::DbConnection().State(), db::adStateOpen);
    EXPECT_TRUE(DisconnectDatabase());
    EXPECT_FALSE(Mdl_gData::HasDbConnection()) << "the connection object is released";
    EXPECT_EQ(Mdl_gData::DbConnection().State(), db::adStateClosed) << "a later use finds a new, unopened object";
    EXPECT_TRUE(dialogs.calls().empty());

    TempDir folder;
    app::SetPath(folder.path());
    EXPECT_FALSE(ConnectDatabase());
    EXPECT_TRUE(dialogs.calls().empty());
    folder.write(QStringLiteral("pcdb.mdb"), QByteArray(4096, 'x'));
    EXPECT_FALSE(ConnectDatabase());
    ASSERT_EQ(dialogs.messages().size(), 1u);
    EXPECT_TRUE(dialogs.messages()[0].prompt.contains(QStringLiteral("認識できないデータベース形式")));
}

TEST_F(Access, StandardErrorBoxShowsNumberAndDescription)
{
    StandardErrorBox(vb::VbError::Overflow());
    ASSERT_EQ(dialogs.messages().size(), 1u);
    const auto m = dialogs.messages()[0];
    EXPECT_EQ(m.prompt, QStringLiteral("\r\n（エラーコード：6）\r\n（エラー内容：オーバーフローしました。）"));
    EXPECT_EQ(m.buttons, ui::vbCritical | ui::vbOKOnly);
}

TEST_F(Access, FirstRowHasNineSanitisedSlots)
{
    ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET Computer_Name = 'a,b''c;d#e\\f:g' || char(10) || 'h' || char(13) || 'i', "
                               "Workgroup = '', Memory_Full = 512, \"Update\" = '2005/12/04 10:11:12' WHERE MainKey = 0"));
    ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Leasing_StartDate = '2005/4/1 9:30:00' WHERE MainKey = 0"));

    EXPECT_EQ(OpenRecordsetFirstRow(QString()), FirstRow{});

    FirstRow one = OpenRecordsetFirstRow(QStringLiteral("SELECT Computer_Name FROM tbl_Pclist WHERE MainKey = 0"));
    EXPECT_EQ(one[0], QStringLiteral("a、b’c；d＃e￥f：g h i"));
    EXPECT_TRUE(one[8].isEmpty());

    FirstRow mixed = OpenRecordsetFirstRow(
        QStringLiteral("SELECT Workgroup, Memory_Full, tbl_Pclist.[Update], Leasing_StartDate "
                       "FROM tbl_Pclist, tbl_Computer_List WHERE tbl_Pclist.MainKey = 0 AND tbl_Computer_List.MainKey = 0"));
    EXPECT_EQ(mixed[0], QString()) << "an empty text is fine";
    EXPECT_EQ(mixed[1], QStringLiteral("512"));
    EXPECT_EQ(mixed[2], QStringLiteral("2005/12/04 10：11：12"));
    EXPECT_EQ(mixed[3], QStringLiteral("2005/04/01 9：30：00")) << "a date and time reads as VB writes it, sanitised";

    EXPECT_EQ(OpenRecordsetFirstRow(QStringLiteral("SELECT * FROM tbl_Pclist WHERE MainKey = 99")), FirstRow{});
    EXPECT_EQ(ErrorOf([] { OpenRecordsetFirstRow(QStringLiteral("SELECT MainKey,1,2,3,4,5,6,7,8,9 FROM tbl_Pclist")); }), 9)
        << "a tenth column is the index error";
    EXPECT_EQ(ErrorOf([] { OpenRecordsetFirstRow(QStringLiteral("SELECT IPAddress FROM tbl_Pclist")); }), 94) << "a Null fails";
    EXPECT_NE(ErrorOf([] { OpenRecordsetFirstRow(QStringLiteral("SELECT * FROM tbl_Nowhere")); }), 0);
    EXPECT_TRUE(dialogs.calls().empty()) << "the routine has no handler of its own";
}

TEST_F(Access, ExecuteSqlNeverReportsAFailure)
{
    EXPECT_FALSE(ExecuteSql(QString()));
    EXPECT_TRUE(ExecuteSql(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (0)")));
    EXPECT_TRUE(ExecuteSql(QStringLiteral("UPDATE tbl_Pclist SET tbl_Pclist.[Memory_Full] = 'x' WHERE MainKey = 0")));
    EXPECT_TRUE(ExecuteSql(QStringLiteral("DELETE * FROM tbl_Nowhere")));
    EXPECT_TRUE(dialogs.calls().empty());
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT count(*) FROM tbl_Computer_List")), QStringLiteral("1"));
    EXPECT_TRUE(ExecuteSql(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (1)")));
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT count(*) FROM tbl_Computer_List")), QStringLiteral("2"));
}

TEST_F(Access, RecordExistsAndFieldTypeName)
{
    EXPECT_TRUE(RecordExists(QStringLiteral("SELECT * FROM tbl_Section")));
    EXPECT_FALSE(RecordExists(QStringLiteral("SELECT * FROM tbl_License_Key")));
    EXPECT_TRUE(dialogs.calls().empty());
    EXPECT_FALSE(RecordExists(QStringLiteral("SELECT * FROM tbl_Nowhere")));
    ASSERT_EQ(dialogs.messages().size(), 1u);
    dialogs.clear();

    // (the kinds of the inventory fields: the review window's overwrite)
    EXPECT_EQ(FieldTypeName(QStringLiteral("SELECT Renewalday FROM tbl_ReadCsv")), QStringLiteral("不明")) << "no row: the word stays";
    EXPECT_TRUE(dialogs.calls().empty());
    EXPECT_EQ(FieldTypeName(QStringLiteral("SELECT Nonsense FROM tbl_Pclist")), QStringLiteral("不明"));
    EXPECT_EQ(dialogs.messages().size(), 1u);
}

TEST_F(Access, RetiredComputersKeepTheirKeysTaken)
{
    // (the code tables' next keys: their windows' additions)
    EXPECT_EQ(MaxOfFirstColumn(QStringLiteral("tbl_License_Key")), -1) << "an empty table";
    ledger.exec(QStringLiteral("DELETE FROM tbl_Computer_List"));
    EXPECT_EQ(MaxMainKey(), 0) << "an empty table";
    ledger.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Deleted_Flug) VALUES (4, 1), (2, 0)"));
    EXPECT_EQ(MaxMainKey(), 4) << "retired computers keep their keys taken";
    EXPECT_TRUE(dialogs.calls().empty());

    EXPECT_EQ(MaxOfFirstColumn(QStringLiteral("tbl_Nowhere")), 0);
    EXPECT_EQ(dialogs.messages().size(), 1u);
}

} // namespace
