#include "platform/app/App.h"

#include "platform/app/InstanceLock.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

namespace app {

namespace {
QString g_path;
QDateTime g_now;
std::function<void(int)> g_end;
} // namespace

QString Path()
{
    if (!g_path.isEmpty())
        return g_path;
    return QCoreApplication::applicationDirPath();
}

void SetPath(const QString& folder)
{
    g_path = folder;
    while (g_path.size() > 1 && g_path.endsWith(QLatin1Char('/')))
        g_path.chop(1);
}

QString Title() { return QStringLiteral("Fenwold"); }

QDateTime Now()
{
    if (g_now.isValid())
        return g_now;
    const QDateTime local = QDateTime::currentDateTime();
    return QDateTime(local.date(), QTime(local.time().hour(), local.time().minute(), local.time().second()), Qt::UTC);
}

void SetNow(const QDateTime& fixed) { g_now = fixed; }

void End(int status)
{
    if (g_end) {
        g_end(status);
        return;
    }
    InstanceLock::ReleaseAll();
    std::fflush(nullptr);
    // static destructors still run: the one ledger connection is closed on the way out
    std::exit(status);
}

void SetEndHook(std::function<void(int)> hook) { g_end = std::move(hook); }

} // namespace app
