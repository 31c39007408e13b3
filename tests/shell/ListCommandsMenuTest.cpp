#include "ShellFixture.h"

#include "platform/text/Cp932.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FlexGrid.h"

#include "support/TempLedger.h"

#include <QAction>
#include <QFile>

namespace {

// The list commands reached through the main window's menus, on a ledger with two computers
// and a view that shows their names.
class ListMenus : public ShellFixture {
protected:
    void SetUp() override
    {
        ShellFixture::SetUp();
        for (int key : {1, 2}) {
            ledger.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, "
                                       "Model_Code, Deleted_Flug) VALUES (%1, 0, 0, 0, 0, 0)")
                            .arg(key));
            ledger.exec(QStringLiteral("INSERT INTO tbl_Pclist (MainKey, Computer_Name) VALUES (%1, 'PC-%1')").arg(key));
        }
        ledger.dir().write(QStringLiteral("DB.ini"), "[0]\r\nMSFlexGrit_SelectNum=1\r\nMSFlexGrit_Select1=8\r\n");
        ledger.closeConnection();
    }
    frm_Main& start() { return ShellFixture::start(ledger.folder()); }
    void click(frm_Main& m, int row)
    {
        m.MSFlexGrid_Main->SetRow(row);
        Q_EMIT m.MSFlexGrid_Main->Click();
    }

    TempLedger ledger;
    TempDir out;
};

TEST_F(ListMenus, ExportAddsTheExtensionAndSaysItIsDone)
{
    frm_Main& m = start();
    dialogs.answerFile(out.file(QStringLiteral("list.csv")));
    m.Mnu_View_EXPORT->trigger();

    ASSERT_EQ(dialogs.calls().size(), 2u);
    EXPECT_EQ(dialogs.calls()[0].file.title, QStringLiteral("CSV書き出し"));
    EXPECT_EQ(dialogs.calls()[0].file.kind, ui::FileDialogRequest::Save);
    EXPECT_EQ(dialogs.calls()[1].prompt, QStringLiteral("完了しました"));
    EXPECT_FALSE(QFile::exists(out.file(QStringLiteral("list.csv"))));
    EXPECT_EQ(out.read(QStringLiteral("list.csv.csv")), text::ToCp932(u" ,コンピュータ名, \r\n1,PC-1, \r\n2,PC-2, \r\n"));
    EXPECT_TRUE(ended.empty());
}

TEST_F(ListMenus, EditAndViewItemsRunTheirCommandsAndSetTheMenuState)
{
    frm_Main& m = start();
    click(m, 2);
    ASSERT_EQ(m.List()->CurrentMainKey, 2);

    // retiring disables its own item only
    dialogs.answerInput(QStringLiteral("2006/03/31"));
    m.Mnu_ReplacePC->trigger();
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Remove_Date FROM tbl_Computer_List WHERE MainKey = 2")), QStringLiteral("2006/03/31"));
    EXPECT_FALSE(m.Mnu_ReplacePC->isEnabled());
    EXPECT_TRUE(m.Mnu_Delete->isEnabled());
    EXPECT_TRUE(m.Mnu_Edit_profile->isEnabled());
    EXPECT_EQ(m.MSFlexGrid_Main->Rows(), 2);

    // deleting disables its own item only
    click(m, 1);
    m.Mnu_Delete->trigger();
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT count(*) FROM tbl_Pclist WHERE MainKey = 1")), QStringLiteral("0"));
    EXPECT_FALSE(m.Mnu_Delete->isEnabled());
    EXPECT_TRUE(m.Mnu_ReplacePC->isEnabled());

    // the deleted one was the last listed: a new record waits for a fill that finds rows
    dialogs.clear();
    m.Mnu_AddNew->trigger();
    EXPECT_TRUE(dialogs.calls().empty());

    dialogs.answerInput(QStringLiteral("PC"));
    m.Mnu_Search->trigger();
    EXPECT_EQ(dialogs.messageTexts(), QStringList{QStringLiteral("見つかりませんでした")});

    m.Mnu_ViewUpdate->trigger();
    EXPECT_FALSE(m.Mnu_Edit_profile->isEnabled());
    EXPECT_FALSE(m.Mnu_Delete->isEnabled());
    EXPECT_FALSE(m.Mnu_ReplacePC->isEnabled());
    EXPECT_TRUE(ended.empty());
}

TEST_F(ListMenus, ADateTheLedgerRefusesEndsTheRun)
{
    frm_Main& m = start();
    click(m, 1);
    dialogs.answerInput(QStringLiteral("2005/02/31"));
    m.Mnu_ReplacePC->trigger();
    EXPECT_EQ(ended, std::vector<int>{ui::FatalExitStatus});
    ASSERT_FALSE(dialogs.messageTexts().isEmpty());
    EXPECT_TRUE(dialogs.messageTexts().last().startsWith(QStringLiteral("実行時エラー"))) << dialogs.messageTexts().last().toStdString();
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Deleted_Flug FROM tbl_Computer_List WHERE MainKey = 1")), QStringLiteral("0"));
}

} // namespace
