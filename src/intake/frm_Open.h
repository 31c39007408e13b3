#pragma once

#include "intake/InventoryFieldMap.h"
#include "platform/ui/Form.h"

#include <QString>

class DirListBox;
class DriveListBox;
class FileListBox;
class QAction;
class QGroupBox;
class QLabel;
class QMenu;
class QMenuBar;
class QProgressBar;

// The bulk read window: the user picks a drive, a folder and any number of inventory files, and
// one of two commands reads every selected file, in the Japanese or the English reader, each
// into a new computer. The reading itself is InventoryReader's, the same as fenwold-admin read;
// this window adds the choice of files, the progress bar, the end message and the refresh of the
// main list. Opened modally from the main window; its size is fixed.
class frm_Open : public ui::SingleForm<frm_Open> {
    Q_OBJECT

public:
    frm_Open();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mnu_ReadCSV;
    QAction* Mnu_Read_English;
    QAction* Mnu_Close;
    QLabel* Label1;
    DriveListBox* Drive1;
    QLabel* Label2;
    DirListBox* Dir1;
    QLabel* Label3;
    FileListBox* File1;
    QGroupBox* Frame1;
    QLabel* lblCurName;
    QProgressBar* ProgressBar1;

    // The path last given to SetFileNames (or the folder Dir1 went to), its folder part and its
    // file part. The read commands do not use them: they walk File1's selection.
    QString FullPath;
    QString FolderPath;
    QString FileTitle;

    // The folder and the name joined by one "/"; a folder that ends in one ("/") gets none added.
    static QString JoinPath(const QString& folder, const QString& name);
    // Takes a path as the current one: for a folder, FolderPath is the path and FileTitle empty;
    // for a file, FileTitle is its name and FolderPath the path without it (the "/" kept).
    // lblCurName shows the path.
    void SetFileNames(const QString& path);

    // events
    void Drive1_Change();
    void Dir1_Change();
    void File1_Click();
    void Mnu_ReadCSV_Click();
    void Mnu_Read_English_Click();
    void Mnu_Close_Click();

protected:
    void Form_Load() override;

private:
    void buildMenus();
    void buildControls();
    // The run that both read commands share.
    void readSelectedFiles(InventoryLanguage language);
};
