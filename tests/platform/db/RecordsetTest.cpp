#include "platform/db/EngineError.h"
#include "platform/db/Recordset.h"
#include "platform/vb/Conversion.h"

#include "support/TempLedger.h"
#include "support/VbErrors.h"

#include <gtest/gtest.h>

using db::Recordset;
using vb::Variant;
using vb::VbError;

namespace {

class RecordsetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        l.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, Model_Code, "
                              "\"Update\", Leasing_StartDate, Leasing_Monthly_Amount, Deleted_Flug) "
                              "VALUES (1, 0, 0, 0, 0, '2005/12/04 10：00', '2005/04/01', 12000, 0), (2, 0, 0, 0, 0, NULL, NULL, NULL, 1)"));
        l.exec(QStringLiteral("INSERT INTO tbl_Pclist (MainKey, \"Update\", Computer_Name, Memory_Full, CPU_FPU) "
                              "VALUES (1, '2005/12/05', 'PC-1', 512, 1), (2, NULL, 'PC-2', NULL, 0)"));
    }
    TempLedger l;
};

TEST_F(RecordsetTest, SnapshotWalksForwardAndBack)
{
    Recordset rs;
    rs.Open(QStringLiteral("SELECT * FROM tbl_Pclist WHERE MainKey > 0 ORDER BY MainKey"), l.connection(), db::adOpenStatic,
            db::adLockOptimistic);
    EXPECT_EQ(rs.RecordCount(), 2);
    EXPECT_FALSE(rs.Eof());
    EXPECT_EQ(vb::CStr(rs.Fields(u"Computer_Name")), QStringLiteral("PC-1"));
    // the snapshot does not see later changes by others
    l.exec(QStringLiteral("UPDATE tbl_Pclist SET Computer_Name = 'other'"));
    rs.MoveNext();
    EXPECT_EQ(vb::CStr(rs.Fields(u"computer_name")), QStringLiteral("PC-2")) << "names are case-blind";
    rs.MoveNext();
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(ErrorOf([&] { rs.Fields(u"Computer_Name").Value(); }), 3021);
    EXPECT_EQ(ErrorOf([&] { rs.MoveNext(); }), 3021);
    rs.MovePrevious();
    EXPECT_EQ(rs.Fields(0).Value(), Variant::Integer(2));
    rs.MoveFirst();
    EXPECT_EQ(rs.Fields(0).Value(), Variant::Integer(1));
    EXPECT_EQ(ErrorOf([&] { rs.Fields(u"NoSuchField"); }), 3265);
    EXPECT_EQ(ErrorOf([&] { rs.Fields(rs.FieldCount()); }), 3265);
    rs.Close();
    EXPECT_EQ(rs.State(), db::adStateClosed);
    EXPECT_EQ(ErrorOf([&] { rs.RecordCount(); }), 3704);
    EXPECT_EQ(ErrorOf([&] { rs.Close(); }), 3704);
    rs.CloseIfOpen();

    Recordset empty;
    empty.Open(QStringLiteral("SELECT * FROM tbl_Pclist WHERE MainKey = 99"), l.connection());
    EXPECT_EQ(empty.RecordCount(), 0);
    EXPECT_TRUE(empty.Eof());
    EXPECT_TRUE(empty.Bof());
    EXPECT_EQ(ErrorOf([&] { empty.MoveFirst(); }), 3021);
}

TEST_F(RecordsetTest, JoinedFieldsAreNamedAsAdoNamedThem)
{
    Recordset rs;
    rs.Open(QStringLiteral(
                "SELECT tbl_Pclist.*, tbl_Computer_List.*, tbl_User.Available_flug, tbl_Location.Available_flug "
                "FROM tbl_Pclist, tbl_Computer_List, tbl_User, tbl_Location WHERE tbl_Pclist.MainKey = tbl_Computer_List.MainKey "
                "AND tbl_Computer_List.User_Code = tbl_User.User_Code AND tbl_Computer_List.Location_Code = tbl_Location.Location_Code "
                "AND tbl_Pclist.MainKey = 1"),
            l.connection(), db::adOpenStatic, db::adLockOptimistic);
    EXPECT_EQ(vb::CStr(rs.Fields(u"tbl_Computer_List.Update")), QStringLiteral("2005/12/04 10：00"));
    EXPECT_EQ(vb::CStr(rs.Fields(u"TBL_PCLIST.UPDATE")), QStringLiteral("2005/12/05"));
    EXPECT_EQ(vb::CStr(rs.Fields(u"tbl_Pclist.Computer_Name")), QStringLiteral("PC-1")) << "a unique name answers to both forms";
    EXPECT_EQ(ErrorOf([&] { rs.Fields(u"MainKey"); }), 3265) << "a bare name two tables share names neither";
}

TEST_F(RecordsetTest, AssignmentsConvertOrFailAsAdoDid)
{
    Recordset rs;
    rs.Open(QStringLiteral("SELECT * FROM tbl_Computer_List WHERE MainKey  = 1"), l.connection(), db::adOpenStatic, db::adLockOptimistic);
    const long multiStep = db::EngineError::MultipleStep;
    EXPECT_EQ(ErrorOf([&] { rs.Fields(u"Leasing_Monthly_Amount") = Variant(QStringLiteral("abc")); }), multiStep);
    EXPECT_EQ(ErrorOf([&] { rs.Fields(u"Location_Code") = Variant(70000); }), multiStep);
    EXPECT_EQ(ErrorOf([&] { rs.Fields(u"Remove_Date") = Variant(QStringLiteral("2005/02/31")); }), multiStep);
    EXPECT_EQ(ErrorOf([&] { rs.Fields(u"Remove_Date") = Variant(QStringLiteral("0")); }), 0)
        << "a number is a date serial, as VB converts it";
    rs.CancelUpdate();
    rs.Fields(u"Deleted_Flug") = Variant(1);
    rs.Fields(u"Remove_Date") = Variant(QStringLiteral("2005/12/04"));
    rs.Update();
    EXPECT_EQ(l.rows(QStringLiteral("SELECT Deleted_Flug, Remove_Date FROM tbl_Computer_List WHERE MainKey = 1")),
              QStringList{QStringLiteral("1|2005/12/04")});

    Recordset ro;
    ro.Open(QStringLiteral("SELECT * FROM tbl_Computer_List"), l.connection(), db::adOpenStatic, db::adLockReadOnly);
    EXPECT_EQ(ErrorOf([&] { ro.Fields(u"Comment") = Variant("x"); }), 3251);

    Recordset distinct;
    distinct.Open(QStringLiteral("SELECT DISTINCT * FROM tbl_Computer_List"), l.connection(), db::adOpenStatic, db::adLockOptimistic);
    EXPECT_EQ(ErrorOf([&] { distinct.Fields(u"Comment") = Variant("x"); }), db::EngineError::Fail);
}

TEST_F(RecordsetTest, AddNewReadsTheColumnDefaultsBack)
{
    Recordset c;
    c.Open(QStringLiteral("SELECT * FROM tbl_Computer_List WHERE MainKey = 99"), l.connection(), db::adOpenStatic, db::adLockOptimistic);
    c.AddNew();
    c.Fields(u"MainKey") = Variant(9);
    c.Fields(u"Leasing_StartDate") = Variant(QStringLiteral("2006-1-2"));
    c.Update();
    EXPECT_EQ(c.Fields(u"Deleted_Flug").Value(), Variant::Integer(0)) << "the column default is read back";
    EXPECT_EQ(vb::CStr(c.Fields(u"Leasing_StartDate")), QStringLiteral("2006/01/02"));

    c.Delete();
    EXPECT_EQ(l.value(QStringLiteral("SELECT count(*) FROM tbl_Computer_List WHERE MainKey = 9")), QStringLiteral("0"));
    EXPECT_EQ(c.RecordCount(), 0);
}

} // namespace
