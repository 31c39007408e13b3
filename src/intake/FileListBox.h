#pragma once

#include "platform/ui/ListBox.h"

#include <QString>

// The file list of the read window: the files of one folder that match the pattern, by name,
// several selectable at once (Ctrl and Shift with the mouse or the keys), with the list box's
// Click.
class FileListBox : public ui::ListBox {
    Q_OBJECT

public:
    explicit FileListBox(QWidget* parent = nullptr);

    QString Path() const { return m_path; }
    // Lists the files of a folder. A path that is no folder raises error 76 and changes nothing.
    void SetPath(const QString& path);
    QString Pattern() const { return m_pattern; }
    // Patterns as "*.csv", several separated by ";"; letter case does not count, as it did not
    // on the systems the inventory files come from.
    void SetPattern(const QString& pattern);
    // Lists the folder again.
    void Refresh();

private:
    QString m_path;
    QString m_pattern = QStringLiteral("*");
};
