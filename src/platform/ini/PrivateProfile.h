#pragma once

#include <QString>

#include <optional>

// The private-profile file format and the semantics of Windows' GetPrivateProfileStringA and
// WritePrivateProfileStringA, which the settings file DB.ini was written with:
//  - sections "[name]" and "key=value" lines; names are compared without regard to case;
//  - keys and values are read without the blanks around them, and a value in matching quotes
//    loses them;
//  - the file is code page 932 with CR LF line ends; a missing file reads as empty;
//  - a read copies at most bufferSize - 1 bytes of the value (the ANSI buffer), cutting it there;
//  - a write with no key erases the whole section, a write with no value erases the key, and a
//    file that cannot be written loses the write silently (the result says so, nobody reads it).
namespace ini {

// The value of key in section, or def when absent; cut to bufferSize - 1 CP932 bytes.
QString GetPrivateProfileString(const QString& section, const QString& key, const QString& def, int bufferSize, const QString& path);

// key == nullopt erases the section; value == nullopt erases the key. Returns false when the file
// could not be written.
bool WritePrivateProfileString(const QString& section, const std::optional<QString>& key, const std::optional<QString>& value,
                               const QString& path);

} // namespace ini
