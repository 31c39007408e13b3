#include "intake/InventoryRead.h"

#include "IntakeFixture.h"

#include <QRegularExpression>

namespace {

using Outcome = InventoryFileResult::Outcome;

// The computer that tests/data/inventory/ja_pc01.csv makes: every field of the map, with the
// sanitiser's full-width characters, the first adapter's properties where there are two (but
// SecondaryWINS, which only the second has), numbers rounded half to even, a comma in the page
// file's capacity shifting its unit, and the trace cache's unit in its own field.
FieldValues JaPc01Pclist()
{
    FieldValues v =
        Fields({"Computer_Name=PC-SOUMU-01", "Workgroup=WORKGROUP", "IPAddress=192.168.0.10", "IPAddress_16num=C0A8000A",
                "Update=2005/12/04 10：30：15", "MacAddress=00：0C：29：3A：5B：7C"})
        + Fields({"Memory_Full=0", "Memory_Full_unit=MB", "Memory_Used=301284", "Memory_Used_unit=KB", "SysHD_Full=40015",
                  "SysHD_Full_unit=MB", "SysHD_Used=12873", "SysHD_Used_unit=MB", "Memory_Free=222478", "Memory_Free_unit=KB",
                  "Pagefile_Full=1", "Pagefile_Full_unit=281", "Pagefile_Used=236428", "Pagefile_Used_unit=KB", "Pagefile_Free=1044612",
                  "Pagefile_Free_unit=KB", "SysHD_Driveletter=C：", "SysHD_Free=27142", "SysHD_Free_unit=MB"})
        + Fields({"Operating_System=Microsoft Windows XP Professional", "ProductID=55274-640-1234567-23456", "OEM_Manufacturer=NEC",
                  "OEM_Model=PC-MY26XEZ7", "IE_Version=6.0.2900.2180", "IE_SP=；SP2；", "Resolution=1024×768"})
        + Fields({"CPU_Name=Intel Pentium 4", "CPU_Clock=3", "CPU_ID=GenuineIntel", "CPU_Unit=1",
                  "CPU_NameString=Intel(R) Pentium(R) 4 CPU 2.60GHz", "CPU_Type=0", "CPU_Family=15", "CPU_Model=2", "CPU_Stepping=9"})
        + Fields({"CPU_L1_Instruction_Cache=0", "CPU_L1_Instruction_Cache_unit=KB", "CPU_L1_Data_Cache=8", "CPU_L1_Data_Cache_unit=KB",
                  "CPU_L2_Cache=512", "CPU_L2_Cache_unit=KB", "CPU_L3_Cache=0", "CPU_L3_Cache_unit=", "CPU_L1_Trace_Cache=12",
                  "CPU_L1_Trace_Cache_unit=Kμops", "CPU_SerialNumber="})
        + Fields({"UserName=yamada", "HostsName=pc-soumu-01", "DomeinName=", "PC_Explanation=総務部 共用機"})
        + Fields({"ProviderName=Microsoft Windows Network", "AdapterName=Intel(R) PRO/100 VE Network Connection",
                  "SubnetMask=255.255.255.0", "Gateway=192.168.0.1", "DHCPServer=192.168.0.1", "PrimaryWINS=192.168.0.2",
                  "SecondaryWINS=169.254.0.9", "PrimaryDNS=192.168.0.1", "SecondaryDNS=192.168.0.3", "Internet_Connection=1",
                  "Modem_Connection=0", "LAN_Connection=1", "PROXY_Connection=0", "OfflineMode=0", "RASInstalled=1",
                  "Start_Page=http：//www.example.co.jp/"});
    // "TRUE" and "1" are set; "True", "yes", FALSE and a missing record are not; MCA has its own record
    const QStringList set = {"FPU", "VME", "DE",   "PSE", "TSC",  "MSR", "MCE", "CX8",  "APIC",    "SEP",   "MTRR", "PGE", "CMOV",
                             "PAT", "MMX", "FXSR", "SSE", "SSE2", "HTT", "TM",  "SSE3", "MONITOR", "DSCPL", "TM2",  "CID"};
    for (const char* flag :
         {"FPU",   "VME", "DE",  "PSE",  "TSC", "MSR",  "PAE", "MCE", "CX8",   "APIC",    "SEP",  "MTRR",    "PGE",   "MCA", "CMOV", "PAT",
          "PSE36", "PSN", "MMX", "FXSR", "SSE", "SSE2", "HTT", "TM",  "3DNow", "3DNowEx", "SSE3", "MONITOR", "DSCPL", "EST", "TM2",  "CID"})
        v.push_back({QStringLiteral("CPU_") + QLatin1String(flag), set.contains(QLatin1String(flag)) ? "1" : "0"});
    return v;
}

FieldValues JaPc01ComputerList()
{
    return Fields({"Location_Code=0", "User_Code=0", "Manufacturer_Code=0", "Model_Code=0", "Asset_Code=0", "Type_Number=PC-MY26XEZ7",
                   "Sereals_Number=5X0123456", "Update=2005/12/04 10：30：15", "Deleted_Flug=0"});
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
    EXPECT_EQ(results[0].outcome, Outcome::Read);
    EXPECT_EQ(results[0].mainKey, 1);
    EXPECT_FALSE(results[0].keyOverflow);
    EXPECT_EQ(Mdl_gData::g.LastReadMainKey, 1);

    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 1, JaPc01Pclist());
    ExpectRow(ledger, QStringLiteral("tbl_Computer_List"), 1, JaPc01ComputerList());
    EXPECT_EQ(
        applications(1),
        (QStringList{
            QStringLiteral(
                "2005/12/04 10：30：15|Microsoft Office Professional Edition 2003|11.0.5614.0|C：￥Program Files￥Microsoft Office￥"),
            QStringLiteral("2005/12/04|ウイルスバスター2006|14.10|C：￥Program Files￥Trend Micro￥"),
            QStringLiteral("2005/11/30|Tom’s Mail Checker|1.2|C：￥Tools￥"), QStringLiteral("2005/12/04|Adobe Reader 7.0.5 - 日本語||"),
            // a comma in the version shifts the path into the date
            QStringLiteral("C：￥Program Files￥Hidemaru￥、2005/10/01|秀丸エディタ|4|16")}));
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT \"Key\", \"Update\", Device_Category, Device_Name, Device_Provider, Device_Version "
                                         "FROM tbl_Device_Management ORDER BY rowid")),
              (QStringList{
                  QStringLiteral("1|2005/12/04|ディスプレイ アダプタ|Intel(R) 82865G Graphics Controller|Intel Corporation|6.14.10.4299"),
                  QStringLiteral("1|2005/12/04|ネットワーク アダプタ|Intel(R) PRO/100 VE Network Connection|Intel|7.0.0.0"),
                  QStringLiteral("1|2001/07/01|ディスク ドライブ|ST340014A|(標準ディスク ドライブ)|5.1.2535.0")}));
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT \"Key\", \"Update\", Printer_Name, PrinterPorts_Name, Printer_Driver_Version "
                                         "FROM tbl_Printer_Management ORDER BY rowid")),
              (QStringList{QStringLiteral("1|2005/12/04|EPSON LP-9000C|IP_192.168.0.201|NULL"),
                           QStringLiteral("1|2005/12/04|総務部 カラーレーザー|LPT1：|NULL")}));
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT \"Key\", \"Update\", Environmental_Name, Environmental_Path, Coments "
                                         "FROM tbl_Environmental ORDER BY rowid")),
              (QStringList{QStringLiteral("1|2005/12/04|TEMP|C：￥DOCUME~1￥yamada￥LOCALS~1￥Temp|NULL"),
                           QStringLiteral("1|2005/12/04|Path|C：￥WINDOWS￥system32；C：￥WINDOWS|NULL"),
                           QStringLiteral("1|2005/12/04|OS|Windows_NT|NULL")}));
    // the file stays staged after the read
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ReadCsv")), 107);
}

TEST_F(InventoryRead, TheEnglishReaderTakesTheEnglishKeywordsAndTheWindowsDate)
{
    const auto results = read({QStringLiteral("en_pc02.csv")}, InventoryLanguage::English);
    ASSERT_EQ(results.size(), 1u);
    EXPECT_EQ(results[0].mainKey, 1);
    ExpectRow(
        ledger, QStringLiteral("tbl_Pclist"), 1,
        Fields({"Computer_Name=SALES-PC07", "Workgroup=SALES", "IPAddress_16num=0A01146B", "Update=2006/01/15 09：05：00",
                "MacAddress=00-06-5B-12-34-56", "Memory_Full=261616", "Memory_Free_unit=KB", "Pagefile_Used=201844", "SysHD_Free=17147",
                "IE_SP=；SP1；", "Resolution=1280x1024"})
            + Fields({"CPU_Clock=2794", "CPU_L3_Cache=2", "CPU_L3_Cache_unit=MB", "CPU_L1_Trace_Cache_unit=Kuops", "CPU_MCA=1",
                      "DomeinName=corp.example.com", "Gateway=10.1.0.1", "Internet_Connection=1", "PROXY_Connection=1", "RASInstalled=0"}));
    ExpectRow(ledger, QStringLiteral("tbl_Computer_List"), 1,
              Fields({"Update=2006/01/15 09：05：00", "Type_Number=OptiPlex GX270", "Sereals_Number=7DK2Q1J"}));
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ApplicationsList"), QStringLiteral("\"Key\" = 1")), 2);
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT PrinterPorts_Name FROM tbl_Printer_Management")),
              QStringLiteral("￥￥print01￥sales-lj"));
}

TEST_F(InventoryRead, AnEnglishFileReadInJapaneseFillsOnlyTheLanguageFreeRows)
{
    const auto results = read({QStringLiteral("en_pc02.csv")});
    ASSERT_EQ(results[0].outcome, Outcome::Read);
    FieldValues expected;
    for (const InventoryFieldRow& row : InventoryFieldMap()) {
        const FieldSelection ja = row.selection(InventoryLanguage::Japanese, FieldMapPath::BulkRead);
        const FieldSelection en = row.selection(InventoryLanguage::English, FieldMapPath::BulkRead);
        const bool languageBound = ja.firstValue != en.firstValue || ja.secondValue != en.secondValue;
        if (!languageBound || row.table != QLatin1String("tbl_Pclist"))
            continue;
        const bool number = row.kind == FieldKind::Number || row.kind == FieldKind::GuardedNumber;
        const bool flag = row.kind == FieldKind::SettingFlag;
        expected.push_back({row.writtenField(FieldMapPath::BulkRead).toString(), number || flag ? "0" : ""});
    }
    ASSERT_EQ(expected.size(), 50u);
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 1, expected);
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 1,
              Fields({"SysHD_Driveletter=C：", "Operating_System=Microsoft Windows 2000 Professional", "ProductID=51873-OEM-0012345-67890",
                      "OEM_Manufacturer=Dell Inc.", "OEM_Model=OptiPlex GX270", "IE_Version=6.0.2800.1106", "CPU_Unit=2", "CPU_MCA=1",
                      "PrimaryDNS=10.1.0.2", "SecondaryWINS=10.1.0.7", "Start_Page=http：//intranet.example.com/"}));
    ExpectRow(ledger, QStringLiteral("tbl_Computer_List"), 1, Fields({"Update=", "Type_Number=OptiPlex GX270"}));
    // the row-wise sections do not depend on the language
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_Device_Management"), QStringLiteral("\"Key\" = 1")), 2);
}

TEST_F(InventoryRead, RefusedFilesAreSkippedAndAnUnreadableOneReusesTheStagedFile)
{
    TempDir other;
    const auto results = read({QStringLiteral("ja_pc01.csv"), QStringLiteral("bad_header.csv"), QStringLiteral("bad_header_case.csv"),
                               other.file(QStringLiteral("gone.csv")), QStringLiteral("header_only.csv")});
    ASSERT_EQ(results.size(), 5u);
    EXPECT_EQ(results[1].outcome, Outcome::RefusedHeader);
    EXPECT_EQ(results[2].outcome, Outcome::RefusedHeader);
    EXPECT_EQ(results[3].outcome, Outcome::Unreadable);
    EXPECT_EQ(results[3].reason, QStringLiteral("ファイルが見つかりません。"));
    EXPECT_EQ(results[3].mainKey, 2);
    EXPECT_EQ(results[4].outcome, Outcome::Read);
    EXPECT_EQ(results[4].mainKey, 3);

    // nothing of the refused files reached the ledger; the unreadable one made a copy of the last
    // staged file; the header-only file a computer of empty values
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT MainKey FROM tbl_Computer_List ORDER BY MainKey")), (QStringList{"0", "1", "2", "3"}));
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_Pclist"), QStringLiteral("Computer_Name LIKE 'PC-KEIRI%'")), 0);
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 2, JaPc01Pclist());
    EXPECT_EQ(applications(2).size(), 5);
    ExpectRow(
        ledger, QStringLiteral("tbl_Pclist"), 3,
        Fields({"Computer_Name=", "IPAddress_16num=", "Memory_Full=0", "CPU_L2_Cache=0", "CPU_FPU=0", "Internet_Connection=0", "Update="}));
    ExpectRow(ledger, QStringLiteral("tbl_Computer_List"), 3, Fields({"Location_Code=0", "Asset_Code=0", "Type_Number="}));
    EXPECT_EQ(applications(3).size(), 0);
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

TEST_F(InventoryRead, StagingHoldsTheLastAcceptedFileFromItsFirstRow)
{
    const auto results = read({QStringLiteral("ja_pc01.csv"), QStringLiteral("en_pc02.csv"), QStringLiteral("bad_header.csv")});
    ASSERT_EQ(results.size(), 3u);
    const std::optional<Mdl_Access_mdb::StagedLines> lines = Mdl_Access_mdb::ReadInventoryLines(Inventory(QStringLiteral("en_pc02.csv")));
    ASSERT_TRUE(lines);
    QStringList expected;
    for (size_t i = 0; i < lines->size(); ++i)
        expected << QString::number(i + 1) + QLatin1Char('|') + QStringList((*lines)[i].begin(), (*lines)[i].end()).join(QLatin1Char('|'));
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT rowid, * FROM tbl_ReadCsv ORDER BY rowid")), expected);
}

TEST_F(InventoryRead, WhereATriggerRunsOnStagingEachFileIsStagedAsItIsRead)
{
    ledger.exec(QStringLiteral("CREATE TABLE staged (n INTEGER)"));
    ledger.exec(QStringLiteral("INSERT INTO staged VALUES (0)"));
    ledger.exec(QStringLiteral("CREATE TRIGGER count_staging AFTER DELETE ON tbl_ReadCsv BEGIN UPDATE staged SET n = n + 1; END"));
    read({QStringLiteral("ja_pc01.csv"), QStringLiteral("en_pc02.csv"), QStringLiteral("ja_pc01.csv")});
    // the trigger runs for each row that the next file's staging deletes
    const size_t english = Mdl_Access_mdb::ReadInventoryLines(Inventory(QStringLiteral("en_pc02.csv")))->size();
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT n FROM staged")), QString::number(107 + english));
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ReadCsv")), 107);
}

TEST_F(InventoryRead, WhereATriggerRunsTheFieldsAreWrittenOneStatementAfterAnother)
{
    // the name is written before the workgroup, so the workgroup the trigger sets is overwritten
    ledger.exec(QStringLiteral("CREATE TRIGGER name_sets_workgroup AFTER UPDATE OF Computer_Name ON tbl_Pclist "
                               "BEGIN UPDATE tbl_Pclist SET Workgroup = 'SET BY NAME' WHERE MainKey = NEW.MainKey; END"));
    read({QStringLiteral("ja_pc01.csv")});
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 1, JaPc01Pclist());
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
    ExpectRow(ledger, QStringLiteral("tbl_Computer_List"), 1, JaPc01ComputerList());
    // another workgroup passes, and the computer of the next file is written whole
    ExpectRow(ledger, QStringLiteral("tbl_Pclist"), 2,
              Fields({"Computer_Name=", "Workgroup=", "Operating_System=Microsoft Windows 2000 Professional"}));
}

// The read writes a computer with one UPDATE a table, and staging once a batch, where that
// leaves the same rows as statement after statement: while each check names its own column
// alone, and staging refuses nothing but a text longer than 255 characters.
TEST_F(InventoryRead, EachCheckOfTheComputerTablesAndOfStagingNamesItsOwnColumnAlone)
{
    // the schema writes each column on a line and its check on the next
    static const QRegularExpression columnLine(QStringLiteral("^\\s*\"?(\\w+)\"? [A-Z]+"));
    static const QRegularExpression checkLine(QStringLiteral("CHECK \\((.*)\\),?$"));
    static const QRegularExpression word(QStringLiteral("'[^']*'|[A-Za-z_]\\w*"));
    static const QStringList sql = {"IS", "NULL", "OR", "AND", "NOT", "BETWEEN", "typeof", "length"};
    for (const char* table : {"tbl_Pclist", "tbl_Computer_List", "tbl_ReadCsv"}) {
        const QString create = ledger.value(QStringLiteral("SELECT sql FROM sqlite_master WHERE name = '%1'").arg(QLatin1String(table)));
        QString column;
        int checks = 0;
        for (const QString& line : create.split(QLatin1Char('\n'))) {
            if (const auto c = columnLine.match(line); c.hasMatch() && !line.contains(QStringLiteral("CONSTRAINT")))
                column = c.captured(1);
            const auto check = checkLine.match(line);
            if (!check.hasMatch())
                continue;
            QStringList named;
            for (auto w = word.globalMatch(check.captured(1)); w.hasNext();) {
                const QString t = w.next().captured(0);
                if (!t.startsWith(QLatin1Char('\'')) && !sql.contains(t) && !named.contains(t))
                    named << t;
            }
            EXPECT_EQ(named, QStringList{column}) << table << ": " << line.toStdString();
            if (QLatin1String(table) == QLatin1String("tbl_ReadCsv")) {
                EXPECT_TRUE(check.captured(1).endsWith(QStringLiteral(") <= 255"))) << line.toStdString();
            }
            ++checks;
        }
        EXPECT_GT(checks, 0) << table;
        EXPECT_EQ(checks, create.count(QStringLiteral("CHECK"))) << table;
    }
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
