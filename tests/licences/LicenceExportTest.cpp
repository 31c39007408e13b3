// The licence lists of fenwold-admin export, run as processes the way scripts run them, against
// the expected files and against the windows' own exports of the same ledger.
#include "LicencesFixture.h"

#include "licences/frm_Edit_License.h"
#include "licences/frm_List_Application.h"
#include "platform/ui/DropDownCombo.h"

#include "support/AdminProcess.h"
#include "support/TempDir.h"
#include "TestPaths.h"

#include <QAction>
#include <QFile>

namespace {

QByteArray expected(const char* name) { return ReadTestData(QStringLiteral("licences/") + QLatin1String(name)); }

class LicenceExport : public LicencesFixture {
protected:
    // Four computers read from the inventory files (the fourth a second reading of the first,
    // retired and renamed), on a deleted and a live location, one with a user whose division is
    // deleted; extra application rows for a count of 4, a name with a quote and an empty name;
    // three purchase lines (one blank) and five assignments, one of them on a line that is gone.
    void fillLedger()
    {
        const QString path = ledger.path();
        const QString inventory = QStringLiteral(FENWOLD_TEST_DATA_DIR "/inventory/");
        for (const QStringList& read :
             {QStringList{"ja_pc01.csv", "ja_pc03.txt"}, QStringList{"--english", "en_pc02.csv"}, QStringList{"ja_pc01.csv"}}) {
            QStringList args{QStringLiteral("read"), QStringLiteral("--ledger"), path};
            for (const QString& a : read)
                args << (a.startsWith(u'-') ? a : inventory + a);
            ASSERT_EQ(Admin(args).exitCode, 0);
        }
        ledger.master("tbl_Location", 1, QStringLiteral("本館2F"), "1");
        ledger.master("tbl_Location", 2, QStringLiteral("本館1F"));
        ledger.master("tbl_Location", 3, QStringLiteral("倉庫"));
        ledger.master("tbl_Section", 1, QStringLiteral("総務部"));
        ledger.master("tbl_Division", 1, QStringLiteral("庶務課"), "1");
        ledger.user(1, QStringLiteral("山田 太郎"), QStringLiteral("0"), 1, 1);
        ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Location_Code = 1 WHERE MainKey IN (1, 4)"));
        ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Location_Code = 2 WHERE MainKey IN (2, 3)"));
        ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET User_Code = 1 WHERE MainKey = 1"));
        ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Deleted_Flug = 1, Remove_Date = '2006/03/31' WHERE MainKey = 4"));
        ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET Computer_Name = 'PC-SOUMU-01B' WHERE MainKey = 4"));
        ledger.exec(QStringLiteral("INSERT INTO tbl_ApplicationsList (Key, Application_Name, Application_Version) VALUES "
                                   "(2, 'ウイルスバスター2006', '14.10'), (2, 'ウイルスバスター2006', '14.10'), "
                                   "(3, 'ウイルスバスター2006', '15.0'), (3, '', '1.0'), (3, 'Tom''s Tool', NULL)"));
        purchase(1, QStringLiteral("'Microsoft Office Professional Edition 2003'"), 10);
        purchase(2, QStringLiteral("'ウイルスバスター2006'"), 5);
        ledger.exec(QStringLiteral("INSERT INTO tbl_License_Key (Key) VALUES (3)"));
        assignment(1, 2, 1,
                   QStringLiteral("ProductID = 'PID-0001', Licence_No = 'L-0001', Install_Key = 'QW3ER-TY5UI', "
                                  "Payment_Type = 'リース', Asset_Type = 'パッケージ FPP', Purchase_Price = 12000, "
                                  "Comment = '総務部 共用機', \"Update\" = '2006/03/31'"));
        assignment(2, 1, 4,
                   QStringLiteral("ProductID = '55274-640', Payment_Type = '現金', Asset_Type = 'License', "
                                  "Purchase_Price = 0, Comment = '撤去済み'"));
        assignment(3, 2, 3);
        assignment(4, 3, 2);
        assignment(5, 9, 2);
    }
    AdminRun exportList(QStringList args, const QString& outName)
    {
        args.insert(0, QStringLiteral("export"));
        args << QStringLiteral("--ledger") << ledger.path() << out.file(outName);
        return Admin(args);
    }
    QByteArray written(const QString& outName) { return FileBytes(out.file(outName)); }

    TempDir out;
};

const QString kAntivirus = QStringLiteral("ウイルスバスター2006");

TEST_F(LicenceExport, EachListIsWrittenByteForByteAsItsWindowWritesIt)
{
    fillLedger();
    // a location without such a computer leaves the list of all locations, as in the window
    const QString app = QStringLiteral("--application"), location = QStringLiteral("--location");
    const struct {
        QStringList args;
        const char* file;
    } lists[] = {
        {{QStringLiteral("licences")}, "licences.csv"},
        {{QStringLiteral("census")}, "census.csv"},
        {{QStringLiteral("census-computers"), app, kAntivirus}, "census_computers.csv"},
        {{QStringLiteral("census-computers"), location, QStringLiteral("2"), app, kAntivirus}, "census_computers_loc2.csv"},
        {{QStringLiteral("census-computers"), app, kAntivirus, location, QStringLiteral("3")}, "census_computers.csv"},
    };
    for (const auto& [args, file] : lists) {
        SCOPED_TRACE(args.join(u' ').toStdString());
        const AdminRun r = exportList(args, QStringLiteral("by-command"));
        EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
        EXPECT_EQ(written(QStringLiteral("by-command")), expected(file));
    }

    // the windows, offscreen, over the same ledger: their exports add ".csv"
    frm_Edit_License::Instance().Show(ui::vbModeless);
    dialogs.answerFile(out.file(QStringLiteral("window_licences")));
    frm_Edit_License::Instance().Mnu_Export->trigger();
    EXPECT_EQ(written(QStringLiteral("window_licences.csv")), expected("licences.csv"));

    frm_List_Application& census = frm_List_Application::Instance();
    census.Show(ui::vbModeless);
    const int row = cells(*census.MSFlexGrid_Applications, 1).indexOf(kAntivirus + QStringLiteral("|4")) + 1;
    ASSERT_GT(row, 0);
    click(*census.MSFlexGrid_Applications, row);
    dialogs.answerFile(out.file(QStringLiteral("window_all")));
    census.Mnu_Export_CSV->trigger();
    EXPECT_EQ(written(QStringLiteral("window_all.csv")), expected("census_computers.csv"));
    census.cmb_Location->showPopup();
    census.cmb_Location->hidePopup();
    census.cmb_Location->setCurrentIndex(census.cmb_Location->findData(2));
    census.cmb_Location_Click();
    dialogs.answerFile(out.file(QStringLiteral("window_loc2")));
    census.Mnu_Export_CSV->trigger();
    EXPECT_EQ(written(QStringLiteral("window_loc2.csv")), expected("census_computers_loc2.csv"));
    EXPECT_EQ(dialogs.messageTexts(), (QStringList{"完了しました", "完了しました", "完了しました"}));
}

TEST_F(LicenceExport, ANameWithAQuoteFailsTheSelectAndBadChoicesAreRefused)
{
    fillLedger();
    AdminRun r = exportList({QStringLiteral("census-computers"), QStringLiteral("--application"), QStringLiteral("Tom's Tool")},
                            QStringLiteral("quote"));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("警告"))) << r.err.toStdString();
    EXPECT_FALSE(QFile::exists(out.file(QStringLiteral("quote"))));

    const std::pair<QStringList, const char*> refused[] = {
        {{QStringLiteral("census-computers")}, "--application NAME is required"},
        {{QStringLiteral("census-computers"), QStringLiteral("--application"), QStringLiteral("一太郎")}, "no application named 一太郎"},
        {{QStringLiteral("census-computers"), QStringLiteral("--application"), kAntivirus, QStringLiteral("--location"),
          QStringLiteral("1")},
         "no location 1"},
    };
    for (const auto& [args, why] : refused) {
        SCOPED_TRACE(args.join(u' ').toStdString());
        r = exportList(args, QStringLiteral("refused"));
        EXPECT_EQ(r.exitCode, 1);
        EXPECT_TRUE(r.err.contains(QString::fromUtf8(why))) << r.err.toStdString();
        EXPECT_FALSE(QFile::exists(out.file(QStringLiteral("refused"))));
    }
}

TEST_F(LicenceExport, AnEmptyLedgerWritesAnEmptyLicenceListAndTheBareCensusGrid)
{
    AdminRun r = exportList({QStringLiteral("licences")}, QStringLiteral("licences"));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(written(QStringLiteral("licences")), QByteArray());
    r = exportList({QStringLiteral("census")}, QStringLiteral("census"));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(written(QStringLiteral("census")), QByteArray(", \r\n, \r\n"));
}

} // namespace
