#include "foundation/mdl_ini.h"

#include "platform/app/App.h"
#include "platform/ini/PrivateProfile.h"
#include "platform/ui/Dialogs.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"

namespace mdl_ini {

namespace {
void failureBox() { ui::MsgBox(QStringLiteral("iniファイル書き込み失敗")); }
} // namespace

QString IniPath() { return app::Path() + QStringLiteral("/DB.ini"); }

QString IniRead(const QString& section, const QString& key)
{
    try {
        return ini::GetPrivateProfileString(section, key, QString(), 256, IniPath());
    } catch (const vb::VbError&) {
        failureBox();
        return QString();
    }
}

bool IniWrite(const QString& section, const std::optional<QString>& key, const std::optional<QString>& value)
{
    try {
        std::optional<QString> trimmed;
        if (value)
            trimmed = vb::Trim(*value);
        return ini::WritePrivateProfileString(section, key, trimmed, IniPath());
    } catch (const vb::VbError&) {
        failureBox();
        return false;
    }
}

// Filled in with the main list.
std::int16_t LoadViewSettings() { return 0; }

} // namespace mdl_ini
