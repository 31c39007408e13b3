#include "profile/frm_Edit_Computer.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "masters/frm_Edit_Table.h"
#include "masters/frm_Edit_User.h"
#include "platform/db/Recordset.h"
#include "platform/print/PrintSurface.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/ui/FocusEvents.h"
#include "platform/ui/KeyPressFilter.h"
#include "platform/ui/Menus.h"
#include "platform/ui/StatusBar.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/Format.h"
#include "profile/Mdl_Print.h"
#include "profile/ProfileLists.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>

#include <cmath>
#include <functional>
#include <memory>
#include <optional>

using Mdl_gData::DbConnection;
using Mdl_gData::g;
using namespace ProfileTables;
using Mdl_Sub::FieldText;
using vb::Variant;

namespace {

// The printer dialogs' flags: the setup form (cdlPDPrintSetup); and no selection, the printer's
// own copies and collation, no print to file (cdlPDNoSelection | cdlPDUseDevModeCopiesAndCollate
// | cdlPDHidePrintToFile).
constexpr long kPrintSetupFlags = 0x40;
constexpr long kPrintFlags = 0x140004;

// A loaded value shows from its start, as a text box showed it, however long it is.
void showText(QLineEdit* box, const QString& text)
{
    box->setText(text);
    box->setCursorPosition(0);
}

// VB's = against a number or text: true only when the value is there and equal.
bool equals(const Variant& v, const Variant& w) { return vb::Equal(v, w).value_or(false); }

// VB's "value <> """: a Null is not different.
bool notEmpty(const Variant& v) { return !vb::Equal(v, Variant(QString())).value_or(true); }

QString existsSql(std::int16_t key)
{
    return QStringLiteral("SELECT tbl_Computer_List.MainKey FROM tbl_Computer_List  WHERE (MainKey = ") + QString::number(key)
           + QStringLiteral(");");
}

// The record with every master it points at; no row when any of them is missing.
QString fullProfileSql(std::int16_t key)
{
    return QStringLiteral("SELECT DISTINCT tbl_Pclist.*, tbl_Computer_List.*, tbl_Location.Location_Name, tbl_Section.Section_Name, "
                          "tbl_Division.Division_Name, tbl_User.User_Name, tbl_Manufacturer.Manufacturer_Name, tbl_Model.Model_Name "
                          "FROM tbl_Computer_List, tbl_Pclist, tbl_Section, tbl_Location, tbl_Division, tbl_User, tbl_Manufacturer, "
                          "tbl_Model WHERE (((tbl_Computer_List.Location_Code)=([tbl_Location].[Location_Code])) AND "
                          "((tbl_User.Section_Code)=([tbl_Section].[Section_Code])) AND "
                          "((tbl_User.Division_Code)=([tbl_Division].[Division_Code])) AND "
                          "((tbl_Computer_List.User_Code)=([tbl_User].[User_Code])) AND "
                          "((tbl_Computer_List.Manufacturer_Code)=([tbl_Manufacturer].[Manufacturer_Code])) AND "
                          "((tbl_Computer_List.Model_Code)=([tbl_Model].[Model_Code])) AND (tbl_Computer_List.MainKey=")
           + QString::number(key) + QStringLiteral(") AND (tbl_Pclist.MainKey = tbl_Computer_List.MainKey));");
}

void setTextColour(QWidget* w, int qbColour)
{
    QPalette p = w->palette();
    p.setColor(QPalette::WindowText, ui::QBColor(qbColour));
    w->setPalette(p);
}

// Opens a select; with no row it is closed again and the answer is false.
bool openRow(db::Recordset& rs, const QString& sql)
{
    rs.Open(sql, DbConnection());
    if (!rs.Eof())
        return true;
    rs.Close();
    return false;
}

// One statement of a routine that goes on after a failure: the box, then the next statement.
void resumeNext(const std::function<void()>& statement)
{
    try {
        statement();
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
    }
}

// A test of the date check on two digits of the text: a text that is no number fails it.
bool inRange(const QString& digits, int highest)
{
    const std::optional<double> n = vb::ParseNumber(digits);
    return n && *n <= highest && *n > 0;
}

} // namespace

frm_Edit_Computer::frm_Edit_Computer()
{
    setObjectName(QStringLiteral("frm_Edit_Computer"));
    setWindowTitle(QStringLiteral("PCのプロファイル"));
    Build(this);
    connectEvents();
}

void frm_Edit_Computer::connectEvents()
{
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", ui::PaddedCaption(QStringLiteral("ファイル"), 7));
    Mnu_ExportCSV = ui::AddMenuItem(Mnu_File, "Mnu_ExportCSV", QStringLiteral("書き出し"));
    ui::AddMenuSeparator(Mnu_File, "sepalator01");
    Mnu_Pagelayout = ui::AddMenuItem(Mnu_File, "Mnu_Pagelayout", QStringLiteral("ページ設定"), [this] { Mnu_Pagelayout_Click(); });
    Mnu_Print = ui::AddMenuItem(Mnu_File, "Mnu_Print", QStringLiteral("印刷"), [this] { Mnu_Print_Click(); });
    ui::AddMenuSeparator(Mnu_File, "sepalator02");
    Mnu_Close = ui::AddMenuItem(Mnu_File, "Mnu_Close", QStringLiteral("閉じる"), [this] { Mnu_Close_Click(); });
    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", ui::PaddedCaption(QStringLiteral("編集"), 8));
    Mnu_Update = ui::AddMenuItem(Mnu_Edit, "Mnu_Update", QStringLiteral("更新"), [this] { Mnu_Update_Click(); });
    Mnu_Managemants = ui::AddMenu(MenuBar, "Mnu_Managemants", ui::PaddedCaption(QStringLiteral("管理"), 9));
    Mnu_Edit_User = ui::AddMenuItem(Mnu_Managemants, "Mnu_Edit_User", QStringLiteral("ユーザ"), [this] { Mnu_Edit_User_Click(); });
    const char* const tables[] = {"部署", "課", "設置場所", "メーカー", "モデル"};
    for (int i = 1; i <= 5; ++i) {
        QAction* item =
            ui::AddMenuItem(Mnu_Managemants, "Mnu_Edit_Teble", QString::fromUtf8(tables[i - 1]), [this, i] { Mnu_Edit_Teble_Click(i); });
        ui::SetArrayName(item, "Mnu_Edit_Teble", i);
        Mnu_Edit_Teble[size_t(i)] = item;
    }

    ui::Connect(TabStrip1, &QTabBar::currentChanged, this, [this] { TabStrip1_Click(); });
    ui::Connect(cmd_Prev, &QPushButton::clicked, this, [this] { cmd_Prev_Click(); });
    ui::Connect(cmd_Next, &QPushButton::clicked, this, [this] { cmd_Next_Click(); });
    QObject::connect(List_User, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            ui::Dispatch([this] { List_User_Click(); });
    });
    for (int n = 3; n <= 5; ++n) {
        ui::DropDownCombo* combo = cmb_Dat[size_t(n)];
        combo->DropDown = [this, n] { cmb_Dat_DropDown(n); };
        ui::Connect(combo, &QComboBox::activated, this, [this, n] { cmb_Dat_Click(n); });
        ui::FocusEvents::InstallFocusColor(combo, Mdl_Sub::SetFocusColor);
    }
    for (const ProfileField& f : ProfileFields) {
        QLineEdit* box = tbx_Dat[size_t(f.index)];
        const int i = f.index;
        ui::FocusEvents::Install(
            box, [this, i] { tbx_Dat_GotFocus(i); }, [this, i] { tbx_Dat_LostFocus(i); });
        switch (f.keys) {
        case KeyRule::Any: break;
        case KeyRule::Digits: ui::KeyPressFilter::Install(box, ui::KeyPressFilter::Digits); break;
        case KeyRule::DigitsAndDots: ui::KeyPressFilter::Install(box, ui::KeyPressFilter::DigitsAndDots); break;
        case KeyRule::DigitsAndSlashes: ui::KeyPressFilter::Install(box, ui::KeyPressFilter::DigitsAndSlashes); break;
        }
    }
    for (QLineEdit* box : tbx_Drive) {
        ui::FocusEvents::InstallFocusColor(box, Mdl_Sub::SetFocusColor);
        ui::KeyPressFilter::Install(box, ui::KeyPressFilter::Digits);
    }
}

// ---------------------------------------------------------------------------------------------
// opening, size, pages

void frm_Edit_Computer::Form_Load()
{
    SetWidth(OpeningWidth);
    SetHeight(OpeningHeight);
    SetTop(g.MainFormTop);
    SetLeft(g.MainFormLeft);
    for (size_t i = 0; i < DriveFlags.size(); ++i)
        Chk_Drive[i]->setText(QString::fromUtf8(DriveFlags[i].caption));

    CurrentKey = g.SelectedMainKey;
    CurrentPosition = g.SelectedGridRow;
    fnc_View_Master(CurrentKey);
    fnc_Fill_UserList();
    raisePage(1);
    fnc_View_Profile(CurrentKey);
    loadListTab(SelectedTab(), CurrentKey);
    fnc_View_Drive(CurrentKey);
    tbx_PC_Numbers->setText(QString::number(g.ListRowCount));
    tbx_Key->setText(QString::number(CurrentPosition));
}

void frm_Edit_Computer::showEvent(QShowEvent* e)
{
    Form::showEvent(e);
    if (m_opened)
        return;
    // the window's frame is known once it is shown, and the opening size is the outer size
    SetWidth(OpeningWidth);
    SetHeight(OpeningHeight);
    m_opened = true;
}

// The window opens at 12000 by 8500; any later resize sets it to 12000 by 8900.
void frm_Edit_Computer::Form_Resize()
{
    if (!m_opened)
        return;
    switch (WindowState()) {
    case ui::vbMaximized: SetWindowState(ui::vbNormal); return;
    case ui::vbMinimized: return;
    default: break;
    }
    // sizes compared in whole pixels, the unit the window has; the opening size arriving late is
    // no resize of the user's
    const auto px = [](int twips) { return ui::TwipsToPixels(twips); };
    const QSize now(px(Width()), px(Height()));
    if (now == QSize(px(OpeningWidth), px(OpeningHeight)))
        return;
    if (now.width() != px(ResizeWidth))
        SetWidth(ResizeWidth);
    if (now.height() != px(ResizeHeight))
        SetHeight(ResizeHeight);
}

int frm_Edit_Computer::SelectedTab() const { return TabStrip1->currentIndex() + 1; }

// The chosen page comes to the front. The pages under it are hidden as well, so that the Tab key
// does not walk into fields nobody sees.
void frm_Edit_Computer::raisePage(int tab)
{
    for (size_t p = 0; p < Picture_Page.size(); ++p)
        if (int(p) != tab - 1)
            Picture_Page[p]->hide();
    QWidget* page = Picture_Page[size_t(tab - 1)];
    page->show();
    page->raise();
}

void frm_Edit_Computer::loadListTab(int tab, std::int16_t key)
{
    switch (tab) {
    case TabApplications: fnc_View_Applist(key); break;
    case TabDevices: fnc_View_DeviceTree(key); break;
    case TabPrinters: fnc_View_PrinterList(key); break;
    case TabEnvironment: fnc_View_Environment(key); break;
    default: break;
    }
}

void frm_Edit_Computer::TabStrip1_Click()
{
    const std::int16_t position = vb::CInt(Variant(tbx_Key->text()));
    const std::int16_t key = g.ListRowKeys[position];
    const int tab = SelectedTab();
    raisePage(tab);
    loadListTab(tab, key);
    if (tab == TabDrive)
        fnc_View_Drive(key);
}

// ---------------------------------------------------------------------------------------------
// stepping

void frm_Edit_Computer::cmd_Prev_Click()
{
    if (CurrentPosition - 1 > 0)
        step(CurrentPosition - 1);
}

void frm_Edit_Computer::cmd_Next_Click()
{
    if (CurrentPosition + 1 <= g.ListRowCount)
        step(CurrentPosition + 1);
}

void frm_Edit_Computer::step(int position)
{
    CurrentPosition = std::int16_t(position);
    const std::int16_t key = g.ListRowKeys[position];
    tbx_Key->setText(QString::number(CurrentPosition));
    ShowComputer(key);
}

void frm_Edit_Computer::ShowComputer(std::int16_t key)
{
    CurrentKey = key;
    fnc_Clear_Profile();
    // a computer deleted since the list was loaded leaves the window empty, without a word
    if (!Mdl_Access_mdb::RecordExists(existsSql(key)))
        return;
    fnc_View_Master(key);
    fnc_View_Profile(key);
    loadListTab(SelectedTab(), key);
    fnc_View_Drive(key);
}

// ---------------------------------------------------------------------------------------------
// loaders

void frm_Edit_Computer::fnc_Clear_Profile()
{
    for (QLineEdit* box : tbx_Dat)
        box->clear();
    for (int n = 3; n <= 5; ++n) {
        cmb_Dat[size_t(n)]->setEditText(QString());
        tbx_CmbKey[size_t(n)]->clear();
    }
    tbx_Division->clear();
    tbx_Section->clear();
    tbx_UserCode->clear();
    tbx_User->clear();
    StatusBar1->SetPanelText(1, QString());
    for (QCheckBox* box : Chk_Drive)
        box->setChecked(false);
}

bool frm_Edit_Computer::fnc_Fill_UserList()
{
    db::Recordset rs;
    return Mdl_Access_mdb::WithErrorBox(rs, false, [&] {
        rs.Open(QStringLiteral("SELECT * FROM tbl_User  WHERE ((tbl_User.Available_flug)='0') ORDER BY  kana,  User_Name;"),
                DbConnection());
        List_User->clear();
        for (; !rs.Eof(); rs.MoveNext()) {
            const Variant& code = rs.Fields(u"User_Code").Value();
            if (!notEmpty(code))
                continue;
            const Variant& name = rs.Fields(u"User_Name").Value();
            auto* item = new QListWidgetItem(name.IsNull() ? QStringLiteral(" ") : vb::CStr(name), List_User);
            item->setData(Qt::UserRole, int(vb::CInt(code)));
        }
        rs.Close();
        return true;
    });
}

// The band. Unlike the other loaders it goes on after a failure, statement by statement, so one
// record can show the error box several times.
bool frm_Edit_Computer::fnc_View_Master(std::int16_t key)
{
    if (!Mdl_Access_mdb::RecordExists(existsSql(key)))
        return false;
    db::Recordset rs;
    resumeNext([&] { rs.Open(fullProfileSql(key), DbConnection()); });
    if (rs.State() != db::adStateOpen)
        return false;
    if (rs.Eof()) {
        rs.Close();
        return false;
    }
    for (int n = 3; n <= 5; ++n) {
        resumeNext([&] {
            const Mdl_gData::CodeTableRow& row = g.CodeTables[n];
            const Variant& code = rs.Fields(row.codeField).Value();
            if (!notEmpty(code))
                return;
            cmb_Dat[size_t(n)]->setEditText(FieldText(rs.Fields(row.nameField).Value()));
            tbx_CmbKey[size_t(n)]->setText(vb::CStr(code));
        });
    }
    const std::pair<QLineEdit*, const char16_t*> band[] = {
        {tbx_User, u"User_Name"}, {tbx_UserCode, u"User_Code"}, {tbx_Section, u"Section_Name"}, {tbx_Division, u"Division_Name"}};
    for (const auto& [box, field] : band) {
        resumeNext([&] {
            const Variant& value = rs.Fields(field).Value();
            showText(box, notEmpty(value) ? vb::CStr(value) : QStringLiteral(" "));
        });
    }
    rs.CloseIfOpen();
    return true;
}

bool frm_Edit_Computer::fnc_View_Profile(std::int16_t key)
{
    db::Recordset rs;
    return Mdl_Access_mdb::WithErrorBox(rs, false, [&] {
        if (!openRow(rs, fullProfileSql(key)))
            return false;
        for (int i = 0; i < CpuFeatureCount; ++i) {
            const CpuFeature& f = CpuFeatures[size_t(i)];
            QLabel* name = lbr_CPU_Feature[size_t(i)];
            ChkBox[size_t(i)]->setChecked(false);
            name->setText(QString::fromUtf8(f.shortName));
            name->setToolTip(QString::fromUtf8(f.explanation));
            name->resize(ui::TwipsToPixels(CpuFeatureLabelWidth), name->height());
            // a Null flag fails here (invalid use of Null); 1 ticks, any other number does not
            if (vb::CLng(rs.Fields(f.column).Value()) == 1)
                ChkBox[size_t(i)]->setChecked(true);
        }
        for (const ProfileField& f : ProfileFields) {
            QLineEdit* box = tbx_Dat[size_t(f.index)];
            box->clear();
            const Variant& value = rs.Fields(f.column).Value();
            if (!value.IsNull())
                showText(box, vb::CStr(value));
            lbr_dat[size_t(f.index)]->setText(QString::fromUtf8(f.caption));
        }
        for (size_t i = 0; i < IE_Env.size(); ++i)
            setTextColour(IE_Env[i], equals(rs.Fields(ProfileTables::IE_Env[i].column).Value(), Variant(1)) ? ui::qbBlack : ui::qbGray);
        rs.Close();
        return true;
    });
}

bool frm_Edit_Computer::fnc_View_Drive(std::int16_t key)
{
    db::Recordset rs;
    return Mdl_Access_mdb::WithErrorBox(rs, false, [&] {
        if (!openRow(rs, QStringLiteral("SELECT DISTINCT tbl_Pclist.*, tbl_Computer_List.* FROM tbl_Pclist, tbl_Computer_List  "
                                        "WHERE ((tbl_Pclist.MainKey=")
                             + QString::number(key) + QStringLiteral(") AND (tbl_Pclist.MainKey = tbl_Computer_List.MainKey));")))
            return false;
        for (size_t i = 0; i < DriveFlags.size(); ++i)
            Chk_Drive[i]->setChecked(equals(rs.Fields(DriveFlags[i].column).Value(), Variant(1)));
        for (size_t i = 0; i < CapacityRows.size(); ++i) {
            const CapacityRow& row = CapacityRows[i];
            tbx_Drive[i]->clear();
            const Variant& value = rs.Fields(row.value).Value();
            if (!value.IsNull()) {
                // 0 shows as nothing: the pattern forces no digit
                QString shown = vb::Format(value, QStringLiteral("###,###,###"));
                const Variant& unit = rs.Fields(row.unit).Value();
                if (!unit.IsNull())
                    shown += QStringLiteral(" ") + vb::CStr(unit);
                showText(tbx_Drive[i], shown);
            }
            lbr_Drive[i]->setText(QString::fromUtf8(row.caption));
        }
        for (size_t k = 0; k < ProgressBar_val.size(); ++k) {
            const Variant& full = rs.Fields(CapacityRows[2 * k].value).Value();
            const Variant& used = rs.Fields(CapacityRows[2 * k + 1].value).Value();
            const bool fullSet = !full.IsNull() && vb::CDbl(full) != 0;
            const bool usedSet = !used.IsNull() && vb::CDbl(used) != 0;
            if (!fullSet && !usedSet)
                continue;
            // a Null beside a value that is not 0 cannot be compared
            if (full.IsNull() || used.IsNull())
                throw vb::VbError::InvalidUseOfNull();
            QProgressBar* bar = ProgressBar_val[k];
            bar->setRange(0, 100);
            // used at or above full leaves the bar as the previous computer left it
            if (vb::CDbl(used) < vb::CDbl(full))
                bar->setValue(int(std::floor(vb::CDbl(used) / vb::CDbl(full) * 100.0)));
        }
        rs.Close();
        return true;
    });
}

ui::FillResult frm_Edit_Computer::fnc_View_Applist(std::int16_t key)
{
    return ProfileLists::FillListGrid(*MSGrid_Application, ProfileLists::Applications, key);
}

ui::FillResult frm_Edit_Computer::fnc_View_DeviceTree(std::int16_t key) { return ProfileLists::FillDeviceTree(*TreeView1, key); }

ui::FillResult frm_Edit_Computer::fnc_View_PrinterList(std::int16_t key)
{
    return ProfileLists::FillListGrid(*MSFlexGrid_Printer, ProfileLists::Printers, key);
}

ui::FillResult frm_Edit_Computer::fnc_View_Environment(std::int16_t key)
{
    return ProfileLists::FillListGrid(*MSFlexGrid_Environmental, ProfileLists::Environment, key);
}

void frm_Edit_Computer::fnc_Close_Profile() { Unload(); }

// ---------------------------------------------------------------------------------------------
// the band's choices

// A master's list is read only when it is dropped down, so that a name and its code always come
// from one read. The text stays as typed until an entry is chosen.
void frm_Edit_Computer::cmb_Dat_DropDown(int index)
{
    ui::DropDownCombo* combo = cmb_Dat[size_t(index)];
    const QString typed = combo->currentText();
    combo->clear();
    const QString table = g.CodeTables[index].table;
    db::Recordset rs;
    Mdl_Access_mdb::WithErrorBox(rs, false, [&] {
        rs.Open(QStringLiteral("SELECT * FROM ") + table, DbConnection());
        QStringList names;
        for (int c = 0; c < 4; ++c)
            names << rs.Fields(c).Name();
        rs.Close();
        // the fourth column of a master is its availability flag
        rs.Open(QStringLiteral("SELECT * FROM ") + table + QStringLiteral(" WHERE ") + names[3] + QStringLiteral(" ='0';"), DbConnection());
        for (; !rs.Eof(); rs.MoveNext()) {
            const Variant& name = rs.Value(1);
            if (name.IsNull())
                combo->addItem(QString());
            else
                combo->addItem(vb::CStr(name), int(vb::CLng(rs.Value(0))));
        }
        rs.Close();
        return true;
    });
    combo->setCurrentIndex(-1);
    combo->setEditText(typed);
}

void frm_Edit_Computer::cmb_Dat_Click(int index)
{
    ui::DropDownCombo* combo = cmb_Dat[size_t(index)];
    if (combo->currentIndex() < 0)
        return;
    // an entry added without item data answers 0, as a list entry's ItemData did
    const QVariant data = combo->currentData();
    tbx_CmbKey[size_t(index)]->setText(QString::number(data.isValid() ? data.toInt() : 0));
}

void frm_Edit_Computer::List_User_Click()
{
    const QListWidgetItem* item = List_User->currentItem();
    if (!item)
        return;
    tbx_User->setText(item->text());
    tbx_UserCode->setText(QString::number(item->data(Qt::UserRole).toInt()));
    if (!Mdl_Access_mdb::RecordExists(QStringLiteral("SELECT tbl_User.User_Code FROM tbl_User ")))
        return;
    db::Recordset rs;
    Mdl_Access_mdb::WithErrorBox(rs, false, [&] {
        rs.Open(QStringLiteral("SELECT DISTINCT tbl_Section.Section_Name, tbl_Division.Division_Name, tbl_User.User_Name FROM "
                               "tbl_Section, tbl_Division, tbl_User  WHERE (((tbl_User.Section_Code)=([tbl_Section].[Section_"
                               "Code])) AND ((tbl_User.Division_Code)=([tbl_Division].[Division_Code])) AND (tbl_User.User_Code=")
                    + tbx_UserCode->text() + QStringLiteral("));"),
                DbConnection());
        if (!rs.Eof()) {
            const std::pair<QLineEdit*, const char16_t*> names[] = {{tbx_Section, u"Section_Name"}, {tbx_Division, u"Division_Name"}};
            for (const auto& [box, field] : names) {
                box->setText(QStringLiteral(" "));
                const Variant& value = rs.Fields(field).Value();
                if (notEmpty(value))
                    box->setText(vb::CStr(value));
            }
        }
        rs.Close();
        return true;
    });
}

// ---------------------------------------------------------------------------------------------
// the field boxes

void frm_Edit_Computer::tbx_Dat_GotFocus(int index)
{
    QLineEdit* box = tbx_Dat[size_t(index)];
    Mdl_Sub::SetFocusColor(box, 1);
    EditBackup = box->text().isEmpty() ? QStringLiteral("0") : box->text();
}

void frm_Edit_Computer::tbx_Dat_LostFocus(int index)
{
    Mdl_Sub::SetFocusColor(tbx_Dat[size_t(index)], 2);
    if (index == LeasingStartDate || index == LeasingEndDate)
        dateCheck(index);
}

// yyyy/mm/dd with a month of 1 to 12 and a day of 1 to 31 (the month's length is not checked).
// Each failed test shows the message and puts the text from before the edit back; the later
// tests still look at the text as it was typed.
void frm_Edit_Computer::dateCheck(int index)
{
    QLineEdit* box = tbx_Dat[size_t(index)];
    StatusBar1->SetPanelText(1, QString());
    const QString typed = box->text();
    if (typed.isEmpty())
        return;
    const auto fail = [&] {
        StatusBar1->SetPanelText(1, QStringLiteral("値が不正です"));
        box->setText(EditBackup);
    };
    if (typed.size() != 10)
        fail();
    if (typed.mid(4, 1) != QLatin1String("/"))
        fail();
    if (typed.mid(7, 1) != QLatin1String("/"))
        fail();
    if (!inRange(typed.mid(8, 2), 31))
        fail();
    if (!inRange(typed.mid(5, 2), 12))
        fail();
}

// ---------------------------------------------------------------------------------------------
// menus

ProfileSave::Entries frm_Edit_Computer::Entries() const
{
    ProfileSave::Entries e;
    for (size_t i = 0; i < tbx_Dat.size(); ++i)
        e.tbx_Dat[i] = tbx_Dat[i]->text();
    for (size_t n = 3; n <= 5; ++n) {
        e.tbx_CmbKey[n] = tbx_CmbKey[n]->text();
        e.cmb_Dat[n] = cmb_Dat[n]->currentText();
    }
    e.tbx_UserCode = tbx_UserCode->text();
    e.tbx_User = tbx_User->text();
    for (size_t i = 0; i < ChkBox.size(); ++i)
        e.ChkBox[i] = ChkBox[i]->isChecked();
    for (size_t i = 0; i < Chk_Drive.size(); ++i) {
        e.Chk_Drive[i] = Chk_Drive[i]->isChecked();
        e.tbx_Drive[i] = tbx_Drive[i]->text();
    }
    return e;
}

void frm_Edit_Computer::Mnu_Update_Click()
{
    ProfileSave::Entries entries = Entries();
    ProfileSave::Mnu_Update(g.ListRowKeys[CurrentPosition], entries);
    // the sort key box is the one control a save may change, whatever came of it
    QLineEdit* sortKey = tbx_Dat[IPAddressSortKeyField];
    if (sortKey->text() != entries.tbx_Dat[IPAddressSortKeyField])
        sortKey->setText(entries.tbx_Dat[IPAddressSortKeyField]);
}

// The printer and its paper; a cancelled dialog is no error.
void frm_Edit_Computer::Mnu_Pagelayout_Click()
{
    ui::Dialogs().PrinterDialog({ui::PrinterDialogRequest::PrintSetup, kPrintSetupFlags, &print::Printer()});
}

// The sheet of the computer shown. The fields, the check boxes, the capacities and the two list
// grids are read again first, so unsaved edits of them do not reach the paper, while an unsaved
// choice of a master or of the user does. Any failure, a cancelled dialog included, ends the
// command without a word.
void frm_Edit_Computer::Mnu_Print_Click()
{
    try {
        if (!ui::Dialogs().PrinterDialog({ui::PrinterDialogRequest::Print, kPrintFlags, &print::Printer()}))
            return;
        const std::int16_t key = g.ListRowKeys[vb::CInt(Variant(tbx_Key->text()))];
        const std::shared_ptr<print::PrintSurface> surface = print::OpenPrinter();
        PrintSheet(key, *surface);
    } catch (const vb::VbError&) {
    }
}

void frm_Edit_Computer::PrintSheet(std::int16_t key, print::PrintSurface& surface)
{
    fnc_View_Profile(key);
    fnc_View_Applist(key);
    fnc_View_PrinterList(key);
    fnc_View_Drive(key);
    Mdl_Print::fnc_Print_Sheet(*this, surface);
}

void frm_Edit_Computer::Mnu_Close_Click() { fnc_Close_Profile(); }

// Nothing here is refreshed when a master window closes: new entries appear when a list is next
// dropped down, and List_User keeps its entries until the window opens anew.
void frm_Edit_Computer::Mnu_Edit_User_Click() { frm_Edit_User::Instance().Show(ui::vbModal); }

void frm_Edit_Computer::Mnu_Edit_Teble_Click(int index)
{
    g.CurrentTableCaption = g.CodeTables[index].caption;
    g.CurrentTableName = g.CodeTables[index].table;
    g.CurrentTableIndex = std::int16_t(index);
    frm_Edit_Table::Instance().Show(ui::vbModal);
}
