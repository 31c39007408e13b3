#include "masters/frm_Edit_User.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "masters/frm_Edit_Table.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/FocusEvents.h"
#include "platform/ui/GridSelection.h"
#include "platform/ui/Menus.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

using Mdl_gData::DbConnection;
using Mdl_Sub::FieldText;

namespace {

// the grid's place and height in the client area, in twips
constexpr int kGridLeft = 120;
constexpr int kGridTop = 120;
constexpr int kGridHeight = 7000;

// The grid's columns after the hidden key in column 0: heading, field, width in twips. The
// section and division cells turn gray when their master is deleted.
struct UserColumn {
    const char* heading;
    const char16_t* field;
    int width;
    const char16_t* flagField;
};
const UserColumn kColumns[] = {
    {"Key", u"User_Code", 600, nullptr},
    {"部", u"Section_Name", 1200, u"tbl_Section.Available_flug"},
    {"課", u"Division_Name", 1200, u"tbl_Division.Available_flug"},
    {"ユーザ名", u"User_Name", 1800, nullptr},
    {"ふりがな", u"kana", 2000, nullptr},
    {"補記", u"User_Comment", 1200, nullptr},
    {"社員番号", u"Employee_SerialNumber", 1000, nullptr},
    {"アカウント名", u"Acount_Name", 1200, nullptr},
    {"パスワード", u"logon_Password", 1200, nullptr},
};
constexpr int kCols = int(std::size(kColumns)) + 1;

// The fields behind tbxEdit 3 to 8, in the order an update writes them.
const char16_t* const kEditFields[] = {u"User_Name", u"kana", u"User_Comment", u"Employee_SerialNumber", u"Acount_Name", u"logon_Password"};
const char* const kEditCaptions[] = {"ユーザ名", "ふりがな", "補記", "社員番号", "アカウント", "パスワード"};
constexpr int kFirstEdit = 3;

} // namespace

frm_Edit_User::frm_Edit_User()
{
    setObjectName(QStringLiteral("frm_Edit_User"));
    setWindowTitle(QStringLiteral("ユーザ編集"));
    buildMenus();
    buildControls();
}

void frm_Edit_User::buildMenus()
{
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Mnu_Close = ui::AddMenuItem(Mnu_File, "Mnu_Close", "閉じる", [this] { Mnu_Close_Click(); });
    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", QStringLiteral("編集"));
    Mnu_Add = ui::AddMenuItem(Mnu_Edit, "Mnu_Add", "新規", [this] { Mnu_Add_Click(); });
    Mnu_Update = ui::AddMenuItem(Mnu_Edit, "Mnu_Update", "更新", [this] { Mnu_Update_Click(); });
    Mnu_delete = ui::AddMenuItem(Mnu_Edit, "Mnu_delete", "削除", [this] { Mnu_Delete_Click(); });
    Mnu_Managements = ui::AddMenu(MenuBar, "Mnu_Managements", QStringLiteral("管理"));
    Mnu_Section = ui::AddMenuItem(Mnu_Managements, "Mnu_Section", "部", [this] { Mnu_Section_Click(); });
    Mnu_Division = ui::AddMenuItem(Mnu_Managements, "Mnu_Division", "課", [this] { Mnu_Division_Click(); });
}

void frm_Edit_User::buildControls()
{
    // the grid and the fields stand at fixed places in the client area below the menu
    auto* client = new QWidget(this);
    MSFlexGrid_Edit = new ui::FlexGrid(client);
    MSFlexGrid_Edit->setObjectName(QStringLiteral("MSFlexGrid_Edit"));
    ui::Connect(MSFlexGrid_Edit, &ui::FlexGrid::Click, this, [this] { MSFlexGrid_Edit_Click(); });

    auto codeBox = [this](const char* name) {
        auto* box = new QLineEdit(this);
        box->setObjectName(QString::fromUtf8(name));
        box->setReadOnly(true);
        box->setMaximumWidth(60);
        ui::FocusEvents::InstallFocusColor(box, Mdl_Sub::SetFocusColor);
        return box;
    };
    auto combo = [this](const char* name) {
        auto* c = new ui::DropDownCombo(this);
        c->setObjectName(QString::fromUtf8(name));
        c->setEditable(true);
        c->setMinimumWidth(160);
        return c;
    };
    lbr_Key = new QLabel(QStringLiteral(" "), this);
    lbr_Key->setObjectName(QStringLiteral("lbr_Key"));
    lbr_Key->setMinimumWidth(60);
    lbr_Key->setFrameShape(QFrame::Panel);
    lbr_Key->setFrameShadow(QFrame::Sunken);
    cmb_Section = combo("cmb_Section");
    tbx_Section_Code = codeBox("tbx_Section_Code");
    cmb_Division = combo("cmb_Division");
    tbx_Division_Code = codeBox("tbx_Division_Code");
    cmb_Section->DropDown = [this] { cmb_Section_DropDown(); };
    cmb_Division->DropDown = [this] { cmb_Division_DropDown(); };
    ui::Connect(cmb_Section, &QComboBox::activated, this, [this] { cmb_Section_Click(); });
    ui::Connect(cmb_Division, &QComboBox::activated, this, [this] { cmb_Division_Click(); });

    m_fields = new QWidget(client);
    auto* fields = new QGridLayout(m_fields);
    fields->setContentsMargins(0, 0, 0, 0);
    fields->setHorizontalSpacing(8);
    fields->addWidget(new QLabel(QStringLiteral("Key"), this), 0, 0);
    fields->addWidget(lbr_Key, 0, 1);
    fields->addWidget(new QLabel(QStringLiteral("部"), this), 1, 0);
    fields->addWidget(cmb_Section, 1, 1);
    fields->addWidget(tbx_Section_Code, 1, 2);
    fields->addWidget(new QLabel(QStringLiteral("課"), this), 2, 0);
    fields->addWidget(cmb_Division, 2, 1);
    fields->addWidget(tbx_Division_Code, 2, 2);
    for (int i = kFirstEdit; i <= 8; ++i) {
        auto* edit = new QLineEdit(this);
        ui::SetArrayName(edit, "tbxEdit", i);
        ui::FocusEvents::InstallFocusColor(edit, Mdl_Sub::SetFocusColor);
        tbxEdit[size_t(i)] = edit;
        const int at = i - kFirstEdit;
        fields->addWidget(new QLabel(QString::fromUtf8(kEditCaptions[at]), this), at % 3, 3 + 2 * (at / 3));
        fields->addWidget(edit, at % 3, 4 + 2 * (at / 3));
    }
    fields->setColumnStretch(4, 1);
    fields->setColumnStretch(6, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(MenuBar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(client, 1);
}

void frm_Edit_User::Form_Resize()
{
    // The grid keeps its design height; the edit fields stand below it.
    const int width = Width() - 320;
    if (width <= 0)
        return;
    MSFlexGrid_Edit->Move(kGridLeft, kGridTop, width, kGridHeight);
    m_fields->setGeometry(ui::TwipsToPixels(kGridLeft), ui::TwipsToPixels(kGridTop + kGridHeight + 120), ui::TwipsToPixels(width),
                          m_fields->sizeHint().height());
}

void frm_Edit_User::Form_Load()
{
    Mdl_Sub::TakeMainWindowPlace(*this);
    MSFlexGrid_Edit->SetRows(0);
    MSFlexGrid_Edit->SetCols(0);
    lbr_Key->setText(QStringLiteral(" "));
    m_selectedRow = 0;
    m_previousRow = 0;
    Mnu_Add->setEnabled(false);
    Mnu_delete->setEnabled(false);
    Mnu_Update->setEnabled(false);
    fillGrid();
}

void frm_Edit_User::fillGrid()
{
    db::Recordset rs;
    try {
        rs.Open(QStringLiteral("SELECT ") + QStringLiteral("tbl_Section.*, ") + QStringLiteral("tbl_Division.*, ")
                    + QStringLiteral("tbl_User.* ") + QStringLiteral("FROM ") + QStringLiteral("tbl_Section, ")
                    + QStringLiteral("tbl_Division, ") + QStringLiteral("tbl_User ") + QStringLiteral(" WHERE (")
                    + QStringLiteral("((tbl_User.Section_Code)=([tbl_Section].[Section_Code]))") + QStringLiteral(" AND ")
                    + QStringLiteral("((tbl_User.Division_Code)=([tbl_Division].[Division_Code]))") + QStringLiteral(" AND ")
                    + QStringLiteral("((tbl_User.Available_flug) ='0')") + QStringLiteral(") ") + QStringLiteral(";"),
                DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        ui::FlexGrid& grid = *MSFlexGrid_Edit;
        grid.Clear();
        grid.SetVisible(false);
        grid.SetFixedRows(1);
        grid.SetFixedCols(1);
        grid.SetCols(kCols);
        grid.SetRows(1);
        grid.SetColWidth(0, 0);
        for (int c = 1; c < kCols; ++c) {
            grid.SetTextMatrix(0, c, QString::fromUtf8(kColumns[c - 1].heading));
            grid.SetColWidth(c, kColumns[c - 1].width);
        }
        m_rowCodes.assign(1, {});
        const QColor gray = ui::QBColor(ui::qbGray);
        for (; !rs.Eof(); rs.MoveNext()) {
            const int row = grid.Rows();
            grid.SetRows(row + 1);
            grid.SetTextMatrix(row, 0, FieldText(rs.Fields(u"tbl_User.User_Code").Value()));
            for (int c = 1; c < kCols; ++c) {
                const UserColumn& col = kColumns[c - 1];
                grid.SetTextMatrix(row, c, FieldText(rs.Fields(col.field).Value()));
                if (col.flagField && FieldText(rs.Fields(col.flagField).Value()) == QLatin1String("1")) {
                    grid.SetRow(row);
                    grid.SetCol(c);
                    grid.SetCellBackColor(gray);
                }
            }
            m_rowCodes.emplace_back(FieldText(rs.Fields(u"tbl_User.Section_Code").Value()),
                                    FieldText(rs.Fields(u"tbl_User.Division_Code").Value()));
        }
        grid.SetVisible(true);
        rs.Close();
        m_filled = true;
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        rs.CloseIfOpen();
    }
}

void frm_Edit_User::clearEdits()
{
    for (QLineEdit* e : tbxEdit)
        if (e)
            e->clear();
    cmb_Section->setEditText(QString());
    cmb_Division->setEditText(QString());
    tbx_Section_Code->clear();
    tbx_Division_Code->clear();
}

void frm_Edit_User::MSFlexGrid_Edit_Click()
{
    ui::FlexGrid& grid = *MSFlexGrid_Edit;
    const int row = grid.Row();
    if (!m_filled || row < 1 || row >= grid.Rows())
        return;
    Mnu_delete->setEnabled(true);
    Mnu_Update->setEnabled(true);
    m_previousRow = m_selectedRow;
    m_selectedRow = row;
    ui::PaintGridRow(grid, m_previousRow, ui::qbWhite);
    ui::PaintGridRow(grid, row, ui::qbGray);
    grid.SetRow(row);
    clearEdits();
    lbr_Key->setText(grid.TextMatrix(row, 1));
    for (int i = kFirstEdit; i <= 8; ++i)
        tbxEdit[size_t(i)]->setText(grid.TextMatrix(row, i + 1));
    cmb_Section->setEditText(grid.TextMatrix(row, 2));
    cmb_Division->setEditText(grid.TextMatrix(row, 3));
    tbx_Section_Code->setText(m_rowCodes[size_t(row)].first);
    tbx_Division_Code->setText(m_rowCodes[size_t(row)].second);
}

namespace {

// Fills a master's drop-down list: its names, with the code as each entry's data.
void fillMasterList(QComboBox& combo, const QString& sql, const char16_t* codeField, const char16_t* nameField, const QString& behindName)
{
    const QString typed = combo.currentText();
    combo.clear();
    db::Recordset rs;
    rs.Open(sql, DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    for (; !rs.Eof(); rs.MoveNext()) {
        const QString code = FieldText(rs.Fields(codeField).Value());
        if (code.isEmpty())
            continue;
        combo.addItem(FieldText(rs.Fields(nameField).Value()) + behindName, code);
    }
    rs.Close();
    combo.setCurrentIndex(-1);
    combo.setEditText(typed);
}

} // namespace

void frm_Edit_User::cmb_Section_DropDown()
{
    // the condition and ORDER BY meet without a blank
    fillMasterList(*cmb_Section,
                   QStringLiteral("SELECT * ") + QStringLiteral("FROM tbl_Section ") + QStringLiteral(" WHERE ")
                       + QStringLiteral("Available_flug ='0'") + QStringLiteral("ORDER BY Section_Code") + QStringLiteral(";"),
                   u"Section_Code", u"Section_Name", QStringLiteral(" "));
}

void frm_Edit_User::cmb_Division_DropDown()
{
    fillMasterList(*cmb_Division,
                   QStringLiteral("SELECT * ") + QStringLiteral("FROM tbl_Division ") + QStringLiteral(" WHERE ")
                       + QStringLiteral("Available_flug ='0' ") + QStringLiteral("ORDER BY Division_Name ") + QStringLiteral(";"),
                   u"Division_Code", u"Division_Name", QString());
}

void frm_Edit_User::cmb_Section_Click()
{
    if (cmb_Section->currentIndex() >= 0)
        tbx_Section_Code->setText(cmb_Section->currentData().toString());
}

void frm_Edit_User::cmb_Division_Click()
{
    if (cmb_Division->currentIndex() >= 0)
        tbx_Division_Code->setText(cmb_Division->currentData().toString());
}

void frm_Edit_User::Mnu_Add_Click()
{
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT MAX( ") + QStringLiteral("User_Code ") + QStringLiteral(" ) ") + QStringLiteral("FROM tbl_User"),
            DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    const vb::Variant highest = rs.Value(0);
    rs.Close();
    const std::int16_t code = highest.IsNull() ? std::int16_t(0) : vb::IntAdd(vb::CInt(highest), 1);
    db::Connection& c = DbConnection();
    db::Transaction insert(c);
    c.Execute(QStringLiteral("INSERT INTO ") + QStringLiteral("tbl_User ") + QStringLiteral(" ( ") + QStringLiteral("User_Code")
              + QStringLiteral(",") + QStringLiteral("Available_flug") + QStringLiteral(",") + QStringLiteral("Section_Code")
              + QStringLiteral(",") + QStringLiteral("Division_Code") + QStringLiteral(") ") + QStringLiteral("VALUES ( ")
              + QString::number(code) + QStringLiteral(",") + QStringLiteral("0") + QStringLiteral(",") + QStringLiteral("0")
              + QStringLiteral(",") + QStringLiteral("0") + QStringLiteral(" );"));
    insert.Commit();
    fillGrid();
}

void frm_Edit_User::Mnu_Update_Click()
{
    if (m_selectedRow < 1 || !m_filled)
        return;
    const QString shown = lbr_Key->text();
    if (shown == QLatin1String(" ") || shown.isEmpty())
        return;
    const QString key = MSFlexGrid_Edit->TextMatrix(m_selectedRow, 0);
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * ") + QStringLiteral("FROM ") + QStringLiteral("tbl_User ") + QStringLiteral(" WHERE (")
                + QStringLiteral("((User_Code)=") + key + QStringLiteral(")") + QStringLiteral(")") + QStringLiteral(";"),
            DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    if (rs.RecordCount() > 0) {
        // a blanked field is stored as one blank, so that it never reads back as Null
        for (int i = kFirstEdit; i <= 8; ++i) {
            const QString value = tbxEdit[size_t(i)]->text();
            rs.Fields(kEditFields[i - kFirstEdit]) = vb::Variant(value.isEmpty() ? QStringLiteral(" ") : value);
        }
        if (!tbx_Section_Code->text().isEmpty())
            rs.Fields(u"Section_Code") = vb::Variant(tbx_Section_Code->text());
        if (!tbx_Division_Code->text().isEmpty())
            rs.Fields(u"Division_Code") = vb::Variant(tbx_Division_Code->text());
        rs.Update();
    }
    rs.Close();
    fillGrid();
    clearEdits();
    lbr_Key->setText(QStringLiteral(" "));
    m_selectedRow = 0;
    Mnu_delete->setEnabled(false);
    Mnu_Update->setEnabled(false);
}

void frm_Edit_User::Mnu_Delete_Click()
{
    // Only the answer Yes deletes; either answer fills the grid again and turns Mnu_Add on.
    const bool yes = ui::MsgBox(QStringLiteral("削除しますか？"), ui::vbQuestion + ui::vbYesNo, QStringLiteral("確認")) == ui::vbYes;
    if (yes && m_selectedRow >= 1 && m_filled) {
        const QString key = MSFlexGrid_Edit->TextMatrix(m_selectedRow, 0);
        db::Recordset rs;
        rs.Open(QStringLiteral("SELECT * ") + QStringLiteral("FROM ") + QStringLiteral("tbl_User ") + QStringLiteral(" WHERE (")
                    + QStringLiteral("((tbl_User.User_Code)=") + key + QStringLiteral(")") + QStringLiteral(")") + QStringLiteral(";"),
                DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() > 0) {
            rs.Fields(u"Available_flug") = vb::Variant(QStringLiteral("1"));
            rs.Update();
        }
        rs.Close();
    }
    fillGrid();
    m_selectedRow = 0;
    if (MSFlexGrid_Edit->Rows() > 1)
        m_filled = true;
    Mnu_Add->setEnabled(true);
    Mnu_delete->setEnabled(false);
    Mnu_Update->setEnabled(false);
}

void frm_Edit_User::Mnu_Section_Click()
{
    Mdl_gData::g.CurrentTableCaption = QStringLiteral("部");
    Mdl_gData::g.CurrentTableName = QStringLiteral("tbl_Section");
    Mdl_gData::g.CurrentTableIndex = 1;
    frm_Edit_Table::Instance().Show(ui::vbModal);
}

void frm_Edit_User::Mnu_Division_Click()
{
    Mdl_gData::g.CurrentTableCaption = QStringLiteral("課");
    Mdl_gData::g.CurrentTableName = QStringLiteral("tbl_Division");
    Mdl_gData::g.CurrentTableIndex = 2;
    frm_Edit_Table::Instance().Show(ui::vbModal);
}

void frm_Edit_User::Mnu_Close_Click() { Unload(); }
