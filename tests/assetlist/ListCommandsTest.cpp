#include "AssetListFixture.h"

#include "assetlist/ListCommands.h"

#include <utility>
#include <vector>

using namespace Mdl_gData;

namespace {

using Menus = std::vector<std::pair<MainList::MenuItem, bool>>;

class ListCommandsTest : public AssetListFixture {
protected:
    void SetUp() override
    {
        AssetListFixture::SetUp();
        list->SetMenuEnabled = [this](MainList::MenuItem item, bool on) { menus.emplace_back(item, on); };
    }

    // Selects the listed computer with this key as a click on its row does.
    void select(int key)
    {
        const qsizetype at = listedKeys().indexOf(QString::number(key));
        ASSERT_GE(at, 0) << "computer " << key << " is not listed";
        grid->SetRow(int(at) + 1);
        list->MSFlexGrid_Main_Click();
        menus.clear();
    }

    // The colours of the listed rows, "|" between rows.
    QString marks() const
    {
        QStringList rows;
        for (int row = 1; row < grid->Rows(); ++row)
            rows << colours(row);
        return rows.join(u'|');
    }

    void expectQuestion(const ScriptedDialogs::Call& call, const QString& text)
    {
        EXPECT_EQ(call.prompt, text);
        EXPECT_EQ(call.buttons, ui::vbYesNo | ui::vbQuestion);
    }
    void expectNotice(const ScriptedDialogs::Call& call, const QString& text)
    {
        EXPECT_EQ(call.prompt, text);
        EXPECT_EQ(call.buttons, ui::vbOKOnly);
    }

    Menus menus;
};

TEST_F(ListCommandsTest, NewRecordWaitsForAListThatHasFoundRows)
{
    // (an empty list, which is not ready, keeps the command silent: the delete's test; the answer
    // No: the main window's menus)
    ledger.computer(1, 0, 0, "Computer_Name = 'PC-SOUMU-01'");
    writeColumns(0, {8});
    ASSERT_TRUE(loadList());
    list->CurrentMainKey = 1;
    ListCommands::Mnu_AddNew(*list);
    ASSERT_EQ(dialogs.calls().size(), 2u);
    expectQuestion(dialogs.calls()[0], QStringLiteral("レコードを新規作成しますか？"));
    expectNotice(dialogs.calls()[1], QStringLiteral("レコードを新規作成しました"));
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT MainKey, Location_Code, User_Code, Manufacturer_Code, Model_Code, "
                                         "Deleted_Flug, Remove_Date FROM tbl_Computer_List WHERE MainKey = 2")),
              QStringList{QStringLiteral("2|0|0|0|0|0|NULL")});
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT MainKey, Computer_Name FROM tbl_Pclist WHERE MainKey = 2")),
              QStringList{QStringLiteral("2|NULL")});
    // listed on the code-0 masters, and the refreshed list has no selection
    EXPECT_EQ(listedKeys(), (QStringList{"1", "2"}));
    EXPECT_EQ(list->CurrentMainKey, 0);

    // there is no key after 32767: the overflow is shown and nothing is written
    ledger.computer(32767);
    dialogs.clear();
    ListCommands::Mnu_AddNew(*list);
    EXPECT_EQ(dialogs.errorBoxes(), std::vector<long>{6});
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_Computer_List"), QStringLiteral("1")), 4);
}

TEST_F(ListCommandsTest, DeleteRemovesTheComputerFromEveryTableAndReportsEightLines)
{
    // computer 3 with a row in every table that hangs on a computer; 5 and 8 with their two rows
    ledger.computer(3, 0, 0, "Computer_Name = 'PC-3'");
    for (const char* sql :
         {"INSERT INTO tbl_ApplicationsList (\"Key\") VALUES (3)", "INSERT INTO tbl_Device_Management (\"Key\") VALUES (3)",
          "INSERT INTO tbl_Environmental (\"Key\") VALUES (3)", "INSERT INTO tbl_Printer_Management (\"Key\") VALUES (3)",
          "INSERT INTO tbl_Mail_Management (\"Key\", Conputer_Code) VALUES (1, 3)",
          "INSERT INTO tbl_License_Dat (\"Key\", Computer_Code) VALUES (1, 3)"})
        ledger.exec(QString::fromUtf8(sql));
    ledger.computer(5, 0, 0, "Computer_Name = 'PC-5'");
    ledger.computer(8, 0, 0, "Computer_Name = 'PC-8'");
    writeColumns(0, {8});
    ASSERT_TRUE(loadList());
    const auto rowsOf3 = [this] {
        return ledger.value(QStringLiteral(
            "SELECT (SELECT count(*) FROM tbl_ApplicationsList WHERE \"Key\" = 3) + (SELECT count(*) FROM tbl_Computer_List WHERE "
            "MainKey = 3) + (SELECT count(*) FROM tbl_Device_Management WHERE \"Key\" = 3) + (SELECT count(*) FROM tbl_Environmental "
            "WHERE \"Key\" = 3) + (SELECT count(*) FROM tbl_Pclist WHERE MainKey = 3) + (SELECT count(*) FROM tbl_Printer_Management "
            "WHERE \"Key\" = 3) + (SELECT count(*) FROM tbl_Mail_Management WHERE Conputer_Code = 3) + (SELECT count(*) FROM "
            "tbl_License_Dat WHERE Computer_Code = 3)"));
    };
    ASSERT_EQ(rowsOf3(), QStringLiteral("8"));

    const QString report = QStringLiteral("アプリケーション一覧を削除しました。\r\n"
                                          "ユーザ登録一覧を削除しました。\r\n"
                                          "デバイス一覧を削除しました。\r\n"
                                          "環境変数一覧を削除しました。\r\n"
                                          "コンピュータ一覧を削除しました。\r\n"
                                          "プリンタ一覧を削除しました。\r\n"
                                          "メール一覧を削除しました。\r\n"
                                          "ライセンス一覧を削除しました。\r\n");

    // without a selection, and when the answer is No, nothing happens
    ListCommands::Mnu_Delete(*list);
    EXPECT_TRUE(dialogs.calls().empty());
    select(3);
    dialogs.answerMessage(ui::vbNo);
    ListCommands::Mnu_Delete(*list);
    ASSERT_EQ(dialogs.calls().size(), 1u);
    EXPECT_EQ(rowsOf3(), QStringLiteral("8"));

    dialogs.clear();
    select(3);
    ListCommands::Mnu_Delete(*list);
    ASSERT_EQ(dialogs.calls().size(), 2u);
    expectQuestion(dialogs.calls()[0], QStringLiteral("削除しますか？"));
    expectNotice(dialogs.calls()[1], report);
    EXPECT_EQ(rowsOf3(), QStringLiteral("0"));
    EXPECT_EQ(listedKeys(), (QStringList{"5", "8"}));
    EXPECT_EQ(list->CurrentMainKey, 0);

    // a computer with nothing hanging on it reports the same eight lines
    dialogs.clear();
    select(8);
    ListCommands::Mnu_Delete(*list);
    ASSERT_EQ(dialogs.messageTexts().size(), 2);
    EXPECT_EQ(dialogs.messageTexts()[1], report);
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_Pclist"), QStringLiteral("MainKey = 8")), 0);

    // after the last listed computer is gone the list is not ready: no new record until a fill
    // finds rows again
    select(5);
    ListCommands::Mnu_Delete(*list);
    EXPECT_EQ(grid->Rows(), 0);
    EXPECT_FALSE(list->ListReady);
    dialogs.clear();
    ListCommands::Mnu_AddNew(*list);
    EXPECT_TRUE(dialogs.calls().empty());
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_Computer_List"), QStringLiteral("1")), 1); // computer 0
}

TEST_F(ListCommandsTest, RetireTakesOnlyAWellFormedDateAndMovesTheComputerToTheRemovedView)
{
    ledger.computer(4, 0, 0, "Computer_Name = 'PC-4'");
    ledger.computer(6, 0, 0, "Computer_Name = 'PC-6'");
    ledger.exec(QStringLiteral("INSERT INTO tbl_ApplicationsList (\"Key\", Application_Name) VALUES (4, 'Editor')"));
    writeColumns(0, {8, 75});
    writeColumns(1, {8, 75});
    writeView(1, {"OptDel=1"});
    ASSERT_TRUE(loadList());
    select(4);
    const QString stored = QStringLiteral("SELECT Deleted_Flug, Remove_Date FROM tbl_Computer_List WHERE MainKey = 4");

    dialogs.answerMessage(ui::vbNo);
    ListCommands::Mnu_ReplacePC(*list);
    ASSERT_EQ(dialogs.calls().size(), 1u);
    expectQuestion(dialogs.calls()[0], QStringLiteral("撤去処理しますか？"));

    // each of these ends the command without a word and without a change
    const std::optional<QString> refused[] = {QStringLiteral("2005/13/01"), QStringLiteral("2005-12-04"), std::nullopt,
                                              QStringLiteral("2005/12/00"), QStringLiteral("2005/1/4"),   QStringLiteral("2005/12/041")};
    for (const auto& answer : refused) {
        const std::string name = answer.value_or(QStringLiteral("(cancel)")).toStdString();
        dialogs.clear();
        dialogs.answerInput(answer);
        ListCommands::Mnu_ReplacePC(*list);
        ASSERT_EQ(dialogs.calls().size(), 2u) << name;
        EXPECT_EQ(list->CurrentMainKey, 4) << name;
    }
    EXPECT_EQ(ledger.rows(stored), QStringList{QStringLiteral("0|NULL")});

    dialogs.clear();
    dialogs.answerInput(QStringLiteral("2005/12/04"));
    ListCommands::Mnu_ReplacePC(*list);
    ASSERT_EQ(dialogs.calls().size(), 2u);
    EXPECT_EQ(dialogs.calls()[1].prompt, QStringLiteral("撤去日を入力してください(例2005/12/04) "));
    EXPECT_EQ(ledger.rows(stored), QStringList{QStringLiteral("1|2005/12/04")});
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ApplicationsList"), QStringLiteral("\"Key\" = 4")), 1);
    EXPECT_EQ(listedKeys(), QStringList{"6"});
    EXPECT_EQ(list->CurrentMainKey, 0);

    // the view of removed computers lists it with its date
    g.SectionNumber = 1;
    ASSERT_TRUE(loadList());
    EXPECT_EQ(rowTexts(1), (QStringList{"1", "4", "PC-4", "2005/12/04"}));
}

TEST_F(ListCommandsTest, SearchMarksTheCellsThatBeginWithTheWord)
{
    ledger.computer(1, 0, 0, "Computer_Name = 'PC-A1', Workgroup = 'WG-PC'");
    ledger.computer(2, 0, 0, "Computer_Name = 'PC-B2', Workgroup = 'pc-lower'");
    ledger.computer(3, 0, 0, "Computer_Name = 'XPC-A', Workgroup = 'PC#9'");
    writeColumns(0, {8, 9});
    ASSERT_TRUE(loadList());
    select(2);

    // the cells of rows 1 to 3: key, name, workgroup; a search reads the list again, so row 2
    // is no longer selected
    const struct {
        const char* word;
        const char* marks;
    } cases[] = {
        {"PC-A", "WYW|WWW|WWW"},                   // not in the middle of a cell
        {"PC", "WYW|WYW|WWY"},                     // exact case
        {"[!P]", "YWY|YWY|YYW"},                   // the hidden keys too (the pattern's own rules: vb::Like's tests)
        {"pc-A", nullptr},       {"[PC", nullptr}, // an unclosed set matches nothing
    };
    for (const auto& c : cases) {
        dialogs.clear();
        dialogs.answerInput(QString::fromUtf8(c.word));
        ListCommands::Mnu_Search(*list);
        EXPECT_EQ(marks(), QString::fromUtf8(c.marks ? c.marks : "WWW|WWW|WWW")) << c.word;
        EXPECT_EQ(list->CurrentMainKey, 0) << c.word;
        ASSERT_EQ(dialogs.calls().size(), c.marks ? 1u : 2u) << c.word;
        if (!c.marks)
            expectNotice(dialogs.calls()[1], QStringLiteral("見つかりませんでした"));
    }

    // an empty answer ends the search before the list is read again: the marks stay
    dialogs.clear();
    dialogs.answerInput(QStringLiteral("PC"));
    ListCommands::Mnu_Search(*list);
    dialogs.answerInput(std::nullopt);
    ListCommands::Mnu_Search(*list);
    EXPECT_EQ(marks(), QStringLiteral("WYW|WYW|WWY"));
    EXPECT_EQ(dialogs.messageTexts().size(), 0);
    EXPECT_TRUE(menus.empty());
}

} // namespace
