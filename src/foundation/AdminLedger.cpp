#include "foundation/AdminLedger.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/app/CommandLine.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"

#include <QFileInfo>

namespace AdminLedger {

bool Open(const app::CommandLine& command)
{
    const QString path = command.LedgerPath();
    const QFileInfo info(path);
    if (!info.isFile()) {
        command.Error(QStringLiteral("no ledger at ") + path);
        return false;
    }
    try {
        Mdl_gData::ReleaseDbConnection();
        Mdl_gData::DbConnection().Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + info.absoluteFilePath());
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        Close();
        return false;
    }
    // An SQLite file without the ledger's tables opens too, and every statement would then fail
    // in silence: ask for the computer table first.
    try {
        db::Recordset rs;
        rs.Open(QStringLiteral("SELECT MAX( MainKey ) FROM tbl_Computer_List"), Mdl_gData::DbConnection());
        rs.Close();
    } catch (const vb::VbError& e) {
        command.Error(QStringLiteral("not a ledger: ") + path + QStringLiteral(" (") + e.Description() + QStringLiteral(")"));
        Close();
        return false;
    }
    return true;
}

void Close()
{
    if (Mdl_gData::HasDbConnection()) {
        Mdl_gData::DbConnection().Close();
        Mdl_gData::ReleaseDbConnection();
    }
}

} // namespace AdminLedger
