#include "foundation/Mdl_IP.h"

#include "platform/text/Cp932.h"

#include <arpa/inet.h>

namespace Mdl_IP {

QString HexPair(const QString& text) { return text.size() == 1 ? QLatin1Char('0') + text : text; }

QString IpToHex8(const QString& address)
{
    QString result;
    if (address.isEmpty())
        return result;
    // The address reaches inet_addr as ANSI text, as a Declare of the Windows function passed it.
    const QByteArray ansi = text::ToCp932(address);
    const in_addr_t a = inet_addr(ansi.constData());
    const auto* bytes = reinterpret_cast<const unsigned char*>(&a); // network order: first octet first
    for (int i = 0; i < 4; ++i)
        result += HexPair(QString::number(bytes[i], 16).toUpper());
    return result;
}

} // namespace Mdl_IP
