// The code table editor and the user register, driven as a user drives them: clicks on the grid,
// typed fields, the menu commands; the ledger rows and the grid checked after each.
#include "masters/frm_Edit_Table.h"
#include "masters/frm_Edit_User.h"

#include "assetlist/MainList.h"
#include "foundation/mdl_ini.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/ui/Twips.h"

#include "support/WindowTest.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>

namespace {

class Masters : public WindowTest {
protected:
    frm_Edit_Table& openTable(const QString& table, const QString& caption)
    {
        Mdl_gData::g.CurrentTableName = table;
        Mdl_gData::g.CurrentTableCaption = caption;
        frm_Edit_Table::Instance().Show(ui::vbModal);
        return frm_Edit_Table::Instance();
    }
    // Deletes the first row the code table editor shows, answering Yes.
    void deleteFirstRow(const QString& table)
    {
        frm_Edit_Table& w = openTable(table, QStringLiteral("-"));
        click(*w.MSFlexGrid_Edit, 1);
        dialogs.answerMessage(ui::vbYes);
        w.Mnu_Delete->trigger();
        w.Mue_Close->trigger();
    }
};

// Each of the five tables through add, update, clear and soft delete: the editor knows them only
// by their field names.
TEST_F(Masters, TheCodeTableEditorAddsUpdatesAndSoftDeletesInEachOfTheFiveTables)
{
    const std::vector<std::pair<QString, QString>> tables = {{"tbl_Section", "部"},
                                                             {"tbl_Division", "課"},
                                                             {"tbl_Location", "設置場所"},
                                                             {"tbl_Manufacturer", "メーカー"},
                                                             {"tbl_Model", "型番"}};
    for (const auto& [table, caption] : tables) {
        SCOPED_TRACE(table.toStdString());
        frm_Edit_Table& w = openTable(table, caption);
        EXPECT_EQ(w.MSFlexGrid_Edit->Rows(), 1) << "row 0 is never shown";
        EXPECT_FALSE(w.Mnu_Update->isEnabled());

        // two adds: consecutive codes, only the code and the flag
        w.Mnu_Add->trigger();
        w.Mnu_Add->trigger();
        EXPECT_EQ(cells(*w.MSFlexGrid_Edit), (QStringList{"1|||0", "2|||0"}));

        click(*w.MSFlexGrid_Edit, 2);
        EXPECT_EQ(w.tbxEdit[0]->text(), QStringLiteral("2"));
        EXPECT_EQ(w.MSFlexGrid_Edit->CellBackColorAt(2, 1), ui::QBColor(8));
        w.tbxEdit[1]->setText(QStringLiteral("本社"));
        w.tbxEdit[2]->setText(QStringLiteral("東京"));
        w.Mnu_Update->trigger();
        EXPECT_FALSE(w.Mnu_Update->isEnabled());
        EXPECT_EQ(ledger.rows(QStringLiteral("SELECT * FROM %1 WHERE rowid > 1 ORDER BY 1").arg(table)),
                  (QStringList{"1|NULL|NULL|0", "2|本社|東京|0"}));

        // a cleared comment is stored as an empty text
        click(*w.MSFlexGrid_Edit, 2);
        w.tbxEdit[2]->clear();
        w.Mnu_Update->trigger();
        EXPECT_EQ(
            ledger.value(QStringLiteral("SELECT quote(%1) FROM %2 WHERE rowid = 3")
                             .arg(ledger.rows(QStringLiteral("SELECT name FROM pragma_table_info('%1')").arg(table)).value(2), table)),
            QStringLiteral("''"));

        // No keeps the row; Yes flags it and it leaves the window
        click(*w.MSFlexGrid_Edit, 1);
        dialogs.answerMessage(ui::vbNo);
        w.Mnu_Delete->trigger();
        dialogs.answerMessage(ui::vbYes);
        w.Mnu_Delete->trigger();
        EXPECT_EQ(cells(*w.MSFlexGrid_Edit), QStringList{"2|本社||0"});
        EXPECT_EQ(ledger.rows(QStringLiteral("SELECT * FROM %1 WHERE rowid > 1 ORDER BY 1").arg(table)),
                  (QStringList{"1|NULL|NULL|1", "2|本社||0"}));
        ASSERT_EQ(dialogs.messages().size(), 2u);
        dialogs.clear();

        w.Mue_Close->trigger();
        EXPECT_TRUE(Mdl_gData::g.CurrentTableName.isEmpty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(Masters, TheFirstAddOnAnEmptyTableWritesTheReservedCodeZeroAndShowsNothing)
{
    ledger.exec(QStringLiteral("DELETE FROM tbl_Model"));
    frm_Edit_Table& w = openTable(QStringLiteral("tbl_Model"), QStringLiteral("型番"));
    w.Mnu_Add->trigger();
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT Model_Code, Available_flug FROM tbl_Model")), QStringList{"0|0"});
    EXPECT_EQ(w.MSFlexGrid_Edit->Rows(), 1);
    w.Mnu_Add->trigger();
    EXPECT_EQ(cells(*w.MSFlexGrid_Edit), QStringList{"1|||0"});
}

TEST_F(Masters, NoCodeFollows32767AndAWiderCodeOverflowsWhereItIsRead)
{
    // the increment overflows in the command, which has no handler: the run ends, nothing written
    ledger.exec(QStringLiteral("INSERT INTO tbl_Location VALUES (32767, '倉庫', '', '0')"));
    frm_Edit_Table& w = openTable(QStringLiteral("tbl_Location"), QStringLiteral("設置場所"));
    w.Mnu_Add->trigger();
    EXPECT_EQ(fatalEnd(), QStringLiteral("6"));
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT count(*) FROM tbl_Location")), QStringLiteral("2"));
    w.Mue_Close->trigger();
    flushDeletes();

    // A table whose codes are wider than 16 bits: MaxOfFirstColumn shows the overflow and answers
    // 0, so the new row takes code 1.
    dialogs.clear();
    ledger.exec(QStringLiteral("CREATE TABLE tbl_Wide (Wide_Code INTEGER PRIMARY KEY, Wide_Name TEXT, Wide_Comment TEXT, "
                               "Available_flug TEXT)"));
    ledger.exec(QStringLiteral("INSERT INTO tbl_Wide VALUES (40000, '本館', '', '0')"));
    frm_Edit_Table& wide = openTable(QStringLiteral("tbl_Wide"), QStringLiteral("広域"));
    wide.Mnu_Add->trigger();
    EXPECT_EQ(dialogs.errorBoxes(), std::vector<long>{6});
    EXPECT_EQ(cells(*wide.MSFlexGrid_Edit), (QStringList{"1|||0", "40000|本館||0"}));
}

// A soft-deleted master shows gray in the main list wherever a computer uses it, whichever window
// deleted it; the unset entries of code 0 stay white.
TEST_F(Masters, SoftDeletedMastersShowGrayInTheMainList)
{
    for (const char* table : {"tbl_Location", "tbl_Section", "tbl_Division", "tbl_Manufacturer", "tbl_Model"})
        ledger.master(QLatin1String(table), 1, QStringLiteral("一"));
    ledger.user(1, QStringLiteral("山田"), QStringLiteral("0"), 1, 1);
    for (int key = 1; key <= 3; ++key) {
        const int code = key == 1 ? 0 : 1;
        ledger.computer(key, 0, code, QStringLiteral("Computer_Name = 'PC%1'").arg(key),
                        QStringLiteral("Location_Code = %1, Manufacturer_Code = %1, Model_Code = %1").arg(code));
    }
    for (const char* table : {"tbl_Location", "tbl_Section", "tbl_Division", "tbl_Manufacturer", "tbl_Model"})
        deleteFirstRow(QLatin1String(table));
    frm_Edit_User& users = frm_Edit_User::Instance();
    users.Show(ui::vbModal);
    click(*users.MSFlexGrid_Edit, 2);
    dialogs.answerMessage(ui::vbYes);
    users.Mnu_delete->trigger();
    users.Mnu_Close->trigger();

    // view 0: location, section, division, user, maker, model
    const int columns[] = {1, 2, 3, 4, 13, 14};
    mdl_ini::IniWrite(QStringLiteral("0"), QStringLiteral("MSFlexGrit_SelectNum"), QString::number(std::size(columns)));
    for (size_t i = 0; i < std::size(columns); ++i)
        mdl_ini::IniWrite(QStringLiteral("0"), QStringLiteral("MSFlexGrit_Select%1").arg(i + 1), QString::number(columns[i]));
    ui::FlexGrid grid;
    MainList list(grid);
    ASSERT_EQ(list.ShowView(), ui::FillResult::Rows);
    list.MSFlexGrid_Main_ini();
    ASSERT_EQ(grid.Rows(), 4);
    for (int c = 2; c < grid.Cols(); ++c) {
        EXPECT_EQ(grid.TextMatrix(3, c), c == 5 ? QStringLiteral("山田") : QStringLiteral("一")) << c;
        EXPECT_EQ(grid.CellBackColorAt(1, c), ui::QBColor(15)) << "computer 1 on the entries of code 0, column " << c;
        EXPECT_EQ(grid.CellBackColorAt(2, c), ui::QBColor(8)) << "computer 2, column " << c;
        EXPECT_EQ(grid.CellBackColorAt(3, c), ui::QBColor(8)) << "computer 3, column " << c;
    }
}

TEST_F(Masters, TheUserRegisterAddsWithTheReservedSectionAndStoresABlankForAnEmptyField)
{
    ledger.exec(QStringLiteral("INSERT INTO tbl_Section VALUES (1, '総務部', '', '0'), (2, '営業部', '', '0')"));
    ledger.exec(QStringLiteral("INSERT INTO tbl_Division VALUES (1, '庶務課', '', '0')"));
    frm_Edit_User& w = frm_Edit_User::Instance();
    w.Show(ui::vbModal);
    EXPECT_EQ(cells(*w.MSFlexGrid_Edit), QStringList{"0|0||||||||"}) << "user 0 is listed like any other";
    EXPECT_FALSE(w.Mnu_Add->isEnabled());

    // an update with no row chosen does nothing
    w.Mnu_Update_Click();
    w.Mnu_Add_Click();
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT User_Code, Available_flug, Section_Code, Division_Code FROM tbl_User")),
              (QStringList{"0|0|0|0", "1|0|0|0"}));

    click(*w.MSFlexGrid_Edit, 2);
    EXPECT_EQ(w.lbr_Key->text(), QStringLiteral("1"));
    // the section list carries a blank behind each name, the division list does not
    w.cmb_Section->showPopup();
    w.cmb_Section->hidePopup();
    EXPECT_EQ(w.cmb_Section->itemText(2), QStringLiteral("営業部 "));
    w.cmb_Section->setCurrentIndex(2);
    w.cmb_Section_Click();
    w.cmb_Division->showPopup();
    w.cmb_Division->hidePopup();
    EXPECT_EQ(w.cmb_Division->itemText(1), QStringLiteral("庶務課"));
    w.cmb_Division->setCurrentIndex(1);
    w.cmb_Division_Click();
    EXPECT_EQ(w.tbx_Section_Code->text(), QStringLiteral("2"));
    w.tbxEdit[3]->setText(QStringLiteral("山田 太郎"));
    w.tbxEdit[8]->setText(QStringLiteral("pass'word"));
    w.Mnu_Update->trigger();
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT User_Name, kana, User_Comment, logon_Password, Section_Code, Division_Code "
                                         "FROM tbl_User WHERE User_Code = 1")),
              QStringList{"山田 太郎| | |pass'word|2|1"});
    EXPECT_EQ(w.lbr_Key->text(), QStringLiteral(" "));
    EXPECT_EQ(Mdl_Access_mdb::OpenRecordsetFirstRow(QStringLiteral("SELECT kana FROM tbl_User WHERE User_Code = 1"))[0],
              QStringLiteral(" "));
}

TEST_F(Masters, ARemovedSectionLeavesItsUsersListedGrayAndADeletedUserLeaves)
{
    ledger.master(QStringLiteral("tbl_Section"), 1, QStringLiteral("総務部"));
    ledger.user(1, QStringLiteral("山田"), QStringLiteral("0"), 1);
    ledger.user(2, QStringLiteral("佐藤"), QStringLiteral("0"), 1);
    ledger.user(3, QStringLiteral("鈴木"), QStringLiteral("0"), 9);
    Mdl_gData::g.MainFormWidth = 12000;
    Mdl_gData::g.MainFormHeight = 9000;
    frm_Edit_User& w = frm_Edit_User::Instance();
    w.Show(ui::vbModal);
    EXPECT_EQ(cells(*w.MSFlexGrid_Edit, 1), (QStringList{"0||||||||", "1|総務部||山田|||||", "2|総務部||佐藤|||||"}))
        << "a user whose section has no row is not listed";

    // the section editor opened from the register
    w.Mnu_Section->trigger();
    frm_Edit_Table& sections = frm_Edit_Table::Instance();
    click(*sections.MSFlexGrid_Edit, 1);
    dialogs.answerMessage(ui::vbYes);
    sections.Mnu_Delete->trigger();
    sections.Mue_Close->trigger();

    // delete answered No: nothing written, but the list is filled again (the section now gray)
    // and 新規, off since the window opened, turns on
    EXPECT_FALSE(w.Mnu_Add->isEnabled());
    click(*w.MSFlexGrid_Edit, 2);
    dialogs.answerMessage(ui::vbNo);
    w.Mnu_delete->trigger();
    EXPECT_TRUE(w.Mnu_Add->isEnabled());
    EXPECT_EQ(w.MSFlexGrid_Edit->Rows(), 4);
    EXPECT_EQ(w.MSFlexGrid_Edit->CellBackColorAt(2, 2), ui::QBColor(8));
    EXPECT_NE(w.MSFlexGrid_Edit->CellBackColorAt(2, 4), ui::QBColor(8));
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT count(*) FROM tbl_User WHERE Available_flug = '1'")), QStringLiteral("0"));
    // the grid keeps its design height whatever the window's size
    EXPECT_NEAR(w.MSFlexGrid_Edit->Height(), 7000, 15);

    click(*w.MSFlexGrid_Edit, 3);
    dialogs.answerMessage(ui::vbYes);
    w.Mnu_delete->trigger();
    EXPECT_EQ(cells(*w.MSFlexGrid_Edit, 1), (QStringList{"0||||||||", "1|総務部||山田|||||"}));
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Available_flug FROM tbl_User WHERE User_Code = 2")), QStringLiteral("1"));
}

} // namespace
