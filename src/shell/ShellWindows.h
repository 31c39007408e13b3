#pragma once

class frm_Main;
class frmAbout;

namespace ui {
class Form;
}

// The auto-created instances of the windows the main window opens: each is created and loaded
// on first use and ends at its unload; the next use creates a fresh one.
namespace ShellWindows {

frm_Main& Main();
frm_Main* MainIfLoaded();
frmAbout& About();

// The windows of the later subsystems. Until each subsystem brings its own window these are
// placeholders with the window's name (PlaceholderForm); the subsystem's change replaces the
// instance here with its window class.
ui::Form& frm_Open();
ui::Form& frm_Inport();
ui::Form& frm_Edit_User();
ui::Form& frm_Edit_Table();
ui::Form& frm_Edit_Computer();
ui::Form& frm_Edit_License();
ui::Form& frm_Edit_Mail();
ui::Form& frm_Edit_Network();
ui::Form& frm_List_Application();
ui::Form& frm_List_Printer();
ui::Form& frm_SelectView();

} // namespace ShellWindows
