// The printer cross table, and the exports of both windows: the window's own "書き出し" and
// fenwold-admin export run as a process, against the expected files of tests/data/network.
#include "network/frm_Edit_Network.h"
#include "network/frm_List_Printer.h"

#include "NetworkFixture.h"

#include "support/AdminProcess.h"
#include "support/TempDir.h"
#include "TestPaths.h"

#include <QAction>
#include <QFileInfo>

namespace {

class PrinterAndExport : public NetworkFixture {
protected:
    // Printers of the computers of addComputers: a port shared by three, a port with two printers
    // of one computer, a port of a retired computer, one printer without a port and one whose
    // port is Null.
    void addPrinters()
    {
        ledger.exec(QStringLiteral("INSERT INTO tbl_Printer_Management (Key, \"Update\", Printer_Name, PrinterPorts_Name) VALUES "
                                   "(3, '2005/12/04', 'FAX', Null), "
                                   "(2, '2005/12/04', 'Microsoft Office Document Image Writer', ''), "
                                   "(1, '2005/12/04', 'EPSON LP-9000C', 'IP_192.168.0.201'), "
                                   "(2, '2005/12/04', 'EPSON LP-9000C', 'IP_192.168.0.201'), "
                                   "(5, '2005/12/04', 'EPSON LP-9000C', 'IP_192.168.0.201'), "
                                   "(1, '2005/12/04', '総務部 カラーレーザー', 'LPT1:'), "
                                   "(3, '2005/12/04', 'HP LaserJet 4050', '\\\\print01\\sales'), "
                                   "(3, '2005/12/04', 'HP LaserJet 4050 (コピー 1)', '\\\\print01\\sales'), "
                                   "(4, '2005/12/04', 'Canon LBP-1310', 'LPT1:')"));
    }
    AdminRun exportList(const QStringList& list, const QString& out)
    {
        return Admin(QStringList{QStringLiteral("export")} + list + QStringList{QStringLiteral("--ledger"), ledger.path(), out});
    }

    TempDir out;
};

TEST_F(PrinterAndExport, ThePrinterListIsOneColumnPerPortWithTheComputersUnderIt)
{
    addComputers();
    addPrinters();
    frm_List_Printer& w = frm_List_Printer::Instance();
    w.Show(ui::vbModeless);
    const ui::FlexGrid& grid = *w.MSFlexGrid_Printer;
    // the grid's texts are the export's, compared with tests/data below
    EXPECT_EQ(grid.TextMatrix(0, 1), QStringLiteral("HP LaserJet 4050")) << "the first printer of the port names it";
    EXPECT_EQ(grid.CellBackColorAt(1, 2), ui::QBColor(8));
    EXPECT_EQ(grid.CellBackColorAt(3, 0), ui::QBColor(8));

    // the window's export, and the command's, byte for byte as expected
    dialogs.answerFile(out.file(QStringLiteral("printers")));
    w.Mnu_Export_CSV->trigger();
    EXPECT_EQ(dialogs.messageTexts(), QStringList{"完了しました"});
    const QByteArray expected = ReadTestData(QStringLiteral("network/printers.csv"));
    EXPECT_EQ(FileBytes(out.file(QStringLiteral("printers.csv"))), expected);
    const AdminRun r = exportList({QStringLiteral("printers")}, out.file(QStringLiteral("by-command")));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(FileBytes(out.file(QStringLiteral("by-command"))), expected);

    // "一覧更新" reads the printers again: a computer retired since is gone with its column
    ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Deleted_Flug = 1 WHERE MainKey = 3"));
    w.Mnu_List_Update->trigger();
    EXPECT_EQ(cells(grid), (QStringList{"1|IP_192.168.0.201|LPT1:", "2|PC-SOUMU-01|PC-SOUMU-01", "3|PC-EIGYO-02|", "4|PC-NOUSER|", "5||"}));
}

TEST_F(PrinterAndExport, WithoutPrintersTheGridStaysEmptyAndTheExportIsAnEmptyFile)
{
    addComputers();
    frm_List_Printer& w = frm_List_Printer::Instance();
    w.Show(ui::vbModeless);
    EXPECT_EQ(w.MSFlexGrid_Printer->Rows(), 0);
    const AdminRun r = exportList({QStringLiteral("printers")}, out.file(QStringLiteral("none.csv")));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(QFileInfo::exists(out.file(QStringLiteral("none.csv"))));
    EXPECT_EQ(FileBytes(out.file(QStringLiteral("none.csv"))), QByteArray());
}

TEST_F(PrinterAndExport, TheNetworkExportWritesTheAddressListAsTheWindowDoesNeverTheLogins)
{
    addComputers();
    addDevices();
    const QByteArray expected = ReadTestData(QStringLiteral("network/network.csv"));

    EXPECT_TRUE(Admin({QStringLiteral("export"), QStringLiteral("network")})
                    .err.contains(QStringLiteral("usage: fenwold-admin export network [--ledger PATH] [--ini PATH] [--rebuild] OUT")));
    // as the list stands the command writes it: empty until a rebuild
    AdminRun r = exportList({QStringLiteral("network")}, out.file(QStringLiteral("stale")));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(FileBytes(out.file(QStringLiteral("stale"))), QByteArray());
    r = exportList({QStringLiteral("network"), QStringLiteral("--rebuild")}, out.file(QStringLiteral("rebuilt")));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(FileBytes(out.file(QStringLiteral("rebuilt"))), expected);
    EXPECT_FALSE(FileBytes(out.file(QStringLiteral("rebuilt"))).contains("secret"));

    // the window over the list the command rebuilt, its export with ".csv" added
    frm_Edit_Network& w = frm_Edit_Network::Instance();
    w.Show(ui::vbModeless);
    dialogs.answerFile(out.file(QStringLiteral("window.csv")));
    w.Export_CSV->trigger();
    EXPECT_EQ(FileBytes(out.file(QStringLiteral("window.csv.csv"))), expected);
    EXPECT_EQ(dialogs.messageTexts(), QStringList{"完了しました"});

    // the stale list written again after a device is added: the command does not rebuild
    // without being told
    ledger.exec(QStringLiteral("INSERT INTO tbl_NetworkUnit (Key, Computer_Name) VALUES (9, 'NEW')"));
    r = exportList({QStringLiteral("network")}, out.file(QStringLiteral("again")));
    EXPECT_EQ(FileBytes(out.file(QStringLiteral("again"))), expected);
}

TEST_F(PrinterAndExport, ARebuildThatCannotBeWrittenSaysSoAndKeepsThePreviousList)
{
    addComputers();
    ASSERT_EQ(exportList({QStringLiteral("network"), QStringLiteral("--rebuild")}, out.file(QStringLiteral("before"))).exitCode, 0);
    const QStringList before = networkList();
    ASSERT_EQ(before.size(), 3);
    // enough devices that the new list needs room the disk no longer has
    ledger.exec(QStringLiteral("WITH RECURSIVE n(k) AS (SELECT 0 UNION ALL SELECT k + 1 FROM n WHERE k < 399) "
                               "INSERT INTO tbl_NetworkUnit (Key, Computer_Name, IPAddress) "
                               "SELECT k, 'DEVICE-' || k || '-' || hex(zeroblob(30)), '10.1.' || k || '.1' FROM n"));
    ledger.closeConnection();
    const QString target = out.file(QStringLiteral("after"));
    const AdminRun r = AdminWithFileLimit({QStringLiteral("export"), QStringLiteral("network"), QStringLiteral("--rebuild"),
                                           QStringLiteral("--ledger"), ledger.path(), target},
                                          QFileInfo(ledger.path()).size());
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("警告: （エラーコード："))) << r.err.toStdString();
    EXPECT_FALSE(QFileInfo::exists(target));
    EXPECT_EQ(networkList(), before);
    EXPECT_FALSE(QFileInfo::exists(ledger.path() + QStringLiteral("-journal")));
}

} // namespace
