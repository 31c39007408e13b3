#include "ShellFixture.h"

#include "platform/app/InstanceLock.h"
#include "platform/db/Connection.h"
#include "platform/ui/StatusBar.h"
#include "platform/ui/Twips.h"

#include <QAction>
#include <QFile>
#include <QPointer>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Start : public ShellFixture {
protected:
    QByteArray iniBytes() const { return ledger.dir().read(QStringLiteral("DB.ini")); }
    void writeIni(const QByteArray& text) const { ledger.dir().write(QStringLiteral("DB.ini"), text); }
};

// a place in twips as it comes back from the screen, whole pixels
int onScreen(int twips) { return ui::PixelsToTwips(ui::TwipsToPixels(twips)); }

TEST_F(Start, WithoutTheLedgerTheWindowStandsEmptyAndSaysWhy)
{
    const TempDir& folder = noLedger;
    folder.write(QStringLiteral("DB.ini"),
                 "[Main]\r\nSectionNumber=2\r\nSectionName1=\x8c\x6f\x97\x9d\r\nFormSizeWidth=9000\r\nFormSizeHight=6000\r\n");
    frm_Main& m = start(folder.path());
    EXPECT_EQ(m.StatusBar1->PanelText(1),
              QStringLiteral("DBファイルが見つかりません。\r\nData Source=") + folder.path() + QStringLiteral("/pcdb.mdbを確認ください"));
    EXPECT_TRUE(ended.empty());
    EXPECT_TRUE(dialogs.calls().empty());
    // the view settings before the connection were read; nothing after it ran
    EXPECT_EQ(Mdl_gData::g.SectionNumber, 2);
    EXPECT_EQ(Mdl_gData::g.ViewNames[1], QStringLiteral("経理"));
    EXPECT_EQ(Mdl_gData::g.ColumnCount, 0);
    EXPECT_EQ(m.Width(), onScreen(14835)) << "the saved size is not applied";
    // the menus stay as designed
    EXPECT_TRUE(m.Mnu_Delete->isEnabled());
}

TEST_F(Start, SecondStartIsRefusedTheFirstGoesOnAndItsCloseBoxUnloadsEveryWindowSavingNothing)
{
    frm_Main& first = start();
    ASSERT_TRUE(first.IsLoaded());

    auto* second = new frm_Main;
    second->Load();
    ASSERT_EQ(dialogs.messages().size(), 1u);
    EXPECT_EQ(dialogs.messages()[0].prompt, QStringLiteral("既に起動済みです。"));
    EXPECT_EQ(ended, std::vector<int>{0});
    delete second;

    EXPECT_TRUE(first.IsLoaded());
    EXPECT_EQ(Mdl_gData::DbConnection().State(), db::adStateOpen);
    ASSERT_TRUE(Mdl_gData::g.StatusPanelText);
    Mdl_gData::g.StatusPanelText(QStringLiteral("接続に失敗しました"));
    EXPECT_EQ(first.StatusBar1->PanelText(1), QStringLiteral("接続に失敗しました"));
    EXPECT_FALSE(app::InstanceLock(ledger.folder()).Acquire()) << "the first still holds the folder";

    first.Show();
    first.findChild<QAction*>(QStringLiteral("Mnu_View_INPORT"))->trigger();
    ASSERT_NE(window(QStringLiteral("frm_Inport")), nullptr);
    first.SetLeft(4500);
    first.close();
    EXPECT_EQ(frm_Main::IfLoaded(), nullptr);
    EXPECT_TRUE(ui::Forms().isEmpty()) << "every window is unloaded";
    EXPECT_FALSE(QFile::exists(ledger.dir().file(QStringLiteral("DB.ini")))) << "size and place are saved by the quit command alone";
    EXPECT_EQ(Mdl_gData::DbConnection().State(), db::adStateOpen) << "and the connection is left to the end of the run";
}

TEST_F(Start, RunThatWasKilledDoesNotBlockTheNextStart)
{
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        // a running instance, killed below without a chance to clean up
        app::InstanceLock lock(ledger.folder());
        const char answer = lock.Acquire() ? 'y' : 'n';
        (void)!write(ready[1], &answer, 1);
        pause();
        _exit(0);
    }
    char answer = 0;
    ASSERT_EQ(read(ready[0], &answer, 1), 1);
    close(ready[0]);
    close(ready[1]);
    ASSERT_EQ(answer, 'y');
    EXPECT_FALSE(app::InstanceLock(ledger.folder()).Acquire()) << "a live instance holds the folder";

    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    ASSERT_TRUE(QFile::exists(ledger.folder() + QStringLiteral("/fenwold.lock"))) << "the killed run left its lock";
    frm_Main& m = start();
    EXPECT_TRUE(dialogs.calls().empty());
    EXPECT_TRUE(m.IsLoaded());
}

TEST_F(Start, QuitSavesSizeAndPlaceAndClosesTheLedger)
{
    writeIni("[View0]\r\nSelectNumber=1\r\n");
    frm_Main& m = start();
    // a DB.ini without "Main": view 0, all names blank, 14835 x 10530 at 50, 50
    EXPECT_EQ(Mdl_gData::g.ViewNames[7], QStringLiteral(" "));
    EXPECT_EQ(m.geometry(), QRect(ui::TwipsToPixels(50), ui::TwipsToPixels(50), ui::TwipsToPixels(14835), ui::TwipsToPixels(10530)));
    // framed once shown, the window keeps the outer size it was given, so Quit saves it unchanged
    m.Show();
    QCoreApplication::processEvents();

    QPointer<frm_Main> main(&m);
    m.Mnu_Program_Quit->trigger();
    const QByteArray expected = "[View0]\r\nSelectNumber=1\r\n[Main]\r\nFormTop=" + QByteArray::number(onScreen(50))
                                + "\r\nFormLeft=" + QByteArray::number(onScreen(50)) + "\r\nFormSizeWidth=14835\r\nFormSizeHight=10530\r\n";
    EXPECT_EQ(iniBytes(), expected);
    EXPECT_FALSE(Mdl_gData::HasDbConnection()) << "the connection was closed and released";
    flushDeletes();
    EXPECT_TRUE(main.isNull());

    // the next start takes the saved size and place
    writeIni("[Main]\r\nFormTop=1500\r\nFormLeft=3000\r\nFormSizeWidth=12000\r\nFormSizeHight=9000\r\nSectionNumber=3\r\n");
    frm_Main& next = start();
    EXPECT_EQ(next.geometry(), QRect(ui::TwipsToPixels(3000), ui::TwipsToPixels(1500), ui::TwipsToPixels(12000), ui::TwipsToPixels(9000)));
    EXPECT_EQ(Mdl_gData::g.SectionNumber, 3);
}

} // namespace
