#include "platform/ui/ConsoleDialogs.h"

#include <cstdio>

namespace ui {

int ConsoleDialogs::MessageBox(const QString& prompt, int buttons, const QString& title)
{
    QString text = prompt;
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text = text.trimmed();
    std::fprintf(stderr, "%s: %s\n", title.toUtf8().constData(), text.toUtf8().constData());
    switch (buttons & 7) {
    case vbYesNo:
    case vbYesNoCancel: return vbYes;
    case vbAbortRetryIgnore: return vbAbort;
    case vbRetryCancel: return vbRetry;
    default: return vbOK;
    }
}

std::optional<QString> ConsoleDialogs::InputBox(const QString&, const QString&, const QString&) { return std::nullopt; }

std::optional<QString> ConsoleDialogs::FileDialog(const FileDialogRequest&) { return std::nullopt; }

bool ConsoleDialogs::PrinterDialog(const PrinterDialogRequest&) { return false; }

} // namespace ui
