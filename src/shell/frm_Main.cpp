#include "shell/frm_Main.h"

#include "assetlist/ListCommands.h"
#include "assetlist/ListExport.h"
#include "assetlist/ListQuery.h"
#include "assetlist/MainList.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "foundation/mdl_ini.h"
#include "platform/app/App.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/Menus.h"
#include "platform/ui/StatusBar.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"
#include "shell/ShellWindows.h"
#include "shell/frmAbout.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

using Mdl_Access_mdb::StandardErrorBox;

namespace {

// The main window whose status panel receives the connection texts.
frm_Main* g_statusOwner = nullptr;

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

QString padded(const char* caption, int blanks, QChar blank)
{
    return ui::PaddedCaption(QString::fromUtf8(caption), blanks, blank);
}

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

frm_Main::~frm_Main()
{
    if (g_statusOwner == this) {
        Mdl_gData::StatusPanelText = nullptr;
        g_statusOwner = nullptr;
    }
}

void frm_Main::buildMenus()
{
    MenuBar = ui::AddMenuBar(this);
    auto menu = [this](const char* name, const QString& caption) { return ui::AddMenu(MenuBar, name, caption); };
    auto item = [](QMenu* m, const char* name, const char* caption, const QKeySequence& shortcut = {}) {
        return ui::AddMenuItem(m, name, QString::fromUtf8(caption), shortcut);
    };
    const auto separator = ui::AddMenuSeparator;
    // the top-level captions are widened with ideographic blanks, "新規作成" with ordinary ones
    const QChar ideographic(0x3000), blank(QLatin1Char(' '));

    Mnu_Files = menu("Mnu_Files", padded("ファイル", 7, ideographic));
    Mnu_Read_Sondex = item(Mnu_Files, "Mnu_Read_Sondex", "Sondexデータ読込", QKeySequence(Qt::CTRL | Qt::Key_O));
    separator(Mnu_Files, "sepalate01");
    Mnu_View_INPORT = item(Mnu_Files, "Mnu_View_INPORT", "インポート");
    Mnu_View_EXPORT = item(Mnu_Files, "Mnu_View_EXPORT", "エクスポート");
    separator(Mnu_Files, "sepalate02");
    Mnu_Program_Quit = item(Mnu_Files, "Mnu_Program_Quit", "終了する", QKeySequence(Qt::CTRL | Qt::Key_Q));

    Mnu_Edit = menu("Mnu_Edit", padded("編集", 8, ideographic));
    Mnu_AddNew = item(Mnu_Edit, "Mnu_AddNew", "", QKeySequence(Qt::CTRL | Qt::Key_N));
    Mnu_AddNew->setText(padded("新規作成", 6, blank));
    separator(Mnu_Edit, "sepalate04");
    Mnu_Search = item(Mnu_Edit, "Mnu_Search", "検索", QKeySequence(Qt::CTRL | Qt::Key_F));
    separator(Mnu_Edit, "sepalate05");
    Mnu_Delete = item(Mnu_Edit, "Mnu_Delete", "削除");
    Mnu_ReplacePC = item(Mnu_Edit, "Mnu_ReplacePC", "廃棄登録");

    Mnu_Managements = menu("Mnu_Managements", padded("管理", 9, ideographic));
    Mnu_Edit_Users = item(Mnu_Managements, "Mnu_Edit_Users", "ユーザ");
    const char* const tableCaptions[] = {"部署", "課", "設置場所", "メーカー", "モデル"};
    for (int i = 1; i <= 5; ++i) {
        Mnu_Edit_Table[size_t(i)] = item(Mnu_Managements, "Mnu_Edit_Table", tableCaptions[i - 1]);
        Mnu_Edit_Table[size_t(i)]->setObjectName(QStringLiteral("Mnu_Edit_Table_%1").arg(i));
    }
    separator(Mnu_Managements, "separator07");
    Mnu_Edit_profile = item(Mnu_Managements, "Mnu_Edit_profile", "PCのプロファイル");
    Mnu_Edit_License = item(Mnu_Managements, "Mnu_Edit_License", "ライセンス");
    Mnu_Mail_Manegement = item(Mnu_Managements, "Mnu_Mail_Manegement", "メールアドレス");
    Mnu_Network_Manegement = item(Mnu_Managements, "Mnu_Network_Manegement", "ネットワーク");
    separator(Mnu_Managements, "sepalate03");
    View_ApplicationList = item(Mnu_Managements, "View_ApplicationList", "アプリケーション一覧");
    Mnu_PrinterList = item(Mnu_Managements, "Mnu_PrinterList", "プリンタ一覧");

    Mnu_View = menu("Mnu_View", padded("表示", 9, ideographic));
    Mnu_About = item(Mnu_View, "Mnu_About", "アバウト");
    separator(Mnu_View, "sepalate06");
    Mnu_ViewUpdate = item(Mnu_View, "Mnu_ViewUpdate", "画面更新");
    Mnu_View_Select = item(Mnu_View, "Mnu_View_Select", "表示条件変更");

    auto on = [this](QAction* a, void (frm_Main::*handler)()) {
        ui::Connect(a, &QAction::triggered, this, [this, handler] { (this->*handler)(); });
    };
    on(Mnu_Read_Sondex, &frm_Main::Mnu_Read_Sondex_Click);
    on(Mnu_View_INPORT, &frm_Main::Mnu_View_INPORT_Click);
    on(Mnu_View_EXPORT, &frm_Main::Mnu_View_EXPORT_Click);
    on(Mnu_Program_Quit, &frm_Main::Mnu_Program_Quit_Click);
    on(Mnu_AddNew, &frm_Main::Mnu_AddNew_Click);
    on(Mnu_Search, &frm_Main::Mnu_Search_Click);
    on(Mnu_Delete, &frm_Main::Mnu_Delete_Click);
    on(Mnu_ReplacePC, &frm_Main::Mnu_ReplacePC_Click);
    on(Mnu_Edit_Users, &frm_Main::Mnu_Edit_Users_Click);
    for (int i = 1; i <= 5; ++i)
        ui::Connect(Mnu_Edit_Table[size_t(i)], &QAction::triggered, this, [this, i] { Mnu_Edit_Table_Click(i); });
    on(Mnu_Edit_profile, &frm_Main::Mnu_Edit_profile_Click);
    on(Mnu_Edit_License, &frm_Main::Mnu_Edit_License_Click);
    on(Mnu_Mail_Manegement, &frm_Main::Mnu_Mail_Manegement_Click);
    on(Mnu_Network_Manegement, &frm_Main::Mnu_Network_Manegement_Click);
    on(View_ApplicationList, &frm_Main::View_ApplicationList_Click);
    on(Mnu_PrinterList, &frm_Main::Mnu_PrinterList_Click);
    on(Mnu_About, &frm_Main::Mnu_About_Click);
    on(Mnu_ViewUpdate, &frm_Main::Mnu_ViewUpdate_Click);
    on(Mnu_View_Select, &frm_Main::Mnu_View_Select_Click);
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
        g_statusOwner = this;
        StatusPanelText = [this](const QString& text) { StatusBar1->SetPanelText(1, text); };
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

        const QString section = IniRead(QStringLiteral("Main"), QStringLiteral("SectionNumber"));
        SectionNumber = section.isEmpty() ? std::int16_t(0) : vb::CInt(section);
        for (int i = 0; i <= 7; ++i) {
            const QString name = IniRead(QStringLiteral("Main"), QStringLiteral("SectionName") + QString::number(i));
            ViewNames[i] = name.isEmpty() ? QStringLiteral(" ") : name;
        }

        // Without the ledger the window stands empty, its status panel saying why.
        if (!Mdl_Access_mdb::ConnectDatabase())
            return;

        auto geometry = [&](const char* key, std::int32_t fallback) {
            const QString value = IniRead(QStringLiteral("Main"), QString::fromUtf8(key));
            return value.isEmpty() ? fallback : vb::CLng(value);
        };
        MainFormWidth = geometry("FormSizeWidth", kDesignWidth);
        MainFormHeight = geometry("FormSizeHight", kDesignHeight);
        MainFormTop = geometry("FormTop", kDesignTop);
        MainFormLeft = geometry("FormLeft", kDesignLeft);
        SetWidth(MainFormWidth);
        SetHeight(MainFormHeight);
        SetTop(MainFormTop);
        SetLeft(MainFormLeft);

        mdl_ini::LoadViewSettings();
        m_list->FGridViewSelect_ini();
        m_list->CurrentMainKey = 0;
        gSetSQLVal();
        if (m_list->fnc_View_PClist())
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

void frm_Main::Form_LostFocus()
{
    if (Top() > 0)
        Mdl_gData::MainFormTop = Top();
    if (Left() > 0)
        Mdl_gData::MainFormLeft = Left();
}

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
        if (Top() > 0)
            MainFormTop = Top();
        if (Left() > 0)
            MainFormLeft = Left();
        if (Width() > 0)
            MainFormWidth = Width();
        if (Height() > 0)
            MainFormHeight = Height();
        IniWrite(QStringLiteral("Main"), QStringLiteral("FormTop"), QString::number(MainFormTop));
        IniWrite(QStringLiteral("Main"), QStringLiteral("FormLeft"), QString::number(MainFormLeft));
        IniWrite(QStringLiteral("Main"), QStringLiteral("FormSizeWidth"), QString::number(MainFormWidth));
        IniWrite(QStringLiteral("Main"), QStringLiteral("FormSizeHight"), QString::number(MainFormHeight));
        Mdl_Access_mdb::DisconnectDatabase();
        // The connection is already closed, so the closing question does not unload the other
        // windows; the program ends with this window (main) and they go with it.
        Unload(ui::vbFormCode);
    } catch (const vb::VbError& e) {
        StandardErrorBox(e);
    }
}

void frm_Main::storeGeometryForOpenedWindow()
{
    using namespace Mdl_gData;
    if (Width() > 0)
        MainFormWidth = Width();
    if (Height() > 0)
        MainFormHeight = Height();
    if (Top() > 0)
        MainFormTop = Top();
    if (Left() > 0)
        MainFormLeft = Left();
}

void frm_Main::Mnu_Read_Sondex_Click() { ShellWindows::frm_Open().Show(ui::vbModal); }

void frm_Main::Mnu_View_INPORT_Click()
{
    storeGeometryForOpenedWindow();
    ShellWindows::frm_Inport().Show(ui::vbModeless);
}

// The list commands work on the list, which exists once the load has passed the previous-instance
// test; the export writes the grid as it is shown.
void frm_Main::Mnu_View_EXPORT_Click() { ListExport::ExportGrid(*MSFlexGrid_Main, QStringLiteral("CSV書き出し")); }

void frm_Main::Mnu_AddNew_Click()
{
    if (m_list)
        ListCommands::Mnu_AddNew(*m_list);
}

void frm_Main::Mnu_Search_Click()
{
    if (m_list)
        ListCommands::Mnu_Search(*m_list);
}

void frm_Main::Mnu_Delete_Click()
{
    if (m_list)
        ListCommands::Mnu_Delete(*m_list);
}

void frm_Main::Mnu_ReplacePC_Click()
{
    if (m_list)
        ListCommands::Mnu_ReplacePC(*m_list);
}

void frm_Main::Mnu_ViewUpdate_Click()
{
    if (m_list)
        ListCommands::Mnu_ViewUpdate(*m_list);
}

void frm_Main::Mnu_Edit_Users_Click()
{
    storeGeometryForOpenedWindow();
    ShellWindows::frm_Edit_User().Show(ui::vbModal);
}

void frm_Main::Mnu_Edit_Table_Click(int index)
{
    using namespace Mdl_gData;
    CurrentTableCaption = CodeTables[index].caption;
    CurrentTableName = CodeTables[index].table;
    CurrentTableIndex = std::int16_t(index);
    ShellWindows::frm_Edit_Table().Show(ui::vbModal);
}

void frm_Main::Mnu_Edit_profile_Click()
{
    if (!m_list)
        return;
    Mdl_gData::SelectedMainKey = m_list->CurrentMainKey;
    Mdl_gData::SelectedGridRow = m_list->CurrentRow;
    if (m_list->CurrentMainKey > 0) {
        ShellWindows::frm_Edit_Computer().Show(ui::vbModeless);
        Mnu_Edit_profile->setEnabled(false);
    }
}

void frm_Main::Mnu_Edit_License_Click()
{
    storeGeometryForOpenedWindow();
    ShellWindows::frm_Edit_License().Show(ui::vbModeless);
}

void frm_Main::Mnu_Mail_Manegement_Click()
{
    storeGeometryForOpenedWindow();
    ShellWindows::frm_Edit_Mail().Show(ui::vbModal);
}

void frm_Main::Mnu_Network_Manegement_Click()
{
    storeGeometryForOpenedWindow();
    ShellWindows::frm_Edit_Network().Show(ui::vbModeless);
}

void frm_Main::View_ApplicationList_Click() { ShellWindows::frm_List_Application().Show(ui::vbModeless); }

void frm_Main::Mnu_PrinterList_Click()
{
    storeGeometryForOpenedWindow();
    ShellWindows::frm_List_Printer().Show(ui::vbModeless);
}

void frm_Main::Mnu_About_Click() { ShellWindows::About().Show(ui::vbModal); }

void frm_Main::Mnu_View_Select_Click() { ShellWindows::frm_SelectView().Show(ui::vbModal); }

void frm_Main::MSFlexGrid_Main_Click()
{
    if (m_list)
        m_list->MSFlexGrid_Main_Click();
}

void frm_Main::MSFlexGrid_Main_DblClick() { Mnu_Edit_profile_Click(); }
