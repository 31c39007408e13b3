#include "mail/MailExport.h"

#include "assetlist/ListExport.h"
#include "mail/MailList.h"
#include "platform/text/AnsiFile.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/FlexGrid.h"
#include "platform/vb/VbError.h"

namespace MailExport {

namespace {

// the last column the beat-box list writes
constexpr int kLastBeatBoxCol = 11;

// The cells of a row from column 0 to lastCol, the hidden key left out, each followed by ",".
QString cellsOf(const ui::FlexGrid& grid, int row, int lastCol)
{
    QString line;
    for (int col = 0; col <= lastCol; ++col) {
        if (col == MailList::Key)
            continue;
        line += grid.TextMatrix(row, col);
        line += u',';
    }
    return line;
}

void writeFullList(const ui::FlexGrid& grid, text::AnsiFile& file, int lastRow, int lastCol)
{
    for (int row = 0; row <= lastRow; ++row) {
        QString line = cellsOf(grid, row, lastCol);
        if (row == 0)
            line.prepend(QStringLiteral("#,"));
        line += u' ';
        file.WriteLine(line);
    }
}

void writeAddressBook(const ui::FlexGrid& grid, text::AnsiFile& file, int lastRow)
{
    file.WriteLine(QStringLiteral("表示名,電子メール アドレス,オフィスの場所,部署名,メモ"));
    for (int row = 1; row <= lastRow; ++row) {
        const auto cell = [&](int col) { return grid.TextMatrix(row, col); };
        const QString line = cell(MailList::UserName) + u',' + cell(MailList::MailAddress) + u',' + cell(MailList::LocationName) + u','
                             + cell(MailList::SectionName) + cell(MailList::DivisionName) + u',' + cell(MailList::ComputerName);
        file.WriteLine(line);
    }
}

void writeBeatBox(const ui::FlexGrid& grid, text::AnsiFile& file, int lastRow)
{
    for (int row = 0; row <= lastRow; ++row) {
        QString line = cellsOf(grid, row, kLastBeatBoxCol);
        // the heading's first field, "Key", becomes "#"
        if (row == 0)
            line = QStringLiteral("#,") + line.mid(line.indexOf(u',') + 1);
        line += QStringLiteral("残さない,FALSE");
        file.WriteLine(line);
    }
}

} // namespace

void WriteGrid(const ui::FlexGrid& grid, Form form, const QString& path)
{
    text::AnsiFile file(path);
    const int lastRow = grid.Rows() - 1;
    switch (form) {
    case Form::FullList: writeFullList(grid, file, lastRow, grid.Cols() - 1); break;
    case Form::AddressBook: writeAddressBook(grid, file, lastRow); break;
    case Form::BeatBox: writeBeatBox(grid, file, lastRow); break;
    }
    file.Close();
}

void ExportGrid(const ui::FlexGrid& grid, Form form)
{
    try {
        WriteGrid(grid, form, ListExport::ChooseCsvFile(QStringLiteral("CSV書き出し")));
    } catch (const vb::VbError&) {
        return;
    }
    ui::MsgBox(QStringLiteral("完了しました"));
}

} // namespace MailExport
