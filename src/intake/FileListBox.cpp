#include "intake/FileListBox.h"

#include "platform/vb/VbError.h"

#include <QDir>
#include <QFileInfo>

FileListBox::FileListBox(QWidget* parent) : ui::ListBox(parent) { setSelectionMode(QAbstractItemView::ExtendedSelection); }

void FileListBox::SetPath(const QString& path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.isDir())
        throw vb::VbError::PathNotFound();
    m_path = QDir::cleanPath(info.absoluteFilePath());
    Refresh();
}

void FileListBox::SetPattern(const QString& pattern)
{
    m_pattern = pattern;
    Refresh();
}

void FileListBox::Refresh()
{
    clear();
    if (m_path.isEmpty())
        return;
    const QStringList patterns = m_pattern.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    // QDir's name filters ignore letter case unless told otherwise
    addItems(QDir(m_path).entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase));
}
