#include "ShellFixture.h"

#include "platform/text/Cp932.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FlexGrid.h"

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
        computersNamed({1, 2});
    }
    void click(frm_Main& m, int row)
    {
        m.MSFlexGrid_Main->SetRow(row);
        Q_EMIT m.MSFlexGrid_Main->Click();
    }

    TempDir out;
};

TEST_F(ListMenus, EachCommandDisablesItsOwnItemOnly)
{
    frm_Main& m = start();
    // the export adds the extension to the name given
    dialogs.answerFile(out.file(QStringLiteral("list.csv")));
    m.Mnu_View_EXPORT->trigger();
    EXPECT_EQ(out.read(QStringLiteral("list.csv.csv")), text::ToCp932(u" ,コンピュータ名, \r\n1,PC-1, \r\n2,PC-2, \r\n"));
    dialogs.clear();

    m.Mnu_Search->trigger();
    dialogs.answerMessage(ui::vbNo);
    m.Mnu_AddNew->trigger();
    EXPECT_EQ(dialogs.calls().at(0).prompt, QStringLiteral("検索する単語を入力してください"));
    EXPECT_EQ(dialogs.calls().at(1).prompt, QStringLiteral("レコードを新規作成しますか？"));

    click(m, 2);
    ASSERT_EQ(m.List()->CurrentMainKey, 2);
    dialogs.answerInput(QStringLiteral("2006/03/31"));
    m.Mnu_ReplacePC->trigger();
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Remove_Date FROM tbl_Computer_List WHERE MainKey = 2")), QStringLiteral("2006/03/31"));
    EXPECT_FALSE(m.Mnu_ReplacePC->isEnabled());
    EXPECT_TRUE(m.Mnu_Delete->isEnabled());

    click(m, 1);
    m.Mnu_Delete->trigger();
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT count(*) FROM tbl_Pclist WHERE MainKey = 1")), QStringLiteral("0"));
    EXPECT_FALSE(m.Mnu_Delete->isEnabled());
    EXPECT_TRUE(m.Mnu_ReplacePC->isEnabled());

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
