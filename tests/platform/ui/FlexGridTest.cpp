#include "platform/ui/FlexGrid.h"

#include "platform/ui/Twips.h"
#include "platform/vb/VbError.h"
#include "support/VbErrors.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using ui::FlexGrid;

namespace {

// A grid of rows x cols cells, each holding "r,c".
void fill(FlexGrid& g, int rows, int cols)
{
    g.SetRows(rows);
    g.SetCols(cols);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c)
            g.SetTextMatrix(r, c, QStringLiteral("%1,%2").arg(r).arg(c));
}

TEST(FlexGrid, KeepsCellsTheWayMSFlexGridDid)
{
    FlexGrid g;
    fill(g, 5, 4);

    // growing and shrinking keep what stays inside
    g.SetCols(6);
    g.SetRows(3);
    EXPECT_EQ(g.TextMatrix(2, 3), QStringLiteral("2,3"));
    g.SetRows(5);
    EXPECT_EQ(g.TextMatrix(4, 1), QString()) << "rows cut away come back empty";

    // the cell properties act on the current cell
    g.SetRow(2);
    g.SetCol(3);
    g.SetCellBackColor(ui::QBColor(8));
    g.SetCellAlignment(ui::flexAlignCenterBottom);
    g.SetText(QStringLiteral("選択"));
    EXPECT_EQ(g.TextMatrix(2, 3), QStringLiteral("選択"));
    EXPECT_EQ(g.CellBackColorAt(2, 3), QColor(128, 128, 128));

    // column widths are twips; 0 keeps the column but out of sight
    g.SetColWidth(2, 1500);
    g.SetColWidth(1, 0);
    g.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(g.columnWidth(1), ui::TwipsToPixels(1500)) << "view column 1 is grid column 2";
    EXPECT_EQ(g.columnWidth(0), 0);
    g.SetColWidth(3, 2880);
    EXPECT_EQ(g.columnWidth(2), ui::TwipsToPixels(2880)) << "a shown grid takes a width at once";

    // Clear empties text and colours but keeps the shape
    g.Clear();
    EXPECT_EQ(g.Rows(), 5);
    EXPECT_EQ(g.TextMatrix(2, 3), QString());
    EXPECT_EQ(g.CellBackColorAt(2, 3), QColor(Qt::white));

    // a cell outside the grid is error 30009 for the row, 30010 for the column
    EXPECT_EQ(ErrorOf([&] { g.SetRow(5); }), 30009);
    EXPECT_EQ(ErrorOf([&] { g.SetTextMatrix(0, 6, QString()); }), 30010);
    EXPECT_EQ(g.Row(), 2) << "a refused move leaves the current cell";
}

TEST(FlexGrid, HiddenFillReachesTheViewInOneStep)
{
    QWidget window;
    auto* g = new FlexGrid(&window);
    g->resize(600, 400);
    window.show();
    QCoreApplication::processEvents();
    QSignalSpy cells(g->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy resets(g->model(), &QAbstractItemModel::modelReset);

    g->SetVisible(false);
    fill(*g, 300, 40);
    for (int r = 1; r < 300; ++r) {
        g->SetRow(r);
        for (int c = 1; c < 40; ++c) {
            g->SetCol(c);
            g->SetCellBackColor(ui::QBColor(15));
            g->SetCellAlignment(ui::flexAlignLeftBottom);
        }
    }
    EXPECT_EQ(cells.count(), 0);
    EXPECT_EQ(resets.count(), 0);
    g->SetVisible(true);
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(g->model()->rowCount(), 299) << "the heading row is the header, not a data row";
    EXPECT_EQ(g->model()->data(g->model()->index(0, 0)).toString(), QStringLiteral("1,1"));

    // a second fill of the same shape: one change for the whole grid
    cells.clear();
    g->SetRedraw(false);
    fill(*g, 300, 40);
    EXPECT_EQ(cells.count(), 0);
    g->SetRedraw(true);
    EXPECT_EQ(cells.count(), 1);

    // while shown, one write is one change
    cells.clear();
    g->SetTextMatrix(5, 5, QStringLiteral("x"));
    g->SetTextMatrix(6, 5, QStringLiteral("y"));
    EXPECT_EQ(cells.count(), 2);
}

TEST(FlexGrid, FixedRowAndColumnStayInSightWhileScrolling)
{
    QWidget window;
    auto* g = new FlexGrid(&window);
    g->resize(400, 200);
    fill(*g, 200, 30);
    g->SetTextMatrix(0, 1, QStringLiteral("設置場所"));
    window.show();
    QCoreApplication::processEvents();

    g->verticalScrollBar()->setValue(g->verticalScrollBar()->maximum());
    g->horizontalScrollBar()->setValue(g->horizontalScrollBar()->maximum());
    QCoreApplication::processEvents();
    EXPECT_GT(g->rowAt(0), 100) << "the body scrolled";
    EXPECT_EQ(g->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("設置場所"));
    EXPECT_EQ(g->model()->headerData(g->rowAt(0), Qt::Vertical).toString(), QStringLiteral("%1,0").arg(g->rowAt(0) + 1));
    EXPECT_TRUE(g->CellRect(1, 1).isEmpty() || g->CellRect(1, 1).bottom() < 0) << "row 1 has scrolled away";
}

// A left click on a cell moves the current cell and is the Click (the list windows' tests click
// their grids); a right click or a click beside the cells is none.
TEST(FlexGrid, OnlyALeftClickOnACellIsAClick)
{
    QWidget window;
    auto* g = new FlexGrid(&window);
    g->resize(600, 300);
    fill(*g, 10, 5);
    window.show();
    QCoreApplication::processEvents();
    QSignalSpy clicks(g, &FlexGrid::Click);
    QTest::mouseClick(g->viewport(), Qt::RightButton, {}, g->CellRect(4, 1).center());
    QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, g->CellRect(9, 4).bottomRight() + QPoint(10, 10));
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(g->Row(), 0) << "the current cell stays";
    QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, g->CellRect(3, 2).center());
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(g->Row(), 3);
    EXPECT_EQ(g->Col(), 2);
}

} // namespace
