#include "shell/ShellWindows.h"

#include "assetlist/frm_SelectView.h"
#include "intake/frm_Open.h"
#include "platform/ui/FormInstance.h"
#include "shell/PlaceholderForm.h"
#include "shell/frmAbout.h"
#include "shell/frm_Main.h"

namespace ShellWindows {

namespace {
ui::FormInstance<frm_Main> g_main;
ui::FormInstance<frmAbout> g_about;

// A window not built yet: an empty window of that name.
std::function<ui::Form*()> placeholder(const char* name)
{
    return [name] { return new PlaceholderForm(QString::fromUtf8(name)); };
}
} // namespace

frm_Main& Main() { return g_main(); }
frm_Main* MainIfLoaded() { return g_main.IfLoaded(); }
frmAbout& About() { return g_about(); }

ui::Form& frm_Open()
{
    static ui::FormInstance<::frm_Open> instance;
    return instance();
}

ui::Form& frm_Inport()
{
    static ui::FormInstance<ui::Form> instance(placeholder("frm_Inport"));
    return instance();
}

ui::Form& frm_Edit_User()
{
    static ui::FormInstance<ui::Form> instance(placeholder("frm_Edit_User"));
    return instance();
}

ui::Form& frm_Edit_Table()
{
    static ui::FormInstance<ui::Form> instance(placeholder("frm_Edit_Table"));
    return instance();
}

ui::Form& frm_Edit_Computer()
{
    static ui::FormInstance<ui::Form> instance(placeholder("frm_Edit_Computer"));
    return instance();
}

ui::Form& frm_Edit_License()
{
    static ui::FormInstance<ui::Form> instance(placeholder("frm_Edit_License"));
    return instance();
}

ui::Form& frm_Edit_Mail()
{
    static ui::FormInstance<ui::Form> instance(placeholder("frm_Edit_Mail"));
    return instance();
}

ui::Form& frm_Edit_Network()
{
    static ui::FormInstance<ui::Form> instance(placeholder("frm_Edit_Network"));
    return instance();
}

ui::Form& frm_List_Application()
{
    static ui::FormInstance<ui::Form> instance(placeholder("frm_List_Application"));
    return instance();
}

ui::Form& frm_List_Printer()
{
    static ui::FormInstance<ui::Form> instance(placeholder("frm_List_Printer"));
    return instance();
}

ui::Form& frm_SelectView()
{
    static ui::FormInstance<::frm_SelectView> instance;
    return instance();
}

} // namespace ShellWindows
