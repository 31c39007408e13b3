#include "platform/ui/QtDialogs.h"

#include "platform/ui/CommonDialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace ui {

namespace {

QString displayText(QString s)
{
    s.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return s;
}

QWidget* parentWindow() { return QApplication::activeWindow(); }

} // namespace

int QtDialogs::MessageBox(const QString& prompt, int buttons, const QString& title)
{
    QMessageBox box(parentWindow());
    box.setWindowTitle(title);
    box.setText(displayText(prompt));
    switch (buttons & 0x70) {
    case vbCritical: box.setIcon(QMessageBox::Critical); break;
    case vbQuestion: box.setIcon(QMessageBox::Question); break;
    case vbExclamation: box.setIcon(QMessageBox::Warning); break;
    case vbInformation: box.setIcon(QMessageBox::Information); break;
    default: box.setIcon(QMessageBox::NoIcon); break;
    }
    struct Button {
        QMessageBox::StandardButton qt;
        int vb;
    };
    std::vector<Button> set;
    switch (buttons & 0x7) {
    case vbOKCancel: set = {{QMessageBox::Ok, vbOK}, {QMessageBox::Cancel, vbCancel}}; break;
    case vbAbortRetryIgnore: set = {{QMessageBox::Abort, vbAbort}, {QMessageBox::Retry, vbRetry}, {QMessageBox::Ignore, vbIgnore}}; break;
    case vbYesNoCancel: set = {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}, {QMessageBox::Cancel, vbCancel}}; break;
    case vbYesNo: set = {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}}; break;
    case vbRetryCancel: set = {{QMessageBox::Retry, vbRetry}, {QMessageBox::Cancel, vbCancel}}; break;
    default: set = {{QMessageBox::Ok, vbOK}}; break;
    }
    QMessageBox::StandardButtons all;
    for (const Button& b : set)
        all |= b.qt;
    box.setStandardButtons(all);
    const size_t def = (buttons & vbDefaultButton3) ? 2 : (buttons & vbDefaultButton2) ? 1 : 0;
    if (def < set.size())
        box.setDefaultButton(set[def].qt);
    // the close box answers as Cancel where there is one, else as the only button
    const int clicked = box.exec();
    for (const Button& b : set)
        if (b.qt == clicked)
            return b.vb;
    return set.size() == 1 ? set.front().vb : vbCancel;
}

std::optional<QString> QtDialogs::InputBox(const QString& prompt, const QString& title, const QString& defaultText)
{
    bool ok = false;
    const QString text = QInputDialog::getText(parentWindow(), title, displayText(prompt), QLineEdit::Normal, defaultText, &ok);
    if (!ok)
        return std::nullopt;
    return text;
}

QStringList QtNameFilters(const QString& vbFilter)
{
    QStringList out;
    const QStringList parts = vbFilter.split(QLatin1Char('|'));
    for (qsizetype i = 0; i < parts.size(); i += 2) {
        const QString& description = parts[i];
        if (i + 1 < parts.size()) {
            QString patterns = parts[i + 1];
            patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
            out << QStringLiteral("%1 (%2)").arg(description, patterns);
        } else {
            out << description;
        }
    }
    return out;
}

std::optional<QString> QtDialogs::FileDialog(const FileDialogRequest& r)
{
    QFileDialog dlg(parentWindow(), r.title);
    dlg.setAcceptMode(r.kind == FileDialogRequest::Save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dlg.setFileMode(r.kind == FileDialogRequest::Save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    const QStringList filters = QtNameFilters(r.filter);
    if (!filters.isEmpty()) {
        dlg.setNameFilters(filters);
        const int index = qBound(1, r.filterIndex, int(filters.size()));
        dlg.selectNameFilter(filters[index - 1]);
    }
    if (!r.initDir.isEmpty())
        dlg.setDirectory(r.initDir);
    if (!r.fileName.isEmpty())
        dlg.selectFile(r.fileName);
    if (!r.defaultExt.isEmpty())
        dlg.setDefaultSuffix(r.defaultExt);
    // The common dialog asks before replacing a file only when its flags say so; Qt's own
    // question would name a file the caller may not write (the list export adds ".csv" to the
    // name chosen) and would be asked where the system asks nothing.
    dlg.setOption(QFileDialog::DontConfirmOverwrite, !(r.flags & cdlOFNOverwritePrompt));
    if (dlg.exec() != QDialog::Accepted || dlg.selectedFiles().isEmpty())
        return std::nullopt;
    return dlg.selectedFiles().first();
}

} // namespace ui

namespace ui {

bool QtDialogs::PrinterDialog(const PrinterDialogRequest& r)
{
    // The run's default printer: its settings last from one dialog to the next, as the printer
    // settings of the session did.
    static QPrinter defaultPrinter(QPrinter::HighResolution);
    QPrinter* printer = r.printer ? r.printer : &defaultPrinter;
    if (r.kind == PrinterDialogRequest::PrintSetup) {
        QPageSetupDialog dlg(printer, parentWindow());
        return dlg.exec() == QDialog::Accepted;
    }
    QPrintDialog dlg(printer, parentWindow());
    QAbstractPrintDialog::PrintDialogOptions options = dlg.options();
    if (r.flags & 0x4) // cdlPDNoSelection
        options &= ~QAbstractPrintDialog::PrintSelection;
    if (r.flags & 0x100000) // cdlPDHidePrintToFile
        options &= ~QAbstractPrintDialog::PrintToFile;
    dlg.setOptions(options);
    return dlg.exec() == QDialog::Accepted;
}

} // namespace ui
