#include "intake/frm_Open.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "intake/DirListBox.h"
#include "intake/DriveListBox.h"
#include "intake/FileListBox.h"
#include "intake/InventoryRead.h"
#include "platform/app/App.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FixedSize.h"
#include "platform/ui/Menus.h"
#include "platform/vb/FixedArray.h"
#include "platform/vb/VbError.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

using Mdl_Access_mdb::StandardErrorBox;

namespace {

// the window's fixed size, in twips
constexpr int kWidth = 6165;
constexpr int kHeight = 5430;

} // namespace

frm_Open::frm_Open()
{
    setObjectName(QStringLiteral("frm_Open"));
    setWindowTitle(QStringLiteral("データ読み込み"));
    buildMenus();
    buildControls();
}

void frm_Open::buildMenus()
{
    MenuBar = ui::AddMenuBar(this);
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", QStringLiteral("ファイル"));
    Mnu_ReadCSV = ui::AddMenuItem(Mnu_File, "Mnu_ReadCSV", "Sondex ファイル読込み", [this] { Mnu_ReadCSV_Click(); });
    // the blank is the caption's
    Mnu_Read_English = ui::AddMenuItem(Mnu_File, "Mnu_Read_English", "Read Sondex Data (English) ", [this] { Mnu_Read_English_Click(); });
    Mnu_Close = ui::AddMenuItem(Mnu_File, "Mnu_Close", "閉じる", [this] { Mnu_Close_Click(); });
}

void frm_Open::buildControls()
{
    auto label = [this](const char* name, const char* caption, QWidget* buddy) {
        auto* l = new QLabel(QString::fromUtf8(caption), this);
        l->setObjectName(QString::fromUtf8(name));
        l->setBuddy(buddy);
        return l;
    };
    Drive1 = new DriveListBox(this);
    Drive1->setObjectName(QStringLiteral("Drive1"));
    Dir1 = new DirListBox(this);
    Dir1->setObjectName(QStringLiteral("Dir1"));
    File1 = new FileListBox(this);
    File1->setObjectName(QStringLiteral("File1"));
    Label1 = label("Label1", "ドライブ(&D)：", Drive1);
    Label2 = label("Label2", "フォルダ(&R)：", Dir1);
    Label3 = label("Label3", "ファイル(&N)：", File1);

    Frame1 = new QGroupBox(QStringLiteral("ファイル名："), this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    lblCurName = new QLabel(Frame1);
    lblCurName->setObjectName(QStringLiteral("lblCurName"));
    lblCurName->setWordWrap(true);
    lblCurName->setTextFormat(Qt::PlainText);
    auto* frameLayout = new QVBoxLayout(Frame1);
    frameLayout->setContentsMargins(6, 2, 6, 4);
    frameLayout->addWidget(lblCurName);

    ProgressBar1 = new QProgressBar(this);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setTextVisible(false);
    // the bar's place stays kept while it is hidden, so that the lists do not jump when it shows
    QSizePolicy keep = ProgressBar1->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    ProgressBar1->setSizePolicy(keep);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(3);
    grid->addWidget(Label1, 0, 0);
    grid->addWidget(Drive1, 1, 0);
    grid->addWidget(Label2, 2, 0);
    grid->addWidget(Dir1, 3, 0);
    grid->addWidget(Label3, 0, 1);
    grid->addWidget(File1, 1, 1, 3, 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(MenuBar);
    layout->setContentsMargins(8, 6, 8, 8);
    layout->setSpacing(6);
    layout->addLayout(grid, 1);
    layout->addWidget(Frame1);
    layout->addWidget(ProgressBar1);

    ui::Connect(Drive1, &DriveListBox::Change, this, [this] { Drive1_Change(); });
    ui::Connect(Dir1, &DirListBox::Change, this, [this] { Dir1_Change(); });
    ui::Connect(File1, &FileListBox::Click, this, [this] { File1_Click(); });
}

void frm_Open::Form_Load()
{
    ui::FixedSize::Apply(*this, kWidth, kHeight);
    const QString folder = app::Path();
    SetFileNames(folder);
    // the lists start in the program folder, which also becomes the process's current folder
    QDir::setCurrent(folder);
    {
        // Choosing the drive would take Dir1 to the drive's root first; the program folder
        // follows at once, so that detour is left out.
        const QSignalBlocker quiet(Drive1);
        Drive1->SetDrive(folder);
    }
    Dir1->SetPath(folder); // Dir1_Change lists the folder in File1
    File1->SetPath(folder);
    File1->SetPattern(QStringLiteral("*.csv"));
    Mnu_ReadCSV->setEnabled(false);
    ProgressBar1->setVisible(false);
    Mnu_Read_English->setEnabled(true);
}

QString frm_Open::JoinPath(const QString& folder, const QString& name)
{
    if (folder.endsWith(QLatin1Char('/')))
        return folder + name;
    return folder + QLatin1Char('/') + name;
}

void frm_Open::SetFileNames(const QString& path)
{
    FullPath = path;
    FileTitle.clear();
    const QFileInfo info(path);
    if (info.isDir()) {
        FolderPath = path;
    } else if (!info.fileName().isEmpty()) {
        // A path without a name part (one ending in "/") has no title: FolderPath stays as it was.
        FileTitle = info.fileName();
        FolderPath = FullPath.left(FullPath.size() - FileTitle.size());
    }
    lblCurName->setText(FullPath);
}

void frm_Open::Drive1_Change()
{
    try {
        // a disk unmounted since the list was made counts as a drive without a medium
        if (!Drive1->DriveReady())
            throw vb::VbError::DeviceUnavailable();
        Dir1->SetPath(Drive1->Drive());
    } catch (const vb::VbError& e) {
        if (e.Number() == vb::Err::DeviceUnavailable) {
            ui::MsgBox(QStringLiteral("ディスクをセットしてください"));
            // The list goes back to the drive of the folder still shown, rather than naming a
            // drive that the folder list is not on.
            const QSignalBlocker quiet(Drive1);
            Drive1->SetDrive(Dir1->Path());
            return;
        }
        StandardErrorBox(e);
        app::End(0);
    }
}

void frm_Open::Dir1_Change()
{
    File1->SetPath(Dir1->Path());
    // the folder stands in all three, FileTitle included
    FullPath = Dir1->Path();
    FolderPath = Dir1->Path();
    FileTitle = Dir1->Path();
    lblCurName->setText(FullPath);
}

void frm_Open::File1_Click()
{
    const QListWidgetItem* current = File1->currentItem();
    SetFileNames(JoinPath(File1->Path(), current ? current->text() : QString()));
    if (!Mnu_ReadCSV->isEnabled())
        Mnu_ReadCSV->setEnabled(true);
}

void frm_Open::Mnu_ReadCSV_Click() { readSelectedFiles(InventoryLanguage::Japanese); }

void frm_Open::Mnu_Read_English_Click() { readSelectedFiles(InventoryLanguage::English); }

void frm_Open::Mnu_Close_Click() { Unload(); }

void frm_Open::readSelectedFiles(InventoryLanguage language)
{
    const bool japanese = language == InventoryLanguage::Japanese;
    const int count = File1->count();
    if (count == 0)
        return;

    // Up to the first selected file a failure ends the command: the English reader shows it,
    // the Japanese one has no handler and the failure is fatal. From that file to the end every
    // failing statement is skipped and the next one runs.
    bool resuming = false;
    auto step = [&resuming](auto&& statement) {
        if (resuming)
            vb::ResumeNext(statement);
        else
            statement();
    };
    try {
        Mnu_ReadCSV->setEnabled(false);
        if (japanese) {
            ProgressBar1->setVisible(true);
            // The bar follows the place in the whole list, 0 to the last index. A list of one
            // file has no range (0 to 0), which a Qt bar shows as "busy" forever; it gets one
            // step instead and is full at its one entry.
            ProgressBar1->setMaximum(count > 1 ? count - 1 : 1);
            ProgressBar1->setMinimum(0);
        }
        // The selected files, and where each stands in the whole list. The bar walks the list
        // up to the place of the last file that is in the ledger: a file counts only once the
        // commit that holds it has succeeded.
        QStringList paths;
        std::vector<int> places;
        for (int i = 0; i < count; ++i) {
            if (File1->item(i)->isSelected()) {
                paths << JoinPath(File1->Path(), File1->item(i)->text());
                places.push_back(i);
            }
        }
        int shown = -1;
        auto walkTo = [&](int place) {
            if (!japanese)
                return;
            for (; shown < place; ++shown) {
                const int i = shown + 1;
                step([&] {
                    ProgressBar1->setValue(count > 1 ? i : 1);
                    // the run holds the event loop: the bar is painted now or not at all
                    ProgressBar1->repaint();
                });
            }
        };
        resuming = !paths.isEmpty();
        // a refused file is skipped without a word
        size_t reported = 0;
        const InventoryRunResult run = ReadInventoryFiles(paths, language, [&](const InventoryFileResult& r) {
            const int place = places[reported++];
            if (r.outcome != InventoryFileResult::NotWritten && r.outcome != InventoryFileResult::NotAttempted)
                walkTo(place);
        });
        if (run.failure) {
            // The ledger could not be written: the files of the lost batch are not in it, and the
            // read stopped. Say so instead of the end message, and list what the ledger holds.
            StandardErrorBox(*run.failure);
        } else {
            walkTo(count - 1);
            step([&] { ui::MsgBox(japanese ? QStringLiteral("読み込みが完了しました。") : QStringLiteral("Process Comprete")); });
        }
        step([&] {
            if (Mdl_gData::g.RefillMainList)
                Mdl_gData::g.RefillMainList();
        });
        step([&] { Mnu_ReadCSV->setEnabled(false); });
    } catch (const vb::VbError& e) {
        if (japanese)
            throw;
        StandardErrorBox(e);
    }
}
