#include "network/frm_List_Printer.h"

#include "assetlist/ListExport.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "network/PrinterList.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/FormLayout.h"
#include "platform/ui/Menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

frm_List_Printer::frm_List_Printer()
{
    setObjectName(QStringLiteral("frm_List_Printer"));
    setWindowTitle(QStringLiteral("プリンタ一覧"));
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Mnu_Export_CSV = ui::AddMenuItem(Mnu_File, "Mnu_Export_CSV", QStringLiteral("書き出し"), [this] { Mnu_Export_CSV_Click(); });
    Mnu_Close = ui::AddMenuItem(Mnu_File, "Mnu_Close", QStringLiteral("閉じる"), [this] { Mnu_Close_Click(); });
    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", QStringLiteral("表示"));
    Mnu_List_Update = ui::AddMenuItem(Mnu_Edit, "Mnu_List_Update", QStringLiteral("一覧更新"), [this] { Mnu_List_Update_Click(); });

    // The grid stands where Form_Resize puts it, below the menu bar. Until a fill finds printers
    // it is empty: no rows, no columns.
    MSFlexGrid_Printer = ui::AddGrid(ui::AddClientArea(this, MenuBar), "MSFlexGrid_Printer");
    MSFlexGrid_Printer->SetRows(0);
    MSFlexGrid_Printer->SetCols(0);
}

void frm_List_Printer::Form_Load()
{
    Mdl_Sub::TakeMainWindowPlace(*this);
    Form_Resize();
    View_PrinterList(*MSFlexGrid_Printer);
}

void frm_List_Printer::Form_Resize()
{
    // a window made smaller than the sums leaves the grid without width or height
    MSFlexGrid_Printer->Move(120, 120, qMax(0, Width() - 320), qMax(0, Height() - 950));
}

void frm_List_Printer::Mnu_List_Update_Click()
{
    MSFlexGrid_Printer->Clear();
    View_PrinterList(*MSFlexGrid_Printer);
}

void frm_List_Printer::Mnu_Export_CSV_Click() { ListExport::ExportGrid(*MSFlexGrid_Printer, QStringLiteral("CSV書き出し")); }

void frm_List_Printer::Mnu_Close_Click() { Unload(); }
