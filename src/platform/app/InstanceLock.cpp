#include "platform/app/InstanceLock.h"

#include "platform/app/App.h"

#include <QLockFile>

namespace app {

QString InstanceLock::FileName() { return QStringLiteral("fenwold.lock"); }

InstanceLock::InstanceLock(const QString& folder)
    : m_file(std::make_unique<QLockFile>((folder.isEmpty() ? Path() : folder) + QLatin1Char('/') + FileName()))
{
    // An instance may run for days: the lock is stale only when its process is gone, never by age.
    m_file->setStaleLockTime(0);
}

InstanceLock::~InstanceLock() { Release(); }

bool InstanceLock::Acquire()
{
    if (m_held)
        return true;
    if (m_file->tryLock(0)) {
        m_held = true;
        return true;
    }
    return m_file->error() != QLockFile::LockFailedError;
}

void InstanceLock::Release()
{
    if (m_held)
        m_file->unlock();
    m_held = false;
}

} // namespace app
