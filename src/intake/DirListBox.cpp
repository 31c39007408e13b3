#include "intake/DirListBox.h"

#include "platform/ui/Dispatch.h"
#include "platform/vb/VbError.h"

#include <QDir>
#include <QFileInfo>
#include <QStyle>

namespace {

constexpr int kFolderRole = Qt::UserRole;
// blanks of indent per level
constexpr int kIndent = 2;

} // namespace

DirListBox::DirListBox(QWidget* parent) : QListWidget(parent)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { ui::Dispatch([this, folder = item->data(kFolderRole).toString()] { go(folder); }); });
}

QString DirListBox::FolderAt(int row) const
{
    const QListWidgetItem* entry = item(row);
    return entry ? entry->data(kFolderRole).toString() : QString();
}

void DirListBox::SetPath(const QString& path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.isDir())
        throw vb::VbError::PathNotFound();
    const QString folder = QDir::cleanPath(info.absoluteFilePath());
    const bool changed = folder != m_path;
    m_path = folder;
    fill();
    if (changed)
        Q_EMIT Change();
}

void DirListBox::go(const QString& folder)
{
    // A folder removed since the list was made is no error of the user's: the list is made again.
    if (QFileInfo(folder).isDir())
        SetPath(folder);
    else
        fill();
}

void DirListBox::fill()
{
    clear();
    const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QIcon closed = style()->standardIcon(QStyle::SP_DirClosedIcon);
    auto add = [this](const QString& folder, const QString& name, int depth, const QIcon& icon) {
        auto* entry = new QListWidgetItem(icon, QString(depth * kIndent, QLatin1Char(' ')) + name, this);
        entry->setData(kFolderRole, folder);
        entry->setToolTip(folder);
        return entry;
    };

    // "/home/user" gives "/", "home", "user"
    const QStringList parts = m_path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    QString folder = QStringLiteral("/");
    QListWidgetItem* current = add(folder, folder, 0, open);
    for (qsizetype i = 0; i < parts.size(); ++i) {
        folder = (i == 0 ? QString() : folder) + QLatin1Char('/') + parts[i];
        current = add(folder, parts[i], int(i) + 1, open);
    }
    const QDir dir(m_path);
    for (const QString& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase))
        add(dir.filePath(name), name, int(parts.size()) + 1, closed);
    setCurrentItem(current);
}
