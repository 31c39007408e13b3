#pragma once

#include "platform/ui/Dialogs.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <optional>
#include <vector>

// A dialog provider for tests: installed for its lifetime, it records every dialog the program
// showed and answers from the queues the test filled. An unscripted message box answers with its
// first button, an unscripted input, file or printer dialog is cancelled.
class ScriptedDialogs : public ui::DialogProvider {
public:
    struct Call {
        enum Kind { Message, Input, File, Printer } kind;
        QString prompt; // message or input prompt; the dialog title for a file dialog
        QString title;
        int buttons = 0; // message box style (buttons | icon)
        ui::FileDialogRequest file;
        ui::PrinterDialogRequest printer;
    };

    ScriptedDialogs();
    ~ScriptedDialogs() override;

    ScriptedDialogs& answerMessage(int result);
    ScriptedDialogs& answerInput(const std::optional<QString>& text);
    ScriptedDialogs& answerFile(const std::optional<QString>& path);
    ScriptedDialogs& answerPrinter(bool confirmed);

    const std::vector<Call>& calls() const { return m_calls; }
    std::vector<Call> messages() const;
    // The prompts of all message boxes, in order.
    QStringList messageTexts() const;
    // The numbers of the errors the error box ("警告") showed, in order.
    std::vector<long> errorBoxes() const;
    void clear() { m_calls.clear(); }

    int MessageBox(const QString& prompt, int buttons, const QString& title) override;
    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& defaultText) override;
    std::optional<QString> FileDialog(const ui::FileDialogRequest& request) override;
    bool PrinterDialog(const ui::PrinterDialogRequest& request) override;

private:
    std::vector<Call> m_calls;
    std::deque<int> m_messages;
    std::deque<std::optional<QString>> m_inputs;
    std::deque<std::optional<QString>> m_files;
    std::deque<bool> m_printers;
};
