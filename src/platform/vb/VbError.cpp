#include "platform/vb/VbError.h"

namespace vb {

VbError::VbError(long number, QString description)
    : m_number(number)
    , m_description(std::move(description))
    , m_what(QByteArray::number(qint64(number)) + ": " + m_description.toUtf8())
{
}

VbError VbError::InvalidProcedureCall() { return {5, QStringLiteral("プロシージャの呼び出し、または引数が不正です。")}; }
VbError VbError::Overflow() { return {6, QStringLiteral("オーバーフローしました。")}; }
VbError VbError::SubscriptOutOfRange() { return {9, QStringLiteral("インデックスが有効範囲にありません。")}; }
VbError VbError::TypeMismatch() { return {13, QStringLiteral("型が一致しません。")}; }
VbError VbError::BadFileNameOrNumber() { return {52, QStringLiteral("ファイル名または番号が不正です。")}; }
VbError VbError::FileNotFound() { return {53, QStringLiteral("ファイルが見つかりません。")}; }
VbError VbError::PermissionDenied() { return {70, QStringLiteral("書き込みできません。")}; }
VbError VbError::PathFileAccessError() { return {75, QStringLiteral("パス名が無効です。")}; }
VbError VbError::PathNotFound() { return {76, QStringLiteral("パスが見つかりません。")}; }
VbError VbError::InvalidPatternString() { return {93, QStringLiteral("パターン文字列が不正です。")}; }
VbError VbError::InvalidUseOfNull() { return {94, QStringLiteral("Null の使い方が不正です。")}; }
VbError VbError::CancelSelected() { return {32755, QStringLiteral("[キャンセル] が選択されました。")}; }

} // namespace vb
