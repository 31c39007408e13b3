#include "shell/frm_Main.h"

#include "assetlist/ListCommands.h"
#include "assetlist/ListExport.h"
#include "assetlist/ListQuery.h"
#include "assetlist/MainList.h"
#include "assetlist/frm_SelectView.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "foundation/mdl_ini.h"
#include "intake/frm_Inport.h"
#include "intake/frm_Open.h"
#include "licences/frm_Edit_License.h"
#include "licences/frm_List_Application.h"
#include "mail/frm_Edit_Mail.h"
#include "masters/frm_Edit_Table.h"
#include "masters/frm_Edit_User.h"
#include "network/frm_Edit_Network.h"
#include "network/frm_List_Printer.h"
#include "platform/app/App.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/Menus.h"
#include "platform/ui/StatusBar.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"
#include "profile/frm_Edit_Computer.h"
#include "shell/PlaceholderForm.h"
#include "shell/frmAbout.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

using Mdl_Access_mdb::StandardErrorBox;

namespace {

// Design place of the grid inside the window's client area, in twips; its size follows the
// window (Form_Resize).
const int kGridLeft = 120;
const int kGridTop = 60;

// Size and place of the window before the settings are applied, in twips; the same as the
// defaults for a DB.ini without them.
const int kDesignWidth = 14835;
const int kDesignHeight = 10530;
const int kDesignTop = 50;
const int kDesignLeft = 50;

// The picture of ImageList1: a monitor over its stand.
QIcon ledgerIcon()
{
    QIcon icon;
    for (int size : {16, 32, 48}) {
        QPixmap pm(size, size);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        const qreal u = size / 16.0;
        p.setPen(QPen(QColor(40, 40, 40), u));
        p.setBrush(QColor(200, 200, 200));
        p.drawRect(QRectF(1 * u, 1.5 * u, 14 * u, 10 * u));
        p.setBrush(QColor(0, 0, 128));
        p.drawRect(QRectF(2.5 * u, 3 * u, 11 * u, 7 * u));
        p.setBrush(QColor(200, 200, 200));
        p.drawRect(QRectF(5 * u, 12.5 * u, 6 * u, 2 * u));
        p.setPen(QPen(QColor(0, 255, 255), u));
        for (int line = 0; line < 3; ++line)
            p.drawLine(QPointF(4 * u, (4.5 + 2 * line) * u), QPointF((line == 2 ? 8 : 12) * u, (4.5 + 2 * line) * u));
        p.end();
        icon.addPixmap(pm);
    }
    return icon;
}

} // namespace

frm_Main::frm_Main()
{
    setObjectName(QStringLiteral("frm_Main"));
    setWindowTitle(QStringLiteral("Fenwold"));
    ImageList1 << ledgerIcon();
    buildMenus();
    buildClientArea();
    SetWidth(kDesignWidth);
    SetHeight(kDesignHeight);
    SetTop(kDesignTop);
    SetLeft(kDesignLeft);
}

frm_Main::~frm_Main() = default;

void frm_Main::buildMenus()
{
    using ui::AddMenuItem;
    using ui::AddMenuSeparator;
    using ui::PaddedCaption;
    auto click = [this](void (frm_Main::*handler)()) { return [this, handler] { (this->*handler)(); }; };
    // the top-level captions are widened with ideographic blanks, "新規作成" with ordinary ones
    MenuBar = ui::AddMenuBar(this);

    Mnu_Files = ui::AddMenu(MenuBar, "Mnu_Files", PaddedCaption("ファイル", 7));
    Mnu_Read_Sondex = AddMenuItem(Mnu_Files, "Mnu_Read_Sondex", "Sondexデータ読込", click(&frm_Main::Mnu_Read_Sondex_Click),
                                  QKeySequence(Qt::CTRL | Qt::Key_O));
    AddMenuSeparator(Mnu_Files, "sepalate01");
    Mnu_View_INPORT = AddMenuItem(Mnu_Files, "Mnu_View_INPORT", "インポート", click(&frm_Main::Mnu_View_INPORT_Click));
    Mnu_View_EXPORT = AddMenuItem(Mnu_Files, "Mnu_View_EXPORT", "エクスポート", click(&frm_Main::Mnu_View_EXPORT_Click));
    AddMenuSeparator(Mnu_Files, "sepalate02");
    Mnu_Program_Quit = AddMenuItem(Mnu_Files, "Mnu_Program_Quit", "終了する", click(&frm_Main::Mnu_Program_Quit_Click),
                                   QKeySequence(Qt::CTRL | Qt::Key_Q));

    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", PaddedCaption("編集", 8));
    Mnu_AddNew = AddMenuItem(Mnu_Edit, "Mnu_AddNew", PaddedCaption("新規作成", 6, u' '), click(&frm_Main::Mnu_AddNew_Click),
                             QKeySequence(Qt::CTRL | Qt::Key_N));
    AddMenuSeparator(Mnu_Edit, "sepalate04");
    Mnu_Search = AddMenuItem(Mnu_Edit, "Mnu_Search", "検索", click(&frm_Main::Mnu_Search_Click), QKeySequence(Qt::CTRL | Qt::Key_F));
    AddMenuSeparator(Mnu_Edit, "sepalate05");
    Mnu_Delete = AddMenuItem(Mnu_Edit, "Mnu_Delete", "削除", click(&frm_Main::Mnu_Delete_Click));
    Mnu_ReplacePC = AddMenuItem(Mnu_Edit, "Mnu_ReplacePC", "廃棄登録", click(&frm_Main::Mnu_ReplacePC_Click));

    Mnu_Managements = ui::AddMenu(MenuBar, "Mnu_Managements", PaddedCaption("管理", 9));
    Mnu_Edit_Users = AddMenuItem(Mnu_Managements, "Mnu_Edit_Users", "ユーザ", click(&frm_Main::Mnu_Edit_Users_Click));
    const char* const tableCaptions[] = {"部署", "課", "設置場所", "メーカー", "モデル"};
    for (int i = 1; i <= 5; ++i) {
        QAction* a = AddMenuItem(Mnu_Managements, "", tableCaptions[i - 1], [this, i] { Mnu_Edit_Table_Click(i); });
        ui::SetArrayName(a, "Mnu_Edit_Table", i);
        Mnu_Edit_Table[size_t(i)] = a;
    }
    AddMenuSeparator(Mnu_Managements, "separator07");
    Mnu_Edit_profile = AddMenuItem(Mnu_Managements, "Mnu_Edit_profile", "PCのプロファイル", click(&frm_Main::Mnu_Edit_profile_Click));
    Mnu_Edit_License = AddMenuItem(Mnu_Managements, "Mnu_Edit_License", "ライセンス", click(&frm_Main::Mnu_Edit_License_Click));
    Mnu_Mail_Manegement =
        AddMenuItem(Mnu_Managements, "Mnu_Mail_Manegement", "メールアドレス", click(&frm_Main::Mnu_Mail_Manegement_Click));
    Mnu_Network_Manegement =
        AddMenuItem(Mnu_Managements, "Mnu_Network_Manegement", "ネットワーク", click(&frm_Main::Mnu_Network_Manegement_Click));
    AddMenuSeparator(Mnu_Managements, "sepalate03");
    View_ApplicationList =
        AddMenuItem(Mnu_Managements, "View_ApplicationList", "アプリケーション一覧", click(&frm_Main::View_ApplicationList_Click));
    Mnu_PrinterList = AddMenuItem(Mnu_Managements, "Mnu_PrinterList", "プリンタ一覧", click(&frm_Main::Mnu_PrinterList_Click));

    Mnu_View = ui::AddMenu(MenuBar, "Mnu_View", PaddedCaption("表示", 9));
    Mnu_About = AddMenuItem(Mnu_View, "Mnu_About", "アバウト", click(&frm_Main::Mnu_About_Click));
    AddMenuSeparator(Mnu_View, "sepalate06");
    Mnu_ViewUpdate = AddMenuItem(Mnu_View, "Mnu_ViewUpdate", "画面更新", click(&frm_Main::Mnu_ViewUpdate_Click));
    Mnu_View_Select = AddMenuItem(Mnu_View, "Mnu_View_Select", "表示条件変更", click(&frm_Main::Mnu_View_Select_Click));
}

void frm_Main::buildClientArea()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(MenuBar);
    // the window may be made as small as the user likes; the grid then keeps its last size
    layout->setSizeConstraint(QLayout::SetNoConstraint);

    // The grid stands at a fixed place in the client area and takes its size from the window.
    m_client = new QWidget(this);
    m_client->setObjectName(QStringLiteral("ClientArea"));
    layout->addWidget(m_client, 1);
    MSFlexGrid_Main = new ui::FlexGrid(m_client);
    MSFlexGrid_Main->setObjectName(QStringLiteral("MSFlexGrid_Main"));
    MSFlexGrid_Main->setFont(ui::MsGothic());
    MSFlexGrid_Main->move(ui::TwipsToPixels(kGridLeft), ui::TwipsToPixels(kGridTop));

    StatusBar1 = new ui::StatusBar(1, this);
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));
    StatusBar1->setFont(ui::MsGothic());
    layout->addWidget(StatusBar1);

    ui::Connect(MSFlexGrid_Main, &ui::FlexGrid::Click, this, [this] { MSFlexGrid_Main_Click(); });
    ui::Connect(MSFlexGrid_Main, &ui::FlexGrid::DblClick, this, [this] { MSFlexGrid_Main_DblClick(); });
}

void frm_Main::Form_Load()
{
    using namespace Mdl_gData;
    using mdl_ini::IniRead;
    try {
        if (!m_instance.Acquire()) {
            // a plain box: no icon, the default title
            ui::MsgBox(QStringLiteral("既に起動済みです。"));
            app::End(0);
            return;
        }
        // the hooks through which the windows of the subsystems reach this one; they fall silent
        // when this window is gone
        const QPointer<frm_Main> self(this);
        g.StatusPanelText = [self](const QString& text) {
            if (self)
                self->StatusBar1->SetPanelText(1, text);
        };
        g.RefillMainList = [self] {
            if (self && self->m_list)
                self->m_list->fnc_View_PClist();
        };
        m_list = std::make_unique<MainList>(*MSFlexGrid_Main);
        m_list->SetMenuEnabled = [this](MainList::MenuItem item, bool on) {
            switch (item) {
            case MainList::Mnu_Edit_profile: Mnu_Edit_profile->setEnabled(on); break;
            case MainList::Mnu_Delete: Mnu_Delete->setEnabled(on); break;
            case MainList::Mnu_ReplacePC: Mnu_ReplacePC->setEnabled(on); break;
            case MainList::Mnu_View_Select: Mnu_View_Select->setEnabled(on); break;
            }
        };

        if (!ImageList1.isEmpty())
            setWindowIcon(ImageList1.first());
        FillCodeTables();

        g.SectionNumber = SavedSectionNumber();
        for (int i = 0; i <= 7; ++i) {
            const QString name = IniRead(QStringLiteral("Main"), QStringLiteral("SectionName") + QString::number(i));
            g.ViewNames[i] = name.isEmpty() ? QStringLiteral(" ") : name;
        }

        // Without the ledger the window stands empty, its status panel saying why.
        if (!Mdl_Access_mdb::ConnectDatabase())
            return;

        auto geometry = [&](const char* key, std::int32_t fallback) {
            const QString value = IniRead(QStringLiteral("Main"), QString::fromUtf8(key));
            return value.isEmpty() ? fallback : vb::CLng(value);
        };
        g.MainFormWidth = geometry("FormSizeWidth", kDesignWidth);
        g.MainFormHeight = geometry("FormSizeHight", kDesignHeight);
        g.MainFormTop = geometry("FormTop", kDesignTop);
        g.MainFormLeft = geometry("FormLeft", kDesignLeft);
        SetWidth(g.MainFormWidth);
        SetHeight(g.MainFormHeight);
        SetTop(g.MainFormTop);
        SetLeft(g.MainFormLeft);

        m_list->CurrentMainKey = 0;
        if (m_list->ShowView() == ui::FillResult::Rows)
            m_list->MSFlexGrid_Main_ini();

        Mnu_Edit_profile->setEnabled(false);
        Mnu_Delete->setEnabled(false);
        Mnu_ReplacePC->setEnabled(false);
    } catch (const vb::VbError& e) {
        StandardErrorBox(e);
    }
}

void frm_Main::Form_Resize()
{
    // The rule keeps VB's allowances for the frame, menu and status bar (500 and 1050
    // twips). Where this platform's bars are taller, the grid is kept above the status bar so
    // that its scroll bar stays in sight.
    const int width = Width() - 500;
    const int height = Height() - 1050;
    if (width > 0)
        MSFlexGrid_Main->SetWidth(width);
    if (height > 0) {
        const int room = ui::PixelsToTwips(m_client->height() - MSFlexGrid_Main->y());
        MSFlexGrid_Main->SetHeight(qMax(0, qMin(height, room)));
    }
}

void frm_Main::Form_LostFocus() { rememberGeometry(false); }

void frm_Main::Form_QueryUnload(int&, int unloadMode)
{
    // The close box only unloads: size and place are saved by Mnu_Program_Quit alone, and the
    // connection is left to the end of the run.
    if (unloadMode == ui::vbFormControlMenu) {
        unloadAllForms();
        return;
    }
    if (Mdl_Access_mdb::DisconnectDatabase())
        unloadAllForms();
}

void frm_Main::unloadAllForms()
{
    for (ui::Form* f : ui::Forms()) {
        QPointer<ui::Form> form(f);
        if (form && form != this)
            form->Unload(ui::vbFormCode);
    }
}

void frm_Main::Mnu_Program_Quit_Click()
{
    using namespace Mdl_gData;
    using mdl_ini::IniWrite;
    try {
        rememberGeometry(true);
        IniWrite(QStringLiteral("Main"), QStringLiteral("FormTop"), QString::number(g.MainFormTop));
        IniWrite(QStringLiteral("Main"), QStringLiteral("FormLeft"), QString::number(g.MainFormLeft));
        IniWrite(QStringLiteral("Main"), QStringLiteral("FormSizeWidth"), QString::number(g.MainFormWidth));
        IniWrite(QStringLiteral("Main"), QStringLiteral("FormSizeHight"), QString::number(g.MainFormHeight));
        Mdl_Access_mdb::DisconnectDatabase();
        // The connection is already closed, so the closing question does not unload the other
        // windows; the program ends with this window (main) and they go with it.
        Unload(ui::vbFormCode);
    } catch (const vb::VbError& e) {
        StandardErrorBox(e);
    }
}

void frm_Main::rememberGeometry(bool withSize)
{
    using Mdl_gData::g;
    if (Top() > 0)
        g.MainFormTop = Top();
    if (Left() > 0)
        g.MainFormLeft = Left();
    if (!withSize)
        return;
    if (Width() > 0)
        g.MainFormWidth = Width();
    if (Height() > 0)
        g.MainFormHeight = Height();
}

void frm_Main::Mnu_Read_Sondex_Click() { frm_Open::Instance().Show(ui::vbModal); }

void frm_Main::Mnu_View_INPORT_Click()
{
    rememberGeometry(true);
    frm_Inport::Instance().Show(ui::vbModeless);
}

// The list commands work on the list, which exists once the load has passed the previous-instance
// test; the export writes the grid as it is shown.
void frm_Main::Mnu_View_EXPORT_Click() { ListExport::ExportGrid(*MSFlexGrid_Main, QStringLiteral("CSV書き出し")); }

void frm_Main::runListCommand(void (*command)(MainList&))
{
    if (m_list)
        command(*m_list);
}

void frm_Main::Mnu_AddNew_Click() { runListCommand(ListCommands::Mnu_AddNew); }
void frm_Main::Mnu_Search_Click() { runListCommand(ListCommands::Mnu_Search); }
void frm_Main::Mnu_Delete_Click() { runListCommand(ListCommands::Mnu_Delete); }
void frm_Main::Mnu_ReplacePC_Click() { runListCommand(ListCommands::Mnu_ReplacePC); }
void frm_Main::Mnu_ViewUpdate_Click() { runListCommand(ListCommands::Mnu_ViewUpdate); }

void frm_Main::Mnu_Edit_Users_Click()
{
    rememberGeometry(true);
    frm_Edit_User::Instance().Show(ui::vbModal);
}

void frm_Main::Mnu_Edit_Table_Click(int index)
{
    using namespace Mdl_gData;
    g.CurrentTableCaption = g.CodeTables[index].caption;
    g.CurrentTableName = g.CodeTables[index].table;
    g.CurrentTableIndex = std::int16_t(index);
    frm_Edit_Table::Instance().Show(ui::vbModal);
}

void frm_Main::Mnu_Edit_profile_Click()
{
    if (!m_list)
        return;
    Mdl_gData::g.SelectedMainKey = m_list->CurrentMainKey;
    Mdl_gData::g.SelectedGridRow = m_list->CurrentRow;
    if (m_list->CurrentMainKey > 0) {
        frm_Edit_Computer::Instance().Show(ui::vbModeless);
        Mnu_Edit_profile->setEnabled(false);
    }
}

void frm_Main::Mnu_Edit_License_Click()
{
    rememberGeometry(true);
    frm_Edit_License::Instance().Show(ui::vbModeless);
}

void frm_Main::Mnu_Mail_Manegement_Click()
{
    rememberGeometry(true);
    frm_Edit_Mail::Instance().Show(ui::vbModal);
}

void frm_Main::Mnu_Network_Manegement_Click()
{
    rememberGeometry(true);
    frm_Edit_Network::Instance().Show(ui::vbModeless);
}

void frm_Main::View_ApplicationList_Click() { frm_List_Application::Instance().Show(ui::vbModeless); }

void frm_Main::Mnu_PrinterList_Click()
{
    rememberGeometry(true);
    frm_List_Printer::Instance().Show(ui::vbModeless);
}

void frm_Main::Mnu_About_Click() { frmAbout::Instance().Show(ui::vbModal); }

void frm_Main::Mnu_View_Select_Click() { frm_SelectView::Instance().Show(ui::vbModal); }

void frm_Main::MSFlexGrid_Main_Click()
{
    if (m_list)
        m_list->MSFlexGrid_Main_Click();
}

void frm_Main::MSFlexGrid_Main_DblClick() { Mnu_Edit_profile_Click(); }
