#include "platform/db/EngineError.h"

#include <QRegularExpression>

#include <sqlite3.h>

namespace db::EngineError {

using vb::VbError;

namespace {

// "CHECK constraint failed: Memory_Full_long" -> "Memory_Full_long"; RAISE messages come alone.
QString constraintName(const QString& msg)
{
    const qsizetype colon = msg.lastIndexOf(QLatin1String(": "));
    return colon < 0 ? msg : msg.mid(colon + 2);
}

QString tail(const QString& msg, QLatin1String prefix) { return msg.startsWith(prefix) ? msg.mid(prefix.size()) : msg; }

} // namespace

VbError FromSqlite(sqlite3* db, int rc, const QString& path)
{
    const QString msg = db ? QString::fromUtf8(sqlite3_errmsg(db)) : QString::fromUtf8(sqlite3_errstr(rc));
    const int primary = rc & 0xff;

    switch (rc) {
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_UNIQUE:
        return {Fail, QStringLiteral("インデックス、主キー、またはリレーションシップで値が重複しているので、"
                                     "テーブルを変更できませんでした。重複する値のあるフィールドの値を変更するか、"
                                     "インデックスを削除してください。または重複する値を使用できるように再定義してください。")};
    case SQLITE_CONSTRAINT_NOTNULL:
        return {Fail, QStringLiteral("フィールド '%1' に Null 値を入力することはできません。")
                          .arg(tail(msg, QLatin1String("NOT NULL constraint failed: ")))};
    case SQLITE_CONSTRAINT_CHECK:
    case SQLITE_CONSTRAINT_TRIGGER: {
        const QString name = constraintName(msg);
        if (name.endsWith(QLatin1String("_text")))
            return {Fail, QStringLiteral("フィールド '%1' が小さすぎて、追加しようとしたデータを格納できません。"
                                         "少ないデータを挿入または貼り付けてください。")
                              .arg(name.chopped(5))};
        return {TypeMismatchInCriteria, QStringLiteral("抽出条件でデータ型が一致しません。")};
    }
    default: break;
    }

    switch (primary) {
    case SQLITE_ERROR: {
        if (msg.startsWith(QLatin1String("no such table: ")))
            return {TableNotFound, QStringLiteral("データベース エンジンは、入力テーブルまたはクエリ '%1' を見つけられませんでした。"
                                                  "このオブジェクトが存在していて、名前およびパスが正しいかどうかを確認してください。")
                                       .arg(tail(msg, QLatin1String("no such table: ")))};
        if (msg.startsWith(QLatin1String("no such column: ")) || msg.contains(QLatin1String(" has no column named ")))
            return {MissingParameter, QStringLiteral("1 つ以上の必要なパラメータの値が設定されていません。")};
        if (msg.startsWith(QLatin1String("ambiguous column name: ")))
            return {Fail, QStringLiteral("指定されたフィールド '%1' は SQL ステートメントの FROM 句にある複数のテーブルを参照しています。")
                              .arg(tail(msg, QLatin1String("ambiguous column name: ")))};
        return {SyntaxError, QStringLiteral("SQL ステートメントの構文エラーです。(%1)").arg(msg)};
    }
    case SQLITE_CONSTRAINT: return {Fail, QStringLiteral("レコードを更新できませんでした。(%1)").arg(msg)};
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return {Fail, QStringLiteral("ファイル '%1' は既に使用されています。").arg(path)};
    case SQLITE_READONLY: return {Fail, QStringLiteral("データベースまたはオブジェクトが読み取り専用であるため、更新できません。")};
    case SQLITE_CANTOPEN: return FileNotFound(path);
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT: return UnrecognisedFormat(path);
    case SQLITE_FULL: return {Fail, QStringLiteral("ディスクに空き領域がありません。")};
    case SQLITE_TOOBIG: return ConversionFailed();
    default: return {Fail, QStringLiteral("データベース エンジンのエラーです。(%1)").arg(msg)};
    }
}

VbError ItemNotFound() { return {3265, QStringLiteral("要求された名前、または序数に対応する項目がコレクションに見つかりません。")}; }

VbError NoCurrentRecord()
{
    return {3021, QStringLiteral("BOF と EOF のいずれかが True になっているか、または現在のレコードが削除されています。"
                                 "要求された操作には、現在のレコードが必要です。")};
}

VbError ObjectClosed() { return {3704, QStringLiteral("オブジェクトが閉じている場合は、操作は許可されません。")}; }

VbError NoTransaction() { return {Fail, QStringLiteral("アクティブなトランザクションがありません。")}; }

VbError ObjectOpen() { return {3705, QStringLiteral("オブジェクトが開いている場合は、操作は許可されません。")}; }

VbError ConnectionClosed()
{
    return {3709, QStringLiteral("接続は、この操作を実行するために使用できません。このコンテキストでは、閉じているか無効です。")};
}

VbError NotSupported()
{
    return {3251, QStringLiteral("現在の Recordset はこの操作をサポートしていません。"
                                 "プロバイダまたは選択されたロックの種類の制限である可能性があります。")};
}

VbError NotUpdatableQuery() { return {Fail, QStringLiteral("更新可能なクエリであることが必要です。")}; }

VbError ConversionFailed()
{
    return {MultipleStep, QStringLiteral("複数ステップの OLE DB の操作でエラーが発生しました。各 OLE DB の状態の値を確認してください。"
                                         "作業は終了しませんでした。")};
}

VbError FileNotFound(const QString& path) { return {Fail, QStringLiteral("ファイル '%1' が見つかりません。").arg(path)}; }

VbError UnrecognisedFormat(const QString& path) { return {Fail, QStringLiteral("認識できないデータベース形式 '%1' です。").arg(path)}; }

} // namespace db::EngineError
