// The list export: fenwold-admin export-list run as a process the way scripts run it, against
// the expected files and against the main window's own export of the same view.
#include "AssetListFixture.h"

#include "assetlist/ListExport.h"
#include "platform/text/Cp932.h"

#include "support/AdminProcess.h"
#include "TestPaths.h"

#include <QDir>
#include <QFile>

using namespace Mdl_gData;

namespace {

// A settings file as the view window leaves it: code page 932, CR LF.
QByteArray Settings(const QString& text) { return text::ToCp932(QString(text).replace(QLatin1Char('\n'), QStringLiteral("\r\n"))); }

// View 1, the current one: installed computers by location, then by name from Z to A, with
// capacities, connection flags, a drive flag no inventory file fills, and the location, whose
// entry "本館2F" is retired. View 2: the removed computers with their removal date.
// A view's shown columns as the view window writes them.
QString Columns(std::initializer_list<int> columns)
{
    QString out = QStringLiteral("MSFlexGrit_SelectNum=%1\n").arg(columns.size());
    int place = 0;
    for (int c : columns)
        out += QStringLiteral("MSFlexGrit_Select%1=%2\n").arg(++place).arg(c);
    return out;
}
const QString kTwoViews = QStringLiteral("[Main]\nSectionNumber=1\nSectionName1=設置場所順\nSectionName2=撤去済み\n[1]\nOptDel=0\n"
                                         "SelectNumber=2\nKeyName0=Location_Name\nKeyCaption0=設置場所\nKeyASCDESC0=ASC\n"
                                         "KeyName1=Computer_Name\nKeyCaption1=コンピュータ名\nKeyASCDESC1=DESC\n")
                          + Columns({1, 8, 10, 17, 26, 28, 30, 32, 36, 43, 44, 45, 65}) + QStringLiteral("[2]\nOptDel=1\nSelectNumber=0\n")
                          + Columns({8, 16, 65, 75, 76});

class ExportListTest : public AssetListFixture {
protected:
    // Four computers read from inventory files, keys 1 to 4 (the fourth a second reading of the
    // first file), on two locations; computer 4 retired as the list's retire command leaves it.
    void fillLedger()
    {
        const auto inventory = [](const char* name) { return TestDataPath(QStringLiteral("inventory/") + QLatin1String(name)); };
        const QStringList read{QStringLiteral("read"), QStringLiteral("--ledger"), ledger.path()};
        EXPECT_EQ(Admin(read + QStringList{inventory("ja_pc01.csv"), inventory("ja_pc03.txt")}).exitCode, 0);
        EXPECT_EQ(Admin(read + QStringList{QStringLiteral("--english"), inventory("en_pc02.csv")}).exitCode, 0);
        EXPECT_EQ(Admin(read + QStringList{inventory("ja_pc01.csv")}).exitCode, 0);
        ledger.exec(QStringLiteral("INSERT INTO tbl_Location VALUES (1, '本館2F', '', '1'), (2, '本館1F', '', '0')"));
        ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Location_Code = 1 WHERE MainKey IN (1, 4)"));
        ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Location_Code = 2 WHERE MainKey IN (2, 3)"));
        ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Deleted_Flug = 1, Remove_Date = '2006/03/31' WHERE MainKey = 4"));
        ASSERT_EQ(ledger.value(QStringLiteral("SELECT count(*) FROM tbl_Computer_List WHERE MainKey > 0")), QStringLiteral("4"));
    }
    void writeSettings(const QString& text) { ledger.dir().write(QStringLiteral("DB.ini"), Settings(text)); }
    // export-list on the test's ledger and settings file, then the arguments given
    AdminRun exportList(const QStringList& args)
    {
        return Admin(QStringList{QStringLiteral("export-list"), QStringLiteral("--ledger"), ledger.path(), QStringLiteral("--ini"),
                                 ledger.dir().file(QStringLiteral("DB.ini"))}
                     + args);
    }

    TempDir out;
};

TEST_F(ExportListTest, TheCommandWritesEachViewAsTheWindowsExportDoes)
{
    fillLedger();
    writeSettings(kTwoViews);
    const QByteArray view1 = ReadTestData(QStringLiteral("export/view1.csv"));
    const QByteArray view2 = ReadTestData(QStringLiteral("export/view2.csv"));

    // the current view of the settings file, and view 2 by number; the name is used as given
    AdminRun r = exportList({out.file(QStringLiteral("current"))});
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(out.read(QStringLiteral("current")), view1);
    r = exportList({QStringLiteral("--view"), QStringLiteral("2"), out.file(QStringLiteral("removed.txt"))});
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(out.read(QStringLiteral("removed.txt")), view2);
    EXPECT_FALSE(r.err.contains(QStringLiteral("警告"))) << r.err.toStdString();

    // the window, offscreen, over the same ledger and settings: its export adds ".csv" always
    g.SectionNumber = SavedSectionNumber();
    loadList();
    dialogs.answerFile(out.file(QStringLiteral("window1")));
    ListExport::ExportGrid(*grid, QStringLiteral("CSV書き出し"));
    EXPECT_EQ(out.read(QStringLiteral("window1.csv")), view1);
    g.SectionNumber = 2;
    loadList();
    dialogs.answerFile(out.file(QStringLiteral("window2.csv")));
    ListExport::ExportGrid(*grid, QStringLiteral("CSV書き出し"));
    EXPECT_EQ(out.read(QStringLiteral("window2.csv.csv")), view2);
    EXPECT_EQ(dialogs.messageTexts(), (QStringList{QStringLiteral("完了しました"), QStringLiteral("完了しました")}));

    // without options: pcdb.mdb and DB.ini beside the program
    r = Admin({QStringLiteral("export-list"), out.file(QStringLiteral("beside"))}, AdminBeside(ledger.dir()));
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(out.read(QStringLiteral("beside")), view1);

    // a missing settings file is view 0 without columns: the hidden key alone, in the query's order
    r = Admin({QStringLiteral("export-list"), QStringLiteral("--ledger"), ledger.path(), QStringLiteral("--ini"),
               out.file(QStringLiteral("none.ini")), out.file(QStringLiteral("keys"))});
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(out.read(QStringLiteral("keys")), QByteArray(" , \r\n1, \r\n2, \r\n3, \r\n"));
}

TEST_F(ExportListTest, FailuresPrintTheWindowsErrorBoxAndEndWithStatusOne)
{
    ledger.computer(5, 0, 0, "Computer_Name = 'PC-A'");
    const QString target = out.file(QStringLiteral("list.csv"));

    // a sort key the engine does not know fails when the list is opened; the command prints
    // what the window's error box shows, and writes nothing
    writeSettings(QStringLiteral("[Main]\nSectionNumber=3\n[3]\nSelectNumber=1\nKeyName0=Computer_Nmae\nKeyASCDESC0=ASC\n"));
    AdminRun r = exportList({target});
    EXPECT_EQ(r.exitCode, 1);
    g.SectionNumber = 3;
    loadList();
    ASSERT_EQ(dialogs.errorBoxes().size(), 1u);
    QString shown = dialogs.messages().back().prompt;
    shown = QStringLiteral("警告: ") + shown.replace(QStringLiteral("\r\n"), QStringLiteral(" ")).trimmed();
    EXPECT_TRUE(r.err.contains(shown)) << r.err.toStdString() << "\nwindow: " << shown.toStdString();
    EXPECT_FALSE(QFile::exists(target));

    // a current view number that is no number stops the load as it stops the window's
    writeSettings(QStringLiteral("[Main]\nSectionNumber=two\n"));
    r = exportList({target});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("警告: （エラーコード：13）"))) << r.err.toStdString();
    EXPECT_FALSE(QFile::exists(target));
    // ... while --view does not read it
    r = exportList({QStringLiteral("--view"), QStringLiteral("0"), target});
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(out.read(QStringLiteral("list.csv")), QByteArray(" , \r\n5, \r\n"));
    // a list without rows is no failure: the file is replaced by an empty one
    writeSettings(QStringLiteral("[Main]\nSectionNumber=2\n[2]\nOptDel=1\nMSFlexGrit_SelectNum=1\nMSFlexGrit_Select1=8\n"));
    r = exportList({target});
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(QFile::exists(target));
    EXPECT_EQ(out.read(QStringLiteral("list.csv")), QByteArray());
}

TEST_F(ExportListTest, UsageErrorsEndWithStatusOneAndWriteNothing)
{
    const QString a = out.file(QStringLiteral("a.csv"));
    const QStringList cases[] = {{}, {a, out.file(QStringLiteral("b.csv"))}, {QStringLiteral("--view"), QStringLiteral("8"), a}};
    for (const QStringList& args : cases) {
        const AdminRun r = exportList(args);
        const std::string shown = args.join(QLatin1Char(' ')).toStdString();
        EXPECT_EQ(r.exitCode, 1) << shown;
        EXPECT_TRUE(r.err.contains(QStringLiteral("usage: fenwold-admin export-list [--ledger PATH] [--ini PATH] [--view N] OUT")))
            << shown;
        EXPECT_TRUE(QDir(out.path()).isEmpty()) << shown;
    }
}

} // namespace
