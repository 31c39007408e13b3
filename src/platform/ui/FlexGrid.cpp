#include "platform/ui/FlexGrid.h"

#include "platform/ui/Twips.h"
#include "platform/vb/VbError.h"

#include <QAbstractButton>
#include <QAbstractTableModel>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QStyledItemDelegate>
#include <QTimer>

#include <climits>

namespace ui {

namespace {

// The grid control's own errors for a row or column outside the grid.
vb::VbError invalidRow() { return {30009, QStringLiteral("Row の値が無効です。")}; }
vb::VbError invalidCol() { return {30010, QStringLiteral("Col の値が無効です。")}; }

Qt::Alignment toQt(int a)
{
    switch (a) {
    case flexAlignLeftTop: return Qt::AlignLeft | Qt::AlignTop;
    case flexAlignLeftCenter: return Qt::AlignLeft | Qt::AlignVCenter;
    case flexAlignLeftBottom: return Qt::AlignLeft | Qt::AlignBottom;
    case flexAlignCenterTop: return Qt::AlignHCenter | Qt::AlignTop;
    case flexAlignCenterCenter: return Qt::AlignCenter;
    case flexAlignCenterBottom: return Qt::AlignHCenter | Qt::AlignBottom;
    case flexAlignRightTop: return Qt::AlignRight | Qt::AlignTop;
    case flexAlignRightCenter: return Qt::AlignRight | Qt::AlignVCenter;
    case flexAlignRightBottom: return Qt::AlignRight | Qt::AlignBottom;
    default: return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

// The grid draws no focus frame and no highlight: the system paints its own selection.
class PlainDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* p, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem o(option);
        o.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);
        QStyledItemDelegate::paint(p, o, index);
    }
};

// The grid's headers have fixed sizes (column 0's width, one row's height), and the view clamps
// a header's size hint to them. Measuring every heading and row number for a hint that is clamped
// anyway cost as much as the rest of a large fill, so a fixed header answers its fixed size.
class FixedHeader : public QHeaderView {
public:
    using QHeaderView::QHeaderView;
    QSize sizeHint() const override
    {
        if (orientation() == Qt::Vertical && minimumWidth() == maximumWidth())
            return QSize(minimumWidth(), defaultSectionSize());
        if (orientation() == Qt::Horizontal && minimumHeight() == maximumHeight())
            return QSize(defaultSectionSize(), minimumHeight());
        return QHeaderView::sizeHint();
    }
};

// The cell where the first fixed row and column meet stands in the view's corner, which Qt draws
// as an empty header section; this draws it with the cell's text and colour.
class CornerCell : public QObject {
public:
    CornerCell(FlexGrid* grid, QWidget* corner) : QObject(corner), m_grid(grid) { corner->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* e) override
    {
        if (e->type() != QEvent::Paint)
            return false;
        auto* corner = static_cast<QWidget*>(watched);
        QStyleOptionHeader opt;
        opt.initFrom(corner);
        // the corner button is disabled (it would select the whole view); its cell reads as any other
        opt.state |= QStyle::State_Enabled;
        opt.palette.setCurrentColorGroup(QPalette::Active);
        opt.rect = corner->rect();
        opt.position = QStyleOptionHeader::OnlyOneSection;
        if (m_grid->Rows() > 0 && m_grid->Cols() > 0 && m_grid->FixedRows() > 0 && m_grid->FixedCols() > 0) {
            opt.text = m_grid->TextMatrix(0, 0);
            opt.textAlignment = Qt::AlignCenter;
        }
        QPainter painter(corner);
        corner->style()->drawControl(QStyle::CE_Header, &opt, &painter, corner);
        return true;
    }

private:
    FlexGrid* m_grid;
};

const int kDefaultWidthTwips = 960;
const int kRowHeightTwips = 285;

} // namespace

// The view's model: the grid's cells under its first fixed row and column, which the headers
// show. It reads the grid's array directly and answers nothing outside the grid, so a view that
// has not yet heard of a change never reads past the cells.
class FlexGridModel : public QAbstractTableModel {
public:
    explicit FlexGridModel(FlexGrid* g) : QAbstractTableModel(g), m_g(g) {}

    int headRows() const { return m_g->m_fixedRows > 0 && m_g->m_rows > 0 ? 1 : 0; }
    int headCols() const { return m_g->m_fixedCols > 0 && m_g->m_cols > 0 ? 1 : 0; }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : qMax(0, m_g->m_rows - headRows()); }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : qMax(0, m_g->m_cols - headCols()); }

    QVariant cellData(int r, int c, int role) const
    {
        if (r < 0 || c < 0 || r >= m_g->m_rows || c >= m_g->m_cols)
            return {};
        const FlexGrid::Cell& cell = m_g->m_cells[size_t(m_g->index(r, c))];
        switch (role) {
        case Qt::DisplayRole: return cell.text;
        case Qt::BackgroundRole:
            if (cell.hasBack)
                return QBrush(QColor::fromRgb(cell.back));
            if (r < m_g->m_fixedRows || c < m_g->m_fixedCols)
                return {};
            return QBrush(Qt::white);
        case Qt::TextAlignmentRole: return int(toQt(cell.align));
        default: return {};
        }
    }

    QVariant data(const QModelIndex& i, int role) const override { return cellData(i.row() + headRows(), i.column() + headCols(), role); }

    QVariant headerData(int section, Qt::Orientation o, int role) const override
    {
        if (o == Qt::Horizontal)
            return headRows() ? cellData(0, section + headCols(), role) : QVariant();
        return headCols() ? cellData(section + headRows(), 0, role) : QVariant();
    }

    void reset()
    {
        beginResetModel();
        endResetModel();
    }
    void cellChanged(int r, int c)
    {
        const int mr = r - headRows(), mc = c - headCols();
        if (mr < 0 && mc < 0)
            return;
        if (mr < 0)
            Q_EMIT headerDataChanged(Qt::Horizontal, mc, mc);
        else if (mc < 0)
            Q_EMIT headerDataChanged(Qt::Vertical, mr, mr);
        else
            Q_EMIT dataChanged(index(mr, mc), index(mr, mc));
    }

    // The span of grid cells written while the view was not told of them. A flush tells the view
    // of that span alone, so painting one row of a large grid does not make the headers measure
    // all their sections again.
    void noteDirty(int r, int c)
    {
        m_r0 = qMin(m_r0, r);
        m_r1 = qMax(m_r1, r);
        m_c0 = qMin(m_c0, c);
        m_c1 = qMax(m_c1, c);
    }
    void noteAllDirty()
    {
        m_r0 = m_c0 = 0;
        m_r1 = m_c1 = INT_MAX;
    }
    void clearDirty()
    {
        m_r0 = m_c0 = INT_MAX;
        m_r1 = m_c1 = -1;
    }
    void flushDirty()
    {
        const int hr = headRows(), hc = headCols();
        const int mr0 = qMax(m_r0 - hr, 0), mr1 = qMin(m_r1 == INT_MAX ? INT_MAX : m_r1 - hr, rowCount() - 1);
        const int mc0 = qMax(m_c0 - hc, 0), mc1 = qMin(m_c1 == INT_MAX ? INT_MAX : m_c1 - hc, columnCount() - 1);
        const bool headingRow = hr && m_r0 < hr, headingCol = hc && m_c0 < hc;
        clearDirty();
        if (mr0 <= mr1 && mc0 <= mc1)
            Q_EMIT dataChanged(index(mr0, mc0), index(mr1, mc1));
        if (headingRow && mc0 <= mc1)
            Q_EMIT headerDataChanged(Qt::Horizontal, mc0, mc1);
        if (headingCol && mr0 <= mr1)
            Q_EMIT headerDataChanged(Qt::Vertical, mr0, mr1);
    }

private:
    FlexGrid* m_g;
    int m_r0 = INT_MAX, m_r1 = -1, m_c0 = INT_MAX, m_c1 = -1;
};

FlexGrid::FlexGrid(QWidget* parent) : QTableView(parent), m_model(new FlexGridModel(this))
{
    setHorizontalHeader(new FixedHeader(Qt::Horizontal, this));
    setVerticalHeader(new FixedHeader(Qt::Vertical, this));
    setModel(m_model);
    setItemDelegate(new PlainDelegate(this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    if (auto* corner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        new CornerCell(this, corner);
        m_corner = corner;
    }
    for (QHeaderView* h : {horizontalHeader(), verticalHeader()}) {
        h->setSectionResizeMode(QHeaderView::Fixed);
        h->setMinimumSectionSize(0);
        h->setHighlightSections(false);
        h->setSectionsClickable(true);
    }
    verticalHeader()->setDefaultSectionSize(TwipsToPixels(kRowHeightTwips));
    horizontalHeader()->setDefaultSectionSize(TwipsToPixels(kDefaultWidthTwips));
    horizontalHeader()->setFixedHeight(TwipsToPixels(kRowHeightTwips));
    connect(verticalHeader(), &QHeaderView::sectionPressed, this, [this](int section) {
        m_row = section + m_model->headRows();
        m_col = qMin(m_fixedCols, qMax(0, m_cols - 1));
    });
    connect(verticalHeader(), &QHeaderView::sectionClicked, this, [this](int) { Q_EMIT Click(); });
    SetRows(2);
    SetCols(2);
}

FlexGrid::~FlexGrid() = default;

bool FlexGrid::deferred() const { return !m_visible || !m_redraw || !isVisible(); }

void FlexGrid::structureChanged()
{
    if (m_dirtyStructure)
        return;
    m_dirtyStructure = true;
    if (!deferred())
        QTimer::singleShot(0, this, [this] {
            if (!deferred())
                flush();
        });
}

void FlexGrid::changed(int row, int col)
{
    if (m_dirtyStructure)
        return;
    if (m_dirtyData || deferred()) {
        m_dirtyData = true;
        m_model->noteDirty(row, col);
        return;
    }
    m_model->cellChanged(row, col);
}

void FlexGrid::flush()
{
    if (m_dirtyStructure) {
        m_model->reset();
        applyWidths();
    } else if (m_dirtyData) {
        m_model->flushDirty();
    }
    m_model->clearDirty();
    m_dirtyStructure = m_dirtyData = false;
    if (m_corner)
        m_corner->update();
}

void FlexGrid::resizeCells(int rows, int cols)
{
    rows = qMax(0, rows);
    cols = qMax(0, cols);
    if (cols != m_cols) {
        std::vector<Cell> cells(size_t(rows) * size_t(cols));
        for (int r = 0; r < qMin(rows, m_rows); ++r)
            for (int c = 0; c < qMin(cols, m_cols); ++c)
                cells[size_t(r * cols + c)] = std::move(m_cells[size_t(index(r, c))]);
        m_cells = std::move(cells);
        m_widths.resize(size_t(cols), -1);
    } else {
        m_cells.resize(size_t(rows) * size_t(cols));
    }
    m_rows = rows;
    m_cols = cols;
    m_row = qBound(0, m_row, qMax(0, m_rows - 1));
    m_col = qBound(0, m_col, qMax(0, m_cols - 1));
    structureChanged();
}

void FlexGrid::SetRows(int rows)
{
    if (rows == m_rows)
        return;
    if (m_cells.capacity() < size_t(rows) * size_t(m_cols))
        m_cells.reserve(qMax(size_t(rows) * size_t(m_cols), m_cells.capacity() * 2));
    resizeCells(rows, m_cols);
}

void FlexGrid::SetCols(int cols)
{
    if (cols != m_cols)
        resizeCells(m_rows, cols);
}

void FlexGrid::SetFixedRows(int n)
{
    m_fixedRows = qMax(0, n);
    structureChanged();
}

void FlexGrid::SetFixedCols(int n)
{
    m_fixedCols = qMax(0, n);
    structureChanged();
}

void FlexGrid::checkCell(int row, int col) const
{
    if (row < 0 || row >= m_rows)
        throw invalidRow();
    if (col < 0 || col >= m_cols)
        throw invalidCol();
}

void FlexGrid::SetRow(int row)
{
    if (row < 0 || row >= m_rows)
        throw invalidRow();
    m_row = row;
}

void FlexGrid::SetCol(int col)
{
    if (col < 0 || col >= m_cols)
        throw invalidCol();
    m_col = col;
}

QString FlexGrid::TextMatrix(int row, int col) const
{
    checkCell(row, col);
    return m_cells[size_t(index(row, col))].text;
}

void FlexGrid::SetTextMatrix(int row, int col, const QString& text)
{
    checkCell(row, col);
    m_cells[size_t(index(row, col))].text = text;
    changed(row, col);
}

void FlexGrid::SetCellBackColor(const QColor& colour)
{
    checkCell(m_row, m_col);
    Cell& c = m_cells[size_t(index(m_row, m_col))];
    c.back = colour.rgb();
    c.hasBack = true;
    changed(m_row, m_col);
}

void FlexGrid::SetCellAlignment(int alignment)
{
    checkCell(m_row, m_col);
    m_cells[size_t(index(m_row, m_col))].align = static_cast<unsigned char>(alignment);
    changed(m_row, m_col);
}

QColor FlexGrid::CellBackColorAt(int row, int col) const
{
    checkCell(row, col);
    const Cell& c = m_cells[size_t(index(row, col))];
    if (c.hasBack)
        return QColor::fromRgb(c.back);
    if (row < m_fixedRows || col < m_fixedCols)
        return palette().color(QPalette::Button);
    return QColor(Qt::white);
}

int FlexGrid::CellAlignmentAt(int row, int col) const
{
    checkCell(row, col);
    return m_cells[size_t(index(row, col))].align;
}

int FlexGrid::ColWidth(int col) const
{
    if (col < 0 || col >= m_cols)
        throw invalidCol();
    const int w = m_widths[size_t(col)];
    return w < 0 ? kDefaultWidthTwips : w;
}

void FlexGrid::SetColWidth(int col, int twips)
{
    if (col < 0 || col >= m_cols)
        throw invalidCol();
    m_widths[size_t(col)] = twips;
    if (!deferred() && !m_dirtyStructure)
        applyWidths();
    else
        structureChanged();
}

void FlexGrid::applyWidths()
{
    const int hc = m_model->headCols();
    if (hc)
        verticalHeader()->setFixedWidth(TwipsToPixels(ColWidth(0)));
    verticalHeader()->setVisible(hc != 0);
    horizontalHeader()->setVisible(m_model->headRows() != 0);
    for (int c = hc; c < m_cols; ++c)
        setColumnWidth(c - hc, TwipsToPixels(ColWidth(c)));
}

void FlexGrid::SetRedraw(bool on)
{
    m_redraw = on;
    if (!deferred())
        flush();
}

void FlexGrid::SetVisible(bool on)
{
    m_visible = on;
    setVisible(on);
    if (!deferred())
        flush();
}

void FlexGrid::Clear()
{
    for (Cell& c : m_cells)
        c = Cell{};
    m_dirtyData = true;
    m_model->noteAllDirty();
    if (!deferred())
        flush();
}

void FlexGrid::Move(int left, int top, int width, int height)
{
    setGeometry(TwipsToPixels(left), TwipsToPixels(top), TwipsToPixels(width), TwipsToPixels(height));
}

int FlexGrid::Width() const { return PixelsToTwips(width()); }
int FlexGrid::Height() const { return PixelsToTwips(height()); }
void FlexGrid::SetWidth(int twips) { QTableView::resize(TwipsToPixels(twips), height()); }
void FlexGrid::SetHeight(int twips) { QTableView::resize(width(), TwipsToPixels(twips)); }

QRect FlexGrid::CellRect(int row, int col) const
{
    const int mr = row - m_model->headRows(), mc = col - m_model->headCols();
    if (mr < 0 || mc < 0)
        return {};
    return visualRect(m_model->index(mr, mc));
}

bool FlexGrid::cellAt(const QPoint& pos, int& row, int& col) const
{
    const QModelIndex i = indexAt(pos);
    if (!i.isValid())
        return false;
    row = i.row() + m_model->headRows();
    col = i.column() + m_model->headCols();
    return true;
}

void FlexGrid::showEvent(QShowEvent* e)
{
    QTableView::showEvent(e);
    if (!deferred())
        flush();
}

void FlexGrid::paintEvent(QPaintEvent* e)
{
    ++m_paints;
    QTableView::paintEvent(e);
}

void FlexGrid::mousePressEvent(QMouseEvent* e)
{
    int r, c;
    m_pressed = e->button() == Qt::LeftButton && cellAt(e->position().toPoint(), r, c);
    if (m_pressed) {
        m_row = r;
        m_col = c;
    }
    QTableView::mousePressEvent(e);
}

void FlexGrid::mouseReleaseEvent(QMouseEvent* e)
{
    QTableView::mouseReleaseEvent(e);
    if (m_pressed && e->button() == Qt::LeftButton) {
        m_pressed = false;
        Q_EMIT Click();
    }
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* e)
{
    int r, c;
    if (e->button() == Qt::LeftButton && cellAt(e->position().toPoint(), r, c)) {
        m_row = r;
        m_col = c;
        Q_EMIT DblClick();
    }
}

} // namespace ui
