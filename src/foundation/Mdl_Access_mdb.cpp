#include "foundation/Mdl_Access_mdb.h"

#include "foundation/Mdl_gData.h"
#include "platform/app/App.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/vb/Conversion.h"

#include <QFileInfo>

namespace Mdl_Access_mdb {

using Mdl_gData::DbConnection;
using ui::vbCrLf;

bool ConnectDatabase()
{
    const QString dataSource = QStringLiteral("Data Source=") + app::Path() + QLatin1Char('/') + QStringLiteral("pcdb.mdb");
    try {
        if (!QFileInfo(app::Path() + QStringLiteral("/pcdb.mdb")).isFile()) {
            if (Mdl_gData::g.StatusPanelText)
                Mdl_gData::g.StatusPanelText(QStringLiteral("DBファイルが見つかりません。") + vbCrLf + dataSource
                                             + QStringLiteral("を確認ください"));
            return false;
        }
        Mdl_gData::ReleaseDbConnection();
        db::Connection& c = DbConnection();
        c.ConnectionString = QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;") + dataSource;
        if (c.State() == db::adStateOpen) {
            if (Mdl_gData::g.StatusPanelText)
                Mdl_gData::g.StatusPanelText(QStringLiteral("接続に失敗しました"));
            return false;
        }
        c.Open();
        return true;
    } catch (const vb::VbError& e) {
        StandardErrorBox(e);
        return false;
    }
}

bool DisconnectDatabase()
{
    try {
        if (!Mdl_gData::HasDbConnection() || DbConnection().State() != db::adStateOpen)
            return false;
        db::Recordset rs;
        rs.Open(QStringLiteral("SELECT * FROM tbl_ReadCsv"), DbConnection(), db::adOpenStatic, db::adLockReadOnly);
        rs.Close();
        if (DbConnection().State() == db::adStateOpen) {
            DbConnection().Close();
            Mdl_gData::ReleaseDbConnection();
            return true;
        }
        return false;
    } catch (const vb::VbError& e) {
        StandardErrorBox(e);
        return false;
    }
}

FirstRow OpenRecordsetFirstRow(const QString& sql)
{
    FirstRow row;
    if (sql.isEmpty())
        return row;
    db::Recordset rs;
    rs.Open(sql, DbConnection(), db::adOpenStatic, db::adLockReadOnly);
    if (rs.RecordCount() == 0) {
        rs.Close();
        return row;
    }
    const int count = rs.FieldCount();
    for (int i = 0; i < count; ++i) {
        if (i >= int(row.size()))
            throw vb::VbError::SubscriptOutOfRange();
        row[size_t(i)] = SanitizeField(vb::CStr(rs.Value(i)));
    }
    rs.Close();
    return row;
}

bool ExecuteSql(const QString& sql)
{
    if (sql.isEmpty())
        return false;
    // A refused statement is dropped in silence; the caller counts it as done.
    vb::ResumeNext([&] { DbConnection().Execute(sql); });
    return true;
}

bool RecordExists(const QString& sql)
{
    db::Recordset rs;
    return WithErrorBox(rs, false, [&] {
        rs.Open(sql, DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        const bool found = rs.RecordCount() != 0;
        rs.Close();
        return found;
    });
}

QString FieldTypeName(const QString& sql)
{
    QString word = QStringLiteral("不明");
    db::Recordset rs;
    try {
        rs.Open(sql, DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() > 0) {
            switch (rs.Fields(0).Type()) {
            case db::adInteger: word = QStringLiteral("数値"); break;
            case db::adVarWChar: word = QStringLiteral("文字"); break;
            case db::adDate: word = QStringLiteral("日付"); break;
            default: break;
            }
        }
        rs.Close();
    } catch (const vb::VbError& e) {
        StandardErrorBox(e);
        rs.CloseIfOpen();
    }
    return word;
}

namespace {

// SELECT MAX( name ) FROM table: Null gives ifNull, else the value as a 16-bit integer.
std::int16_t maxOf(db::Recordset& rs, const QString& name, const QString& table, std::int16_t ifNull)
{
    std::int16_t result = 0;
    rs.Open(QStringLiteral("SELECT MAX( ") + name + QStringLiteral(" ) ") + QStringLiteral("FROM ") + table, DbConnection(),
            db::adOpenStatic, db::adLockOptimistic);
    if (rs.RecordCount() != 0) {
        const vb::Variant& v = rs.Value(0);
        result = v.IsNull() ? ifNull : vb::CInt(v);
    }
    rs.Close();
    return result;
}

} // namespace

std::int16_t MaxOfFirstColumn(const QString& tableName)
{
    db::Recordset rs;
    return WithErrorBox(rs, std::int16_t(0), [&] {
        vb::FixedArray<QString, 33> names;
        rs.Open(QStringLiteral("SELECT * FROM ") + tableName, DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        for (int i = 0; i < rs.FieldCount(); ++i)
            names[i] = rs.Fields(i).Name();
        rs.Close();
        return maxOf(rs, names[0], tableName, -1);
    });
}

std::int16_t MaxMainKey()
{
    db::Recordset rs;
    return WithErrorBox(rs, std::int16_t(0), [&] { return maxOf(rs, QStringLiteral("MainKey"), QStringLiteral("tbl_Computer_List"), 0); });
}

QString SanitizeField(const QString& text)
{
    // Each character has one replacement and no replacement is itself replaced, so one pass
    // gives what the eight replacements in turn gave; a text without any of them is returned
    // as it is, without a copy (most values of an inventory file).
    static const auto replacement = [] {
        std::array<char16_t, 128> r{};
        r[u','] = 0x3001;  // 、
        r[u'\''] = 0x2019; // ’
        r[u';'] = 0xFF1B;  // ；
        r[u'#'] = 0xFF03;  // ＃
        r[u'\\'] = 0xFFE5; // ￥
        r[u':'] = 0xFF1A;  // ：
        r[u'\n'] = u' ';
        r[u'\r'] = u' ';
        return r;
    }();
    const auto hit = [](char16_t c) { return c < 128 && replacement[c] != 0; };
    const char16_t* data = reinterpret_cast<const char16_t*>(text.constData());
    const qsizetype n = text.size();
    qsizetype i = 0;
    while (i < n && !hit(data[i]))
        ++i;
    if (i == n)
        return text;
    QString s = text;
    char16_t* out = reinterpret_cast<char16_t*>(s.data());
    for (; i < n; ++i)
        if (hit(out[i]))
            out[i] = replacement[out[i]];
    return s;
}

void StandardErrorBox(const vb::VbError& e)
{
    ui::MsgBox(vbCrLf + QStringLiteral("（エラーコード：") + QString::number(e.Number()) + QStringLiteral("）") + vbCrLf
                   + QStringLiteral("（エラー内容：") + e.Description() + QStringLiteral("）"),
               ui::vbCritical | ui::vbOKOnly, QStringLiteral("警告"));
}

} // namespace Mdl_Access_mdb
