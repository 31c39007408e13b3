#include "intake/frm_Inport.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "intake/InventoryReview.h"
#include "intake/Staging.h"
#include "platform/ui/CommonDialog.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/FormLayout.h"
#include "platform/ui/GridSelection.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/Menus.h"
#include "platform/ui/Twips.h"
#include "platform/vb/VbError.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

frm_Inport::frm_Inport()
{
    setObjectName(QStringLiteral("frm_Inport"));
    setWindowTitle(QStringLiteral("CSVインポート"));
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Mnu_Open = ui::AddMenuItem(Mnu_File, "Mnu_Open", QStringLiteral("CSV読み込み"), [this] { Mnu_Open_Click(); });
    Mnu_Close = ui::AddMenuItem(Mnu_File, "Mnu_Close", QStringLiteral("閉じる"), [this] { Mnu_Close_Click(); });
    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", QStringLiteral("編集"));
    Mnu_Update = ui::AddMenuItem(Mnu_Edit, "Mnu_Update", QStringLiteral("値を書き換え"), [this] { Mnu_Update_Click(); });
    Mnu_Manege = ui::AddMenu(MenuBar, "Mnu_Manege", QStringLiteral("管理"));
    Mnu_DBUpdate = ui::AddMenuItem(Mnu_Manege, "Mnu_DBUpdate", QStringLiteral("DBを上書き更新"), [this] { Mnu_DBUpdate_Click(); });

    // Everything stands where the sums of Form_Resize put it, below the menu bar.
    m_client = ui::AddClientArea(this, MenuBar);
    auto box = [this](const char* name, bool readOnly) {
        auto* b = new QLineEdit(m_client);
        b->setObjectName(QString::fromUtf8(name));
        // the chosen entry and its key change only by a choice in the list
        b->setReadOnly(readOnly);
        return b;
    };
    tbx_ComputerName = box("tbx_ComputerName", true);
    tbx_ComputerKey = box("tbx_ComputerKey", true);
    tbx_Edit = box("tbx_Edit", false);
    List_ComuputerName = new ui::ListBox(m_client);
    List_ComuputerName->setObjectName(QStringLiteral("List_ComuputerName"));
    List_ComuputerName->setFont(ui::MsGothic());
    ui::Connect(List_ComuputerName, &ui::ListBox::Click, this, [this] { List_ComuputerName_Click(); });
    MSFlexGrid1 = ui::AddGrid(m_client, "MSFlexGrid1");
    ui::Connect(MSFlexGrid1, &ui::FlexGrid::Click, this, [this] { MSFlexGrid1_Click(); });
    // until a computer or a file is chosen the grid shows its headings over empty rows
    InventoryReview::SetComparisonGrid(*MSFlexGrid1);
    MSGrid_Application = ui::AddGrid(m_client, "MSGrid_Application");
    MSGrid_Application->SetRows(0);
    MSGrid_Application->SetCols(0);
}

void frm_Inport::Form_Load()
{
    Mdl_Sub::TakeMainWindowPlace(*this);
    Form_Resize();
    GridReady = false;
    ClearEditFields();
    FillComputerList();
    SelectFirstGridRow();
}

void frm_Inport::Form_Resize()
{
    // A window made smaller than the sums leaves a control of no size rather than raising
    // "invalid property value", as the controls did.
    const int width = qMax(0, Width() - 3440);
    const int gridHeight = Height() * 70 / 100;
    const int applicationsTop = 480 + gridHeight + 100;
    const int applicationsHeight = qMax(0, Height() * 28 / 100 - 1200);
    MSFlexGrid1->Move(3240, 480, width, gridHeight);
    MSGrid_Application->Move(3240, applicationsTop, width, applicationsHeight);
    const auto place = [](QWidget* w, int left, int top, int widthTwips, int heightTwips) {
        w->setGeometry(ui::TwipsToPixels(left), ui::TwipsToPixels(top), ui::TwipsToPixels(widthTwips), ui::TwipsToPixels(heightTwips));
    };
    place(tbx_Edit, 3240, 60, width, 360);
    place(tbx_ComputerName, 120, 60, 3000, 360);
    place(tbx_ComputerKey, 120, 480, 1200, 360);
    place(List_ComuputerName, 120, 900, 3000, qMax(0, applicationsTop + applicationsHeight - 900));
}

void frm_Inport::ClearEditFields()
{
    tbx_ComputerName->clear();
    tbx_ComputerKey->clear();
    tbx_Edit->clear();
}

void frm_Inport::FillComputerList()
{
    InventoryReview::FillComputerList([this](const QString& entry, std::int16_t key) {
        auto* item = new QListWidgetItem(entry, List_ComuputerName);
        item->setData(Qt::UserRole, int(key));
    });
}

void frm_Inport::SelectFirstGridRow()
{
    CurrentRow = 0;
    PreviousRow = 1;
    PaintGridRow(1, ui::qbWhite);
}

void frm_Inport::PaintGridRow(int row, int qbColour) { ui::PaintGridRow(*MSFlexGrid1, row, qbColour); }

void frm_Inport::List_ComuputerName_Click()
{
    const QListWidgetItem* item = List_ComuputerName->currentItem();
    if (!item)
        return;
    tbx_ComputerName->setText(item->text());
    tbx_ComputerName->setCursorPosition(0);
    tbx_ComputerKey->setText(QString::number(item->data(Qt::UserRole).toInt()));
    if (!tbx_ComputerKey->text().isEmpty())
        FillPcColumn(tbx_ComputerKey->text());
}

void frm_Inport::FillPcColumn(const QString& key)
{
    if (tbx_ComputerKey->text().isEmpty())
        return;
    if (InventoryReview::FillPcColumn(*MSFlexGrid1, key))
        GridReady = true;
}

void frm_Inport::FillReadColumn()
{
    if (InventoryReview::FillReadColumn(*MSFlexGrid1))
        GridReady = true;
}

void frm_Inport::FillApplicationGrid() { InventoryReview::FillApplicationGrid(*MSGrid_Application); }

void frm_Inport::Mnu_Open_Click()
{
    ui::CommonDialog dialog;
    dialog.CancelError = true;
    dialog.DialogTitle = QStringLiteral("Sondexデータ読み込み");
    // the two filters run together without a separator, as the main window's export has them
    dialog.Filter = QStringLiteral("全て(*.*)|*.*") + QStringLiteral("CSVファイル|*.csv");
    dialog.FilterIndex = 2;
    try {
        dialog.ShowOpen();
    } catch (const vb::VbError& e) {
        if (e.Number() == vb::Err::CancelSelected)
            return;
        throw;
    }
    // a file refused by its first line changes nothing and says nothing; one that cannot be
    // read ends the run
    if (!Mdl_Access_mdb::ReadCsvToStaging(dialog.FileName))
        return;
    FillReadColumn();
    FillApplicationGrid();
}

void frm_Inport::MSFlexGrid1_Click()
{
    ui::FlexGrid& grid = *MSFlexGrid1;
    if (grid.Rows() < 2 || !GridReady)
        return;
    CurrentRow = grid.Row();
    grid.SetCol(InventoryReview::FileValue);
    // an empty cell leaves the value under edit as it was
    if (!grid.Text().isEmpty())
        tbx_Edit->setText(grid.Text());
    PaintGridRow(PreviousRow, ui::qbWhite);
    PaintGridRow(CurrentRow, ui::qbGray);
    PreviousRow = CurrentRow;
}

void frm_Inport::Mnu_Update_Click()
{
    // typed as it stands: a quote here spoils that row's statement, which the ledger refuses
    if (CurrentRow > 0)
        MSFlexGrid1->SetTextMatrix(CurrentRow, InventoryReview::FileValue, tbx_Edit->text());
}

void frm_Inport::Mnu_DBUpdate_Click()
{
    if (tbx_ComputerKey->text().isEmpty() || MSFlexGrid1->Rows() <= 1)
        return;
    if (ui::MsgBox(QStringLiteral("DBを更新しますか ?"), ui::vbYesNo | ui::vbQuestion, windowTitle()) != ui::vbYes)
        return;
    InventoryReview::OverwriteComputer(*MSFlexGrid1, tbx_ComputerKey->text());
    ui::MsgBox(QStringLiteral("完了しました"));
}

void frm_Inport::Mnu_Close_Click() { Unload(); }
