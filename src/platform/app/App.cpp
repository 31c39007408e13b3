#include "platform/app/App.h"

#include <QCoreApplication>

namespace app {

namespace {
QString g_path;
QDateTime g_now;
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

} // namespace app
