#pragma once

#include "platform/ui/Dialogs.h"

namespace ui {

// The dialogs of a program without a window: a message box is written to standard error as
// "title: text" and answered with its first button; input, file and printer dialogs are
// cancelled.
// Nothing ever waits for a person.
class ConsoleDialogs : public DialogProvider {
public:
    int MessageBox(const QString& prompt, int buttons, const QString& title) override;
    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& defaultText) override;
    std::optional<QString> FileDialog(const FileDialogRequest& request) override;
    bool PrinterDialog(const PrinterDialogRequest& request) override;
};

} // namespace ui
