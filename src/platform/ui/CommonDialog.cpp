#include "platform/ui/CommonDialog.h"

#include "platform/ui/Dialogs.h"
#include "platform/vb/VbError.h"

#include <QFileInfo>

namespace ui {

void CommonDialog::cancelled() const
{
    if (CancelError)
        throw vb::VbError::CancelSelected();
}

void CommonDialog::showFile(int kind)
{
    FileDialogRequest r;
    r.kind = FileDialogRequest::Kind(kind);
    r.title = DialogTitle;
    r.filter = Filter;
    r.filterIndex = FilterIndex;
    r.fileName = FileName;
    r.defaultExt = DefaultExt;
    r.initDir = InitDir;
    r.flags = Flags;
    const std::optional<QString> chosen = Dialogs().FileDialog(r);
    if (!chosen) {
        cancelled();
        return;
    }
    FileName = *chosen;
    FileTitle = QFileInfo(FileName).fileName();
}

void CommonDialog::ShowOpen() { showFile(FileDialogRequest::Open); }

void CommonDialog::ShowSave() { showFile(FileDialogRequest::Save); }

void CommonDialog::ShowPrinter()
{
    PrinterDialogRequest r;
    r.kind = (Flags & cdlPDPrintSetup) ? PrinterDialogRequest::PrintSetup : PrinterDialogRequest::Print;
    r.flags = Flags;
    r.printer = Printer;
    if (!Dialogs().PrinterDialog(r))
        cancelled();
}

} // namespace ui
