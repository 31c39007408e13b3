#pragma once

#include "platform/app/InstanceLock.h"
#include "platform/ui/CommonDialog.h"
#include "platform/ui/Form.h"

#include <QIcon>
#include <QList>

#include <array>
#include <memory>

class MainList;
class QAction;
class QMenu;
class QMenuBar;

namespace ui {
class FlexGrid;
class StatusBar;
} // namespace ui

// The main window: it starts first and lives to the end. It owns the start (previous instance,
// settings, the one connection, the list of the current view), the end (Mnu_Program_Quit saves
// size and place and closes the connection; the close box only unloads), and the menu tree
// through which every other window is reached. The list itself is MainList over MSFlexGrid_Main.
class frm_Main : public ui::SingleForm<frm_Main> {
    Q_OBJECT

public:
    frm_Main();
    ~frm_Main() override;

    // The list routines and members (ListReady, CurrentRow, CurrentMainKey ...) over the grid;
    // null until Form_Load has passed the previous-instance test.
    MainList* List() const { return m_list.get(); }

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_Files;
    QAction* Mnu_Read_Sondex;
    QAction* Mnu_View_INPORT;
    QAction* Mnu_View_EXPORT;
    QAction* Mnu_Program_Quit;
    QMenu* Mnu_Edit;
    QAction* Mnu_AddNew;
    QAction* Mnu_Search;
    QAction* Mnu_Delete;
    QAction* Mnu_ReplacePC;
    QMenu* Mnu_Managements;
    QAction* Mnu_Edit_Users;
    std::array<QAction*, 6> Mnu_Edit_Table{}; // indexes 1 to 5
    QAction* Mnu_Edit_profile;
    QAction* Mnu_Edit_License;
    QAction* Mnu_Mail_Manegement;
    QAction* Mnu_Network_Manegement;
    QAction* View_ApplicationList;
    QAction* Mnu_PrinterList;
    QMenu* Mnu_View;
    QAction* Mnu_About;
    QAction* Mnu_ViewUpdate;
    QAction* Mnu_View_Select;
    ui::StatusBar* StatusBar1;
    ui::CommonDialog CommonDialog1;
    ui::FlexGrid* MSFlexGrid_Main;
    QList<QIcon> ImageList1;

    // the menu commands and grid events of this window
    void Mnu_Read_Sondex_Click();
    void Mnu_View_INPORT_Click();
    void Mnu_View_EXPORT_Click();
    void Mnu_Program_Quit_Click();
    void Mnu_AddNew_Click();
    void Mnu_Search_Click();
    void Mnu_Delete_Click();
    void Mnu_ReplacePC_Click();
    void Mnu_Edit_Users_Click();
    void Mnu_Edit_Table_Click(int index);
    void Mnu_Edit_profile_Click();
    void Mnu_Edit_License_Click();
    void Mnu_Mail_Manegement_Click();
    void Mnu_Network_Manegement_Click();
    void View_ApplicationList_Click();
    void Mnu_PrinterList_Click();
    void Mnu_About_Click();
    void Mnu_ViewUpdate_Click();
    void Mnu_View_Select_Click();
    void MSFlexGrid_Main_Click();
    void MSFlexGrid_Main_DblClick();

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void Form_LostFocus() override;
    void Form_QueryUnload(int& cancel, int unloadMode) override;

private:
    void buildMenus();
    void buildClientArea();
    // Keeps the main window's place (and size) in the globals that the windows opened over it
    // read and that the quit writes to DB.ini; a value of 0 or less is not kept.
    void rememberGeometry(bool withSize);
    // Unloads every loaded window, one by one, in the order they were loaded.
    void unloadAllForms();
    // A list command on the list, once the load has made it.
    void runListCommand(void (*command)(MainList&));

    app::InstanceLock m_instance;
    std::unique_ptr<MainList> m_list;
    QWidget* m_client = nullptr;
};
