#include "ShellFixture.h"

#include "masters/frm_Edit_Table.h"
#include "shell/frmAbout.h"

#include "platform/ui/Dispatch.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/StatusBar.h"
#include "platform/ui/Twips.h"

#include <QAction>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace {

class MainWindow : public ShellFixture {
protected:
    QAction* action(frm_Main& m, const char* name) { return m.findChild<QAction*>(QString::fromUtf8(name)); }
};

TEST_F(MainWindow, ClickOnAListedComputerEnablesItsCommandsAndDoubleClickOpensItsProfile)
{
    computersNamed({5});
    frm_Main& m = start();
    m.Show();
    QCoreApplication::processEvents();
    ui::FlexGrid& grid = *m.MSFlexGrid_Main;
    EXPECT_EQ(QFontInfo(grid.font()).family(), QStringLiteral("IPAGothic"));
    ASSERT_EQ(grid.TextMatrix(1, 2), QStringLiteral("PC-5"));
    for (const QAction* a : {m.Mnu_Edit_profile, m.Mnu_Delete, m.Mnu_ReplacePC})
        EXPECT_FALSE(a->isEnabled()) << a->objectName().toStdString() << " before a selection";

    // without a selection the profile does not open
    m.Mnu_Edit_profile->setEnabled(true);
    m.Mnu_Edit_profile->trigger();
    EXPECT_EQ(window(QStringLiteral("frm_Edit_Computer")), nullptr);
    EXPECT_TRUE(m.Mnu_Edit_profile->isEnabled());

    const QRect cell = grid.CellRect(1, 2);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(m.List()->CurrentMainKey, 5);
    for (const QAction* a : {m.Mnu_Edit_profile, m.Mnu_Delete, m.Mnu_ReplacePC, m.Mnu_View_Select})
        EXPECT_TRUE(a->isEnabled()) << a->objectName().toStdString();

    // it opens beside the main window, on that computer, and its item goes off
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
    ui::Form* profile = window(QStringLiteral("frm_Edit_Computer"));
    ASSERT_NE(profile, nullptr);
    EXPECT_EQ(profile->windowModality(), Qt::NonModal);
    EXPECT_EQ(Mdl_gData::g.SelectedMainKey, 5);
    EXPECT_FALSE(m.Mnu_Edit_profile->isEnabled());
    // the profile reports the CPU flags this computer never had read (Null) as it loads them
    EXPECT_EQ(dialogs.errorBoxes(), std::vector<long>{94});
}

TEST_F(MainWindow, MenusOpenTheirWindowsWithTheirModality)
{
    // Without the ledger the geometry globals stay 0 at load, so the step that fills them shows.
    frm_Main& m = start(noLedger.path());
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
            EXPECT_EQ(Mdl_gData::g.MainFormTop, m.Top());
        } else {
            EXPECT_EQ(Mdl_gData::g.MainFormWidth, 0);
        }
        w->Unload();
    }

    // The code table editor is told which table to edit. Without a ledger its load fails with no
    // handler, which ends the run.
    action(m, "Mnu_Edit_Table_3")->trigger();
    EXPECT_EQ(Mdl_gData::g.CurrentTableName, QStringLiteral("tbl_Location"));
    EXPECT_EQ(ended, std::vector<int>{ui::FatalExitStatus});
    EXPECT_EQ(frm_Edit_Table::IfLoaded(), nullptr);
    action(m, "Mnu_Edit_Table_1")->trigger();
    EXPECT_EQ(Mdl_gData::g.CurrentTableCaption, QStringLiteral("部")) << "the descriptor's caption, not the menu's";
}

TEST_F(MainWindow, GridFollowsTheWindowFocusLossKeepsThePlaceAndTheAboutBoxIsModal)
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

    m.Mnu_About->trigger();
    auto* about = qobject_cast<frmAbout*>(window(QStringLiteral("frmAbout")));
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(about->lblVersion->text(), QStringLiteral("バージョン ") + QStringLiteral(FENWOLD_VERSION));
    QPointer<frmAbout> gone(about);
    about->cmdOK->click();
    flushDeletes();
    EXPECT_TRUE(gone.isNull());
    EXPECT_TRUE(m.IsLoaded());
}

} // namespace
