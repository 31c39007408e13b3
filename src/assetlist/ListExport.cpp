#include "assetlist/ListExport.h"

#include "foundation/Mdl_Access_mdb.h"
#include "platform/text/AnsiFile.h"
#include "platform/ui/CommonDialog.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/FlexGrid.h"
#include "platform/vb/VbError.h"

namespace ListExport {

void WriteGrid(const ui::FlexGrid& grid, const QString& path)
{
    text::AnsiFile file(path);
    WriteGridLines(grid, file);
    file.Close();
}

bool SaveGrid(const ui::FlexGrid& grid, const QString& path)
{
    try {
        WriteGrid(grid, path);
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        return false;
    }
    return true;
}

void WriteGridLines(const ui::FlexGrid& grid, text::AnsiFile& file)
{
    QString line;
    for (int row = 0; row < grid.Rows(); ++row) {
        line.clear();
        for (int col = 1; col < grid.Cols(); ++col) {
            line += grid.TextMatrix(row, col);
            line += u',';
        }
        line += u' ';
        file.WriteLine(line);
    }
}

QString ChooseCsvFile(const QString& dialogTitle)
{
    ui::CommonDialog dialog;
    dialog.CancelError = true;
    dialog.DialogTitle = dialogTitle;
    // The two filters run together without a separator: the dialog offers "全て(*.*)" and a
    // second entry whose pattern is lost.
    dialog.Filter = QStringLiteral("全て(*.*)|*.*") + QStringLiteral("CSVファイル|*.csv");
    dialog.FilterIndex = 2;
    dialog.ShowSave();
    return dialog.FileName + QStringLiteral(".csv");
}

void ExportGrid(const ui::FlexGrid& grid, const QString& dialogTitle)
{
    ExportFile(dialogTitle, [&grid](const QString& path) { WriteGrid(grid, path); });
}

void ExportFile(const QString& dialogTitle, const std::function<void(const QString& path)>& write)
{
    try {
        write(ChooseCsvFile(dialogTitle));
    } catch (const vb::VbError& e) {
        if (e.Number() != vb::Err::CancelSelected)
            Mdl_Access_mdb::StandardErrorBox(e);
        return;
    }
    ui::MsgBox(QStringLiteral("完了しました"));
}

} // namespace ListExport
