#include "intake/DriveListBox.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QStorageInfo>

#include <algorithm>

namespace {

constexpr int kFolderRole = Qt::UserRole;
constexpr int kKindRole = Qt::UserRole + 1;

// Where extra and removable disks are mounted: by hand under /mnt, by the desktop's automounter
// under /media or /run/media, one or two levels down (with or without the user's name).
bool IsMediaMount(const QString& mountPoint)
{
    static const QRegularExpression media(QStringLiteral("^(/mnt(/[^/]+)?|/media/[^/]+(/[^/]+)?|/run/media/[^/]+/[^/]+)$"));
    return media.match(mountPoint).hasMatch();
}

QString Clean(const QString& path) { return QDir::cleanPath(QFileInfo(path).absoluteFilePath()); }

// True when folder is path or one of its ancestors.
bool Holds(const QString& folder, const QString& path)
{
    if (folder == QLatin1String("/"))
        return path.startsWith(QLatin1Char('/'));
    return path == folder || path.startsWith(folder + QLatin1Char('/'));
}

} // namespace

DriveListBox::DriveListBox(QWidget* parent) : QComboBox(parent)
{
    connect(this, &QComboBox::currentIndexChanged, this, &DriveListBox::Change);
    Refresh();
}

QString DriveListBox::Drive() const { return currentData(kFolderRole).toString(); }

int DriveListBox::addEntry(const QString& folder, Kind kind)
{
    const int found = findData(folder, kFolderRole);
    if (found >= 0)
        return found;
    QString caption = folder;
    if (kind == Volume) {
        const QString label = QStorageInfo(folder).name();
        if (!label.isEmpty() && label != QFileInfo(folder).fileName())
            caption += QStringLiteral(" [") + label + QLatin1Char(']');
    }
    addItem(caption);
    setItemData(count() - 1, folder, kFolderRole);
    setItemData(count() - 1, int(kind), kKindRole);
    setItemData(count() - 1, folder, Qt::ToolTipRole);
    return count() - 1;
}

int DriveListBox::AddDrive(const QString& mountPoint) { return addEntry(Clean(mountPoint), Volume); }

void DriveListBox::SetDrive(const QString& path)
{
    const QString target = Clean(path);
    int best = -1;
    for (int i = 0; i < count(); ++i) {
        const QString folder = itemData(i, kFolderRole).toString();
        if (Holds(folder, target) && (best < 0 || folder.size() > itemData(best, kFolderRole).toString().size()))
            best = i;
    }
    setCurrentIndex(best >= 0 ? best : addEntry(QStringLiteral("/"), Root));
}

bool DriveListBox::DriveReady() const
{
    const QString folder = Drive();
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        return false;
    if (currentData(kKindRole).toInt() != Volume)
        return true;
    // an empty mount point left behind by an unmounted disk is a folder of the volume above it
    const QStorageInfo volume(folder);
    return volume.isValid() && volume.isReady() && Clean(volume.rootPath()) == folder;
}

void DriveListBox::Refresh()
{
    const QString chosen = Drive();
    const int chosenKind = currentData(kKindRole).toInt();
    QStringList volumes;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QString mountPoint = Clean(volume.rootPath());
        if (volume.isValid() && IsMediaMount(mountPoint) && !volumes.contains(mountPoint))
            volumes << mountPoint;
    }
    std::sort(volumes.begin(), volumes.end());

    const QSignalBlocker quiet(this);
    clear();
    addEntry(QStringLiteral("/"), Root);
    addEntry(Clean(QDir::homePath()), Home);
    for (const QString& mountPoint : volumes)
        addEntry(mountPoint, Volume);
    if (!chosen.isEmpty())
        setCurrentIndex(addEntry(chosen, Kind(chosenKind)));
}

void DriveListBox::showPopup()
{
    Refresh();
    QComboBox::showPopup();
}
