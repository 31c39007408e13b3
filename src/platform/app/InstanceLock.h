#pragma once

#include <QString>

#include <memory>

class QLockFile;

namespace app {

// The previous-instance test: one running program per program folder, since both share the
// ledger and DB.ini that lie there. The lock is a file beside them holding the process id; a lock
// left by a run that was killed or crashed names a process that no longer lives and is taken
// over, so only a live instance refuses a new start.
class InstanceLock {
public:
    // The lock of a program folder; app::Path() when none is given.
    explicit InstanceLock(const QString& folder = QString());
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    // Takes the lock. False only when another live instance holds it: a folder where no lock
    // file can be written does not stop the program, as App.PrevInstance would not have.
    bool Acquire();
    bool Held() const { return m_held; }
    void Release();

    // The lock file's name in the program folder.
    static QString FileName();
    // Releases every held lock; app::End calls it, since an ended program destroys no window.
    static void ReleaseAll();

private:
    std::unique_ptr<QLockFile> m_file;
    bool m_held = false;
};

} // namespace app
