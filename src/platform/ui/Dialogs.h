#pragma once

#include <QString>

#include <optional>

class QPrinter;

// The one seam through which every message box, input box and common dialog of the program is
// shown. The program installs the Qt provider; tests install a scripted one that records what
// was shown (texts, titles, buttons, icons) and answers as told; the companion program installs
// one that prints to standard error and never waits.
namespace ui {

// MsgBox buttons and icons, with VB's numbers.
enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
    vbDefaultButton3 = 512,
};

// MsgBox answers, with VB's numbers.
enum MsgBoxResult : int { vbOK = 1, vbCancel = 2, vbAbort = 3, vbRetry = 4, vbIgnore = 5, vbYes = 6, vbNo = 7 };

// The line break of the system's messages (vbCrLf).
inline const QString vbCrLf = QStringLiteral("\r\n");

// What a common file dialog is asked to show, in the CommonDialog control's terms.
struct FileDialogRequest {
    enum Kind { Open, Save };
    Kind kind = Open;
    QString title;       // DialogTitle
    QString filter;      // "description|pattern|description|pattern"
    int filterIndex = 1; // 1-based
    QString fileName;    // FileName as set before showing
    QString defaultExt;
    QString initDir;
    long flags = 0;
};

// What a printer dialog is asked to show: the print dialog, or its setup form (page and printer
// choice) when the flags carry cdlPDPrintSetup. The chosen settings go into the printer.
struct PrinterDialogRequest {
    enum Kind { Print, PrintSetup };
    Kind kind = Print;
    long flags = 0;
    QPrinter* printer = nullptr; // not owned; null for the run's own default printer
};

class DialogProvider {
public:
    virtual ~DialogProvider() = default;
    // title is the one shown: never empty (the caller put in App.Title).
    virtual int MessageBox(const QString& prompt, int buttons, const QString& title) = 0;
    // std::nullopt when cancelled.
    virtual std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& defaultText) = 0;
    // The chosen path, or std::nullopt when cancelled.
    virtual std::optional<QString> FileDialog(const FileDialogRequest& request) = 0;
    // True when the user confirmed, false when cancelled.
    virtual bool PrinterDialog(const PrinterDialogRequest& request) = 0;
};

// The provider in use; the Qt one unless another was installed.
DialogProvider& Dialogs();
// Installs a provider (not owned); nullptr goes back to the Qt one.
void SetDialogs(DialogProvider* provider);

// VB's MsgBox: an empty title shows App.Title.
int MsgBox(const QString& prompt, int buttons = vbOKOnly, const QString& title = QString());
// VB's InputBox: "" when cancelled.
QString InputBox(const QString& prompt, const QString& title = QString(), const QString& defaultText = QString());

} // namespace ui
