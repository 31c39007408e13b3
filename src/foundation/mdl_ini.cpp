#include "foundation/mdl_ini.h"

#include "foundation/Mdl_gData.h"
#include "platform/app/App.h"
#include "platform/ini/PrivateProfile.h"
#include "platform/ui/Dialogs.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"

namespace mdl_ini {

namespace {
void failureBox() { ui::MsgBox(QStringLiteral("iniファイル書き込み失敗")); }

QString& pathOverride()
{
    static QString path;
    return path;
}
} // namespace

QString IniPath() { return pathOverride().isEmpty() ? app::Path() + QStringLiteral("/DB.ini") : pathOverride(); }

void SetIniPath(const QString& path) { pathOverride() = path; }

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

std::int16_t LoadViewSettings()
{
    using namespace Mdl_gData;
    const QString section = QString::number(g.SectionNumber);
    // Each key is read once to see whether it is there and once more to take it.
    const auto number = [&section](const QString& key) -> std::int16_t {
        if (IniRead(section, key) != QString())
            return vb::CInt(vb::Variant(IniRead(section, key)));
        return 0;
    };
    const auto text = [&section](const QString& key, QString& into) {
        if (IniRead(section, key) != QString())
            into = IniRead(section, key);
    };

    g.OptDel = number(QStringLiteral("OptDel"));
    g.SelectNumber = number(QStringLiteral("SelectNumber"));

    for (int i = 0; i <= 2; ++i) {
        g.SortKeyName[i] = QString();
        g.SortKeyCaption[i] = QString();
    }
    g.SelectedColumnCount = 0;
    for (int i = 1; i <= g.ColumnCount; ++i)
        g.SelectedColumns[i] = 0;

    // a direction left out keeps what memory held
    for (int i = 0; i <= 2; ++i) {
        text(QStringLiteral("KeyName%1").arg(i), g.SortKeyName[i]);
        text(QStringLiteral("KeyCaption%1").arg(i), g.SortKeyCaption[i]);
        text(QStringLiteral("KeyASCDESC%1").arg(i), g.SortKeyDirection[i]);
    }

    g.SelectedColumnCount = number(QStringLiteral("MSFlexGrit_SelectNum"));
    // Place 0 is never loaded: it stays 0, the row of the key column. A count beyond 256 runs
    // off the end of SelectedColumns and raises error 9 to the caller.
    for (int i = 1; i <= g.SelectedColumnCount; ++i)
        g.SelectedColumns[i] = number(QStringLiteral("MSFlexGrit_Select%1").arg(i));
    return 0;
}

} // namespace mdl_ini
