#include "platform/app/InstanceLock.h"

#include "platform/app/App.h"

#include <QLockFile>

#include <algorithm>
#include <vector>

namespace app {

namespace {
std::vector<InstanceLock*>& held()
{
    static std::vector<InstanceLock*> locks;
    return locks;
}
} // namespace

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
        held().push_back(this);
        return true;
    }
    return m_file->error() != QLockFile::LockFailedError;
}

void InstanceLock::Release()
{
    if (m_held) {
        m_file->unlock();
        auto& locks = held();
        locks.erase(std::remove(locks.begin(), locks.end(), this), locks.end());
    }
    m_held = false;
}

void InstanceLock::ReleaseAll()
{
    while (!held().empty())
        held().back()->Release();
}

} // namespace app
