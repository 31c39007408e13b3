// The printed sheet: the profile's print command drawing on a recording surface, and the
// companion program's sheet command writing a PDF that poppler's tools read back.
#include "ProfileFixture.h"

#include "platform/print/RecordingSurface.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/vb/Conversion.h"

#include "support/AdminProcess.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {

class ProfileSheet : public ProfileTest {
protected:
    void SetUp() override
    {
        ProfileTest::SetUp();
        app::SetNow(vb::MakeDate(2005, 12, 24, 9, 30));
        print::SetSurfaceFactory([this] {
            ++surfaces;
            surface = std::make_shared<print::RecordingSurface>(width, height);
            return surface;
        });
    }
    void TearDown() override
    {
        print::SetSurfaceFactory({});
        app::SetNow({});
        ProfileTest::TearDown();
    }
    void printSheet(frm_Edit_Computer& w)
    {
        dialogs.answerPrinter(true);
        w.Mnu_Print->trigger();
    }

    // a printable area of 50 lines of 3 mm (the 9 point font's "A" is 3.175 mm high)
    double width = 190;
    double height = 150;
    int surfaces = 0;
    std::shared_ptr<print::RecordingSurface> surface;
};

// A few lines of computer 1's fixed part: each section's heading and the line numbers it keeps.
const QStringList kFixedPart = {
    "3 [ユーザー]",     "4 □ ユーザ名: 山田 太郎", "10 □ モデル:　 PC-MY26X",
    "20 □ メモリ:  MB", "23 [ネットワーク]",       "32 □ Macアドレス: 00：0C：29：3A：5B：7C",
    "43 □ ドメイン: ",
};

QStringList frame(int page) { return {"1 PC-SOUMU-01", QStringLiteral("1 %1ページ").arg(page), "49 Fenwold", "49 2005/12/24"}; }

TEST_F(ProfileSheet, ListsFlowOntoTheNextPageUnderARepeatedFrame)
{
    frm_Edit_Computer& w = open(1);
    printSheet(w);
    ASSERT_EQ(surfaces, 1);

    // the frame: bold italic, the name and the page label on line 1, the header rule to the
    // right margin, the footer rule to the text height (150), then plain again
    const QStringList ops = surface->Operations();
    ASSERT_GE(ops.size(), 13);
    EXPECT_EQ(ops.mid(0, 13),
              (QStringList{"font ＭＳ ゴシック 9", "bold on", "italic on", "width 3", "text 10,3 PC-SOUMU-01", "text 168.887,3 1ページ",
                           "line 10,6 180,6", "text 10,147 Fenwold", "text 164.125,147 2005/12/24", "line 10,147 150,147", "bold off",
                           "italic off", "text 10,9 [ユーザー]"}));
    EXPECT_EQ(ops.last(), QStringLiteral("end"));

    // applications until line 47 (the last line with three to spare), then page 2 from line 3;
    // the printers after a gap, each with its port in brackets; the asset lines last
    const QStringList lines = surface->Lines(3);
    EXPECT_EQ(lines.mid(0, 4), frame(1));
    for (const QString& line : kFixedPart)
        EXPECT_TRUE(lines.contains(line)) << line.toStdString();
    QStringList expected = {"45 [アプリケーション]"};
    expected << "46 □ Microsoft Office Professional Edition 2003 (11.0.5614.0)"
             << "47 □ ウイルスバスター2006 (14.10)"
             << "page";
    expected << frame(2);
    expected << "3 □ Tom’s Mail Checker (1.2)"
             << "4 □ Adobe Reader 7.0.5 - 日本語"
             << "5 □ 秀丸エディタ (4)"
             << "8 [プリンター]"
             << "9 □ EPSON LP-9000C (IP_192.168.0.201)"
             << "10 □ 総務部 カラーレーザー (LPT1：)"
             << "13 [資産管理]"
             << "14 □ 購入先: "
             << "15 □ リース契約番号: "
             << "16 □ リース会社: "
             << "17 □ リース開始日: 2005/04/01"
             << "18 □ リース終了日: ";
    EXPECT_EQ(lines.mid(lines.indexOf(QStringLiteral("45 [アプリケーション]"))), expected);
    EXPECT_TRUE(dialogs.messages().empty());
    ASSERT_EQ(dialogs.calls().size(), 1u);
    EXPECT_EQ(dialogs.calls()[0].printer.kind, ui::PrinterDialogRequest::Print);
}

TEST_F(ProfileSheet, OnlyTheBandsChoicesKeepTheirUnsavedEditsAndEmptyListsPrintThePreviousOnes)
{
    ledger.exec(QStringLiteral("DELETE FROM tbl_ApplicationsList WHERE \"Key\" = 2"));
    frm_Edit_Computer& w = open(1);
    w.TabStrip1->setCurrentIndex(2); // computer 1's applications in the grid
    w.TabStrip1->setCurrentIndex(4);
    w.cmd_Next_Click(); // computer 2: its one printer; no applications
    w.tbx_Dat[3]->setText(QStringLiteral("未保存の型番"));
    w.tbx_Drive[2]->setText(QStringLiteral("99"));
    w.cmb_Dat_DropDown(3);
    w.cmb_Dat[3]->setCurrentIndex(2);
    Q_EMIT w.cmb_Dat[3]->activated(2);
    w.cmb_Dat[4]->setEditText(QStringLiteral("手入力のメーカー"));
    printSheet(w);
    const QStringList lines = surface->Lines(3);
    for (const char* expected :
         {"1 SALES-PC07", "7 □ 設置場所: 大阪支店", "9 □ メーカー: 手入力のメーカー", "11 □ マシンタイプ: OptiPlex GX270",
          "21 □ Cドライブ: 38,154 MB", "46 □ Microsoft Office Professional Edition 2003 (11.0.5614.0)",
          "9 □ HP LaserJet 4050 Series PCL6 (￥￥print01￥sales-lj)"})
        EXPECT_TRUE(lines.contains(QString::fromUtf8(expected))) << expected;
}

TEST_F(ProfileSheet, ACancelledDialogDrawsNothingAndTheFixedPartNeverBreaks)
{
    frm_Edit_Computer& w = open(1);
    dialogs.answerPrinter(false);
    w.Mnu_Print->trigger();
    EXPECT_EQ(surfaces, 0);
    EXPECT_TRUE(dialogs.messages().empty());

    // the page set-up: its own form of the dialog; a cancel is no error
    w.Mnu_Pagelayout->trigger();
    ASSERT_EQ(dialogs.calls().size(), 2u);
    EXPECT_EQ(dialogs.calls()[1].printer.kind, ui::PrinterDialogRequest::PrintSetup);
    EXPECT_TRUE(dialogs.messages().empty());

    // paper of 33 lines: the fixed part runs on past the footer, the applications start page 2
    height = 100;
    printSheet(w);
    const QStringList lines = surface->Lines(3);
    const qsizetype firstBreak = lines.indexOf(QStringLiteral("page"));
    ASSERT_GT(firstBreak, 0);
    EXPECT_EQ(lines[firstBreak - 1], QStringLiteral("45 [アプリケーション]"));
    EXPECT_EQ(lines[firstBreak + 5], QStringLiteral("3 □ Microsoft Office Professional Edition 2003 (11.0.5614.0)"));
}

// Runs one of poppler's tools on a file; its standard output, blank lines left out.
QString poppler(const QString& tool, const QStringList& args) { return RunProcess(tool, args).out.join(u'\n'); }

TEST_F(ProfileSheet, TheCompanionProgramWritesTheSheetsIntoOnePdfWithItsFontEmbedded)
{
    if (QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty())
        GTEST_SKIP() << "poppler-utils is not installed (scripts/bootstrap installs it)";
    // enough applications for computer 1 to need a second page on A4
    for (int i = 1; i <= 120; ++i)
        ledger.exec(QStringLiteral("INSERT INTO tbl_ApplicationsList (\"Key\", Application_Name, Application_Version) "
                                   "VALUES (1, 'ソフト%1', '1.%1')")
                        .arg(i));
    const QString out = ledger.dir().file(QStringLiteral("sheets.pdf"));
    const AdminRun run = Admin({"sheet", "--ledger", ledger.path(), "1", "2", out});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    ASSERT_EQ(run.out.size(), 1);
    const QString pages = poppler(QStringLiteral("pdfinfo"), {out}).section(QStringLiteral("Pages:"), 1).section(u'\n', 0, 0).trimmed();
    EXPECT_EQ(run.out[0], QStringLiteral("%1: 2 sheets, %2 pages").arg(out, pages));
    EXPECT_GE(pages.toInt(), 3);

    const QString text = poppler(QStringLiteral("pdftotext"), {out, QStringLiteral("-")});
    for (const char* expected : {"PC-SOUMU-01", "SALES-PC07", "[ユーザー]", "[ネットワーク]", "[アプリケーション]", "[プリンター]",
                                 "[資産管理]", "2ページ", "ソフト120 (1.120)", "Fenwold"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(expected))) << expected;
    // the second computer's sheet begins on a page of its own, at page 1 again
    EXPECT_EQ(text.count(QStringLiteral("1ページ")), 2);
    const QString fonts = poppler(QStringLiteral("pdffonts"), {out});
    EXPECT_TRUE(fonts.contains(QStringLiteral("IPAGothic"))) << fonts.toStdString();
    const QString fontLine = fonts.section(QStringLiteral("IPAGothic"), 1).section(u'\n', 0, 0);
    EXPECT_TRUE(fontLine.contains(QStringLiteral(" yes "))) << "embedded: " << fontLine.toStdString();
}

TEST_F(ProfileSheet, TheSheetCommandRefusesBadArgumentsAndUnknownKeysWritingNothing)
{
    const QString out = ledger.dir().file(QStringLiteral("refused.pdf"));
    const struct {
        QStringList args;
        const char* said;
    } cases[] = {
        {{"sheet"}, "MAINKEY"},
        {{"sheet", "--ledger", ledger.path(), "PC1", out}, "not a computer's key: PC1"},
        {{"sheet", "--ledger", ledger.path(), "1", "99", out}, "no computer has the key 99"},
    };
    for (const auto& c : cases) {
        const AdminRun run = Admin(c.args);
        EXPECT_EQ(run.exitCode, 1) << c.args.join(u' ').toStdString();
        EXPECT_TRUE(run.err.contains(QString::fromUtf8(c.said))) << run.err.toStdString();
        EXPECT_FALSE(QFile::exists(out));
    }
    EXPECT_EQ(QDir(ledger.folder()).entryList(QDir::Files | QDir::Hidden).filter(QStringLiteral("refused")), QStringList());
}

} // namespace
