#pragma once

#include <QString>

#include <cstdint>
#include <optional>

// The settings file DB.ini beside the program: the two file operations every window uses.
namespace mdl_ini {

// The path of the settings file: the program's folder and "DB.ini", or the file set below.
QString IniPath();
// Points every read and write at another settings file (fenwold-admin's --ini); an empty path
// goes back to DB.ini beside the program.
void SetIniPath(const QString& path);

// The value of section/key, "" when absent; at most 255 bytes, as the read buffer held.
QString IniRead(const QString& section, const QString& key);

// Writes section/key with the value trimmed of blanks. A null key erases the whole section.
// The platform call's result is returned and read by nobody: a file that cannot be written
// loses the write in silence.
bool IniWrite(const QString& section, const std::optional<QString>& key, const std::optional<QString>& value);
inline bool IniWrite(const QString& section, const QString& key, const QString& value)
{
    return IniWrite(section, std::optional<QString>(key), std::optional<QString>(value));
}

// Loads the saved view numbered SectionNumber into the view globals. The result is a
// 16-bit value nobody reads. A number key holding text that is no number raises the conversion
// error to the caller.
std::int16_t LoadViewSettings();

} // namespace mdl_ini
