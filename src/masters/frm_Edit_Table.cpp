#include "masters/frm_Edit_Table.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FixedSize.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/FocusEvents.h"
#include "platform/ui/GridSelection.h"
#include "platform/ui/Menus.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include <QAction>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

using Mdl_gData::DbConnection;

namespace {

constexpr int kWidth = 5940;
constexpr int kHeight = 7020;

// the first four fields of every master table
enum Field { Code = 0, Name = 1, Comment = 2, Flag = 3 };

const char* const kHeadings[] = {"Key", "名称", "コメント", "有効フラグ"};
constexpr int kWidths[] = {600, 2500, 1500, 1200};

} // namespace

frm_Edit_Table::frm_Edit_Table()
{
    setObjectName(QStringLiteral("frm_Edit_Table"));
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Mue_Close = ui::AddMenuItem(
        Mnu_File, "Mue_Close", "閉じる", [this] { Mue_Close_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_W));
    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", QStringLiteral("編集"));
    Mnu_Add = ui::AddMenuItem(Mnu_Edit, "Mnu_Add", "新規", [this] { Mnu_Add_Click(); });
    ui::AddMenuSeparator(Mnu_Edit, "cepalator03");
    Mnu_Update = ui::AddMenuItem(Mnu_Edit, "Mnu_Update", "更新", [this] { Mnu_Update_Click(); });
    Mnu_Delete = ui::AddMenuItem(Mnu_Edit, "Mnu_Delete", "削除", [this] { Mnu_Delete_Click(); });
    buildControls();
}

void frm_Edit_Table::buildControls()
{
    MSFlexGrid_Edit = new ui::FlexGrid(this);
    MSFlexGrid_Edit->setObjectName(QStringLiteral("MSFlexGrid_Edit"));
    MSFlexGrid_Edit->setFont(QFont(QStringLiteral("ＭＳ Ｐゴシック")));
    ui::Connect(MSFlexGrid_Edit, &ui::FlexGrid::Click, this, [this] { MSFlexGrid_Edit_Click(); });

    auto* fields = new QFormLayout;
    fields->setContentsMargins(8, 6, 8, 8);
    const char* const captions[] = {"Key", "表示", "補記"};
    for (int i = 0; i < 3; ++i) {
        auto* edit = new QLineEdit(this);
        ui::SetArrayName(edit, "tbxEdit", i);
        // The key shows the code of the clicked row, which update and delete act on; it is not
        // typed, so that an empty or mistyped key cannot send a name into the reserved row 0.
        edit->setReadOnly(i == Code);
        ui::FocusEvents::InstallFocusColor(edit, Mdl_Sub::SetFocusColor);
        fields->addRow(QString::fromUtf8(captions[i]), edit);
        tbxEdit[size_t(i)] = edit;
    }

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(MenuBar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(MSFlexGrid_Edit, 1);
    layout->addLayout(fields);
}

void frm_Edit_Table::Form_Load()
{
    ui::FixedSize::Apply(*this, kWidth, kHeight);
    MSFlexGrid_Edit->SetRows(0);
    MSFlexGrid_Edit->SetCols(0);
    if (Mdl_gData::g.CurrentTableName.isEmpty()) {
        Unload();
        return;
    }
    m_table = Mdl_gData::g.CurrentTableName;
    m_caption = Mdl_gData::g.CurrentTableCaption;
    Mnu_Delete->setEnabled(false);
    Mnu_Update->setEnabled(false);
    m_selectedRow = 0;
    setWindowTitle(QStringLiteral("編集:") + QStringLiteral("( ") + m_caption + QStringLiteral(" )"));
    fillGrid();
    m_filled = true;
    clearEdits();
}

QStringList frm_Edit_Table::fieldNames() const
{
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * ") + QStringLiteral("FROM ") + m_table, DbConnection());
    QStringList names;
    for (int i = 0; i < rs.FieldCount(); ++i)
        names << rs.Fields(i).Name();
    rs.Close();
    return names;
}

void frm_Edit_Table::fillGrid()
{
    const QStringList names = fieldNames();
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * ") + QStringLiteral("FROM ") + m_table + QStringLiteral(" WHERE ") + names.value(Flag)
                + QStringLiteral("=") + QStringLiteral("'0'") + QStringLiteral(" ORDER BY ") + names.value(Code) + QStringLiteral(";"),
            DbConnection(), db::adOpenStatic, db::adLockOptimistic);

    ui::FlexGrid& grid = *MSFlexGrid_Edit;
    grid.Clear();
    grid.SetVisible(false);
    grid.SetFixedCols(0);
    grid.SetFixedRows(1);
    grid.SetCols(int(names.size()));
    grid.SetRows(1);
    const QColor gray = ui::QBColor(ui::qbGray);
    const QColor white = ui::QBColor(ui::qbWhite);
    for (int c = 0; c < int(names.size()); ++c) {
        grid.SetTextMatrix(0, c, c < 4 ? QString::fromUtf8(kHeadings[c]) : names[c]);
        if (c < 4)
            grid.SetColWidth(c, kWidths[c]);
        grid.SetRow(0);
        grid.SetCol(c);
        grid.SetCellBackColor(gray);
    }
    for (; !rs.Eof(); rs.MoveNext()) {
        // the reserved row 0 is never shown
        if (!(vb::CLng(rs.Value(Code)) > 0))
            continue;
        const int row = grid.Rows();
        grid.SetRows(row + 1);
        for (int c = 0; c < rs.FieldCount() && c < grid.Cols(); ++c) {
            const QString text = rs.Value(c).IsNull() ? QString() : vb::CStr(rs.Value(c));
            if (text.isEmpty())
                continue;
            grid.SetTextMatrix(row, c, text);
            grid.SetRow(row);
            grid.SetCol(c);
            grid.SetCellBackColor(white);
        }
    }
    grid.SetVisible(true);
    rs.Close();
}

void frm_Edit_Table::clearEdits()
{
    for (QLineEdit* e : tbxEdit)
        e->clear();
}

void frm_Edit_Table::MSFlexGrid_Edit_Click()
{
    ui::FlexGrid& grid = *MSFlexGrid_Edit;
    const int row = grid.Row();
    if (!m_filled || row < 1)
        return;
    Mnu_Add->setEnabled(true);
    Mnu_Delete->setEnabled(true);
    Mnu_Update->setEnabled(true);
    grid.SetVisible(false);
    ui::PaintGridRow(grid, m_selectedRow, ui::qbWhite);
    m_selectedRow = row;
    ui::PaintGridRow(grid, row, ui::qbGray);
    for (int c = 0; c < 3 && c < grid.Cols(); ++c)
        tbxEdit[size_t(c)]->setText(grid.TextMatrix(row, c));
    grid.SetVisible(true);
    grid.SetRow(row);
}

void frm_Edit_Table::Mnu_Add_Click()
{
    if (m_table.isEmpty())
        return;
    const QStringList names = fieldNames();
    // the names went into an array of nine
    if (names.size() > 9)
        throw vb::VbError::SubscriptOutOfRange();
    const std::int16_t highest = Mdl_Access_mdb::MaxOfFirstColumn(m_table);
    const std::int16_t code = highest >= 0 ? vb::IntAdd(highest, 1) : std::int16_t(0);
    db::Connection& c = DbConnection();
    db::Transaction insert(c);
    c.Execute(QStringLiteral("INSERT INTO ") + m_table + QStringLiteral(" ( ") + names.value(Code) + QStringLiteral(",") + names.value(Flag)
              + QStringLiteral(") ") + QStringLiteral("VALUES ( ") + QString::number(code) + QStringLiteral(",") + QStringLiteral("0")
              + QStringLiteral(" );"));
    insert.Commit();
    fillGrid();
}

void frm_Edit_Table::Mnu_Update_Click()
{
    if (m_table.isEmpty())
        return;
    const QStringList names = fieldNames();
    if (names.size() > 9)
        throw vb::VbError::SubscriptOutOfRange();
    const QString key = QString::number(vb::CInt(vb::Variant(tbxEdit[0]->text())));
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * ") + QStringLiteral("FROM ") + m_table + QStringLiteral(" WHERE (") + QStringLiteral("(")
                + names.value(Code) + QStringLiteral(") ") + QStringLiteral(" = ") + key + QStringLiteral(" );"),
            DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    if (rs.RecordCount() == 0)
        return;
    for (int i = 0; i < 3; ++i)
        if (!names.value(i).isEmpty())
            rs.Fields(names[i]) = vb::Variant(tbxEdit[size_t(i)]->text());
    rs.Update();
    fillGrid();
    Mnu_Update->setEnabled(false);
    Mnu_Delete->setEnabled(false);
    rs.Close();
}

void frm_Edit_Table::Mnu_Delete_Click()
{
    if (ui::MsgBox(QStringLiteral("削除しますか？"), ui::vbQuestion + ui::vbYesNo, QStringLiteral("確認")) != ui::vbYes)
        return;
    if (m_table.isEmpty())
        return;
    const QString name = fieldNames().value(Code);
    const QString key = tbxEdit[0]->text();
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * ") + QStringLiteral("FROM ") + m_table + QStringLiteral(" WHERE ") + name + QStringLiteral(" = ")
                + key,
            DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    if (rs.RecordCount() > 0) {
        rs.Fields(u"Available_flug") = vb::Variant(QStringLiteral("1"));
        rs.Update();
    }
    fillGrid();
    if (MSFlexGrid_Edit->Rows() > 1) {
        m_filled = true;
        Mnu_Add->setEnabled(true);
        Mnu_Update->setEnabled(false);
        Mnu_Delete->setEnabled(false);
    }
    rs.Close();
}

void frm_Edit_Table::Mue_Close_Click()
{
    Mdl_gData::g.CurrentTableName.clear();
    Mdl_gData::g.CurrentTableCaption.clear();
    Unload();
}
