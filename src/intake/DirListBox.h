#pragma once

#include <QListWidget>
#include <QString>

// The folder list of the read window: the current folder's ancestors from the root down, the
// folder itself, then its subfolders by name (hidden ones left out), each indented by its depth.
// Activating an entry (double-click or Enter) goes to that folder. Change is emitted whenever
// the folder changes, by the user or by SetPath.
class DirListBox : public QListWidget {
    Q_OBJECT

public:
    explicit DirListBox(QWidget* parent = nullptr);

    // The folder shown, absolute and without a trailing "/" (but "/" itself).
    QString Path() const { return m_path; }
    // Goes to a folder and lists it again. A path that is no folder raises error 76 and changes
    // nothing.
    void SetPath(const QString& path);
    // The folder of the entry at row, "" outside the list.
    QString FolderAt(int row) const;

Q_SIGNALS:
    void Change();

private:
    void fill();
    void go(const QString& folder);

    QString m_path;
};
