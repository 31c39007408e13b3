#include "platform/vb/VbError.h"

namespace vb {

VbError::VbError(long number, QString description)
    : m_number(number), m_description(std::move(description)), m_what(QByteArray::number(qint64(number)) + ": " + m_description.toUtf8())
{
}

VbError VbError::InvalidProcedureCall()
{
    return {Err::InvalidProcedureCall, QStringLiteral("プロシージャの呼び出し、または引数が不正です。")};
}
VbError VbError::Overflow() { return {Err::Overflow, QStringLiteral("オーバーフローしました。")}; }
VbError VbError::OutOfMemory() { return {Err::OutOfMemory, QStringLiteral("メモリが不足しています。")}; }
VbError VbError::SubscriptOutOfRange() { return {Err::SubscriptOutOfRange, QStringLiteral("インデックスが有効範囲にありません。")}; }
VbError VbError::TypeMismatch() { return {Err::TypeMismatch, QStringLiteral("型が一致しません。")}; }
VbError VbError::InternalError(const QString& what)
{
    return {Err::InternalError, QStringLiteral("内部エラーです。") + QStringLiteral("\r\n") + what};
}
VbError VbError::BadFileNameOrNumber() { return {Err::BadFileNameOrNumber, QStringLiteral("ファイル名または番号が不正です。")}; }
VbError VbError::FileNotFound() { return {Err::FileNotFound, QStringLiteral("ファイルが見つかりません。")}; }
VbError VbError::DeviceUnavailable() { return {Err::DeviceUnavailable, QStringLiteral("デバイスが準備されていません。")}; }
VbError VbError::PathFileAccessError() { return {Err::PathFileAccessError, QStringLiteral("パス名が無効です。")}; }
VbError VbError::PathNotFound() { return {Err::PathNotFound, QStringLiteral("パスが見つかりません。")}; }
VbError VbError::InvalidPatternString() { return {Err::InvalidPatternString, QStringLiteral("パターン文字列が不正です。")}; }
VbError VbError::InvalidUseOfNull() { return {Err::InvalidUseOfNull, QStringLiteral("Null の使い方が不正です。")}; }
VbError VbError::FormAlreadyShown()
{
    return {Err::FormAlreadyShown, QStringLiteral("フォームは既に表示されています。モーダル表示はできません。")};
}
VbError VbError::CancelSelected() { return {Err::CancelSelected, QStringLiteral("[キャンセル] が選択されました。")}; }

} // namespace vb
