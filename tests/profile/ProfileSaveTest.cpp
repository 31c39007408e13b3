// The profile's save: what it writes (only the columns that changed, both tables in one
// transaction), what it reports, and what it refuses or keeps.
#include "ProfileFixture.h"

#include "platform/ui/DropDownCombo.h"

#include <QAction>
#include <QCheckBox>
#include <QListWidget>

#include <sqlite3.h>

namespace {

// The ledger's hooks: a commit counted (and let go on), a written row's table noted.
int CountCommit(void* commits)
{
    ++*static_cast<int*>(commits);
    return 0;
}
void NoteTable(void* tables, int, const char*, const char* table, sqlite3_int64) { *static_cast<QStringList*>(tables) << table; }

class ProfileSaveTest : public ProfileTest {
protected:
    void SetUp() override
    {
        ProfileTest::SetUp();
        // the unit of computer 1's page file took a digit from the file ("1,281,040"), which alone
        // would make every save of it a change; the tests that need no such change mend it
        ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET Pagefile_Full_unit = 'KB' WHERE MainKey = 1"));
    }
    // Runs the save, counting the ledger's commits and the rows each table had written.
    void save(frm_Edit_Computer& w)
    {
        sqlite3* db = Mdl_gData::DbConnection().handle();
        commits = 0;
        updated.clear();
        sqlite3_commit_hook(db, CountCommit, &commits);
        sqlite3_update_hook(db, NoteTable, &updated);
        w.Mnu_Update->trigger();
        sqlite3_commit_hook(db, nullptr, nullptr);
        sqlite3_update_hook(db, nullptr, nullptr);
    }
    QString report() const
    {
        const auto shown = dialogs.messages();
        return shown.empty() ? QString() : shown.back().prompt;
    }

    int commits = 0;
    QStringList updated;
};

TEST_F(ProfileSaveTest, ThreeChangedFieldsAreWrittenAloneInOneTransactionAndReportedByCaption)
{
    frm_Edit_Computer& w = open(1);
    const QStringList before = record(1);
    w.tbx_Dat[53]->setText(QStringLiteral("会議室へ移設")); // tbl_Computer_List.Comment
    w.tbx_Dat[7]->setText(QStringLiteral("2600"));          // tbl_Pclist.CPU_Clock
    w.ChkBox[6]->setChecked(true);                          // tbl_Pclist.CPU_PAE, stored 0
    save(w);

    EXPECT_EQ(changed(before, record(1)),
              (QStringList{"tbl_Pclist.CPU_Clock=2600", "tbl_Pclist.CPU_PAE=1", "tbl_Computer_List.Comment=会議室へ移設"}));
    EXPECT_EQ(commits, 1);
    EXPECT_EQ(updated, (QStringList{"tbl_Pclist", "tbl_Computer_List"}));
    ASSERT_EQ(dialogs.messages().size(), 1u);
    EXPECT_EQ(report(), QStringLiteral("動作クロック を 2600 に \r\n"
                                       "コメント を 会議室へ移設 に \r\n"
                                       "CPU スペックPAE を 有効 に \r\n"
                                       "変更しました。"));

    // saved again unchanged: no box, no write
    dialogs.clear();
    save(w);
    EXPECT_EQ(commits, 0);
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(ProfileSaveTest, AChangedAddressMovesItsSortKeyAndAnEmptiedOneLeavesIt)
{
    frm_Edit_Computer& w = open(1);
    w.tbx_Dat[2]->setText(QStringLiteral("192.168.0.1"));
    save(w);
    EXPECT_EQ(report(), QStringLiteral("IPアドレス を 192.168.0.1 に \r\nIPアドレス(16) を C0A80001 に \r\n変更しました。"));
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT IPAddress || ' ' || IPAddress_16num FROM tbl_Pclist WHERE MainKey = 1")),
              QStringLiteral("192.168.0.1 C0A80001"));
    EXPECT_EQ(w.tbx_Dat[27]->text(), QStringLiteral("C0A80001"));

    // an emptied sort key box is filled from the address typed
    dialogs.clear();
    w.tbx_Dat[27]->clear();
    w.tbx_Dat[2]->setText(QStringLiteral("10.0.0.255"));
    save(w);
    EXPECT_EQ(report(), QStringLiteral("IP Address を 0A0000FF に \r\nIPアドレス を 10.0.0.255 に \r\n変更しました。"));
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT IPAddress_16num FROM tbl_Pclist WHERE MainKey = 1")), QStringLiteral("0A0000FF"));

    // an emptied address is stored as Null; the sort key stays
    dialogs.clear();
    w.tbx_Dat[2]->clear();
    save(w);
    EXPECT_EQ(report(), QStringLiteral("IPアドレス を 空欄 に \r\n変更しました。"));
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT quote(IPAddress) || ' ' || IPAddress_16num FROM tbl_Pclist WHERE MainKey = 1")),
              QStringLiteral("NULL 0A0000FF"));
}

TEST_F(ProfileSaveTest, EmptyMeansNullZeroMeansNothingAndTheTwoFlagFamiliesDifferOnNull)
{
    frm_Edit_Computer& w = open(1);
    const QStringList before = record(1);
    w.tbx_Dat[53]->clear();                      // Comment '窓際' emptied
    w.tbx_Dat[52]->clear();                      // a Null that stays empty
    w.tbx_Dat[7]->setText(QStringLiteral("0"));  // no field can be set to "0"
    w.tbx_Dat[49]->setText(QStringLiteral("0")); // not even an amount
    w.ChkBox[0]->setChecked(false);              // CPU_FPU 1 -> 0
    w.Chk_Drive[0]->setChecked(true);            // Floppydisk_Drive Null -> 1
    ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET CPU_3DNow = NULL WHERE MainKey = 1"));
    w.ChkBox[23]->setChecked(true); // CPU_3DNow Null: left alone
    save(w);
    EXPECT_EQ(report(), QStringLiteral("FDドライブ を 有効  に \r\n"
                                       "コメント を 空欄 に \r\n"
                                       "CPU スペックFPU を 無効 に \r\n"
                                       "変更しました。"));
    EXPECT_EQ(changed(before, record(1)), (QStringList{"tbl_Pclist.Floppydisk_Drive=1", "tbl_Pclist.CPU_FPU=0", "tbl_Pclist.CPU_3DNow=NULL",
                                                       "tbl_Computer_List.Comment=NULL"}));

    // a drive flag cleared
    dialogs.clear();
    w.Chk_Drive[0]->setChecked(false);
    save(w);
    EXPECT_EQ(report(), QStringLiteral("FDドライブ を 無効  に \r\n変更しました。"));
}

TEST_F(ProfileSaveTest, CodesAndTheUserAreSavedByTheirKeyBoxesOnly)
{
    frm_Edit_Computer& w = open(1);
    w.cmb_Dat[5]->setEditText(QStringLiteral("打ち込んだだけのモデル")); // text alone: nothing
    w.cmb_Dat_DropDown(3);
    w.cmb_Dat[3]->setCurrentIndex(2);
    Q_EMIT w.cmb_Dat[3]->activated(2);
    w.List_User->setCurrentRow(1);
    save(w);
    EXPECT_EQ(report(), QStringLiteral("Location_Code を 2 大阪支店 に \r\nユーザ名 を 2 青木 花子 に \r\n変更しました。"));
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Location_Code || ' ' || User_Code || ' ' || Model_Code FROM "
                                          "tbl_Computer_List WHERE MainKey = 1")),
              QStringLiteral("2 2 1"));
    // the section and the division follow the user; nothing is stored for them
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Section_Code || Division_Code FROM tbl_User WHERE User_Code = 2")), QStringLiteral("10"));
}

TEST_F(ProfileSaveTest, CapacitiesAreReadFromTheirDigitsAndALeaseDateIsStoredAsADate)
{
    frm_Edit_Computer& w = open(1);
    // "40,015 MB" left alone is 40015: no change; typed digits replace it
    w.tbx_Drive[3]->setText(QStringLiteral("13000"));
    w.tbx_Dat[48]->setText(QStringLiteral("2010/03/31"));
    save(w);
    EXPECT_EQ(report(), QStringLiteral("リース終了日(例2005/12/05) を 2010/03/31 に \r\nＣドライブ使用量 を 13000 に \r\n変更しました。"));
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Leasing_EndDate || ' ' || SysHD_Used || ' ' || SysHD_Used_unit FROM "
                                          "tbl_Pclist JOIN tbl_Computer_List USING (MainKey) WHERE MainKey = 1")),
              QStringLiteral("2010/03/31 13000 MB"));
    // the controls are not reloaded: the capacity stays as typed
    EXPECT_EQ(w.tbx_Drive[3]->text(), QStringLiteral("13000"));

    // a digit in a stored unit adds itself to the number and so counts as a change
    dialogs.clear();
    ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET Pagefile_Full_unit = '281' WHERE MainKey = 1"));
    w.fnc_View_Drive(1);
    EXPECT_EQ(w.tbx_Drive[4]->text(), QStringLiteral("1 281"));
    save(w);
    EXPECT_EQ(report(), QStringLiteral("ページファイル全容量 を 1281 に \r\n変更しました。"));
}

// Every failure shows the error box and writes nothing at all, not even the changes before it.
TEST_F(ProfileSaveTest, ARefusedValueWritesNothingAndSaysWhy)
{
    frm_Edit_Computer& w = open(1);
    const QStringList before = record(1);
    const struct {
        const char* what;
        std::function<void()> edit;
        long number;
    } cases[] = {
        {"a day the month lacks", [&] { w.tbx_Dat[47]->setText(QStringLiteral("2005/02/31")); }, 13},
        {"the 0 a failed date check leaves", [&] { w.tbx_Dat[48]->setText(QStringLiteral("0")); }, 13},
        {"letters in a number column", [&] { w.tbx_Dat[8]->setText(QStringLiteral("two")); }, 0},
        {"a Null capacity", [&] { ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET Memory_Used = NULL WHERE MainKey = 1")); }, 94},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        w.fnc_View_Profile(1);
        w.fnc_View_Drive(1);
        dialogs.clear();
        w.tbx_Dat[53]->setText(QStringLiteral("先に変えた欄"));
        c.edit();
        save(w);
        const std::vector<long> boxes = dialogs.errorBoxes();
        ASSERT_EQ(boxes.size(), 1u);
        if (c.number) {
            EXPECT_EQ(boxes[0], c.number);
        }
        EXPECT_EQ(commits, 0);
        EXPECT_TRUE(updated.isEmpty());
    }
    ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET Memory_Used = 301284 WHERE MainKey = 1"));
    EXPECT_EQ(record(1), before);
}

TEST_F(ProfileSaveTest, AComputerDeletedUnderTheWindowIsNotSavedAndNothingIsSaid)
{
    frm_Edit_Computer& w = open(2);
    ledger.exec(QStringLiteral("DELETE FROM tbl_Computer_List WHERE MainKey = 2"));
    w.tbx_Dat[53]->setText(QStringLiteral("消えた"));
    save(w);
    EXPECT_TRUE(dialogs.calls().empty());
    EXPECT_EQ(commits, 0);
}

} // namespace
