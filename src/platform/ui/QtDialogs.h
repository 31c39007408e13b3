#pragma once

#include "platform/ui/Dialogs.h"

namespace ui {

// The dialogs as the user sees them, with Qt's widgets.
class QtDialogs : public DialogProvider {
public:
    int MessageBox(const QString& prompt, int buttons, const QString& title) override;
    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& defaultText) override;
    std::optional<QString> FileDialog(const FileDialogRequest& request) override;
    bool PrinterDialog(const PrinterDialogRequest& request) override;
};

// Turns a CommonDialog filter ("全て(*.*)|*.*|CSVファイル|*.csv") into Qt's name filters, one per
// description and pattern pair; a description left without a pattern is offered as it is.
QStringList QtNameFilters(const QString& vbFilter);

} // namespace ui
