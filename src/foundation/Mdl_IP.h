#pragma once

#include <QString>

// The sort key of an IPv4 address: eight hexadecimal digits, so that a text sort of the keys is
// a numeric sort of the addresses.
namespace Mdl_IP {

// The text with a leading "0" when it has one character.
QString HexPair(const QString& text);

// "192.168.0.1" gives "C0A80001"; "" gives "". The address is read by inet_addr, so whatever it
// refuses gives its failure value, "FFFFFFFF", and "0" gives "00000000".
QString IpToHex8(const QString& address);

} // namespace Mdl_IP
