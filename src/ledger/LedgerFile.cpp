#include "ledger/LedgerFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <cstddef>

extern const unsigned char kLedgerSchema[];
extern const std::size_t kLedgerSchema_size;

namespace ledger {

QByteArray SchemaSql() { return QByteArray(reinterpret_cast<const char*>(kLedgerSchema), qsizetype(kLedgerSchema_size)); }

QString CreateLedger(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists())
        return QStringLiteral("%1 exists already; a ledger is never overwritten.").arg(path);
    if (!info.absoluteDir().exists())
        return QStringLiteral("The folder %1 does not exist.").arg(info.absolutePath());

    // Build the file under a temporary name and move it into place, so that a failure leaves
    // no half-made ledger behind.
    const QString temp = path + QStringLiteral(".new");
    QFile::remove(temp);
    sqlite3* db = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(temp).constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    QString error;
    if (rc == SQLITE_OK) {
        char* msg = nullptr;
        const QByteArray sql = "BEGIN;\n" + SchemaSql() + "\nCOMMIT;";
        rc = sqlite3_exec(db, sql.constData(), nullptr, nullptr, &msg);
        if (rc != SQLITE_OK)
            error = QString::fromUtf8(msg ? msg : sqlite3_errstr(rc));
        sqlite3_free(msg);
    } else {
        error = QString::fromUtf8(sqlite3_errstr(rc));
    }
    sqlite3_close(db);
    if (error.isEmpty() && !QFile::rename(temp, path))
        error = QStringLiteral("cannot move the new file into place");
    if (!error.isEmpty()) {
        QFile::remove(temp);
        return QStringLiteral("Cannot write the ledger %1: %2").arg(path, error);
    }
    return {};
}

} // namespace ledger
