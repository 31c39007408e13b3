#include "network/frm_Edit_Network.h"

#include "assetlist/ListExport.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_IP.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "network/NetworkList.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/FocusEvents.h"
#include "platform/ui/FormLayout.h"
#include "platform/ui/GridSelection.h"
#include "platform/ui/KeyPressFilter.h"
#include "platform/ui/Menus.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

using Mdl_gData::DbConnection;
using Mdl_Sub::FieldText;

namespace {

// The fields above the register: which control, the device's field it edits, its label, and the
// register's column it shows. Update writes them in this order.
struct UnitField {
    bool combo;
    int index;
    const char16_t* field;
    const char* label;
    int column;
};
constexpr UnitField kFields[] = {
    {true, 0, u"Location_Name", "設置場所", 1},
    {true, 1, u"User_Name", "ユーザ", 2},
    {true, 2, u"Manufacturer_Name", "メーカー", 7},
    {false, 0, u"Model_Name", "モデル", 8},
    {false, 1, u"Computer_Name", "コンピュータ名", 3},
    {false, 2, u"WorkGroup", "ワークグループ", 4},
    {false, 3, u"IPAddress", "IPアドレス", 5},
    {false, 4, u"MacAddress", "Macアドレス", 6},
    {false, 5, u"Type_Number", "タイプ", 9},
    {false, 6, u"Sereals_Number", "シリアル", 10},
    {false, 7, u"ID", "ID", 11},
    {false, 8, u"PassWord", "PW", 12},
};
constexpr int kAddressBox = 3;
constexpr int kFieldsPerLine = 6;

// The master behind each combo. Its fourth column is taken as the availability flag.
const char* const kComboTables[] = {"tbl_Location", "tbl_User", "tbl_Manufacturer"};

QString deviceSql(const QString& key) { return QStringLiteral("SELECT * FROM tbl_NetworkUnit WHERE [Key]  = ") + key; }

} // namespace

frm_Edit_Network::frm_Edit_Network()
{
    setObjectName(QStringLiteral("frm_Edit_Network"));
    setWindowTitle(QStringLiteral("ネットワーク機器"));
    buildMenus();
    buildControls();
}

void frm_Edit_Network::buildMenus()
{
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Export_CSV = ui::AddMenuItem(Mnu_File, "Export_CSV", QStringLiteral("CSV書き出し"), [this] { Export_CSV_Click(); });
    Mnu_Close = ui::AddMenuItem(Mnu_File, "Mnu_Close", QStringLiteral("閉じる"), [this] { Mnu_Close_Click(); });
    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", QStringLiteral("編集"));
    Mnu_AddRecord = ui::AddMenuItem(Mnu_Edit, "Mnu_AddRecord", QStringLiteral("新規"), [this] { Mnu_AddRecord_Click(); });
    Mnu_Update = ui::AddMenuItem(Mnu_Edit, "Mnu_Update", QStringLiteral("更新"), [this] { Mnu_Update_Click(); });
    Mnu_Delete = ui::AddMenuItem(Mnu_Edit, "Mnu_Delete", QStringLiteral("削除"), [this] { Mnu_Delete_Click(); });
    Mnu_View = ui::AddMenu(MenuBar, "Mnu_View", QStringLiteral("表示"));
    Mnu_ViewUpdate = ui::AddMenuItem(Mnu_View, "Mnu_ViewUpdate", QStringLiteral("一覧更新"), [this] { Mnu_ViewUpdate_Click(); });
}

void frm_Edit_Network::buildControls()
{
    // The grids stand where the sums of Form_Resize put them, below the menu bar; the fields
    // fill the band above the register, two lines of six.
    m_client = ui::AddClientArea(this, MenuBar);
    m_fields = new QWidget(m_client);
    auto* fields = new QGridLayout(m_fields);
    fields->setContentsMargins(0, 0, 0, 0);
    fields->setHorizontalSpacing(6);
    fields->setVerticalSpacing(4);
    int at = 0;
    for (const UnitField& f : kFields) {
        QWidget* control;
        if (f.combo) {
            auto* combo = new ui::DropDownCombo(m_fields);
            ui::SetArrayName(combo, "cmb_Dat", f.index);
            combo->setEditable(true);
            combo->DropDown = [this, i = f.index] { cmb_Dat_DropDown(i); };
            cmb_Dat[size_t(f.index)] = combo;
            control = combo;
        } else {
            auto* box = new QLineEdit(m_fields);
            ui::SetArrayName(box, "tbx_nunit", f.index);
            ui::FocusEvents::InstallFocusColor(box, Mdl_Sub::SetFocusColor);
            if (f.index == kAddressBox)
                ui::KeyPressFilter::Install(box, ui::KeyPressFilter::DigitsAndDots);
            tbx_nunit[size_t(f.index)] = box;
            control = box;
        }
        control->setMinimumWidth(ui::TwipsToPixels(1000));
        auto* label = new QLabel(QString::fromUtf8(f.label), m_fields);
        label->setBuddy(control);
        const int line = at / kFieldsPerLine, place = at % kFieldsPerLine;
        fields->addWidget(label, line, 2 * place);
        fields->addWidget(control, line, 2 * place + 1);
        fields->setColumnStretch(2 * place + 1, 1);
        ++at;
    }

    MSFlexGrid_NetworkUnit = ui::AddGrid(m_client, "MSFlexGrid_NetworkUnit");
    ui::Connect(MSFlexGrid_NetworkUnit, &ui::FlexGrid::Click, this, [this] { MSFlexGrid_NetworkUnit_Click(); });
    MSFlexGrid_Network = ui::AddGrid(m_client, "MSFlexGrid_Network");
    for (ui::FlexGrid* grid : {MSFlexGrid_NetworkUnit, MSFlexGrid_Network}) {
        grid->SetRows(0);
        grid->SetCols(0);
    }
}

void frm_Edit_Network::Form_Load()
{
    Mdl_Sub::TakeMainWindowPlace(*this);
    Form_Resize();
    UnitGridReady = false;
    PreviousUnitRow = 1;
    SelectedUnitRow = 0;
    Mnu_AddRecord->setEnabled(true);
    setEditMenus(false);
    // the address list as the last rebuild left it; it is not rebuilt here
    if (View_NetworkList(*MSFlexGrid_Network) == ui::FillResult::Rows)
        UnitGridReady = true;
    fnc_View_NClist(*MSFlexGrid_NetworkUnit);
}

void frm_Edit_Network::Form_Resize()
{
    // A window made smaller than the sums leaves a grid of no height rather than raising
    // "invalid property value", as the control did.
    const int width = qMax(0, Width() - 300);
    m_fields->setGeometry(ui::TwipsToPixels(100), ui::TwipsToPixels(120), ui::TwipsToPixels(width), ui::TwipsToPixels(900));
    MSFlexGrid_NetworkUnit->Move(100, 1100, width, 2500);
    MSFlexGrid_Network->Move(100, 3600, width, qMax(0, Height() - 4500));
}

void frm_Edit_Network::setEditMenus(bool on)
{
    Mnu_Delete->setEnabled(on);
    Mnu_Update->setEnabled(on);
}

void frm_Edit_Network::PaintUnitRow(int row, int qbColour) { ui::PaintGridRow(*MSFlexGrid_NetworkUnit, row, qbColour); }

void frm_Edit_Network::MSFlexGrid_NetworkUnit_Click()
{
    // Until the window has seen rows in the address list, or has added or updated a device,
    // a click selects nothing.
    const int row = MSFlexGrid_NetworkUnit->Row();
    if (!UnitGridReady || row == 0)
        return;
    SelectedUnitRow = row;
    for (const UnitField& f : kFields) {
        QLineEdit* box = f.combo ? cmb_Dat[size_t(f.index)]->lineEdit() : tbx_nunit[size_t(f.index)];
        box->setText(MSFlexGrid_NetworkUnit->TextMatrix(row, f.column));
        // a value longer than its box shows its beginning
        box->setCursorPosition(0);
    }
    PaintUnitRow(PreviousUnitRow, ui::qbWhite);
    PaintUnitRow(SelectedUnitRow, ui::qbGray);
    PreviousUnitRow = SelectedUnitRow;
    Mnu_AddRecord->setEnabled(true);
    setEditMenus(true);
}

void frm_Edit_Network::cmb_Dat_DropDown(int index)
{
    // The list offers the master's names; only the text counts, and a typed name is as good.
    // What was typed stays in the box while the list is open.
    ui::DropDownCombo& combo = *cmb_Dat[size_t(index)];
    const QString typed = combo.currentText();
    combo.clear();
    const QString table = QString::fromUtf8(kComboTables[index]);
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * FROM ") + table, DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    std::array<QString, 4> names;
    for (int i = 0; i < 4; ++i)
        names[size_t(i)] = rs.Fields(i).Name();
    rs.Close();
    rs.Open(QStringLiteral("SELECT * FROM ") + table + QStringLiteral(" WHERE ") + names[3] + QStringLiteral(" ='0';"), DbConnection(),
            db::adOpenStatic, db::adLockOptimistic);
    for (; !rs.Eof(); rs.MoveNext())
        combo.addItem(FieldText(rs.Fields(1).Value()), FieldText(rs.Fields(0).Value()));
    rs.Close();
    combo.setCurrentIndex(-1);
    combo.setEditText(typed);
}

void frm_Edit_Network::Mnu_AddRecord_Click()
{
    try {
        const QString key = QString::number(vb::IntAdd(Mdl_Access_mdb::MaxOfFirstColumn(QStringLiteral("tbl_NetworkUnit")), 1));
        Mdl_Access_mdb::ExecuteSql(QStringLiteral("INSERT INTO tbl_NetworkUnit ([Key]) VALUES (") + key + QStringLiteral(");"));
        Mdl_Access_mdb::ExecuteSql(QStringLiteral("UPDATE tbl_NetworkUnit SET tbl_NetworkUnit.[Deleted_Flug] = 0 WHERE Key = ") + key);
        PreviousUnitRow = 1;
        SelectedUnitRow = 0;
        UnitGridReady = true;
        View_NetworkList(*MSFlexGrid_Network);
        fnc_View_NClist(*MSFlexGrid_NetworkUnit);
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
    }
}

void frm_Edit_Network::Mnu_Update_Click()
{
    if (SelectedUnitRow == 0)
        return;
    db::Recordset rs;
    rs.Open(deviceSql(MSFlexGrid_NetworkUnit->TextMatrix(SelectedUnitRow, 0)), DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    if (rs.RecordCount() == 0) {
        rs.Close();
        return;
    }
    // an empty field leaves the stored value
    for (const UnitField& f : kFields) {
        const QString value = f.combo ? cmb_Dat[size_t(f.index)]->currentText() : tbx_nunit[size_t(f.index)]->text();
        if (!value.isEmpty())
            rs.Fields(f.field) = vb::Variant(value);
    }
    const QString address = tbx_nunit[kAddressBox]->text();
    if (!address.isEmpty())
        rs.Fields(u"IPAddress_16num") = vb::Variant(Mdl_IP::IpToHex8(address));
    rs.Update();
    rs.Close();
    UnitGridReady = true;
    View_NetworkList(*MSFlexGrid_Network);
    fnc_View_NClist(*MSFlexGrid_NetworkUnit);
    // the row painted is the row number chosen before, whichever device the new order put there
    if (MSFlexGrid_NetworkUnit->Rows() > 0)
        PaintUnitRow(SelectedUnitRow, ui::qbGray);
    PreviousUnitRow = SelectedUnitRow;
    Mnu_AddRecord->setEnabled(true);
    setEditMenus(false);
}

void frm_Edit_Network::Mnu_Delete_Click()
{
    if (ui::MsgBox(QStringLiteral("削除しますか？"), ui::vbYesNo, QStringLiteral("確認")) == ui::vbNo)
        return;
    if (SelectedUnitRow != 0) {
        db::Recordset rs;
        rs.Open(deviceSql(MSFlexGrid_NetworkUnit->TextMatrix(SelectedUnitRow, 0)), DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() > 0) {
            rs.Delete();
            rs.Update();
        }
        rs.Close();
    }
    fnc_View_NClist(*MSFlexGrid_NetworkUnit);
    Mnu_AddRecord->setEnabled(true);
    setEditMenus(false);
}

void frm_Edit_Network::Mnu_ViewUpdate_Click()
{
    if (ui::MsgBox(QStringLiteral("更新に時間がかかります。リストを更新しますか ?"), ui::vbYesNo | ui::vbQuestion) == ui::vbNo)
        return;
    const bool rebuilt = RebuildNetworkList();
    View_NetworkList(*MSFlexGrid_Network);
    fnc_View_NClist(*MSFlexGrid_NetworkUnit);
    // a rebuild that could not be written has said so, and the list is the previous one
    if (rebuilt)
        ui::MsgBox(QStringLiteral("完了"));
}

void frm_Edit_Network::Export_CSV_Click() { ListExport::ExportGrid(*MSFlexGrid_Network, QStringLiteral("CSV書き出し")); }

void frm_Edit_Network::Mnu_Close_Click() { Unload(); }
