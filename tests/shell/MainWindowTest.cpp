#include "ShellFixture.h"

#include "masters/frm_Edit_Table.h"
#include "shell/frmAbout.h"

#include "platform/ui/Dispatch.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/StatusBar.h"
#include "platform/ui/Twips.h"

#include "support/TempLedger.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace {

class MainWindow : public ShellFixture {
protected:
    void SetUp() override
    {
        ShellFixture::SetUp();
        ledger.closeConnection();
    }
    frm_Main& start() { return ShellFixture::start(ledger.folder()); }
    QAction* action(frm_Main& m, const char* name) { return m.findChild<QAction*>(QString::fromUtf8(name)); }

    TempLedger ledger;
    TempDir noLedger;
};

struct Item {
    const char* name;
    const char* caption;   // "-" for a separator
    const char* shortcut;
};

// caption, then padding: the menu bar's captions are widened with ideographic blanks
QString padded(const char* caption, int blanks) { return QString::fromUtf8(caption) + QString(blanks, QChar(0x3000)); }

TEST_F(MainWindow, MenuTreeHasTheSystemsCaptionsShortcutsAndOrder)
{
    frm_Main& m = start();
    const struct {
        const char* name;
        QString title;
        std::vector<Item> items;
    } menus[] = {
        {"Mnu_Files", padded("ファイル", 7),
         {{"Mnu_Read_Sondex", "Sondexデータ読込", "Ctrl+O"}, {"sepalate01", "-", ""}, {"Mnu_View_INPORT", "インポート", ""},
          {"Mnu_View_EXPORT", "エクスポート", ""}, {"sepalate02", "-", ""}, {"Mnu_Program_Quit", "終了する", "Ctrl+Q"}}},
        {"Mnu_Edit", padded("編集", 8),
         {{"Mnu_AddNew", "新規作成      ", "Ctrl+N"}, {"sepalate04", "-", ""}, {"Mnu_Search", "検索", "Ctrl+F"},
          {"sepalate05", "-", ""}, {"Mnu_Delete", "削除", ""}, {"Mnu_ReplacePC", "廃棄登録", ""}}},
        {"Mnu_Managements", padded("管理", 9),
         {{"Mnu_Edit_Users", "ユーザ", ""}, {"Mnu_Edit_Table_1", "部署", ""}, {"Mnu_Edit_Table_2", "課", ""},
          {"Mnu_Edit_Table_3", "設置場所", ""}, {"Mnu_Edit_Table_4", "メーカー", ""}, {"Mnu_Edit_Table_5", "モデル", ""},
          {"separator07", "-", ""}, {"Mnu_Edit_profile", "PCのプロファイル", ""}, {"Mnu_Edit_License", "ライセンス", ""},
          {"Mnu_Mail_Manegement", "メールアドレス", ""}, {"Mnu_Network_Manegement", "ネットワーク", ""},
          {"sepalate03", "-", ""}, {"View_ApplicationList", "アプリケーション一覧", ""}, {"Mnu_PrinterList", "プリンタ一覧", ""}}},
        {"Mnu_View", padded("表示", 9),
         {{"Mnu_About", "アバウト", ""}, {"sepalate06", "-", ""}, {"Mnu_ViewUpdate", "画面更新", ""},
          {"Mnu_View_Select", "表示条件変更", ""}}},
    };
    QStringList bar;
    for (QAction* a : m.MenuBar->actions())
        bar << a->text();
    ASSERT_EQ(bar.size(), 4);
    for (size_t i = 0; i < 4; ++i) {
        const auto& want = menus[i];
        EXPECT_EQ(bar[qsizetype(i)], want.title) << want.name;
        const QMenu* menu = m.findChild<QMenu*>(QString::fromUtf8(want.name));
        ASSERT_NE(menu, nullptr) << want.name;
        EXPECT_EQ(menu->title(), want.title);
        const QList<QAction*> got = menu->actions();
        ASSERT_EQ(size_t(got.size()), want.items.size()) << want.name;
        for (size_t k = 0; k < want.items.size(); ++k) {
            const Item& item = want.items[k];
            const QAction* a = got[qsizetype(k)];
            EXPECT_EQ(a->objectName(), QString::fromUtf8(item.name));
            if (QString::fromUtf8(item.caption) == QLatin1String("-")) {
                EXPECT_TRUE(a->isSeparator()) << item.name;
                continue;
            }
            EXPECT_EQ(a->text(), QString::fromUtf8(item.caption)) << item.name;
            EXPECT_EQ(a->shortcut(), QKeySequence(QString::fromUtf8(item.shortcut))) << item.name;
        }
    }
    EXPECT_EQ(m.windowTitle(), QStringLiteral("Fenwold"));
    EXPECT_FALSE(m.windowIcon().isNull());
    EXPECT_EQ(m.MSFlexGrid_Main->objectName(), QStringLiteral("MSFlexGrid_Main"));
    EXPECT_EQ(m.StatusBar1->objectName(), QStringLiteral("StatusBar1"));
    EXPECT_EQ(QFontInfo(m.MSFlexGrid_Main->font()).family(), QStringLiteral("IPAGothic"));
    EXPECT_EQ(QFontInfo(m.StatusBar1->font()).family(), QStringLiteral("IPAGothic"));
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(MainWindow, ProfileDeleteAndRetireFollowTheSelection)
{
    frm_Main& m = start();
    MainList& list = *m.List();
    QStringList on, off;
    for (QAction* a : m.findChildren<QAction*>())
        if (!a->isSeparator() && !a->menu())
            (a->isEnabled() ? on : off) << a->objectName();
    off.sort();
    EXPECT_EQ(off, (QStringList{QStringLiteral("Mnu_Delete"), QStringLiteral("Mnu_Edit_profile"), QStringLiteral("Mnu_ReplacePC")}));
    EXPECT_EQ(on.size(), 20);
    EXPECT_EQ(list.CurrentMainKey, 0);

    // what the list's click enables reaches these menu items
    for (auto item : {MainList::Mnu_Edit_profile, MainList::Mnu_Delete, MainList::Mnu_ReplacePC, MainList::Mnu_View_Select})
        list.SetMenuEnabled(item, true);
    EXPECT_TRUE(m.Mnu_Edit_profile->isEnabled());
    EXPECT_TRUE(m.Mnu_Delete->isEnabled());
    EXPECT_TRUE(m.Mnu_ReplacePC->isEnabled());
    list.SetMenuEnabled(MainList::Mnu_Delete, false);
    EXPECT_FALSE(m.Mnu_Delete->isEnabled());

    // without a selection the profile does not open
    list.CurrentRow = 4;
    m.Mnu_Edit_profile->trigger();
    EXPECT_EQ(window(QStringLiteral("frm_Edit_Computer")), nullptr);
    EXPECT_EQ(Mdl_gData::g.SelectedMainKey, 0);
    EXPECT_EQ(Mdl_gData::g.SelectedGridRow, 4);
    EXPECT_TRUE(m.Mnu_Edit_profile->isEnabled());

    // with one it opens beside the main window and the item goes off
    list.CurrentMainKey = 12;
    list.CurrentRow = 3;
    m.Mnu_Edit_profile->trigger();
    ui::Form* profile = window(QStringLiteral("frm_Edit_Computer"));
    ASSERT_NE(profile, nullptr);
    EXPECT_EQ(profile->windowModality(), Qt::NonModal);
    EXPECT_EQ(Mdl_gData::g.SelectedMainKey, 12);
    EXPECT_EQ(Mdl_gData::g.SelectedGridRow, 3);
    EXPECT_FALSE(m.Mnu_Edit_profile->isEnabled());

    // the double-click takes the same steps, on the same window
    m.Mnu_Edit_profile->setEnabled(true);
    list.CurrentMainKey = 15;
    list.CurrentRow = 5;
    Q_EMIT m.MSFlexGrid_Main->DblClick();
    EXPECT_EQ(window(QStringLiteral("frm_Edit_Computer")), profile);
    EXPECT_EQ(Mdl_gData::g.SelectedMainKey, 15);
    EXPECT_EQ(Mdl_gData::g.SelectedGridRow, 5);
    EXPECT_FALSE(m.Mnu_Edit_profile->isEnabled());
}

TEST_F(MainWindow, ClickOnAListedComputerEnablesItsCommandsAndDoubleClickOpensIt)
{
    ledger.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, Model_Code, "
                               "Deleted_Flug) VALUES (5, 0, 0, 0, 0, 0)"));
    ledger.exec(QStringLiteral("INSERT INTO tbl_Pclist (MainKey, Computer_Name) VALUES (5, 'PC-SOUMU-05')"));
    ledger.dir().write(QStringLiteral("DB.ini"), "[0]\r\nMSFlexGrit_SelectNum=1\r\nMSFlexGrit_Select1=8\r\n");
    ledger.closeConnection();
    frm_Main& m = start();
    m.Show();
    QCoreApplication::processEvents();
    ui::FlexGrid& grid = *m.MSFlexGrid_Main;
    ASSERT_EQ(grid.Rows(), 2);
    ASSERT_EQ(grid.TextMatrix(1, 2), QStringLiteral("PC-SOUMU-05"));
    EXPECT_FALSE(m.Mnu_Delete->isEnabled());

    const QRect cell = grid.CellRect(1, 2);
    ASSERT_FALSE(cell.isEmpty());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(m.List()->CurrentMainKey, 5);
    EXPECT_TRUE(m.Mnu_Edit_profile->isEnabled());
    EXPECT_TRUE(m.Mnu_Delete->isEnabled());
    EXPECT_TRUE(m.Mnu_ReplacePC->isEnabled());
    EXPECT_TRUE(m.Mnu_View_Select->isEnabled());

    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
    ASSERT_NE(window(QStringLiteral("frm_Edit_Computer")), nullptr);
    EXPECT_EQ(Mdl_gData::g.SelectedMainKey, 5);
    EXPECT_EQ(Mdl_gData::g.SelectedGridRow, 1);
    EXPECT_FALSE(m.Mnu_Edit_profile->isEnabled());
    EXPECT_TRUE(m.Mnu_Delete->isEnabled());
    // the profile reports the CPU flags this computer never had read (Null) as it loads them
    ASSERT_EQ(dialogs.messages().size(), 1u);
    EXPECT_EQ(dialogs.messages()[0].title, QStringLiteral("警告"));
    EXPECT_TRUE(dialogs.messages()[0].prompt.contains(QStringLiteral("（エラーコード：94）")));
}

TEST_F(MainWindow, AboutBoxIsModalAndClosesWithOk)
{
    frm_Main& m = start();
    m.Mnu_About->trigger();
    auto* about = qobject_cast<frmAbout*>(window(QStringLiteral("frmAbout")));
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(about->lblTitle->text(), QStringLiteral("Fenwold"));
    EXPECT_EQ(about->lblVersion->text(), QStringLiteral("バージョン ") + QStringLiteral(FENWOLD_VERSION));
    EXPECT_TRUE(about->lblLink->text().contains(QStringLiteral("<a href=\"file://")));
    EXPECT_TRUE(about->findChildren<QPushButton*>().size() == 1) << "OK only, no system information";
    QPointer<frmAbout> gone(about);
    about->cmdOK->click();
    flushDeletes();
    EXPECT_TRUE(gone.isNull());
    EXPECT_TRUE(m.IsLoaded());
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(MainWindow, MenusOpenTheirWindowsWithTheirModality)
{
    // Without the ledger the geometry globals stay 0 at load, so the step that fills them shows.
    frm_Main& m = ShellFixture::start(noLedger.path());
    const struct {
        const char* item;
        const char* window;
        bool modal;
        bool keepsGeometry;
    } cases[] = {
        {"Mnu_Read_Sondex", "frm_Open", true, false},
        {"Mnu_View_INPORT", "frm_Inport", false, true},
        {"Mnu_Edit_Users", "frm_Edit_User", true, true},
        {"Mnu_Edit_License", "frm_Edit_License", false, true},
        {"Mnu_Mail_Manegement", "frm_Edit_Mail", true, true},
        {"Mnu_Network_Manegement", "frm_Edit_Network", false, true},
        {"View_ApplicationList", "frm_List_Application", false, false},
        {"Mnu_PrinterList", "frm_List_Printer", false, true},
        {"Mnu_View_Select", "frm_SelectView", true, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.item);
        Mdl_gData::g.MainFormWidth = Mdl_gData::g.MainFormHeight = Mdl_gData::g.MainFormTop = Mdl_gData::g.MainFormLeft = 0;
        action(m, c.item)->trigger();
        ui::Form* w = window(QString::fromUtf8(c.window));
        ASSERT_NE(w, nullptr);
        EXPECT_EQ(w->windowModality(), c.modal ? Qt::ApplicationModal : Qt::NonModal);
        if (c.keepsGeometry) {
            EXPECT_EQ(Mdl_gData::g.MainFormWidth, m.Width());
            EXPECT_EQ(Mdl_gData::g.MainFormHeight, m.Height());
            EXPECT_EQ(Mdl_gData::g.MainFormTop, m.Top());
            EXPECT_EQ(Mdl_gData::g.MainFormLeft, m.Left());
        } else {
            EXPECT_EQ(Mdl_gData::g.MainFormWidth, 0);
            EXPECT_EQ(Mdl_gData::g.MainFormTop, 0);
        }
        w->Unload();
    }

    // The code table editor is told which table to edit. Without a ledger its load fails with no
    // handler, which ends the run.
    action(m, "Mnu_Edit_Table_3")->trigger();
    EXPECT_EQ(Mdl_gData::g.CurrentTableCaption, QStringLiteral("設置場所"));
    EXPECT_EQ(Mdl_gData::g.CurrentTableName, QStringLiteral("tbl_Location"));
    EXPECT_EQ(Mdl_gData::g.CurrentTableIndex, 3);
    EXPECT_EQ(ended, std::vector<int>{ui::FatalExitStatus});
    EXPECT_EQ(frm_Edit_Table::IfLoaded(), nullptr);
    action(m, "Mnu_Edit_Table_1")->trigger();
    EXPECT_EQ(Mdl_gData::g.CurrentTableCaption, QStringLiteral("部")) << "the descriptor's caption, not the menu's";
    EXPECT_EQ(Mdl_gData::g.CurrentTableName, QStringLiteral("tbl_Section"));
}

TEST_F(MainWindow, GridFollowsTheWindowAndFocusLossKeepsThePlace)
{
    frm_Main& m = start();
    m.Show();
    QCoreApplication::processEvents();
    ui::FlexGrid& grid = *m.MSFlexGrid_Main;
    m.SetWidth(12000);
    m.SetHeight(9000);
    EXPECT_EQ(grid.width(), ui::TwipsToPixels(m.Width() - 500));
    EXPECT_EQ(grid.height(), ui::TwipsToPixels(m.Height() - 1050));
    EXPECT_LE(grid.geometry().bottom(), m.StatusBar1->mapTo(&m, QPoint(0, 0)).y()) << "the grid ends above the status bar";

    // below 500 by 1050 twips the grid keeps its last size
    const QSize last = grid.size();
    m.SetWidth(450);
    m.SetHeight(1000);
    EXPECT_EQ(grid.size(), last);

    m.SetLeft(3000);
    m.SetTop(1500);
    QEvent deactivate(QEvent::WindowDeactivate);
    QApplication::sendEvent(&m, &deactivate);
    EXPECT_EQ(Mdl_gData::g.MainFormLeft, m.Left());
    EXPECT_EQ(Mdl_gData::g.MainFormTop, m.Top());
    EXPECT_EQ(Mdl_gData::g.MainFormLeft, ui::PixelsToTwips(ui::TwipsToPixels(3000)));
}

} // namespace
