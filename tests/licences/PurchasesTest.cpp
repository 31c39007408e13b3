// The register of purchases, driven as a user drives it: the menu commands, clicks on the grid,
// the two boxes; the ledger's rows and the grid checked after each.
#include "LicencesFixture.h"

#include "licences/frm_Add_License.h"
#include "licences/frm_Edit_License.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>

namespace {

class Purchases : public LicencesFixture {
protected:
    frm_Add_License& open()
    {
        frm_Add_License::Instance().Show(ui::vbModal);
        return frm_Add_License::Instance();
    }
    QStringList lines() { return ledger.rows(QStringLiteral("SELECT * FROM tbl_License_Key ORDER BY Key")); }
};

TEST_F(Purchases, AnEmptyRegisterShowsNothingAndGainsBlankLinesThatAreFilledByUpdate)
{
    frm_Add_License& w = open();
    EXPECT_EQ(w.MSFlexGrid_License->Rows(), 0) << "no heading either";
    w.Mnu_ViewList->trigger();
    EXPECT_EQ(dialogs.messageTexts(), QStringList{"レコードがありません"});

    // the typed text is not used: two blank lines with their own keys
    w.tbx_LicenseName->setText(QStringLiteral("一太郎"));
    w.Mnu_AddRecord->trigger();
    w.Mnu_AddRecord->trigger();
    EXPECT_EQ(lines(), (QStringList{"1|NULL|NULL", "2|NULL|NULL"}));
    EXPECT_EQ(cells(*w.MSFlexGrid_License), (QStringList{"1||", "2||"}));
    EXPECT_TRUE(w.tbx_LicenseName->text().isEmpty());
    EXPECT_FALSE(w.Mnu_EditRecord->isEnabled());

    click(*w.MSFlexGrid_License, 2);
    EXPECT_TRUE(w.Mnu_EditRecord->isEnabled());
    EXPECT_EQ(w.MSFlexGrid_License->CellBackColorAt(2, 0), ui::QBColor(8)) << "the key column is painted too";
    // a box left empty: nothing written, nothing said
    w.tbx_LicenseName->setText(QStringLiteral("一太郎2005"));
    w.Mnu_EditRecord->trigger();
    EXPECT_EQ(lines(), (QStringList{"1|NULL|NULL", "2|NULL|NULL"}));
    EXPECT_EQ(dialogs.messages().size(), 1u);
    w.tbx_LicenseNum->setText(QStringLiteral("25"));
    w.Mnu_EditRecord->trigger();
    EXPECT_EQ(lines(), (QStringList{"1|NULL|NULL", "2|一太郎2005|25"}));
    EXPECT_EQ(cells(*w.MSFlexGrid_License), (QStringList{"1||", "2|一太郎2005|25"})) << "the blank line sorts first";
    EXPECT_TRUE(w.tbx_LicenseNum->text().isEmpty());
    EXPECT_FALSE(w.Mnu_DeleteRecord->isEnabled());
}

TEST_F(Purchases, ADeletedLineLeavesItsAssignmentsAndOnlyTheMenuCloseRefreshesTheAssignmentWindow)
{
    purchase(1, QStringLiteral("'一太郎'"), 10);
    purchase(2, QStringLiteral("'花子'"), 3);
    computer(1, QStringLiteral("PC-01"));
    assignment(1, 1, 1);
    frm_Edit_License& assignments = frm_Edit_License::Instance();
    assignments.Show(ui::vbModeless);
    ASSERT_EQ(assignments.FGrid_EditLicense->Rows(), 2);
    assignments.Add_ApplicationName->trigger();
    frm_Add_License& w = frm_Add_License::Instance();

    click(*w.MSFlexGrid_License, 1);
    EXPECT_EQ(w.tbx_LicenseName->text(), QStringLiteral("一太郎"));
    dialogs.answerMessage(ui::vbNo);
    w.Mnu_DeleteRecord->trigger();
    EXPECT_EQ(lines().size(), 2);
    dialogs.answerMessage(ui::vbYes);
    w.Mnu_DeleteRecord->trigger();
    ASSERT_EQ(dialogs.messages().size(), 2u);
    EXPECT_EQ(lines(), QStringList{"2|花子|3"});
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT Key, Application_Code FROM tbl_License_Dat")), QStringList{"1|1"});

    // the close box leaves the assignment window's list as it was
    w.close();
    flushDeletes();
    EXPECT_EQ(assignments.List_license->count(), 2);
    assignments.Add_ApplicationName->trigger();
    frm_Add_License::Instance().Mnu_Close->trigger();
    ASSERT_EQ(assignments.List_license->count(), 1);
    EXPECT_TRUE(assignments.List_license->item(0)->text().startsWith(QStringLiteral("花子 ")));
    // the assignment drops out of the grid with its line
    assignments.View_MSFlexGrid_License_assignment_Update->trigger();
    EXPECT_EQ(assignments.FGrid_EditLicense->Rows(), 0);
}

TEST_F(Purchases, TheKeyAfter32767CannotBeMadeAndTheRunEnds)
{
    purchase(32767, QStringLiteral("'最後'"), 1);
    frm_Add_License& w = open();
    w.Mnu_AddRecord->trigger();
    EXPECT_EQ(fatalEnd(), QStringLiteral("6"));
    EXPECT_EQ(lines(), QStringList{"32767|最後|1"});
}

} // namespace
