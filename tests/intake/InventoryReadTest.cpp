#include "intake/InventoryRead.h"

#include "IntakeFixture.h"

namespace {

using Outcome = InventoryFileResult::Outcome;

// What tests/data/inventory/ja_pc01.csv makes of the fields that show a rule (the field map's
// statements are checked elsewhere): the sanitiser's full-width characters, the first adapter's
// properties where there are two (but SecondaryWINS, which only the second has), numbers rounded
// half to even, a comma in the page file's capacity shifting its unit, the trace cache's unit in
// its own field, and "TRUE" and "1" set a flag where "True", "yes", FALSE and a missing record
// do not.
FieldValues JaPc01Pclist()
{
    return Fields({"Computer_Name=PC-SOUMU-01",
                   "Workgroup=WORKGROUP",
                   "IPAddress=192.168.0.10",
                   "IPAddress_16num=C0A8000A",
                   "Update=2005/12/04 10：30：15",
                   "MacAddress=00：0C：29：3A：5B：7C",
                   "Memory_Full=0",
                   "Pagefile_Full=1",
                   "Pagefile_Full_unit=281",
                   "SysHD_Driveletter=C：",
                   "IE_SP=；SP2；",
                   "Resolution=1024×768",
                   "CPU_Clock=3",
                   "CPU_L3_Cache_unit=",
                   "CPU_L1_Trace_Cache_unit=Kμops",
                   "SecondaryWINS=169.254.0.9",
                   "Start_Page=http：//www.example.co.jp/",
                   "CPU_FPU=1",
                   "CPU_PAE=0",
                   "CPU_MCA=0",
                   "CPU_PAT=1",
                   "CPU_PSE36=0",
                   "CPU_PSN=0",
                   "CPU_EST=0"});
}

class InventoryRead : public IntakeFixture {
protected:
    std::vector<InventoryFileResult> read(const QStringList& names, InventoryLanguage language = InventoryLanguage::Japanese)
    {
        QStringList paths;
        for (const QString& n : names)
            paths << (n.contains(QLatin1Char('/')) ? n : Inventory(n));
        std::vector<InventoryFileResult> results;
        ReadInventoryFiles(paths, language, [&](const InventoryFileResult& r) { results.push_back(r); });
        return results;
    }
    QStringList applications(int key)
    {
        return ledger.rows(QStringLiteral("SELECT \"Update\", Application_Name, Application_Version, Application_Path FROM "
                                          "tbl_ApplicationsList WHERE \"Key\" = %1 ORDER BY rowid")
                               .arg(key));
    }
};

TEST_F(InventoryRead, AJapaneseFileBecomesOneComputerWithAllItsRows)
{
    const auto results = read({QStringLiteral("ja_pc01.csv")});
    ASSERT_EQ(results.size(), 1u);
    EXPECT_EQ(Mdl_gData::g.LastReadMainKey, 1);

    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 1, JaPc01Pclist());
    ExpectRow(ledger, QStringLiteral("tbl_Computer_List"), 1,
              Fields({"Location_Code=0", "User_Code=0", "Manufacturer_Code=0", "Model_Code=0", "Asset_Code=0", "Type_Number=PC-MY26XEZ7",
                      "Sereals_Number=5X0123456", "Update=2005/12/04 10：30：15", "Deleted_Flug=0"}));
    EXPECT_EQ(
        applications(1),
        (QStringList{
            QStringLiteral(
                "2005/12/04 10：30：15|Microsoft Office Professional Edition 2003|11.0.5614.0|C：￥Program Files￥Microsoft Office￥"),
            QStringLiteral("2005/12/04|ウイルスバスター2006|14.10|C：￥Program Files￥Trend Micro￥"),
            QStringLiteral("2005/11/30|Tom’s Mail Checker|1.2|C：￥Tools￥"), QStringLiteral("2005/12/04|Adobe Reader 7.0.5 - 日本語||"),
            // a comma in the version shifts the path into the date
            QStringLiteral("C：￥Program Files￥Hidemaru￥、2005/10/01|秀丸エディタ|4|16")}));
    // the other sections by their counts (the copies are compared with staging's in Staging); the
    // printers for the column each copy leaves Null
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_Device_Management"), QStringLiteral("\"Key\" = 1")), 3);
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_Environmental"), QStringLiteral("\"Key\" = 1")), 3);
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT \"Key\", \"Update\", Printer_Name, PrinterPorts_Name, Printer_Driver_Version "
                                         "FROM tbl_Printer_Management ORDER BY rowid")),
              (QStringList{QStringLiteral("1|2005/12/04|EPSON LP-9000C|IP_192.168.0.201|NULL"),
                           QStringLiteral("1|2005/12/04|総務部 カラーレーザー|LPT1：|NULL")}));
    // the file stays staged after the read
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ReadCsv")), 107);
}

TEST_F(InventoryRead, TheEnglishReaderTakesTheEnglishKeywordsAndTheWindowsDate)
{
    const auto results = read({QStringLiteral("en_pc02.csv")}, InventoryLanguage::English);
    ASSERT_EQ(results.size(), 1u);
    EXPECT_EQ(results[0].mainKey, 1);
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 1,
              Fields({"Computer_Name=SALES-PC07", "Update=2006/01/15 09：05：00", "Memory_Full=261616", "CPU_Clock=2794",
                      "CPU_L3_Cache_unit=MB", "CPU_L1_Trace_Cache_unit=Kuops", "CPU_MCA=1", "DomeinName=corp.example.com"}));
    ExpectRow(ledger, QStringLiteral("tbl_Computer_List"), 1,
              Fields({"Update=2006/01/15 09：05：00", "Type_Number=OptiPlex GX270", "Sereals_Number=7DK2Q1J"}));
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ApplicationsList"), QStringLiteral("\"Key\" = 1")), 2);
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT PrinterPorts_Name FROM tbl_Printer_Management")),
              QStringLiteral("￥￥print01￥sales-lj"));
}

// (refused and unreadable files: ReadCommand)
TEST_F(InventoryRead, AFileOfTheHeaderAloneMakesAComputerOfEmptyValues)
{
    read({QStringLiteral("ja_pc01.csv"), QStringLiteral("header_only.csv")});
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 2,
              Fields({"Computer_Name=", "IPAddress_16num=", "Memory_Full=0", "CPU_FPU=0", "Internet_Connection=0", "Update="}));
    ExpectRow(ledger, QStringLiteral("tbl_Computer_List"), 2, Fields({"Asset_Code=0", "Type_Number="}));
    EXPECT_EQ(applications(2).size(), 0);
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ReadCsv")), 0);
}

TEST_F(InventoryRead, ARefusedStatementIsDroppedAloneAndTheRestOfTheFileGoesIn)
{
    ledger.exec(QStringLiteral("CREATE TRIGGER no_workgroup BEFORE UPDATE OF Workgroup ON tbl_Pclist "
                               "WHEN NEW.Workgroup = 'WORKGROUP' BEGIN SELECT RAISE(ABORT, 'refused'); END"));
    const auto results = read({QStringLiteral("ja_pc01.csv")});
    EXPECT_EQ(results[0].outcome, Outcome::Read);
    FieldValues expected = JaPc01Pclist();
    expected[1].second = QStringLiteral("NULL");
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 1, expected);
    EXPECT_EQ(applications(1).size(), 5);
}

// Where triggers run, each file is staged as it is read, and the fields are written one
// statement after another.
TEST_F(InventoryRead, WhereATriggerRunsTheFileIsStagedAndWrittenStatementByStatement)
{
    ledger.exec(QStringLiteral("CREATE TABLE staged (n INTEGER)"));
    ledger.exec(QStringLiteral("INSERT INTO staged VALUES (0)"));
    ledger.exec(QStringLiteral("CREATE TRIGGER count_staging AFTER DELETE ON tbl_ReadCsv BEGIN UPDATE staged SET n = n + 1; END"));
    // the name is written before the workgroup, so the workgroup the trigger sets is overwritten
    ledger.exec(QStringLiteral("CREATE TRIGGER name_sets_workgroup AFTER UPDATE OF Computer_Name ON tbl_Pclist "
                               "BEGIN UPDATE tbl_Pclist SET Workgroup = 'SET BY NAME' WHERE MainKey = NEW.MainKey; END"));
    read({QStringLiteral("ja_pc01.csv"), QStringLiteral("en_pc02.csv"), QStringLiteral("ja_pc01.csv")});
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 3, JaPc01Pclist());
    // the trigger runs for each row that the next file's staging deletes
    const size_t english = Mdl_Access_mdb::ReadInventoryLines(Inventory(QStringLiteral("en_pc02.csv")))->size();
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT n FROM staged")), QString::number(107 + english));
}

// The read writes a computer's fields with one UPDATE a table where that gives the same row as
// the walk's statements; that holds while each check of the two tables names its own column
// alone. A value refused by such a check still drops alone, with or without a trigger.
TEST_F(InventoryRead, ARefusedValueDropsAloneWhenACheckRefusesIt)
{
    const QString create = ledger.value(QStringLiteral("SELECT sql FROM sqlite_master WHERE name = 'tbl_Pclist'"));
    const QString check = QStringLiteral("CHECK (length(Workgroup) <= 255)");
    ASSERT_TRUE(create.contains(check));
    ledger.exec(QStringLiteral("ALTER TABLE tbl_Pclist RENAME TO tbl_Pclist_old"));
    ledger.exec(QString(create).replace(check, QStringLiteral("CHECK (length(Workgroup) <= 255 AND Workgroup <> 'WORKGROUP')")));
    ledger.exec(QStringLiteral("INSERT INTO tbl_Pclist SELECT * FROM tbl_Pclist_old"));
    ledger.exec(QStringLiteral("DROP TABLE tbl_Pclist_old"));

    const auto results = read({QStringLiteral("ja_pc01.csv"), QStringLiteral("en_pc02.csv")});
    EXPECT_EQ(results[1].outcome, Outcome::Read);
    FieldValues expected = JaPc01Pclist();
    expected[1].second = QStringLiteral("NULL");
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 1, expected);
    // another workgroup passes, and the computer of the next file is written whole
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 2,
              Fields({"Computer_Name=", "Workgroup=", "Operating_System=Microsoft Windows 2000 Professional"}));
}

TEST_F(InventoryRead, PastTheLastKeyTheKeyStaysWhatItWas)
{
    ledger.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (32766)"));
    const auto results = read({QStringLiteral("header_only.csv"), QStringLiteral("ja_pc01.csv")});
    EXPECT_EQ(results[0].mainKey, 32767);
    EXPECT_FALSE(results[0].keyOverflow);
    // the addition fails: no new computer, and the file's values land on the last one
    EXPECT_TRUE(results[1].keyOverflow);
    EXPECT_EQ(results[1].mainKey, 32767);
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_Computer_List")), 3);
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 32767, Fields({"Computer_Name=PC-SOUMU-01"}));
    EXPECT_EQ(applications(32767).size(), 5);
}

} // namespace
