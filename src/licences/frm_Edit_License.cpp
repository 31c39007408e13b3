#include "licences/frm_Edit_License.h"

#include "assetlist/ListExport.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "licences/LicenceRoutines.h"
#include "licences/LicenseAssignment.h"
#include "licences/frm_Add_License.h"
#include "platform/app/App.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/FormLayout.h"
#include "platform/ui/GridSelection.h"
#include "platform/ui/Menus.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>

using Mdl_gData::DbConnection;
using Mdl_Sub::FieldText;

namespace {

// The grid's place in the client area and the allowances of its size, in twips.
constexpr int kGridLeft = 4680;
constexpr int kGridTop = 720;
constexpr int kWidthAllowance = 4880;
constexpr int kHeightAllowance = 1550;
// the entry panel on the left of the grid
constexpr int kEntryWidth = 4560;

// The rows of the two form combos, rebuilt on each drop-down; a row's item data is its index.
const char* const kPaymentTypes[] = {" ", "リース", "現金"};
const char* const kAssetTypes[] = {" ", "パッケージ FPP", "パッケージ PIPC", "License"};

// A filter box read as a key: 0 when empty.
std::int16_t keyOf(const QLineEdit& box) { return box.text().isEmpty() ? std::int16_t(0) : vb::CInt(vb::Variant(box.text())); }

QDateTime today()
{
    const QDate d = app::Now().date();
    return vb::MakeDate(d.year(), d.month(), d.day());
}

void fillFixedCombo(QComboBox& combo, const char* const* rows, int count)
{
    const QString typed = combo.currentText();
    combo.clear();
    for (int i = 0; i < count; ++i)
        combo.addItem(QString::fromUtf8(rows[i]), i);
    combo.setCurrentIndex(-1);
    combo.setEditText(typed);
}

// A filter combo: a first row " " (key 0, no filter), then one row per record, a Null name
// giving an empty row.
void fillFilterCombo(QComboBox& combo, const QString& sql, const char16_t* nameField, const char16_t* keyField)
{
    combo.clear();
    combo.addItem(QStringLiteral(" "), 0);
    db::Recordset rs;
    rs.Open(sql, DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    for (; !rs.Eof(); rs.MoveNext())
        combo.addItem(FieldText(rs.Fields(nameField).Value()), FieldText(rs.Fields(keyField).Value()));
    rs.Close();
}

void emptyCombo(QComboBox& combo)
{
    combo.setCurrentIndex(-1);
    combo.clearEditText();
}

} // namespace

frm_Edit_License::frm_Edit_License()
{
    setObjectName(QStringLiteral("frm_Edit_License"));
    setWindowTitle(QStringLiteral("ライセンス管理"));
    buildMenus();
    buildControls();
}

void frm_Edit_License::buildMenus()
{
    using ui::AddMenuItem;
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Mnu_Export = AddMenuItem(Mnu_File, "Mnu_Export", "書き出し", [this] { Mnu_Export_Click(); });
    Mnu_Close = AddMenuItem(Mnu_File, "Mnu_Close", "閉じる", [this] { Mnu_Close_Click(); });
    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", QStringLiteral("編集"));
    Mnu_AddRecord = AddMenuItem(Mnu_Edit, "Mnu_AddRecord", "新規", [this] { Mnu_AddRecord_Click(); });
    Mnu_Update = AddMenuItem(Mnu_Edit, "Mnu_Update", "更新", [this] { Mnu_Update_Click(); });
    Mnu_DeleteRecord = AddMenuItem(Mnu_Edit, "Mnu_DeleteRecord", "削除", [this] { Mnu_DeleteRecord_Click(); });
    Mnu_View = ui::AddMenu(MenuBar, "Mnu_View", QStringLiteral("表示"));
    View_MSFlexGrid_License_assignment_Update = AddMenuItem(Mnu_View, "View_MSFlexGrid_License_assignment_Update", "一覧更新",
                                                            [this] { View_MSFlexGrid_License_assignment_Update_Click(); });
    Mnu_Managements = ui::AddMenu(MenuBar, "Mnu_Managements", QStringLiteral("管理"));
    Add_ApplicationName =
        AddMenuItem(Mnu_Managements, "Add_ApplicationName", "アプリケーションの登録", [this] { Add_ApplicationName_Click(); });
}

void frm_Edit_License::buildControls()
{
    // the grid and the panels stand at fixed places in the client area
    m_client = ui::AddClientArea(this, MenuBar);

    auto name = [](QWidget* w, const char* objectName) {
        w->setObjectName(QString::fromUtf8(objectName));
        return w;
    };
    auto box = [&](QWidget* parent, const char* objectName) {
        auto* edit = new QLineEdit(parent);
        name(edit, objectName);
        return edit;
    };
    auto keyBox = [&](QWidget* parent, const char* objectName) {
        QLineEdit* edit = box(parent, objectName);
        edit->setVisible(false);
        return edit;
    };
    auto combo = [&](QWidget* parent, const char* objectName) {
        auto* c = new ui::DropDownCombo(parent);
        name(c, objectName);
        c->setEditable(true);
        return c;
    };
    auto list = [&](QWidget* parent, const char* objectName) {
        auto* l = new QListWidget(parent);
        name(l, objectName);
        // the rows are padded by bytes and characters, so that a fixed-pitch font lines them up
        l->setFont(ui::MsGothic());
        return l;
    };

    // the entry panel: the two lists and the fields of an assignment
    m_entry = new QWidget(m_client);
    m_entry->setObjectName(QStringLiteral("EntryPanel"));
    List_license = list(m_entry, "List_license");
    tbx_LicenseName = box(m_entry, "tbx_LicenseName");
    tbx_LicenseName->setReadOnly(true);
    tbx_LicenseKey = keyBox(m_entry, "tbx_LicenseKey");
    List_ComuputerName = list(m_entry, "List_ComuputerName");
    tbx_ComputerName = box(m_entry, "tbx_ComputerName");
    tbx_ComputerName->setReadOnly(true);
    tbx_ComputerKey = keyBox(m_entry, "tbx_ComputerKey");
    tbx_ProductID = box(m_entry, "tbx_ProductID");
    tbx_Licence_No = box(m_entry, "tbx_Licence_No");
    tbx_Install_Key = box(m_entry, "tbx_Install_Key");
    cmb_Payment_Type = combo(m_entry, "cmb_Payment_Type");
    cmb_AssetType = combo(m_entry, "cmb_AssetType");
    tbx_Purchase_Price = box(m_entry, "tbx_Purchase_Price");
    tbx_Comment = box(m_entry, "tbx_Comment");

    auto* entry = new QGridLayout(m_entry);
    entry->setContentsMargins(ui::TwipsToPixels(120), ui::TwipsToPixels(60), 0, ui::TwipsToPixels(60));
    entry->setVerticalSpacing(3);
    int row = 0;
    auto caption = [&](const char* text) { return new QLabel(QString::fromUtf8(text), m_entry); };
    entry->addWidget(caption("ライセンス"), row++, 0, 1, 2);
    entry->addWidget(List_license, row, 0, 1, 2);
    entry->setRowStretch(row++, 3);
    entry->addWidget(tbx_LicenseName, row++, 0, 1, 2);
    entry->addWidget(caption("コンピュータ名"), row++, 0, 1, 2);
    entry->addWidget(List_ComuputerName, row, 0, 1, 2);
    entry->setRowStretch(row++, 3);
    entry->addWidget(tbx_ComputerName, row++, 0, 1, 2);
    const std::pair<const char*, QWidget*> fields[] = {
        {"プロダクトID", tbx_ProductID}, {"ライセンス番号", tbx_Licence_No}, {"インストールKey", tbx_Install_Key},
        {"購入形態", cmb_Payment_Type},  {"ライセンス形態", cmb_AssetType},  {"単価", tbx_Purchase_Price},
        {"コメント", tbx_Comment},
    };
    for (const auto& [label, control] : fields) {
        entry->addWidget(caption(label), row, 0);
        entry->addWidget(control, row++, 1);
    }
    entry->setColumnStretch(1, 1);

    // the two filters, above the grid
    m_filters = new QWidget(m_client);
    m_filters->setObjectName(QStringLiteral("FilterPanel"));
    cmb_Application = combo(m_filters, "cmb_Application");
    cmb_Application->setMinimumWidth(ui::TwipsToPixels(2800));
    tbx_Application = keyBox(m_filters, "tbx_Application");
    cmb_Location = combo(m_filters, "cmb_Location");
    cmb_Location->setMinimumWidth(ui::TwipsToPixels(2000));
    tbx_Location = keyBox(m_filters, "tbx_Location");
    auto* filters = new QHBoxLayout(m_filters);
    filters->setContentsMargins(0, 0, 0, 0);
    filters->addWidget(new QLabel(QStringLiteral("アプリケーション名"), m_filters));
    filters->addWidget(cmb_Application);
    filters->addSpacing(ui::TwipsToPixels(240));
    filters->addWidget(new QLabel(QStringLiteral("設置場所"), m_filters));
    filters->addWidget(cmb_Location);
    filters->addStretch(1);

    FGrid_EditLicense = new ui::FlexGrid(m_client);
    FGrid_EditLicense->setObjectName(QStringLiteral("FGrid_EditLicense"));
    FGrid_EditLicense->move(ui::TwipsToPixels(kGridLeft), ui::TwipsToPixels(kGridTop));

    // A list's Click: a row chosen by mouse or by key, or a click on the chosen row. The row a
    // list marks as current when it gets the focus is no choice.
    for (QListWidget* list : {List_license, List_ComuputerName}) {
        auto handler = [this, list] { list == List_license ? List_license_Click() : List_ComuputerName_Click(); };
        ui::Connect(list, &QListWidget::itemSelectionChanged, this, handler);
        ui::Connect(list, &QListWidget::itemClicked, this, handler);
    }
    cmb_Application->DropDown = [this] { cmb_Application_DropDown(); };
    cmb_Location->DropDown = [this] { cmb_Location_DropDown(); };
    cmb_Payment_Type->DropDown = [this] { cmb_Payment_Type_DropDown(); };
    cmb_AssetType->DropDown = [this] { cmb_AssetType_DropDown(); };
    ui::Connect(cmb_Application, &QComboBox::activated, this, [this] { cmb_Application_Click(); });
    ui::Connect(cmb_Location, &QComboBox::activated, this, [this] { cmb_Location_Click(); });
    ui::Connect(FGrid_EditLicense, &ui::FlexGrid::Click, this, [this] { FGrid_EditLicense_Click(); });
}

void frm_Edit_License::Form_Load()
{
    // the main window's size and place, which its menu stored before opening this window
    Mdl_Sub::TakeMainWindowPlace(*this);
    placeControls();
    ResetAssignmentSelection();
    ClearAssignmentEntry();
    View_ApplicatinList();
    View_ComputerNameList();
    View_LicenseAssignment();
    setMenus(false, false, false);
}

void frm_Edit_License::Form_Resize() { placeControls(); }

void frm_Edit_License::placeControls()
{
    layout()->activate();
    ui::FlexGrid& grid = *FGrid_EditLicense;
    const int width = Width() - kWidthAllowance;
    const int height = Height() - kHeightAllowance;
    if (width > 0)
        grid.SetWidth(width);
    // VB's allowance for the frame and the menu; where this platform's are taller the grid is
    // kept inside the window, so that its scroll bar stays in sight
    if (height > 0)
        grid.SetHeight(qMax(0, qMin(height, ui::PixelsToTwips(m_client->height() - grid.y()))));
    m_entry->setGeometry(0, 0, ui::TwipsToPixels(kEntryWidth), m_client->height());
    m_filters->setGeometry(grid.x(), 0, grid.width(), grid.y());
}

void frm_Edit_License::setMenus(bool add, bool update, bool remove)
{
    Mnu_AddRecord->setEnabled(add);
    Mnu_Update->setEnabled(update);
    Mnu_DeleteRecord->setEnabled(remove);
}

bool frm_Edit_License::View_ApplicatinList()
{
    db::Recordset rs;
    return Mdl_Access_mdb::WithErrorBox(rs, false, [&] {
        rs.Open(QStringLiteral("SELECT tbl_License_Key.Key, tbl_License_Key.Application_Name, tbl_License_Key.Unit_Num FROM "
                               "tbl_License_Key ORDER BY Application_Name;"),
                DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() == 0) {
            rs.Close();
            return false;
        }
        List_license->clear();
        for (; !rs.Eof(); rs.MoveNext()) {
            const QString name = FieldText(rs.Fields(u"Application_Name").Value());
            if (name.isEmpty())
                continue;
            auto* item = new QListWidgetItem(LicenseAssignment::ApplicationRow(name, rs.Fields(u"Unit_Num").Value()));
            item->setData(Qt::UserRole, FieldText(rs.Fields(u"Key").Value()));
            List_license->addItem(item);
        }
        rs.Close();
        return true;
    });
}

bool frm_Edit_License::View_ComputerNameList()
{
    db::Recordset rs;
    return Mdl_Access_mdb::WithErrorBox(rs, false, [&] {
        rs.Open(QStringLiteral("SELECT tbl_Pclist.*, tbl_Computer_List.*, tbl_Location.Location_Name, tbl_User.User_Name FROM "
                               "tbl_Computer_List, tbl_Pclist, tbl_Location, tbl_User  WHERE ((tbl_Computer_List.Deleted_Flug = 0) "
                               "AND ((tbl_Computer_List.Location_Code)=([tbl_Location].[Location_Code])) AND "
                               "((tbl_Computer_List.User_Code)=([tbl_User].[User_Code])) AND (tbl_Pclist.MainKey = "
                               "tbl_Computer_List.MainKey)) ORDER BY Computer_Name ;"),
                DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() == 0) {
            rs.Close();
            return false;
        }
        auto blankForNull = [](const vb::Variant& v) { return v.IsNull() ? QStringLiteral(" ") : vb::CStr(v); };
        for (; !rs.Eof(); rs.MoveNext()) {
            if (vb::CInt(rs.Fields(u"tbl_Pclist.MainKey").Value()) <= 0)
                continue;
            const QString row = LicenseAssignment::ComputerRow(blankForNull(rs.Fields(u"Computer_Name").Value()),
                                                               blankForNull(rs.Fields(u"Location_Name").Value()),
                                                               blankForNull(rs.Fields(u"User_Name").Value()));
            auto* item = new QListWidgetItem(row);
            item->setData(Qt::UserRole, FieldText(rs.Fields(u"tbl_Computer_List.MainKey").Value()));
            List_ComuputerName->addItem(item);
        }
        rs.Close();
        return true;
    });
}

bool frm_Edit_License::View_LicenseAssignment()
{
    try {
        const ui::FillResult result =
            LicenseAssignment::FillAssignmentGrid(*FGrid_EditLicense, keyOf(*tbx_Application), keyOf(*tbx_Location));
        if (result == ui::FillResult::Rows)
            GridReady = true;
        return result == ui::FillResult::Rows;
    } catch (const vb::VbError& e) {
        // a filter key that is no number
        Mdl_Access_mdb::StandardErrorBox(e);
        return false;
    }
}

void frm_Edit_License::ClearAssignmentEntry()
{
    for (QLineEdit* box : {tbx_LicenseKey, tbx_LicenseName, tbx_ComputerKey, tbx_ComputerName, tbx_ProductID, tbx_Licence_No,
                           tbx_Install_Key, tbx_Comment, tbx_Purchase_Price})
        box->clear();
}

void frm_Edit_License::ResetAssignmentSelection()
{
    PreviousRow = 1;
    SelectedRow = 0;
    PaintAssignmentRow(1, ui::qbWhite);
}

void frm_Edit_License::PaintAssignmentRow(std::int16_t row, std::int16_t qbColour)
{
    ui::PaintGridRow(*FGrid_EditLicense, row, qbColour, 2);
}

QString frm_Edit_License::GetAssignmentField(std::int16_t key, const QString& fieldName)
{
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT ") + fieldName + QStringLiteral(" FROM tbl_License_Dat WHERE Key  = ") + QString::number(key),
            DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    const QString value = rs.RecordCount() == 0 ? QString() : FieldText(rs.Value(0));
    rs.Close();
    return value;
}

void frm_Edit_License::offerAdd()
{
    if (!tbx_LicenseKey->text().isEmpty() && !tbx_ComputerKey->text().isEmpty())
        setMenus(true, false, false);
}

// The whole row goes into the name box, its padding and " 数量" included.
void frm_Edit_License::List_license_Click()
{
    const QListWidgetItem* item = List_license->currentItem();
    if (!item || !item->isSelected())
        return;
    tbx_LicenseName->setText(item->text());
    tbx_LicenseKey->setText(item->data(Qt::UserRole).toString());
    offerAdd();
}

void frm_Edit_License::List_ComuputerName_Click()
{
    const QListWidgetItem* item = List_ComuputerName->currentItem();
    if (!item || !item->isSelected())
        return;
    tbx_ComputerName->setText(item->text());
    tbx_ComputerKey->setText(item->data(Qt::UserRole).toString());
    offerAdd();
}

void frm_Edit_License::cmb_Application_DropDown()
{
    fillFilterCombo(*cmb_Application, QStringLiteral("SELECT * FROM tbl_License_Key ORDER BY Application_Name;"), u"Application_Name",
                    u"Key");
}

void frm_Edit_License::cmb_Location_DropDown()
{
    fillFilterCombo(*cmb_Location, QStringLiteral("SELECT * FROM tbl_Location ORDER BY Location_Code; "), u"Location_Name",
                    u"Location_Code");
}

void frm_Edit_License::cmb_Payment_Type_DropDown() { fillFixedCombo(*cmb_Payment_Type, kPaymentTypes, int(std::size(kPaymentTypes))); }

void frm_Edit_License::cmb_AssetType_DropDown() { fillFixedCombo(*cmb_AssetType, kAssetTypes, int(std::size(kAssetTypes))); }

void frm_Edit_License::filterChosen(ui::DropDownCombo& combo, QLineEdit& keyBox)
{
    if (combo.currentIndex() < 0)
        return;
    keyBox.setText(combo.currentData().toString());
    ResetAssignmentSelection();
    emptyCombo(*cmb_AssetType);
    emptyCombo(*cmb_Payment_Type);
    View_LicenseAssignment();
}

void frm_Edit_License::cmb_Application_Click() { filterChosen(*cmb_Application, *tbx_Application); }

void frm_Edit_License::cmb_Location_Click() { filterChosen(*cmb_Location, *tbx_Location); }

void frm_Edit_License::FGrid_EditLicense_Click()
{
    ui::FlexGrid& grid = *FGrid_EditLicense;
    if (grid.Row() == 0 || !GridReady)
        return;
    grid.SetRedraw(false);
    SelectedRow = std::int16_t(grid.Row());
    const std::int16_t key = vb::CInt(vb::Variant(grid.TextMatrix(SelectedRow, 0)));
    tbx_LicenseName->setText(grid.TextMatrix(SelectedRow, 2));
    const QString application = GetAssignmentField(key, QStringLiteral("Application_Code"));
    if (!application.isEmpty())
        tbx_LicenseKey->setText(application);
    tbx_ComputerName->setText(grid.TextMatrix(SelectedRow, 3));
    // The computer's key is guarded by the application's code, not its own: an assignment
    // without an application code leaves tbx_ComputerKey as it was.
    if (!GetAssignmentField(key, QStringLiteral("Application_Code")).isEmpty())
        tbx_ComputerKey->setText(GetAssignmentField(key, QStringLiteral("Computer_Code")));
    tbx_ProductID->setText(grid.TextMatrix(SelectedRow, 4));
    tbx_Licence_No->setText(grid.TextMatrix(SelectedRow, 5));
    tbx_Install_Key->setText(grid.TextMatrix(SelectedRow, 6));
    cmb_Payment_Type->setEditText(grid.TextMatrix(SelectedRow, 7));
    cmb_AssetType->setEditText(grid.TextMatrix(SelectedRow, 8));
    tbx_Purchase_Price->setText(grid.TextMatrix(SelectedRow, 13));
    tbx_Comment->setText(grid.TextMatrix(SelectedRow, 14));
    PaintAssignmentRow(PreviousRow, ui::qbWhite);
    PaintAssignmentRow(SelectedRow, ui::qbGray);
    PreviousRow = SelectedRow;
    grid.SetRedraw(true);
    setMenus(false, true, true);
}

// Nothing weighs the assignments against the number bought. The texts go in as typed; the
// comment is cut to 50 characters, and a price must fit a 16-bit integer here (an error
// otherwise), though "更新" writes any price the field takes.
void frm_Edit_License::Mnu_AddRecord_Click()
{
    if (tbx_LicenseKey->text().isEmpty() || tbx_ComputerKey->text().isEmpty())
        return;
    const std::int16_t key = LicenceRoutines::NextKey(QStringLiteral("tbl_License_Dat"));
    const QString priceText = tbx_Purchase_Price->text();
    const std::int16_t price = priceText.isEmpty() ? std::int16_t(0) : vb::CInt(vb::Variant(priceText));
    db::Connection& c = DbConnection();
    db::Transaction insert(c);
    c.Execute(QStringLiteral("INSERT INTO tbl_License_Dat ( [Key], Application_Code, Computer_Code, ProductID, Licence_No, "
                             "Install_Key, Payment_Type, Asset_Type, Purchase_Price, Comment, [Update] ) VALUES ( ")
              + QString::number(key) + QStringLiteral(", ") + tbx_LicenseKey->text() + QStringLiteral(", ") + tbx_ComputerKey->text()
              + QStringLiteral(", '") + tbx_ProductID->text() + QStringLiteral("', '") + tbx_Licence_No->text() + QStringLiteral("', '")
              + tbx_Install_Key->text() + QStringLiteral("', '") + cmb_Payment_Type->currentText() + QStringLiteral("', '")
              + cmb_AssetType->currentText() + QStringLiteral("', ") + QString::number(price) + QStringLiteral(", '")
              + tbx_Comment->text().left(50) + QStringLiteral("', '") + vb::CStr(vb::Variant(today())) + QStringLiteral("' );"));
    insert.Commit();
    View_LicenseAssignment();
    ClearAssignmentEntry();
    setMenus(false, false, false);
}

// Every field of the form is written, an empty text too (the system tested each for " " or
// "", a test that always holds); the comment is cut to 49 characters, one fewer than "新規" keeps.
// The keys change only when a list row was chosen.
void frm_Edit_License::Mnu_Update_Click()
{
    if (SelectedRow == 0)
        return;
    const std::int16_t key = vb::CInt(vb::Variant(FGrid_EditLicense->TextMatrix(SelectedRow, 0)));
    if (key == 0)
        return;
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * FROM tbl_License_Dat WHERE Key  = ") + QString::number(key), DbConnection(), db::adOpenStatic,
            db::adLockOptimistic);
    if (rs.RecordCount() != 0) {
        if (!tbx_ComputerKey->text().isEmpty())
            rs.Fields(u"Computer_Code") = vb::Variant(tbx_ComputerKey->text());
        if (!tbx_LicenseKey->text().isEmpty())
            rs.Fields(u"Application_Code") = vb::Variant(tbx_LicenseKey->text());
        rs.Fields(u"ProductID") = vb::Variant(tbx_ProductID->text());
        rs.Fields(u"Licence_No") = vb::Variant(tbx_Licence_No->text());
        rs.Fields(u"Install_Key") = vb::Variant(tbx_Install_Key->text());
        rs.Fields(u"Payment_Type") = vb::Variant(cmb_Payment_Type->currentText());
        rs.Fields(u"Asset_Type") = vb::Variant(cmb_AssetType->currentText());
        rs.Fields(u"Purchase_Price") = vb::Variant(tbx_Purchase_Price->text());
        rs.Fields(u"Comment") = vb::Variant(tbx_Comment->text().left(49));
        rs.Fields(u"Update") = vb::Variant(today());
        rs.Update();
    }
    rs.Close();
    GridReady = true;
    View_LicenseAssignment();
    ResetAssignmentSelection();
    tbx_ComputerKey->clear();
    tbx_ComputerName->clear();
    setMenus(false, false, false);
    emptyCombo(*cmb_AssetType);
    emptyCombo(*cmb_Payment_Type);
}

void frm_Edit_License::Mnu_DeleteRecord_Click()
{
    if (!LicenceRoutines::DeleteSelectedRow(*FGrid_EditLicense, SelectedRow, QStringLiteral("tbl_License_Dat")))
        return;
    FGrid_EditLicense->Clear();
    View_LicenseAssignment();
    setMenus(false, false, false);
    ClearAssignmentEntry();
}

// The computers' list is not emptied first: each refresh lists them all once more.
void frm_Edit_License::View_MSFlexGrid_License_assignment_Update_Click()
{
    ClearAssignmentEntry();
    setMenus(false, false, false);
    View_LicenseAssignment();
    View_ApplicatinList();
    View_ComputerNameList();
}

void frm_Edit_License::Add_ApplicationName_Click() { frm_Add_License::Instance().Show(ui::vbModal); }

void frm_Edit_License::Mnu_Export_Click() { ListExport::ExportGrid(*FGrid_EditLicense, QStringLiteral("CSV書き出し")); }

void frm_Edit_License::Mnu_Close_Click() { Unload(); }
