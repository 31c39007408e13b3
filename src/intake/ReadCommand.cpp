#include "intake/ReadCommand.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "intake/InventoryRead.h"
#include "platform/app/App.h"
#include "platform/db/Recordset.h"

#include <QFileInfo>

#include <cstdio>

namespace {

constexpr int kAllRead = 0;
constexpr int kUsageOrLedger = 1;
constexpr int kSomeRefused = 2;

void print(std::FILE* to, const QString& line) { std::fprintf(to, "%s\n", line.toUtf8().constData()); }

int usage(const QString& why)
{
    if (!why.isEmpty())
        print(stderr, QStringLiteral("fenwold-admin read: ") + why);
    std::fputs("usage: fenwold-admin read [--english] [--ledger PATH] FILE...\n", stderr);
    return kUsageOrLedger;
}

// Opens the ledger into DbConnection. A file named pcdb.mdb opens the way the program opens
// its own, with its folder as the program folder; any other name opens directly.
bool openLedger(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        print(stderr, QStringLiteral("fenwold-admin read: no ledger at ") + path);
        return false;
    }
    // what ConnectDatabase would write to the main window's status bar
    Mdl_gData::StatusPanelText = [](const QString& text) { print(stderr, QStringLiteral("fenwold-admin read: ") + text); };
    if (info.fileName() == QLatin1String("pcdb.mdb")) {
        app::SetPath(info.absolutePath());
        if (!Mdl_Access_mdb::ConnectDatabase())
            return false;
    } else {
        try {
            Mdl_gData::DbConnection().Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + info.absoluteFilePath());
        } catch (const vb::VbError& e) {
            print(stderr, QStringLiteral("fenwold-admin read: ") + e.Description());
            return false;
        }
    }
    // An SQLite file without the ledger's tables opens too; every statement would then fail in
    // silence, so ask for the computer table first.
    try {
        db::Recordset rs;
        rs.Open(QStringLiteral("SELECT MAX( MainKey ) FROM tbl_Computer_List"), Mdl_gData::DbConnection());
        rs.Close();
    } catch (const vb::VbError& e) {
        print(stderr, QStringLiteral("fenwold-admin read: not a ledger: ") + path + QStringLiteral(" (") + e.Description()
                          + QStringLiteral(")"));
        Mdl_gData::DbConnection().Close();
        return false;
    }
    return true;
}

QString describe(const InventoryFileResult& r)
{
    const QString key = QStringLiteral("MainKey ") + QString::number(r.mainKey);
    const QString overflow = QStringLiteral(", no new key after 32767: values written onto ");
    switch (r.outcome) {
    case InventoryFileResult::Read:
        return r.path + QStringLiteral(": ") + (r.keyOverflow ? QStringLiteral("refused") + overflow + key : key);
    case InventoryFileResult::RefusedHeader:
        return r.path + QStringLiteral(": refused, the first line is not Key,Group,Item,SubItem,Contents,Unit,Renewalday");
    case InventoryFileResult::Unreadable:
        return r.path + QStringLiteral(": refused, cannot be read (") + r.reason + QStringLiteral("); ")
               + (r.keyOverflow ? QStringLiteral("values of the staged file written onto ") + key
                                : key + QStringLiteral(" made from the staged file"));
    }
    return r.path;
}

} // namespace

int ReadCommand(const QStringList& args)
{
    InventoryLanguage language = InventoryLanguage::Japanese;
    QString ledgerPath;
    QStringList files;
    bool options = true;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        if (options && a == QLatin1String("--")) {
            options = false;
        } else if (options && a == QLatin1String("--english")) {
            language = InventoryLanguage::English;
        } else if (options && a == QLatin1String("--ledger")) {
            if (++i >= args.size())
                return usage(QStringLiteral("--ledger needs a PATH"));
            ledgerPath = args[i];
        } else if (options && a.startsWith(QLatin1String("--"))) {
            return usage(QStringLiteral("unknown option ") + a);
        } else {
            files << a;
        }
    }
    if (files.isEmpty())
        return usage(QStringLiteral("no inventory file given"));
    if (ledgerPath.isEmpty())
        ledgerPath = app::Path() + QStringLiteral("/pcdb.mdb");
    if (!openLedger(ledgerPath))
        return kUsageOrLedger;

    int read = 0;
    int refused = 0;
    ReadInventoryFiles(files, language, [&](const InventoryFileResult& r) {
        const bool ok = r.outcome == InventoryFileResult::Read && !r.keyOverflow;
        ok ? ++read : ++refused;
        print(stdout, describe(r));
        std::fflush(stdout);
    });
    print(stdout, QStringLiteral("%1 of %2 files read, %3 refused").arg(read).arg(files.size()).arg(refused));
    Mdl_Access_mdb::DisconnectDatabase();
    return refused == 0 ? kAllRead : kSomeRefused;
}
