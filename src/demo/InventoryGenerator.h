#pragma once

#include <QByteArray>
#include <QString>

#include <utility>
#include <vector>

// Inventory files as the inventory tool writes them on a PC: code page 932 with CR LF, every
// record the field map asks for, two network adapters, 95 hotfix records that nothing selects,
// 30 applications, 40 devices, 5 printers and 30 environment variables: about 300 lines. File n
// of a machine is always the same bytes; values vary from file to file.
namespace demo {

// What sets one PC apart from another. The defaults are the benchmark's office PC: an NEC
// desktop with Windows XP on 10.x addresses, in the Japanese tool's words.
struct InventoryMachine {
    bool english = false; // the English tool's item names, and no creation record
    QString computerName; // empty: PC-nnnnn
    QString userName;     // empty: usernnn
    QString section;      // the description's department; empty: one picked by n
    QString address;      // the first adapter's IPv4 address; empty: 10.s.x.h from n
    QString gateway;      // empty: 10.s.0.1
    QString maker = QStringLiteral("NEC");
    QString model = QStringLiteral("PC-MY26XEZ7");
    QString operatingSystem = QStringLiteral("Microsoft Windows XP Professional");
    QString cpu = QStringLiteral("Intel(R) Pentium(R) 4 CPU 2.80GHz");
    QString resolution;                    // empty: one of two by n
    QString year = QStringLiteral("2006"); // the year of the read
    // the printers, each a name and a port; none: five, a colour laser of the section on LPT1
    // and four network printers
    std::vector<std::pair<QString, QString>> printers;
};

QByteArray InventoryFile(int n, const InventoryMachine& machine = {});

// Writes files 1 to count of the default machine into folder as pc00001.csv ...; returns the
// number written.
int WriteInventoryFiles(const QString& folder, int count);

} // namespace demo
