#pragma once

#include <QString>

class QPrinter;

namespace ui {

// The CommonDialog control's flags that the system sets.
enum CommonDialogFlags : long {
    cdlOFNOverwritePrompt = 0x2,
    cdlOFNHideReadOnly = 0x4,
    cdlOFNFileMustExist = 0x1000,
    cdlPDNoSelection = 0x4,
    cdlPDPrintSetup = 0x40,
    cdlPDUseDevModeCopiesAndCollate = 0x40000,
    cdlPDHidePrintToFile = 0x100000,
};

// The CommonDialog control: the properties are set, a Show method shows the dialog through the
// Dialogs seam, and the answer comes back in the properties. With CancelError set, a cancelled
// dialog raises error 32755, which the callers catch to end their command in silence; without
// it, a cancelled dialog leaves FileName as it was.
class CommonDialog {
public:
    bool CancelError = false;
    QString DialogTitle;
    QString Filter;      // "description|pattern|description|pattern"
    int FilterIndex = 1; // 1-based
    QString FileName;    // the full path after a confirmed ShowOpen or ShowSave
    QString FileTitle;   // the name part of FileName
    QString DefaultExt;
    QString InitDir;
    long Flags = 0;
    // The printer that ShowPrinter sets up; null for the run's default printer.
    QPrinter* Printer = nullptr;

    void ShowOpen();
    void ShowSave();
    // The print dialog, or its setup form when Flags carry cdlPDPrintSetup.
    void ShowPrinter();

private:
    void showFile(int kind);
    void cancelled() const;
};

} // namespace ui
