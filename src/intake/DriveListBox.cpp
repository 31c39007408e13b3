#include "intake/DriveListBox.h"

#include <QSignalBlocker>
#include <QStorageInfo>

#include <algorithm>

namespace {

constexpr int kMountPointRole = Qt::UserRole;

QString caption(const QString& mountPoint)
{
    const QString label = QStorageInfo(mountPoint).name();
    return label.isEmpty() ? mountPoint : mountPoint + QStringLiteral(" [") + label + QStringLiteral("]");
}

} // namespace

DriveListBox::DriveListBox(QWidget* parent) : QComboBox(parent)
{
    connect(this, &QComboBox::currentIndexChanged, this, &DriveListBox::Change);
    Refresh();
}

QString DriveListBox::Drive() const { return currentData(kMountPointRole).toString(); }

int DriveListBox::AddDrive(const QString& mountPoint)
{
    const int found = findData(mountPoint, kMountPointRole);
    if (found >= 0)
        return found;
    addItem(caption(mountPoint), mountPoint);
    return count() - 1;
}

void DriveListBox::SetDrive(const QString& path)
{
    const QStorageInfo volume(path);
    setCurrentIndex(AddDrive(volume.isValid() ? volume.rootPath() : QStringLiteral("/")));
}

void DriveListBox::Refresh()
{
    const QString chosen = Drive();
    QStringList mountPoints;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (volume.isValid() && !mountPoints.contains(volume.rootPath()))
            mountPoints << volume.rootPath();
    }
    mountPoints.removeAll(QStringLiteral("/"));
    std::sort(mountPoints.begin(), mountPoints.end());
    mountPoints.prepend(QStringLiteral("/"));

    const QSignalBlocker quiet(this);
    clear();
    for (const QString& mountPoint : mountPoints)
        AddDrive(mountPoint);
    if (!chosen.isEmpty())
        setCurrentIndex(AddDrive(chosen));
}

void DriveListBox::showPopup()
{
    Refresh();
    QComboBox::showPopup();
}
