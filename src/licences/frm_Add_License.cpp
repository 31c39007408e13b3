#include "licences/frm_Add_License.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "licences/LicenceRoutines.h"
#include "licences/frm_Edit_License.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FixedSize.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/FocusEvents.h"
#include "platform/ui/GridSelection.h"
#include "platform/ui/KeyPressFilter.h"
#include "platform/ui/Menus.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include <QAction>
#include <QFormLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>

using Mdl_gData::DbConnection;
using Mdl_Sub::FieldText;

namespace {

// the window's fixed size, in twips
constexpr int kWidth = 5940;
constexpr int kHeight = 7020;

struct LicenseColumn {
    const char* heading;
    const char16_t* field;
    int width;
};
const LicenseColumn kColumns[] = {
    {"Key", u"Key", 700},
    {"アプリケーション名", u"Application_Name", 3000},
    // the stored number as it stands: nothing is summed
    {"小計", u"Unit_Num", 700},
};
constexpr int kCols = int(std::size(kColumns));

} // namespace

frm_Add_License::frm_Add_License()
{
    setObjectName(QStringLiteral("frm_Add_License"));
    setWindowTitle(QStringLiteral("ライセンスの管理"));
    buildMenus();
    buildControls();
}

void frm_Add_License::buildMenus()
{
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Mnu_Close = ui::AddMenuItem(Mnu_File, "Mnu_Close", "閉じる", [this] { Mnu_Close_Click(); });
    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", QStringLiteral("編集"));
    Mnu_AddRecord = ui::AddMenuItem(Mnu_Edit, "Mnu_AddRecord", "新規", [this] { Mnu_AddRecord_Click(); });
    Mnu_EditRecord = ui::AddMenuItem(Mnu_Edit, "Mnu_EditRecord", "更新", [this] { Mnu_EditRecord_Click(); });
    Mnu_DeleteRecord = ui::AddMenuItem(Mnu_Edit, "Mnu_DeleteRecord", "削除", [this] { Mnu_DeleteRecord_Click(); });
    Mnu_View = ui::AddMenu(MenuBar, "Mnu_View", QStringLiteral("表示"));
    Mnu_ViewList = ui::AddMenuItem(Mnu_View, "Mnu_ViewList", "一覧更新", [this] { Mnu_ViewList_Click(); });
}

void frm_Add_License::buildControls()
{
    auto box = [this](const char* name) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QString::fromUtf8(name));
        ui::FocusEvents::InstallFocusColor(edit, Mdl_Sub::SetFocusColor);
        return edit;
    };
    tbx_LicenseName = box("tbx_LicenseName");
    tbx_LicenseNum = box("tbx_LicenseNum");
    tbx_LicenseNum->setMaximumWidth(ui::TwipsToPixels(1200));
    ui::KeyPressFilter::Install(tbx_LicenseNum, ui::KeyPressFilter::Digits);

    MSFlexGrid_License = new ui::FlexGrid(this);
    MSFlexGrid_License->setObjectName(QStringLiteral("MSFlexGrid_License"));
    // the key is a column like the others: white, and gray with its row when selected
    MSFlexGrid_License->SetFixedCols(0);
    ui::Connect(MSFlexGrid_License, &ui::FlexGrid::Click, this, [this] { MSFlexGrid_License_Click(); });

    auto* fields = new QFormLayout;
    fields->setContentsMargins(8, 8, 8, 6);
    fields->setHorizontalSpacing(8);
    fields->addRow(QStringLiteral("アプリケーション名"), tbx_LicenseName);
    fields->addRow(QStringLiteral("購入数"), tbx_LicenseNum);

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(MenuBar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(fields);
    layout->addWidget(MSFlexGrid_License, 1);
}

void frm_Add_License::Form_Load()
{
    ui::FixedSize::Apply(*this, kWidth, kHeight);
    ClearLicenseEntry();
    PreviousRow = 1;
    SelectedRow = 0;
    if (!FillLicenseGrid())
        GridReady = false;
}

void frm_Add_License::ClearLicenseEntry()
{
    tbx_LicenseName->clear();
    tbx_LicenseNum->clear();
    PreviousRow = 1;
    SelectedRow = 0;
    if (FillLicenseGrid())
        onlyAddEnabled();
    else
        GridReady = false;
}

void frm_Add_License::onlyAddEnabled()
{
    Mnu_AddRecord->setEnabled(true);
    Mnu_DeleteRecord->setEnabled(false);
    Mnu_EditRecord->setEnabled(false);
}

bool frm_Add_License::FillLicenseGrid()
{
    ui::FlexGrid& grid = *MSFlexGrid_License;
    db::Recordset rs;
    const bool filled = Mdl_Access_mdb::WithErrorBox(rs, false, [&] {
        rs.Open(QStringLiteral("SELECT * FROM tbl_License_Key ORDER BY Application_Name;"), DbConnection(), db::adOpenStatic,
                db::adLockOptimistic);
        if (rs.RecordCount() < 1) {
            grid.SetCols(0);
            grid.SetRows(0);
            rs.Close();
            return false;
        }
        grid.Clear();
        grid.SetCols(kCols);
        grid.SetRows(1);
        for (int c = 0; c < kCols; ++c) {
            LicenceRoutines::SetCell(grid, 0, c, QString::fromUtf8(kColumns[c].heading), ui::qbGray,
                                     c > 0 ? ui::flexAlignCenterBottom : ui::flexAlignGeneral);
            grid.SetColWidth(c, kColumns[c].width);
        }
        grid.SetRedraw(false);
        grid.SetRows(int(rs.RecordCount()) + 1);
        int fields[kCols];
        for (int c = 0; c < kCols; ++c)
            fields[c] = rs.FieldIndex(kColumns[c].field);
        for (int row = 1; !rs.Eof(); rs.MoveNext(), ++row)
            for (int c = 0; c < kCols; ++c)
                grid.SetTextMatrix(row, c, FieldText(rs.Value(fields[c])));
        GridReady = true;
        rs.Close();
        return true;
    });
    grid.SetRedraw(true);
    return filled;
}

void frm_Add_License::PaintLicenseRow(std::int16_t row, std::int16_t qbColour) { ui::PaintGridRow(*MSFlexGrid_License, row, qbColour, 0); }

void frm_Add_License::MSFlexGrid_License_Click()
{
    ui::FlexGrid& grid = *MSFlexGrid_License;
    if (grid.Row() == 0 || !GridReady)
        return;
    SelectedRow = std::int16_t(grid.Row());
    tbx_LicenseName->setText(grid.TextMatrix(SelectedRow, 1));
    tbx_LicenseNum->setText(grid.TextMatrix(SelectedRow, 2));
    // the whole grid is built again on each selection
    FillLicenseGrid();
    PaintLicenseRow(PreviousRow, ui::qbWhite);
    PaintLicenseRow(SelectedRow, ui::qbGray);
    PreviousRow = SelectedRow;
    Mnu_AddRecord->setEnabled(true);
    Mnu_DeleteRecord->setEnabled(true);
    Mnu_EditRecord->setEnabled(true);
}

// A new line is blank: what the boxes hold is not used. It sorts first, with its empty name.
void frm_Add_License::Mnu_AddRecord_Click()
{
    const std::int16_t key = LicenceRoutines::NextKey(QStringLiteral("tbl_License_Key"));
    db::Connection& c = DbConnection();
    db::Transaction insert(c);
    c.Execute(QStringLiteral("INSERT INTO tbl_License_Key ( [Key] ) VALUES ( ") + QString::number(key) + QStringLiteral(" );"));
    insert.Commit();
    ClearLicenseEntry();
    onlyAddEnabled();
}

// Both the name and the number are required; without either nothing happens and nothing is said.
void frm_Add_License::Mnu_EditRecord_Click()
{
    const QString name = tbx_LicenseName->text();
    const QString number = tbx_LicenseNum->text();
    if (SelectedRow <= 0)
        return;
    const QString keyText = MSFlexGrid_License->TextMatrix(SelectedRow, 0);
    if (keyText.isEmpty())
        return;
    const std::int16_t key = vb::CInt(vb::Variant(keyText));
    if (name.isEmpty() || number.isEmpty())
        return;
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * FROM tbl_License_Key WHERE Key= ") + QString::number(key) + QStringLiteral(";"), DbConnection(),
            db::adOpenStatic, db::adLockOptimistic);
    rs.Fields(u"Application_Name") = vb::Variant(name);
    rs.Fields(u"Unit_Num") = vb::Variant(number);
    rs.Update();
    rs.Close();
    tbx_LicenseName->clear();
    tbx_LicenseNum->clear();
    FillLicenseGrid();
    onlyAddEnabled();
}

// The assignments of the line stay in tbl_License_Dat; the assignment list no longer shows them.
void frm_Add_License::Mnu_DeleteRecord_Click()
{
    if (!LicenceRoutines::DeleteSelectedRow(*MSFlexGrid_License, SelectedRow, QStringLiteral("tbl_License_Key")))
        return;
    MSFlexGrid_License->Clear();
    FillLicenseGrid();
    onlyAddEnabled();
}

void frm_Add_License::Mnu_ViewList_Click()
{
    if (!FillLicenseGrid())
        ui::MsgBox(QStringLiteral("レコードがありません"));
}

// The menu's close refreshes the application list of the assignment window, which opened this
// one; the close box does not.
void frm_Add_License::Mnu_Close_Click()
{
    if (frm_Edit_License* assignments = frm_Edit_License::IfLoaded())
        assignments->View_ApplicatinList();
    Unload();
}
