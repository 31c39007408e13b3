// The mail register driven as a user drives it: clicks on the grid, picks in the combos, typed
// boxes, the menu commands; the grid and the ledger rows checked after each.
#include "MailFixture.h"

#include "platform/ui/Twips.h"

#include <QAction>
#include <QLineEdit>
#include <QRegularExpression>

namespace {

class MailTest : public MailFixture {
protected:
    QStringList account(int key)
    {
        return ledger.rows(QStringLiteral("SELECT User_Code, Conputer_Code, beat_loginID, beat_loginPassward, Mail_Address "
                                          "FROM tbl_Mail_Management WHERE \"Key\" = %1")
                               .arg(key));
    }
    static QColor gray() { return ui::QBColor(8); }
};

TEST_F(MailTest, TheGridListsTheAccountsWhoseUserAndComputerExistByAddress)
{
    fillLedger();
    frm_Edit_Mail& w = open();
    const ui::FlexGrid& grid = *w.MSFlexGrid_Mail;
    ASSERT_EQ(grid.Rows(), 5);
    // column 0 is a running number, the key hides in column 1; the retired computer stays (the
    // texts of the rows are those the full export writes, compared with tests/data/mail/full.csv)
    EXPECT_EQ(cells(grid, 0).replaceInStrings(QRegularExpression(QStringLiteral("^(\\d\\|\\d).*")), QStringLiteral("\\1")),
              (QStringList{"1|5", "2|1", "3|2", "4|0"}));

    // retired masters are gray: row 1 keeps them, as the window paints its selection before the fill
    std::vector<std::pair<int, int>> grays;
    for (int r = 1; r < grid.Rows(); ++r)
        for (int c = 1; c < grid.Cols(); ++c)
            if (grid.CellBackColorAt(r, c) == gray())
                grays.emplace_back(r, c);
    EXPECT_EQ(grays, (std::vector<std::pair<int, int>>{{1, 12}, {1, 13}, {2, 13}, {3, 3}}));
    EXPECT_FALSE(w.Mnu_Update->isEnabled());
    EXPECT_FALSE(w.Mnu_Delete->isEnabled());

    // a click fills the boxes and shows user and computer in their combos, with empty key boxes
    click(*w.MSFlexGrid_Mail, 4, 5);
    QStringList boxes;
    for (QLineEdit* b : w.tbx_tbl_Mail)
        boxes << b->text();
    EXPECT_EQ(boxes, (QStringList{"yamada01", "yamada,t", "yt2004", "yamada@example.jp", "smtp.example.jp", "pop.example.jp", "yamada",
                                  "mb-7731"}));
    EXPECT_EQ(w.cmb_User->currentText(), QStringLiteral("山田 太郎"));
    EXPECT_EQ(w.cmb_Computer->currentText(), QStringLiteral("PC-SOUMU-01"));
    EXPECT_TRUE(w.tbx_User->text().isEmpty());
    EXPECT_TRUE(w.tbx_Computer->text().isEmpty());
    EXPECT_EQ(grid.CellBackColorAt(4, 1), gray());
    EXPECT_EQ(grid.CellBackColorAt(1, 12), ui::QBColor(15)) << "the first row was painted white";
    EXPECT_TRUE(w.Mnu_Update->isEnabled());
    EXPECT_TRUE(w.Mnu_Delete->isEnabled());
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(MailTest, UpdateKeepsUserAndComputerUnlessPickedAndDeleteAsksFirst)
{
    fillLedger();
    frm_Edit_Mail& w = open();

    // without a pick the user and computer stay, though the combos show their names; an emptied
    // box is written empty
    click(*w.MSFlexGrid_Mail, 4, 2);
    w.tbx_tbl_Mail[2]->clear();
    w.tbx_tbl_Mail[3]->setText(QStringLiteral("yamada.t@example.jp"));
    w.Mnu_Update->trigger();
    EXPECT_EQ(account(0), QStringList{"1|1|yamada01||yamada.t@example.jp"});
    EXPECT_TRUE(w.tbx_tbl_Mail[0]->text().isEmpty()) << "the entry is cleared";
    EXPECT_FALSE(w.Mnu_Update->isEnabled());

    // the lists offer users in use (each with a blank behind) and computers not retired
    click(*w.MSFlexGrid_Mail, 4, 2);
    pick(*w.cmb_User, QStringLiteral("佐藤 花子 "));
    EXPECT_EQ(entries(*w.cmb_User), (QStringList{"山田 太郎 ", "佐藤 花子 ", "鈴木 一郎 "}));
    pick(*w.cmb_Computer, QStringLiteral("SALES-PC07 大阪支店"));
    EXPECT_EQ(entries(*w.cmb_Computer), (QStringList{"PC-SOUMU-01 本社3F", "SALES-PC07 大阪支店"}));
    EXPECT_EQ(w.tbx_User->text(), QStringLiteral("2"));
    w.Mnu_Update->trigger();
    EXPECT_EQ(account(0), QStringList{"2|2|yamada01||yamada.t@example.jp"});
    EXPECT_EQ(w.MSFlexGrid_Mail->TextMatrix(4, 12), QStringLiteral("大阪支店"));

    // delete: No keeps the account, Yes removes its row
    click(*w.MSFlexGrid_Mail, 2, 2);
    dialogs.answerMessage(ui::vbNo);
    w.Mnu_Delete->trigger();
    EXPECT_EQ(account(1).size(), 1);
    dialogs.answerMessage(ui::vbYes);
    w.Mnu_Delete->trigger();
    EXPECT_TRUE(account(1).isEmpty());
    EXPECT_EQ(w.MSFlexGrid_Mail->Rows(), 4);
    ASSERT_EQ(dialogs.messages().size(), 2u);
    EXPECT_FALSE(w.Mnu_Delete->isEnabled());
}

// A new account holds user 0 and computer 0: the first key of an empty register is 0, and the
// account shows only where the ledger has a computer 0.
TEST_F(MailTest, NewAccountsStartAtKeyZeroAndShowOnlyWithComputerZero)
{
    ledger.exec(QStringLiteral("DELETE FROM tbl_Computer_List WHERE MainKey = 0"));
    frm_Edit_Mail& w = open();
    EXPECT_EQ(w.MSFlexGrid_Mail->Rows(), 0);
    w.tbx_tbl_Mail[0]->setText(QStringLiteral("typed"));
    w.Mnu_AddRecord->trigger();
    EXPECT_EQ(account(0), QStringList{"0|0|NULL|NULL|NULL"}) << "nothing typed is used";
    EXPECT_EQ(w.MSFlexGrid_Mail->Rows(), 0);
    EXPECT_EQ(w.tbx_tbl_Mail[0]->text(), QStringLiteral("typed"));

    ledger.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, "
                               "Model_Code, Deleted_Flug) VALUES (0, 0, 0, 0, 0, 0)"));
    w.Mnu_AddRecord->trigger();
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT \"Key\" FROM tbl_Mail_Management")), (QStringList{"0", "1"}));
    EXPECT_EQ(cells(*w.MSFlexGrid_Mail, 0).size(), 2);
}

TEST_F(MailTest, TheLocationComboFiltersTheGridAndItsBlankLiftsTheFilter)
{
    fillLedger();
    frm_Edit_Mail& w = open();
    click(*w.MSFlexGrid_Mail, 3, 2);
    pick(*w.cmb_Location, QStringLiteral("本社3F"));
    EXPECT_EQ(entries(*w.cmb_Location), (QStringList{" ", "", "本社3F", "大阪支店"})) << "the retired location is not offered";
    EXPECT_EQ(w.tbx_Location->text(), QStringLiteral("1"));
    EXPECT_EQ(cells(*w.MSFlexGrid_Mail, 1).replaceInStrings(QRegularExpression(QStringLiteral("\\|.*")), QString()),
              (QStringList{"2", "0"}));
    EXPECT_EQ(w.List().SelectedRow, 0);
    // an add keeps the filter
    w.Mnu_AddRecord->trigger();
    EXPECT_EQ(w.MSFlexGrid_Mail->Rows(), 3);
    pick(*w.cmb_Location, QStringLiteral(" "));
    EXPECT_EQ(w.MSFlexGrid_Mail->Rows(), 6);
}

} // namespace
