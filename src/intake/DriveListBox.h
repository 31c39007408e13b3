#pragma once

#include <QComboBox>
#include <QString>

// The drive list of the read window. Linux has no drive letters; what stands for them here are
// the places where a user starts to look for files: the root "/", the user's home folder, and
// the volumes mounted where extra and removable disks go (/mnt and the folders right under it,
// /media/NAME, /media/USER/NAME, /run/media/USER/NAME), shown with their volume label where they
// have one. System mounts (/proc, /dev, /sys, /run and the like) are left out: they hold no
// inventory files, and all of them can still be reached from "/".
//
// The drive of a path is the longest listed entry that holds it, so a folder under the home
// folder is on the home drive and any other folder is at least on "/". The list is made again
// each time it drops down, so that a medium mounted meanwhile shows. Change is emitted whenever
// the chosen drive changes, by the user or by SetDrive.
class DriveListBox : public QComboBox {
    Q_OBJECT

public:
    explicit DriveListBox(QWidget* parent = nullptr);

    // The folder of the chosen drive, without a trailing "/" (but "/" itself); "" when none.
    QString Drive() const;
    // Chooses the drive that holds the path.
    void SetDrive(const QString& path);
    // Adds a mounted volume by its mount point (one mounted after the list was made) and returns
    // its index; an entry already listed is not added again.
    int AddDrive(const QString& mountPoint);
    // Whether the chosen drive can be listed: its folder exists, and a volume is still mounted
    // there and ready. A volume taken away since the list was made is not.
    bool DriveReady() const;
    // Lists the drives again; the chosen drive stays chosen, listed or not.
    void Refresh();

    void showPopup() override;

Q_SIGNALS:
    void Change();

private:
    enum Kind { Root, Home, Volume };
    int addEntry(const QString& folder, Kind kind);
};
