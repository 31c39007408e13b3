#pragma once

#include <QComboBox>
#include <QString>

// The drive list of the read window, as Linux has drives: the mounted volumes, "/" first and the
// others by their mount point, each shown with its volume label where it has one. The list is
// made again each time it drops down, so that a medium mounted meanwhile shows. Change is
// emitted whenever the chosen drive changes, by the user or by SetDrive; the list itself does
// not test whether a drive can be used.
class DriveListBox : public QComboBox {
    Q_OBJECT

public:
    explicit DriveListBox(QWidget* parent = nullptr);

    // The mount point of the chosen drive; "" when the list is empty.
    QString Drive() const;
    // Chooses the drive that holds the path; its mount point is added when the list lacks it.
    void SetDrive(const QString& path);
    // Adds a mount point (one mounted after the list was made) and returns its index; a mount
    // point already listed is not added again.
    int AddDrive(const QString& mountPoint);
    // Lists the mounted volumes again; the chosen drive stays chosen, listed or not.
    void Refresh();

    void showPopup() override;

Q_SIGNALS:
    void Change();
};
