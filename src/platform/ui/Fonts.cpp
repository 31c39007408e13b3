#include "platform/ui/Fonts.h"

#include <QFontDatabase>

namespace ui {

void InstallFontSubstitutes()
{
    static const struct {
        const char* family;
        const char* substitute;
    } table[] = {
        {"ＭＳ ゴシック", "IPAGothic"}, {"MS Gothic", "IPAGothic"},     {"ＭＳ Ｐゴシック", "IPAPGothic"},
        {"MS PGothic", "IPAPGothic"},   {"MS UI Gothic", "IPAPGothic"},
    };
    for (const auto& row : table) {
        const QString family = QString::fromUtf8(row.family);
        if (!QFontDatabase::hasFamily(family))
            QFont::insertSubstitution(family, QString::fromUtf8(row.substitute));
    }
}

QFont MsGothic(int pointSize) { return QFont(QStringLiteral("ＭＳ ゴシック"), pointSize); }

} // namespace ui
