#include "platform/ui/Dialogs.h"

#include "platform/app/App.h"
#include "platform/ui/QtDialogs.h"

namespace ui {

namespace {
DialogProvider* g_provider = nullptr;
} // namespace

DialogProvider& Dialogs()
{
    if (g_provider)
        return *g_provider;
    static QtDialogs qt;
    return qt;
}

void SetDialogs(DialogProvider* provider) { g_provider = provider; }

int MsgBox(const QString& prompt, int buttons, const QString& title)
{
    return Dialogs().MessageBox(prompt, buttons, title.isEmpty() ? app::Title() : title);
}

QString InputBox(const QString& prompt, const QString& title, const QString& defaultText)
{
    return Dialogs().InputBox(prompt, title.isEmpty() ? app::Title() : title, defaultText).value_or(QString());
}

} // namespace ui
