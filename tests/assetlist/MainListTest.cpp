#include "AssetListFixture.h"

#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"

#include <QTest>

#include <set>

using namespace Mdl_gData;

namespace {

class MainListTest : public AssetListFixture {
protected:
    // Three installed computers and a retired one, over masters of which user 2 is retired.
    void threeComputers()
    {
        ledger.master(QStringLiteral("tbl_Section"), 1, QStringLiteral("総務部"));
        ledger.master(QStringLiteral("tbl_Division"), 1, QStringLiteral("庶務課"));
        ledger.user(1, QStringLiteral("山田太郎"), QStringLiteral("0"), 1, 1);
        ledger.user(2, QStringLiteral("佐藤花子"), QStringLiteral("1"), 1, 1);
        ledger.computer(5, 0, 1,
                        "Computer_Name = 'PC-A', IPAddress = '192.168.1.5', SysHD_Full = 1000, Memory_Full = 1000, "
                        "Memory_Used = 300000, Pagefile_Used = 700000, LAN_Connection = 1, \"Update\" = '2004/01/01'",
                        "\"Update\" = '2005/04/01', Leasing_StartDate = '2005/4/1'");
        ledger.computer(3, 0, 2, "Computer_Name = 'PC-B', SysHD_Full = 1001, Memory_Full = 524288, Mo_Drive = 0, LAN_Connection = 0");
        ledger.computer(9, 0, 1, "Computer_Name = 'PC-C', SysHD_Full = 1234567890, Memory_Full = 2097152, Mo_Drive = 1");
        ledger.computer(7, 1, 1, "Computer_Name = 'PC-0'");

        g.SectionNumber = 2;
        writeColumns(2, {8, 4, 10, 26, 28, 30, 31, 39, 45, 65, 70});
        writeView(2, {"SelectNumber=1", "KeyName0=Computer_Name", "KeyASCDESC0=ASC"});
    }

    // The alignments of a row's cells from column 1 on: L left, R right, C centre (all at the bottom).
    QString alignments(int row) const
    {
        QString out;
        for (int c = 1; c < grid->Cols(); ++c) {
            const int a = grid->CellAlignmentAt(row, c);
            out += a == ui::flexAlignLeftBottom     ? u'L'
                   : a == ui::flexAlignRightBottom  ? u'R'
                   : a == ui::flexAlignCenterBottom ? u'C'
                                                    : u'?';
        }
        return out;
    }
};

// Every column a view can show names a field that the list's recordset answers to; the
// captions are those the view window lists, all different but the two "パスワード".
TEST_F(MainListTest, ColumnModelNamesFieldsTheListQueryAnswersTo)
{
    list->FGridViewSelect_ini();
    EXPECT_EQ(g.ColumnCount, 76);
    EXPECT_TRUE(g.ColumnTable[77].field.isEmpty());
    gSetSQLVal();
    db::Recordset rs;
    rs.Open(g.ListSql, DbConnection(), db::adOpenStatic, db::adLockOptimistic, -1);
    QStringList captions;
    for (int i = 0; i <= 76; ++i) {
        EXPECT_GE(rs.FieldIndex(g.ColumnTable[i].field), 0) << g.ColumnTable[i].field.toStdString();
        EXPECT_FALSE(g.ColumnTable[i].caption.isEmpty()) << i;
        captions << g.ColumnTable[i].caption;
    }
    rs.Close();
    captions.removeDuplicates();
    EXPECT_EQ(captions.size(), 76);
}

TEST_F(MainListTest, FillShowsTheSavedViewAndAClickPaintsOverTheRetiredGray)
{
    threeComputers();
    ASSERT_TRUE(loadList());
    ASSERT_EQ(grid->Cols(), 13);
    ASSERT_EQ(grid->Rows(), 4);

    // sorted by computer name; capacities above 1000 in the larger unit; the page-file columns
    // read Pagefile_Used and Memory_Used; the update date is the computer list's
    EXPECT_EQ(rowTexts(1), (QStringList{"1", "5", "PC-A", "山田太郎", "192.168.1.5", "1000", "1000", "700MB", "300MB", "", "有効",
                                        "2005/04/01", "2005/04/01"}));
    EXPECT_EQ(rowTexts(2), (QStringList{"2", "3", "PC-B", "佐藤花子", "", "GB", "524MB", "", "", "-", "-", "", ""}));
    EXPECT_EQ(rowTexts(3), (QStringList{"3", "9", "PC-C", "山田太郎", "", "1,235GB", "2,097MB", "", "", "装備", "", "", ""}));

    EXPECT_EQ(alignments(1), QStringLiteral("LLLLLLRRLRLL"));
    EXPECT_EQ(alignments(2), QStringLiteral("LLLLRRLLRRLL"));
    EXPECT_EQ(alignments(3), QStringLiteral("LLLLRRLLRLLL"));
    // the headings and row numbers gray; no selection after the load; the retired user's name gray
    EXPECT_EQ(colours(1), QStringLiteral("WWWWWWWWWWWW"));
    EXPECT_EQ(colours(2), QStringLiteral("WWGWWWWWWWWW"));
    EXPECT_EQ(list->CurrentMainKey, 0);

    // (the menu items a click enables: the main window's test)
    std::vector<std::pair<MainList::MenuItem, bool>> menus;
    list->SetMenuEnabled = [&menus](MainList::MenuItem item, bool on) { menus.emplace_back(item, on); };
    QObject::connect(grid.get(), &ui::FlexGrid::Click, grid.get(), [this] { list->MSFlexGrid_Main_Click(); });
    ASSERT_TRUE(QTest::qWaitForWindowExposed(grid.get()));

    // the view is told of every painted row (the model rows sit one below the grid's headings)
    std::set<int> toldRows;
    QObject::connect(grid->model(), &QAbstractItemModel::dataChanged, grid.get(),
                     [&toldRows](const QModelIndex& from, const QModelIndex& to) {
                         if (from.column() == 0 && to.column() == 11)
                             for (int r = from.row(); r <= to.row(); ++r)
                                 toldRows.insert(r + 1);
                     });

    // a click on the retired user's cell of row 2
    const QRect cell = grid->CellRect(2, 3);
    ASSERT_FALSE(cell.isEmpty());
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(toldRows, (std::set<int>{1, 2}));
    EXPECT_EQ(list->CurrentMainKey, 3);
    EXPECT_EQ(colours(2), QStringLiteral("GGGGGGGGGGGG"));

    // moving on leaves row 2 white, the retired user's cell included, for the rest of this list
    grid->SetRow(3);
    list->MSFlexGrid_Main_Click();
    EXPECT_EQ(list->CurrentMainKey, 9);
    EXPECT_EQ(colours(2), QStringLiteral("WWWWWWWWWWWW"));
    EXPECT_EQ(colours(3), QStringLiteral("GGGGGGGGGGGG"));

    // the heading row and a list not ready do nothing
    menus.clear();
    grid->SetRow(0);
    list->MSFlexGrid_Main_Click();
    list->ListReady = false;
    grid->SetRow(1);
    list->MSFlexGrid_Main_Click();
    EXPECT_TRUE(menus.empty());
    EXPECT_EQ(list->CurrentMainKey, 9);
    EXPECT_EQ(colours(1), QStringLiteral("WWWWWWWWWWWW"));
}

TEST_F(MainListTest, MissingPlacesShowTheKeyColumn)
{
    ledger.computer(4, 0, 0, "Computer_Name = 'PC-X'");
    writeView(0, {"MSFlexGrit_SelectNum=3", "MSFlexGrit_Select1=8"});
    ASSERT_TRUE(loadList());
    EXPECT_EQ(rowTexts(0), (QStringList{"", " ", "コンピュータ名", " ", " "}));
    EXPECT_EQ(rowTexts(1), (QStringList{"1", "4", "PC-X", "4", "4"}));

    // no shown column: the row number and the hidden key only
    mdl_ini::IniWrite(QStringLiteral("0"), QStringLiteral("MSFlexGrit_SelectNum"), QStringLiteral("0"));
    ASSERT_TRUE(loadList());
    EXPECT_EQ(grid->Cols(), 2);
    EXPECT_EQ(rowTexts(1), (QStringList{"1", "4"}));
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(MainListTest, TheRowAfter2560FailsAndLeavesTheGridHidden)
{
    manyComputers(1, 2560);
    writeColumns(0, {8});
    ASSERT_TRUE(loadList());
    EXPECT_EQ(g.ListRowCount, 2560);
    EXPECT_EQ(g.ListRowKeys[2560], 2560);
    EXPECT_EQ(grid->TextMatrix(2560, 2), QStringLiteral("PC2560"));

    manyComputers(2561, 2561);
    gSetSQLVal();
    EXPECT_EQ(list->fnc_View_PClist(), ui::FillResult::Failed);
    EXPECT_EQ(dialogs.errorBoxes(), std::vector<long>{9});
    EXPECT_FALSE(grid->isVisible());
    // what was filled is kept; the row count and the ready flag are those of the last fill
    EXPECT_EQ(grid->Rows(), 2562);
    EXPECT_EQ(rowTexts(2561), (QStringList{"2561", "2561", "PC2561"}));
    EXPECT_EQ(g.ListRowCount, 2560);
    EXPECT_TRUE(list->ListReady);
}

TEST_F(MainListTest, AnUnknownFieldFailsWhereItIsFirstRead)
{
    ledger.computer(1, 0, 0, "Computer_Name = 'PC-1', Workgroup = 'WG'");
    ledger.computer(2, 0, 0, "Computer_Name = 'PC-2', Workgroup = 'WG'");
    // row 77 of the column table is empty: its field is no field of the recordset
    writeColumns(0, {8, 77, 9});
    list->ListReady = true;
    EXPECT_FALSE(loadList());
    EXPECT_EQ(dialogs.errorBoxes(), std::vector<long>{3265});
    EXPECT_FALSE(grid->Visible());
    // the headings were all written, and row 1 up to the unknown column
    EXPECT_EQ(rowTexts(0), (QStringList{"", " ", "コンピュータ名", "", "ワークグループ"}));
    EXPECT_EQ(rowTexts(1), (QStringList{"1", "1", "PC-1", "", ""}));
    EXPECT_EQ(grid->Rows(), 2);
}

} // namespace
