#include "licences/frm_List_Application.h"

#include "assetlist/ListExport.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "licences/ApplicationCensus.h"
#include "licences/LicenceRoutines.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/FormLayout.h"
#include "platform/ui/GridSelection.h"
#include "platform/ui/Menus.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include <QAction>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

namespace {

// the grids' place and allowances, in twips
constexpr int kGridTop = 450;
constexpr int kCensusLeft = 100;
constexpr int kHeightAllowance = 1200;
constexpr int kCensusAllowance = 500;
constexpr int kGap = 200;
// the boxes in the strip above the grids
constexpr int kStripTop = 60;
constexpr int kStripHeight = 330;
constexpr int kCountWidth = 800;
constexpr int kLocationLabelWidth = 900;
constexpr int kLocationWidth = 2400;

} // namespace

frm_List_Application::frm_List_Application()
{
    setObjectName(QStringLiteral("frm_List_Application"));
    setWindowTitle(QStringLiteral("アプリケーション一覧"));
    buildMenus();
    buildControls();
}

void frm_List_Application::buildMenus()
{
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Mnu_Export_CSV = ui::AddMenuItem(Mnu_File, "Mnu_Export_CSV", "書き出し", [this] { Mnu_Export_CSV_Click(); });
    Mnu_Close = ui::AddMenuItem(Mnu_File, "Mnu_Close", "閉じる", [this] { Mnu_Close_Click(); });
    Mnu_View = ui::AddMenu(MenuBar, "Mnu_View", QStringLiteral("表示"));
    Mnu_ViewUpdate = ui::AddMenuItem(Mnu_View, "Mnu_ViewUpdate", "一覧更新", [this] { Mnu_ViewUpdate_Click(); });
}

void frm_List_Application::buildControls()
{
    // the grids and the boxes above them stand at places computed from the window's size
    m_client = ui::AddClientArea(this, MenuBar);

    auto shownBox = [this](const char* name) {
        auto* box = new QLineEdit(m_client);
        box->setObjectName(QString::fromUtf8(name));
        box->setReadOnly(true);
        return box;
    };
    tbx_ApplicationName = shownBox("tbx_ApplicationName");
    tbx_ApplicationNum = shownBox("tbx_ApplicationNum");
    m_locationLabel = new QLabel(QStringLiteral("設置場所"), m_client);
    cmb_Location = new ui::DropDownCombo(m_client);
    cmb_Location->setObjectName(QStringLiteral("cmb_Location"));
    tbx_Location = new QLineEdit(m_client);
    tbx_Location->setObjectName(QStringLiteral("tbx_Location"));
    tbx_Location->setVisible(false);

    // The grids stand at their design size until a fill gives them rows.
    MSFlexGrid_Applications = new ui::FlexGrid(m_client);
    MSFlexGrid_Applications->setObjectName(QStringLiteral("MSFlexGrid_Applications"));
    MSFlexGrid_User = new ui::FlexGrid(m_client);
    MSFlexGrid_User->setObjectName(QStringLiteral("MSFlexGrid_User"));

    cmb_Location->DropDown = [this] { cmb_Location_DropDown(); };
    ui::Connect(cmb_Location, &QComboBox::activated, this, [this] { cmb_Location_Click(); });
    ui::Connect(MSFlexGrid_Applications, &ui::FlexGrid::Click, this, [this] { MSFlexGrid_Applications_Click(); });
    ui::Connect(MSFlexGrid_User, &ui::FlexGrid::Click, this, [this] { MSFlexGrid_User_Click(); });
}

void frm_List_Application::Form_Load()
{
    Mdl_Sub::TakeMainWindowPlace(*this);
    placeControls(Mdl_gData::g.MainFormWidth, Mdl_gData::g.MainFormHeight);
    CensusReady = false;
    if (View_ApplicationCensus())
        CensusReady = true;
    tbx_ApplicationName->clear();
    tbx_ApplicationNum->clear();
}

void frm_List_Application::Form_Resize() { placeControls(Width(), Height()); }

void frm_List_Application::placeControls(int width, int height)
{
    layout()->activate();
    ui::FlexGrid& census = *MSFlexGrid_Applications;
    ui::FlexGrid& computers = *MSFlexGrid_User;
    const int censusWidth = int(0.3 * width) - kCensusAllowance;
    const int computersWidth = int(0.7 * width);
    // VB's allowance for frame and menu; where this platform's are taller the grids are kept
    // inside the window, so that their scroll bars stay in sight
    const int room = ui::PixelsToTwips(m_client->height()) - kGridTop;
    const int gridHeight = qMin(height - kHeightAllowance, qMax(1, room));
    if (censusWidth >= 1 && gridHeight >= 1)
        census.Move(kCensusLeft, kGridTop, censusWidth, gridHeight);
    const int computersLeft = (censusWidth >= 1 ? censusWidth : census.Width()) + kGap;
    if (computersWidth >= 1 && gridHeight >= 1)
        computers.Move(computersLeft, kGridTop, computersWidth, gridHeight);

    auto place = [](QWidget* w, int left, int top, int width, int height) {
        w->setGeometry(ui::TwipsToPixels(left), ui::TwipsToPixels(top), ui::TwipsToPixels(qMax(0, width)), ui::TwipsToPixels(height));
    };
    const int nameWidth = census.Width() - kCountWidth - 60;
    place(tbx_ApplicationName, kCensusLeft, kStripTop, nameWidth, kStripHeight);
    place(tbx_ApplicationNum, kCensusLeft + nameWidth + 60, kStripTop, kCountWidth, kStripHeight);
    place(m_locationLabel, computersLeft, kStripTop + 45, kLocationLabelWidth, kStripHeight - 45);
    place(cmb_Location, computersLeft + kLocationLabelWidth, kStripTop, kLocationWidth, kStripHeight);
}

bool frm_List_Application::View_ApplicationCensus()
{
    return ApplicationCensus::FillCensusGrid(*MSFlexGrid_Applications) == ui::FillResult::Rows;
}

bool frm_List_Application::View_ApplicationComputers(std::int16_t location)
{
    return ApplicationCensus::FillComputersGrid(*MSFlexGrid_User, ApplicationName, location) == ui::FillResult::Rows;
}

void frm_List_Application::PaintCensusRow(std::int16_t row, std::int16_t qbColour)
{
    ui::PaintGridRow(*MSFlexGrid_Applications, row, qbColour);
}

void frm_List_Application::PaintComputerRow(std::int16_t row, std::int16_t qbColour) { ui::PaintGridRow(*MSFlexGrid_User, row, qbColour); }

void frm_List_Application::MSFlexGrid_Applications_Click()
{
    ui::FlexGrid& census = *MSFlexGrid_Applications;
    if (census.Row() == 0 || !CensusReady)
        return;
    const int row = census.Row();
    ApplicationName = census.TextMatrix(row, 1);
    ApplicationCount = census.TextMatrix(row, 2);
    CensusSelectedRow = std::int16_t(row);
    PaintCensusRow(CensusPreviousRow, ui::qbWhite);
    PaintCensusRow(CensusSelectedRow, ui::qbGray);
    CensusPreviousRow = CensusSelectedRow;
    tbx_ApplicationName->setText(ApplicationName);
    tbx_ApplicationNum->setText(ApplicationCount);
    const QString location = tbx_Location->text();
    View_ApplicationComputers(location.isEmpty() ? std::int16_t(0) : vb::CInt(vb::Variant(location)));
    ComputerReady = true;
    ComputerSelectedRow = 1;
    ComputerPreviousRow = 1;
}

// A highlight only: nothing opens.
void frm_List_Application::MSFlexGrid_User_Click()
{
    ui::FlexGrid& computers = *MSFlexGrid_User;
    if (!ComputerReady || computers.Row() == 0)
        return;
    ComputerSelectedRow = std::int16_t(computers.Row());
    PaintComputerRow(ComputerPreviousRow, ui::qbWhite);
    PaintComputerRow(ComputerSelectedRow, ui::qbGray);
    ComputerPreviousRow = ComputerSelectedRow;
}

// The locations not deleted; there is no blank first row, so only "一覧更新" lifts the filter.
void frm_List_Application::cmb_Location_DropDown()
{
    cmb_Location->clear();
    for (const auto& [name, code] : ApplicationCensus::LocationChoices())
        cmb_Location->addItem(name, code);
}

void frm_List_Application::cmb_Location_Click()
{
    if (cmb_Location->currentIndex() < 0)
        return;
    tbx_Location->setText(cmb_Location->currentData().toString());
    const std::int16_t location = vb::CInt(vb::Variant(tbx_Location->text()));
    CensusPreviousRow = CensusSelectedRow = ComputerPreviousRow = ComputerSelectedRow = 1;
    View_ApplicationComputers(location);
}

// Lifts the location filter and lists the computers of the census row the grid stands on (after
// load, the last one). The census itself is not counted again.
void frm_List_Application::Mnu_ViewUpdate_Click()
{
    tbx_ApplicationName->clear();
    tbx_ApplicationNum->clear();
    tbx_Location->clear();
    cmb_Location->setCurrentIndex(-1);
    MSFlexGrid_Applications_Click();
}

void frm_List_Application::Mnu_Export_CSV_Click()
{
    ListExport::ExportFile(QStringLiteral("CSV書き出し"), [this](const QString& path) {
        ApplicationCensus::WriteComputers(tbx_ApplicationName->text(), *MSFlexGrid_User, path);
    });
}

void frm_List_Application::Mnu_Close_Click() { Unload(); }
