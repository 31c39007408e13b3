#pragma once

#include <QColor>
#include <QTableView>

#include <vector>

namespace ui {

class FlexGridModel;

// What the fill of a list window found: rows, none, or a failure that the window's error box has
// already shown. The system's own fill routines answer True or False; this tells "no rows" from
// "failed", which the companion program's exports need.
enum class FillResult { Rows, NoRows, Failed };

// MSFlexGrid's cell alignments.
enum FlexAlignment {
    flexAlignLeftTop = 0,
    flexAlignLeftCenter = 1,
    flexAlignLeftBottom = 2,
    flexAlignCenterTop = 3,
    flexAlignCenterCenter = 4,
    flexAlignCenterBottom = 5,
    flexAlignRightTop = 6,
    flexAlignRightCenter = 7,
    flexAlignRightBottom = 8,
    flexAlignGeneral = 9,
};

// A grid with MSFlexGrid's model: Rows and Cols, fixed rows and columns at the top and left,
// a current cell (Row, Col) that the cell properties act on, TextMatrix for any cell, column
// widths in twips, and Click/DblClick. The first fixed row and column are drawn as the view's
// headers, so they stay in sight while the rest scrolls. The grid's own highlight is not used:
// the system paints its selection itself.
//
// Cells live in a plain array. While the grid is hidden (Visible false) or Redraw is false,
// writes only change the array; the view learns of them in one step when it is shown again,
// so a fill of 2560 x 78 cells costs one repaint, not one signal per cell.
class FlexGrid : public QTableView {
    Q_OBJECT

public:
    explicit FlexGrid(QWidget* parent = nullptr);
    ~FlexGrid() override;

    int Rows() const { return m_rows; }
    void SetRows(int rows);
    int Cols() const { return m_cols; }
    void SetCols(int cols);
    int FixedRows() const { return m_fixedRows; }
    void SetFixedRows(int n);
    int FixedCols() const { return m_fixedCols; }
    void SetFixedCols(int n);

    // The current cell. A row or column outside the grid raises error 30009 / 30010.
    int Row() const { return m_row; }
    void SetRow(int row);
    int Col() const { return m_col; }
    void SetCol(int col);

    QString TextMatrix(int row, int col) const;
    void SetTextMatrix(int row, int col, const QString& text);
    QString Text() const { return TextMatrix(m_row, m_col); }
    void SetText(const QString& text) { SetTextMatrix(m_row, m_col, text); }

    // Properties of the current cell.
    QColor CellBackColor() const { return CellBackColorAt(m_row, m_col); }
    void SetCellBackColor(const QColor& colour);
    int CellAlignment() const { return CellAlignmentAt(m_row, m_col); }
    void SetCellAlignment(int alignment);

    // The same of any cell, for readers that do not move the current cell.
    QColor CellBackColorAt(int row, int col) const;
    int CellAlignmentAt(int row, int col) const;

    // Column width in twips; 0 hides the column while keeping it in the grid.
    int ColWidth(int col) const;
    void SetColWidth(int col, int twips);

    bool Redraw() const { return m_redraw; }
    void SetRedraw(bool on);
    bool Visible() const { return m_visible; }
    void SetVisible(bool on);

    // Clears the text and the formatting of every cell; Rows and Cols stay.
    void Clear();

    // Place and size in twips, as VB's Move, Width and Height.
    void Move(int left, int top, int width, int height);
    int Width() const;
    int Height() const;
    void SetWidth(int twips);
    void SetHeight(int twips);

    // Where a cell stands on the viewport (for tests that click it); empty when out of sight.
    QRect CellRect(int row, int col) const;

    // Times the cells were painted; benchmarks and tests read it.
    int PaintCount() const { return m_paints; }

Q_SIGNALS:
    void Click();
    void DblClick();

protected:
    void showEvent(QShowEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
    friend class FlexGridModel;
    struct Cell {
        QString text;
        QRgb back = 0;
        bool hasBack = false;
        unsigned char align = flexAlignGeneral;
    };
    int index(int row, int col) const { return row * m_cols + col; }
    void checkCell(int row, int col) const;
    void resizeCells(int rows, int cols);
    void changed(int row, int col);
    void structureChanged();
    bool deferred() const;
    void flush();
    void applyWidths();
    bool cellAt(const QPoint& viewportPos, int& row, int& col) const;

    FlexGridModel* m_model;
    QWidget* m_corner = nullptr;
    std::vector<Cell> m_cells;
    std::vector<int> m_widths; // twips, -1 for the default
    int m_rows = 0;
    int m_cols = 0;
    int m_fixedRows = 1;
    int m_fixedCols = 1;
    int m_row = 0;
    int m_col = 0;
    bool m_redraw = true;
    bool m_visible = true;
    bool m_dirtyStructure = false;
    bool m_dirtyData = false;
    int m_paints = 0;
    bool m_pressed = false;
};

} // namespace ui
