// The review window driven as a user drives it: a computer chosen in the list, a file read through
// the dialog, cells corrected, the overwrite confirmed; the ledger compared with what the bulk read
// makes of the same file.
#include "intake/frm_Inport.h"

#include "intake/InventoryRead.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/Twips.h"

#include "IntakeFixture.h"

#include <QAction>
#include <QLineEdit>
#include <QRegularExpression>

#include <map>

namespace {

class FrmInport : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Mdl_gData::g.MainFormWidth = 14835;
        Mdl_gData::g.MainFormHeight = 10530;
    }
    void read(const QString& file, InventoryLanguage language = InventoryLanguage::Japanese)
    {
        ASSERT_FALSE(ReadInventoryFiles({Inventory(file)}, language).failure);
    }
    frm_Inport& open()
    {
        frm_Inport::Instance().Show(ui::vbModeless);
        return frm_Inport::Instance();
    }
    void choose(frm_Inport& w, int entry)
    {
        ui::ListBox& list = *w.List_ComuputerName;
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(entry)).center());
    }
    void openFile(frm_Inport& w, const QString& file)
    {
        dialogs.answerFile(Inventory(file));
        w.Mnu_Open->trigger();
    }
    // A value typed into tbx_Edit and put into the grid row's column 4.
    void edit(frm_Inport& w, int row, const QString& value)
    {
        click(*w.MSFlexGrid1, row);
        w.tbx_Edit->setText(value);
        w.Mnu_Update->trigger();
    }
    void overwrite(frm_Inport& w, int answer = ui::vbYes)
    {
        dialogs.answerMessage(answer);
        w.Mnu_DBUpdate->trigger();
    }
    // The columns where two computers' rows differ: column -> "first|second".
    std::map<QString, QString> differences(const QString& table, int first, int second)
    {
        const QStringList a = ledger.fields(table, first), b = ledger.fields(table, second);
        std::map<QString, QString> out;
        for (qsizetype i = 0; i < a.size(); ++i)
            if (a[i] != b.value(i) && !a[i].startsWith(QStringLiteral("MainKey=")))
                out[a[i].section(u'=', 0, 0)] = a[i].section(u'=', 1) + u'|' + b.value(i).section(u'=', 1);
        return out;
    }
    QStringList rowWise(int key)
    {
        QStringList out;
        for (const char* table : {"tbl_ApplicationsList", "tbl_Device_Management", "tbl_Printer_Management", "tbl_Environmental"})
            // the key stands first
            out << ledger.rows(QStringLiteral("SELECT * FROM %1 WHERE \"Key\" = %2 ORDER BY rowid").arg(QLatin1String(table)).arg(key))
                       .replaceInStrings(QRegularExpression(QStringLiteral("^%1\\|").arg(key)), QStringLiteral("K|"));
        return out;
    }
};

TEST_F(FrmInport, AFileReviewedOntoAComputerLeavesItAsTheBulkReadWouldSaveTheRowsTheReviewTreatsOtherwise)
{
    read(QStringLiteral("ja_pc01.csv"));                             // computer 1: the bulk read's result
    read(QStringLiteral("en_pc02.csv"), InventoryLanguage::English); // computer 2: to be overwritten
    ledger.exec(QStringLiteral("INSERT INTO tbl_Location VALUES (1, '本館1F', '', '0')"));
    ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Location_Code = 1 WHERE MainKey = 2"));
    const QStringList before = ledger.fields(QStringLiteral("tbl_Pclist"), 2);

    frm_Inport& w = open();
    ASSERT_EQ(w.List_ComuputerName->count(), 2);
    EXPECT_EQ(w.List_ComuputerName->item(1)->text(), QStringLiteral("SALES-PC07       本館1F "));
    choose(w, 1);
    EXPECT_EQ(w.tbx_ComputerKey->text(), QStringLiteral("2"));
    ui::FlexGrid& grid = *w.MSFlexGrid1;
    EXPECT_EQ(grid.Rows(), 108);
    EXPECT_EQ(grid.TextMatrix(1, 3), QStringLiteral("SALES-PC07"));
    EXPECT_EQ(grid.TextMatrix(106, 1), QStringLiteral("Type_Number")) << "the field's name while the ledger's side was filled last";

    openFile(w, QStringLiteral("ja_pc01.csv"));
    EXPECT_EQ(grid.TextMatrix(106, 1), QStringLiteral("Model"));
    // the file's texts as they stand ("512MB"), an empty cache size as 0
    for (const auto& [row, text] :
         {std::pair{1, "PC-SOUMU-01"}, {7, "512MB"}, {53, "TRUE"}, {59, "FALSE"}, {42, "0"}, {99, "1"}, {4, "C0A8000A"}})
        EXPECT_EQ(grid.TextMatrix(row, 4), QLatin1String(text)) << row;
    EXPECT_EQ(cells(*w.MSGrid_Application, 1).value(3), QStringLiteral("Adobe Reader 7.0.5 - 日本語||"));
    EXPECT_EQ(w.MSGrid_Application->Rows(), 6);

    // "512MB" is no number: without a correction the overwrite would end the run there
    edit(w, 7, QStringLiteral("512"));
    edit(w, 2, QStringLiteral("SOUMU"));
    EXPECT_EQ(grid.CellBackColorAt(2, 1), ui::QBColor(8));
    EXPECT_EQ(grid.CellBackColorAt(7, 1), ui::QBColor(15));
    overwrite(w);
    ASSERT_EQ(dialogs.messages().size(), 2u);
    EXPECT_EQ(dialogs.messages()[0].prompt, QStringLiteral("DBを更新しますか ?"));
    EXPECT_EQ(dialogs.messages()[0].buttons, ui::vbYesNo | ui::vbQuestion);
    EXPECT_EQ(dialogs.messages()[1].prompt, QStringLiteral("完了しました"));

    // Computer 2 against computer 1 (the bulk read of the same file): the two edited cells; the
    // flags the file writes as words, which the number columns refuse, so that the overwritten
    // computer keeps its own; the trace cache's unit in the L3 unit, and the MCA flag and the
    // trace unit left as they were.
    EXPECT_EQ(differences(QStringLiteral("tbl_Pclist"), 1, 2), (std::map<QString, QString>{
                                                                   {"Workgroup", "WORKGROUP|SOUMU"},
                                                                   {"Memory_Full", "0|512"},
                                                                   {"CPU_PAE", "0|1"},
                                                                   {"CPU_MCA", "0|1"},
                                                                   {"CPU_TM2", "1|0"},
                                                                   {"CPU_L3_Cache_unit", "|Kμops"},
                                                                   {"CPU_L1_Trace_Cache_unit", "Kμops|Kuops"},
                                                               }));
    EXPECT_TRUE(before.contains(QStringLiteral("CPU_PAE=1")));
    EXPECT_TRUE(before.contains(QStringLiteral("CPU_L1_Trace_Cache_unit=Kuops")));
    // of the administrative record the type and the serial number only: no codes, no date
    EXPECT_EQ(differences(QStringLiteral("tbl_Computer_List"), 1, 2),
              (std::map<QString, QString>{{"Location_Code", "0|1"}, {"Update", "2005/12/04 10：30：15|2006/01/15 09：05：00"}}));
    // the row-wise data replaced by the staged file's
    EXPECT_EQ(rowWise(2), rowWise(1));
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ApplicationsList"), QStringLiteral("\"Key\" = 2")), 5);
    // the grid is not read again: column 3 shows the old values until the computer is chosen again
    EXPECT_EQ(grid.TextMatrix(1, 3), QStringLiteral("SALES-PC07"));
}

TEST_F(FrmInport, AnEnglishFileFillsOnlyTheRowsWhoseKeywordsAgreeAndTheOverwriteEndsAtTheFirstEmptyNumber)
{
    read(QStringLiteral("ja_pc01.csv"));
    const QString name = ledger.value(QStringLiteral("SELECT Computer_Name FROM tbl_Pclist WHERE MainKey = 1"));
    const QString memory = ledger.value(QStringLiteral("SELECT Memory_Full FROM tbl_Pclist WHERE MainKey = 1"));
    frm_Inport& w = open();
    choose(w, 0);
    openFile(w, QStringLiteral("en_pc02.csv"));
    ui::FlexGrid& grid = *w.MSFlexGrid1;
    // the computer's name and the memory have no Japanese keyword in the file
    for (const auto& [row, text] :
         {std::pair{1, ""}, {7, ""}, {26, "Microsoft Windows 2000 Professional"}, {34, "2793.5"}, {106, "OptiPlex GX270"}})
        EXPECT_EQ(grid.TextMatrix(row, 4), QLatin1String(text)) << row;

    // rows 1 to 6 are written, empty; row 7 has no number and ends the run
    overwrite(w);
    EXPECT_EQ(fatalEnd(), QStringLiteral("13"));
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT Computer_Name, Workgroup, IPAddress, IPAddress_16num, \"Update\", MacAddress, "
                                         "Memory_Full FROM tbl_Pclist WHERE MainKey = 1")),
              QStringList{QStringLiteral("||||||") + memory});
    EXPECT_NE(name, QString());
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Application_Name FROM tbl_ApplicationsList WHERE \"Key\" = 1 ORDER BY rowid")),
              QStringLiteral("Microsoft Office Professional Edition 2003"))
        << "the row-wise data are the old ones";
}

TEST_F(FrmInport, TheGuardsOfTheWindow)
{
    read(QStringLiteral("ja_pc01.csv"));
    read(QStringLiteral("ja_pc01.csv"));
    ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET Computer_Name = 'A-NAME-OF-EIGHTEEN' WHERE MainKey = 2"));
    ledger.computer(3, 0, 0, QStringLiteral("Computer_Name = 'ZZ'"));
    frm_Inport& w = open();
    // the names in order; the one of eighteen characters cannot be filled to 17 and ends the list
    EXPECT_EQ(w.List_ComuputerName->count(), 0);
    EXPECT_EQ(dialogs.errorBoxes(), std::vector<long>{5});
    w.Mnu_Close->trigger();
    flushDeletes();
    dialogs.clear();
    ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET Computer_Name = 'PC-2' WHERE MainKey = 2"));
    frm_Inport& again = open();
    ASSERT_EQ(again.List_ComuputerName->count(), 3);

    // nothing chosen: a click, "値を書き換え" and the overwrite do nothing and ask nothing
    click(*again.MSFlexGrid1, 3);
    EXPECT_EQ(again.CurrentRow, 0);
    again.tbx_Edit->setText(QStringLiteral("x"));
    again.Mnu_Update->trigger();
    again.Mnu_DBUpdate->trigger();
    EXPECT_EQ(again.MSFlexGrid1->TextMatrix(3, 4), QString());
    EXPECT_TRUE(dialogs.messages().empty());

    // a file with a wrong first line, and a cancelled dialog, change nothing and say nothing
    choose(again, 0);
    EXPECT_EQ(again.tbx_ComputerKey->text(), QStringLiteral("2"));
    const QStringList shown = cells(*again.MSFlexGrid1);
    openFile(again, QStringLiteral("bad_header.csv"));
    again.Mnu_Open->trigger();
    EXPECT_EQ(cells(*again.MSFlexGrid1), shown);
    EXPECT_EQ(again.MSGrid_Application->Rows(), 0);
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ReadCsv")), 107) << "staging keeps the last file read";
    EXPECT_TRUE(dialogs.messages().empty());

    // the answer No leaves the computer as it was
    openFile(again, QStringLiteral("ja_pc03.txt"));
    const QStringList before = ledger.rows(QStringLiteral("SELECT * FROM tbl_Pclist WHERE MainKey = 2"));
    overwrite(again, ui::vbNo);
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT * FROM tbl_Pclist WHERE MainKey = 2")), before);

    // a click on a row whose column 4 is empty keeps the value under edit, which "値を書き換え"
    // then puts there
    click(*again.MSFlexGrid1, 1);
    const QString kept = again.tbx_Edit->text();
    ASSERT_FALSE(kept.isEmpty());
    click(*again.MSFlexGrid1, 7);
    EXPECT_EQ(again.MSFlexGrid1->TextMatrix(7, 4), QString());
    EXPECT_EQ(again.tbx_Edit->text(), kept);
    again.Mnu_Update->trigger();
    EXPECT_EQ(again.MSFlexGrid1->TextMatrix(7, 4), kept);
}

} // namespace
