#include "mail/frm_Edit_Mail.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "mail/MailExport.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/FocusEvents.h"
#include "platform/ui/Fonts.h"
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

#include <tuple>

using Mdl_gData::DbConnection;

namespace {

// the grid's place in the client area and the room the window keeps around it, in twips
constexpr int kGridLeft = 120;
constexpr int kGridTop = 2280;
constexpr int kWidthAllowance = 320;
constexpr int kHeightAllowance = 3110;

// The eight boxes of an account: index, field of tbl_Mail_Management, label, grid column.
struct MailBox {
    int index;
    const char16_t* field;
    const char* label;
    int column;
};
constexpr MailBox kBoxes[] = {
    {0, u"beat_loginID", "ログインID", 2},
    {1, u"Windows_UserName", "Windowsユーザ名", 5},
    {2, u"beat_loginPassward", "パスワード", 6},
    {3, u"Mail_Address", "メールアドレス", 7},
    {4, u"SMTP_IPAddress", "SMTP Server", 8},
    {5, u"POP3_IPAddress", "POP Server", 9},
    {6, u"Mailbox_AccountName", "Mailアカウント", 10},
    {7, u"Mailbox_Password", "Mailパスワード", 11},
};

// the boxes stand in two rows of four beside their labels, below the three combos
constexpr int kBoxesPerRow = 4;

QString accountSql(const QString& key) { return QStringLiteral("SELECT * FROM tbl_Mail_Management WHERE [Key]  = ") + key; }

// Refills a combo's list, each entry with its key as item data. The text shown stays: the list is
// read afresh each time it drops down, and only a pick in it changes the key box.
void fillCombo(QComboBox& combo, const std::vector<MailChoice>& choices)
{
    const QString shown = combo.currentText();
    combo.clear();
    for (const MailChoice& c : choices)
        combo.addItem(c.text, int(c.key));
    combo.setCurrentIndex(combo.isEditable() ? -1 : combo.findText(shown));
    if (combo.isEditable())
        combo.setEditText(shown);
}

} // namespace

frm_Edit_Mail::frm_Edit_Mail()
{
    setObjectName(QStringLiteral("frm_Edit_Mail"));
    setWindowTitle(QStringLiteral("メール管理"));
    buildMenus();
    buildControls();
}

frm_Edit_Mail::~frm_Edit_Mail() = default;

void frm_Edit_Mail::buildMenus()
{
    using ui::AddMenuItem;
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Mnu_Export = AddMenuItem(Mnu_File, "Mnu_Export", "エクスポート", [this] { Mnu_Export_Click(); });
    Mnu_Export_OE = AddMenuItem(Mnu_File, "Mnu_Export_OE", "エクスポート(OutlookExpress用)", [this] { Mnu_Export_OE_Click(); });
    Mnu_Export_beat = AddMenuItem(Mnu_File, "Mnu_Export_beat", "エクスポート(beat-box用)", [this] { Mnu_Export_beat_Click(); });
    Mnu_Close = AddMenuItem(Mnu_File, "Mnu_Close", "閉じる", [this] { Mnu_Close_Click(); });
    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", QStringLiteral("編集"));
    Mnu_AddRecord = AddMenuItem(Mnu_Edit, "Mnu_AddRecord", "新規", [this] { Mnu_AddRecord_Click(); });
    Mnu_Update = AddMenuItem(Mnu_Edit, "Mnu_Update", "更新", [this] { Mnu_Update_Click(); });
    Mnu_Delete = AddMenuItem(Mnu_Edit, "Mnu_Delete", "削除", [this] { Mnu_Delete_Click(); });
}

void frm_Edit_Mail::buildControls()
{
    // the fields and the grid stand at fixed places in the client area below the menu
    m_client = new QWidget(this);
    MSFlexGrid_Mail = new ui::FlexGrid(m_client);
    MSFlexGrid_Mail->setObjectName(QStringLiteral("MSFlexGrid_Mail"));
    MSFlexGrid_Mail->setFont(ui::MsGothic());
    m_list = std::make_unique<MailList>(*MSFlexGrid_Mail);
    ui::Connect(MSFlexGrid_Mail, &ui::FlexGrid::Click, this, [this] { MSFlexGrid_Mail_Click(); });

    m_fields = new QWidget(m_client);
    auto* fields = new QGridLayout(m_fields);
    fields->setContentsMargins(0, 0, 0, 0);
    fields->setHorizontalSpacing(8);

    // a combo and its hidden key box, which only a pick in the combo sets
    const auto keyed = [&](const char* comboName, const char* boxName, const char* label, int at, bool editable) {
        auto* combo = new ui::DropDownCombo(m_fields);
        combo->setObjectName(QString::fromUtf8(comboName));
        combo->setEditable(editable);
        combo->setMaxVisibleItems(20);
        auto* box = new QLineEdit(m_fields);
        box->setObjectName(QString::fromUtf8(boxName));
        box->setVisible(false);
        fields->addWidget(new QLabel(QString::fromUtf8(label), m_fields), 0, 2 * at);
        fields->addWidget(combo, 0, 2 * at + 1);
        return std::pair{combo, box};
    };
    std::tie(cmb_Location, tbx_Location) = keyed("cmb_Location", "tbx_Location", "設置場所", 0, false);
    std::tie(cmb_Computer, tbx_Computer) = keyed("cmb_Computer", "tbx_Computer", "コンピュータ名", 1, true);
    std::tie(cmb_User, tbx_User) = keyed("cmb_User", "tbx_User", "ユーザ名", 2, true);
    cmb_Location->DropDown = [this] { cmb_Location_DropDown(); };
    cmb_Computer->DropDown = [this] { cmb_Computer_DropDown(); };
    cmb_User->DropDown = [this] { cmb_User_DropDown(); };
    ui::Connect(cmb_Location, &QComboBox::activated, this, [this] { cmb_Location_Click(); });
    ui::Connect(cmb_Computer, &QComboBox::activated, this, [this] { cmb_Computer_Click(); });
    ui::Connect(cmb_User, &QComboBox::activated, this, [this] { cmb_User_Click(); });
    ui::FocusEvents::InstallFocusColor(cmb_User, Mdl_Sub::SetFocusColor);

    for (const MailBox& b : kBoxes) {
        auto* label = new QLabel(QString::fromUtf8(b.label), m_fields);
        ui::SetArrayName(label, "lbr_tbl_Mail", b.index);
        auto* box = new QLineEdit(m_fields);
        ui::SetArrayName(box, "tbx_tbl_Mail", b.index);
        ui::FocusEvents::InstallFocusColor(box, Mdl_Sub::SetFocusColor);
        label->setBuddy(box);
        const int row = 1 + b.index / kBoxesPerRow;
        const int col = 2 * (b.index % kBoxesPerRow);
        fields->addWidget(label, row, col);
        fields->addWidget(box, row, col + 1);
        lbr_tbl_Mail[size_t(b.index)] = label;
        tbx_tbl_Mail[size_t(b.index)] = box;
    }
    for (int c = 1; c < 2 * kBoxesPerRow; c += 2)
        fields->setColumnStretch(c, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(MenuBar);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(m_client, 1);
}

void frm_Edit_Mail::Form_Load()
{
    Mdl_Sub::TakeMainWindowPlace(*this);
    m_list->ResetMailSelection();
    m_list->View_MailList(locationFilter());
    ClearMailEntry();
    menusAfterChange();
}

void frm_Edit_Mail::Form_Resize()
{
    const int width = Width() - kWidthAllowance;
    const int height = Height() - kHeightAllowance;
    if (width <= 0 || height <= 0)
        return;
    // Where this platform's title and menu bars are taller than VB's allowance, the grid is kept
    // inside the window so that its scroll bar stays in sight.
    const int room = ui::PixelsToTwips(m_client->height()) - kGridTop;
    MSFlexGrid_Mail->Move(kGridLeft, kGridTop, width, qMax(0, qMin(height, room)));
    m_fields->setGeometry(ui::TwipsToPixels(kGridLeft), ui::TwipsToPixels(120), ui::TwipsToPixels(width),
                          ui::TwipsToPixels(kGridTop - 240));
}

std::int16_t frm_Edit_Mail::locationFilter() const
{
    const QString code = tbx_Location->text();
    return code.isEmpty() ? std::int16_t(0) : vb::CInt(vb::Variant(code));
}

QString frm_Edit_Mail::selectedKey() const { return MSFlexGrid_Mail->TextMatrix(m_list->SelectedRow, MailList::Key); }

void frm_Edit_Mail::ClearMailEntry()
{
    for (QLineEdit* box : tbx_tbl_Mail)
        box->clear();
    cmb_Computer->setEditText(QString());
    cmb_User->setEditText(QString());
    tbx_Computer->clear();
    tbx_User->clear();
}

void frm_Edit_Mail::menusAfterChange()
{
    Mnu_AddRecord->setEnabled(true);
    Mnu_Delete->setEnabled(false);
    Mnu_Update->setEnabled(false);
}

void frm_Edit_Mail::MSFlexGrid_Mail_Click()
{
    ui::FlexGrid& grid = *MSFlexGrid_Mail;
    MailList& list = *m_list;
    const int row = grid.Row();
    if (!list.GridReady || row == 0)
        return;
    grid.SetRedraw(false);
    list.SelectedRow = std::int16_t(row);
    for (const MailBox& b : kBoxes) {
        QLineEdit* box = tbx_tbl_Mail[size_t(b.index)];
        box->setText(grid.TextMatrix(row, b.column));
        box->setCursorPosition(0);
    }
    // the key boxes are emptied, so that an update keeps the user and the computer unless one is
    // picked in its combo
    cmb_User->setEditText(grid.TextMatrix(row, MailList::UserName));
    tbx_User->clear();
    cmb_Computer->setEditText(grid.TextMatrix(row, MailList::ComputerName));
    tbx_Computer->clear();
    list.PaintMailRow(list.PreviousRow, ui::qbWhite);
    list.PaintMailRow(list.SelectedRow, ui::qbGray);
    list.PreviousRow = list.SelectedRow;
    Mnu_AddRecord->setEnabled(true);
    Mnu_Delete->setEnabled(true);
    Mnu_Update->setEnabled(true);
    grid.SetRedraw(true);
}

void frm_Edit_Mail::cmb_Location_DropDown() { fillCombo(*cmb_Location, MailChoices::Locations()); }
void frm_Edit_Mail::cmb_Computer_DropDown() { fillCombo(*cmb_Computer, MailChoices::Computers()); }
void frm_Edit_Mail::cmb_User_DropDown() { fillCombo(*cmb_User, MailChoices::Users()); }

void frm_Edit_Mail::cmb_Location_Click()
{
    if (cmb_Location->currentIndex() < 0)
        return;
    tbx_Location->setText(cmb_Location->currentData().toString());
    m_list->View_MailList(locationFilter());
    m_list->ResetMailSelection();
}

void frm_Edit_Mail::cmb_Computer_Click()
{
    if (cmb_Computer->currentIndex() >= 0)
        tbx_Computer->setText(cmb_Computer->currentData().toString());
}

void frm_Edit_Mail::cmb_User_Click()
{
    if (cmb_User->currentIndex() >= 0)
        tbx_User->setText(cmb_User->currentData().toString());
}

void frm_Edit_Mail::Mnu_AddRecord_Click()
{
    // nothing typed is used: the account is filled by a later update
    const std::int16_t key = vb::IntAdd(Mdl_Access_mdb::MaxOfFirstColumn(QStringLiteral("tbl_Mail_Management")), 1);
    db::Connection& c = DbConnection();
    db::Transaction insert(c);
    c.Execute(QStringLiteral("INSERT INTO tbl_Mail_Management( [Key] ,User_Code ,Conputer_Code ) VALUES ( ") + QString::number(key)
              + QStringLiteral(",0,0 );"));
    insert.Commit();
    m_list->View_MailList(locationFilter());
    m_list->ResetMailSelection();
    menusAfterChange();
}

void frm_Edit_Mail::Mnu_Update_Click()
{
    if (m_list->SelectedRow == 0)
        return;
    const QString shown = selectedKey();
    if (shown.isEmpty())
        return;
    const QString key = QString::number(vb::CInt(vb::Variant(shown)));
    db::Recordset rs;
    rs.Open(accountSql(key), DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    if (rs.RecordCount() == 0) {
        rs.Close();
        return;
    }
    for (const MailBox& b : kBoxes)
        rs.Fields(b.field) = vb::Variant(tbx_tbl_Mail[size_t(b.index)]->text());
    if (!tbx_User->text().isEmpty())
        rs.Fields(u"User_Code") = vb::Variant(tbx_User->text());
    if (!tbx_Computer->text().isEmpty())
        rs.Fields(u"Conputer_Code") = vb::Variant(tbx_Computer->text());
    rs.Update();
    rs.Close();
    m_list->View_MailList(locationFilter());
    ClearMailEntry();
    menusAfterChange();
}

void frm_Edit_Mail::Mnu_Delete_Click()
{
    if (ui::MsgBox(QStringLiteral("削除しますか？"), ui::vbQuestion + ui::vbYesNo, QStringLiteral("確認")) != ui::vbYes)
        return;
    if (m_list->SelectedRow == 0)
        return;
    const QString key = selectedKey();
    if (key.isEmpty())
        return;
    db::Recordset rs;
    rs.Open(accountSql(key), DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    if (rs.RecordCount() > 0) {
        rs.Delete();
        rs.Update();
    }
    rs.Close();
    m_list->View_MailList(locationFilter());
    m_list->ResetMailSelection();
    ClearMailEntry();
    menusAfterChange();
}

void frm_Edit_Mail::Mnu_Export_Click() { MailExport::ExportGrid(*MSFlexGrid_Mail, MailExport::Form::FullList); }
void frm_Edit_Mail::Mnu_Export_OE_Click() { MailExport::ExportGrid(*MSFlexGrid_Mail, MailExport::Form::AddressBook); }
void frm_Edit_Mail::Mnu_Export_beat_Click() { MailExport::ExportGrid(*MSFlexGrid_Mail, MailExport::Form::BeatBox); }

void frm_Edit_Mail::Mnu_Close_Click() { Unload(); }
