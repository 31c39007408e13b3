#pragma once

#include <QByteArray>
#include <QString>

// Code page 932 (Shift-JIS as Windows writes it) at the edges of the program: inventory files,
// exports and DB.ini are in it; inside, everything is QString. Built on glibc's iconv "CP932".
namespace text {

// Decodes CP932 bytes. A byte sequence that is not CP932 becomes U+FFFD, one per bad byte;
// nothing else is dropped.
QString FromCp932(QByteArrayView bytes);

// Encodes to CP932. A character that CP932 cannot hold becomes '?', as Windows' ANSI
// conversion writes it.
QByteArray ToCp932(QStringView s);

// The length of a text in CP932 bytes: a full-width character counts two, a half-width one.
int ByteLength(QStringView s);

} // namespace text
