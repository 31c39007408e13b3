#include "demo/InventoryGenerator.h"

#include "platform/text/Cp932.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <array>
#include <cstdint>

namespace demo {

namespace {

// A small deterministic generator, so that file n has the same bytes on every run.
class Dice {
public:
    explicit Dice(int seed) : m_state(std::uint32_t(seed) * 2654435761u + 12345u) {}
    int below(int n)
    {
        m_state = m_state * 1664525u + 1013904223u;
        return int((m_state >> 8) % std::uint32_t(n));
    }
    QString hex2() { return QStringLiteral("%1").arg(below(256), 2, 16, QLatin1Char('0')).toUpper(); }

private:
    std::uint32_t m_state;
};

// A name as the Japanese tool writes it, and as the English one does.
struct Word {
    const char16_t* ja;
    const char16_t* en;
};

// Each file lists 30 of these in turn, starting from the file's number.
const std::array<const char16_t*, 36> kApplications = {u"Microsoft Office Professional Edition 2003",
                                                       u"ウイルスバスター2006",
                                                       u"Adobe Reader 7.0.5 - 日本語",
                                                       u"Tom's Mail Checker",
                                                       u"秀丸エディタ",
                                                       u"一太郎2005",
                                                       u"Lhaplus",
                                                       u"Windows Media Player 10",
                                                       u"JUST Suite 2005",
                                                       u"Sleipnir",
                                                       u"Becky! Internet Mail",
                                                       u"筆まめVer.16",
                                                       u"Adobe Acrobat 7.0 Standard",
                                                       u"ATOK2005",
                                                       u"花子2005",
                                                       u"Microsoft .NET Framework 1.1",
                                                       u"J2SE Runtime Environment 5.0 Update 6",
                                                       u"Macromedia Flash Player 8",
                                                       u"QuickTime",
                                                       u"Mozilla Firefox (1.5)",
                                                       u"WinZip",
                                                       u"Windows Installer 3.1",
                                                       u"MSXML 4.0 SP2 Parser and SDK",
                                                       u"DirectX 9.0c",
                                                       u"弥生会計 06",
                                                       u"筆王2006",
                                                       u"TeraTerm Pro",
                                                       u"WinSCP3",
                                                       u"VNC Viewer 4.1",
                                                       u"Microsoft Office Visio Standard 2003",
                                                       u"Microsoft Office Project Standard 2003",
                                                       u"RealPlayer",
                                                       u"+Lhaca",
                                                       u"Google ツールバー for Internet Explorer",
                                                       u"PDFCreator",
                                                       u"Microsoft Office XP Standard"};
const std::array<Word, 8> kDeviceCategories = {{
    {u"ディスプレイ アダプタ", u"Display adapters"},
    {u"ネットワーク アダプタ", u"Network adapters"},
    {u"ディスク ドライブ", u"Disk drives"},
    {u"キーボード", u"Keyboards"},
    {u"マウスとそのほかのポインティング デバイス", u"Mice and other pointing devices"},
    {u"システム デバイス", u"System devices"},
    {u"IDE ATA/ATAPI コントローラ", u"IDE ATA/ATAPI controllers"},
    {u"ポート (COM と LPT)", u"Ports (COM & LPT)"},
}};
struct Device {
    const char16_t* name;
    const char16_t* provider;
};
// five of each category, in the order of the categories
const std::array<std::array<Device, 5>, 8> kDevices = {{
    {{{u"Intel(R) 82865G Graphics Controller", u"Intel Corporation"},
      {u"RADEON 9200", u"ATI Technologies Inc."},
      {u"NVIDIA GeForce FX 5200", u"NVIDIA"},
      {u"Intel(R) 82915G/GV/910GL Express Chipset Family", u"Intel Corporation"},
      {u"S3 Graphics ProSavageDDR", u"S3 Graphics Co. Ltd."}}},
    {{{u"Intel(R) PRO/1000 MT Network Connection", u"Intel"},
      {u"1394 ネット アダプタ", u"Microsoft"},
      {u"Broadcom NetXtreme Gigabit Ethernet", u"Broadcom"},
      {u"Realtek RTL8139 Family PCI Fast Ethernet NIC", u"Realtek"},
      {u"Intel(R) PRO/Wireless 2200BG Network Connection", u"Intel"}}},
    {{{u"ST380011A", u"(標準ディスク ドライブ)"},
      {u"WDC WD800JD-75MSA3", u"(標準ディスク ドライブ)"},
      {u"Maxtor 6Y080L0", u"(標準ディスク ドライブ)"},
      {u"HTS541040G9AT00", u"(標準ディスク ドライブ)"},
      {u"USB Flash Memory USB Device", u"(標準ディスク ドライブ)"}}},
    {{{u"日本語 PS/2 キーボード (106/109 キー)", u"(標準キーボード)"},
      {u"HID キーボード デバイス", u"(標準キーボード)"},
      {u"Microsoft USB Natural Keyboard", u"Microsoft"},
      {u"標準 101/102 キーボード", u"(標準キーボード)"},
      {u"USB ヒューマン インターフェイス デバイス", u"(標準システム デバイス)"}}},
    {{{u"PS/2 互換マウス", u"Microsoft"},
      {u"HID 準拠マウス", u"Microsoft"},
      {u"Logitech USB Optical Mouse", u"Logitech"},
      {u"Synaptics PS/2 Port TouchPad", u"Synaptics"},
      {u"Microsoft USB IntelliMouse Optical", u"Microsoft"}}},
    {{{u"ACPI 電源ボタン", u"(標準システム デバイス)"},
      {u"PCI バス", u"(標準システム デバイス)"},
      {u"システム タイマ", u"(標準システム デバイス)"},
      {u"Intel(R) 82801EB LPC Interface Controller - 24D0", u"Intel"},
      {u"ダイレクト メモリ アクセス コントローラ", u"(標準システム デバイス)"}}},
    {{{u"プライマリ IDE チャネル", u"(標準 IDE ATA/ATAPI コントローラ)"},
      {u"セカンダリ IDE チャネル", u"(標準 IDE ATA/ATAPI コントローラ)"},
      {u"Intel(R) 82801EB Ultra ATA Storage Controllers", u"Intel"},
      {u"Intel(R) 82801EB Serial ATA Storage Controller", u"Intel"},
      {u"標準デュアル チャネル PCI IDE コントローラ", u"(標準 IDE ATA/ATAPI コントローラ)"}}},
    {{{u"通信ポート (COM1)", u"(標準ポート)"},
      {u"ECP プリンタ ポート (LPT1)", u"(標準ポート)"},
      {u"通信ポート (COM2)", u"(標準ポート)"},
      {u"プリンタ ポート (LPT2)", u"(標準ポート)"},
      {u"USB Serial Port (COM3)", u"FTDI"}}},
}};
const std::array<const char16_t*, 6> kSections = {u"総務部", u"経理部", u"営業部", u"開発部", u"製造部", u"人事部"};
const std::array<Word, 6> kInternetSettings = {{
    {u"インターネット接続", u"Internet connectivity"},
    {u"モデム経由", u"Modem course"},
    {u"LAN経由", u"LAN course"},
    {u"PROXY経由", u"PROXY course"},
    {u"オフラインモード", u"Off-line mode"},
    {u"RASインストール", u"RAS installation"},
}};
const std::array<const char16_t*, 12> kCpuFlags = {u"FPU", u"VME", u"DE",  u"PSE",  u"TSC", u"MSR",
                                                   u"PAE", u"MCE", u"CX8", u"APIC", u"SEP", u"MTRR"};
const std::array<const char16_t*, 20> kMoreFlags = {u"PGE",  u"MCA",     u"CMOV",  u"PAT", u"PSE36", u"PSN",   u"MMX",
                                                    u"FXSR", u"SSE",     u"SSE2",  u"HTT", u"TM",    u"3DNow", u"3DNowEx",
                                                    u"SSE3", u"MONITOR", u"DSCPL", u"EST", u"TM2",   u"CID"};

QString s(const char16_t* t) { return QString::fromUtf16(t); }
QString pad(int n, int width) { return QStringLiteral("%1").arg(n, width, 10, QLatin1Char('0')); }

} // namespace

QByteArray InventoryFile(int n, const InventoryMachine& machine)
{
    Dice dice(n);
    const bool en = machine.english;
    const auto w = [en](const Word& word) { return s(en ? word.en : word.ja); };
    QStringList lines;
    lines << QStringLiteral("Key,Group,Item,SubItem,Contents,Unit,Renewalday");
    const int month = 1 + dice.below(12);
    const QString date = QStringLiteral("%1/%2/%3").arg(machine.year, pad(month, 2), pad(1 + dice.below(28), 2));
    const int hour = 8 + dice.below(10), minute = dice.below(60);
    const QString stamp = date + QStringLiteral(" %1:%2:%3").arg(pad(hour, 2), pad(minute, 2), pad(dice.below(60), 2));
    int key = 0;
    const auto add = [&](const QString& group, const QString& item, const QString& subItem, const QString& contents, const QString& unit,
                         const QString& day) {
        lines << QStringLiteral("%1,%2,%3,%4,%5,%6,%7").arg(++key).arg(group, item, subItem, contents, unit, day);
    };
    const auto prop = [&](const QString& group, const QString& item, const Word& subItem, const QString& contents,
                          const QString& unit = QString()) { add(group, item, w(subItem), contents, unit, stamp); };
    const auto same = [](const char16_t* both) { return Word{both, both}; };
    const QString drawnSection = s(kSections[size_t(dice.below(int(kSections.size())))]);
    const QString section = machine.section.isEmpty() ? drawnSection : machine.section;
    const QString net = QStringLiteral("Network"), hard = QStringLiteral("Hard"), soft = QStringLiteral("Soft");
    const QString lan = QStringLiteral("LAN"), adapter = QStringLiteral("Adapter"), cpu = QStringLiteral("CPU");
    const int host = 10 + n % 240, subnet = n / 240;
    const QString computerName = machine.computerName.isEmpty() ? QStringLiteral("PC-") + pad(n, 5) : machine.computerName;

    if (!en)
        add(QStringLiteral("Create"), QStringLiteral("DateTime"), stamp, QString(), QString(), stamp);
    prop(net, lan, {u"コンピュータ名", u"Computer name"}, computerName);
    prop(net, lan, {u"ワークグループ", u"Workgroup name"}, QStringLiteral("WORKGROUP"));
    prop(net, lan, {u"ユーザー名", u"User name"}, machine.userName.isEmpty() ? QStringLiteral("user%1").arg(n) : machine.userName);
    prop(net, lan, {u"ホスト名", u"Host name"}, computerName.toLower());
    prop(net, lan, {u"ドメイン", u"Domain name"}, QStringLiteral("corp.example.co.jp"));
    prop(net, lan, {u"コンピュータの説明", u"Explanation of a computer"},
         section + (en ? QStringLiteral(" PC %1").arg(n) : QStringLiteral(" %1番機").arg(n)));
    prop(net, lan, {u"プロバイダ名", u"Network provider name"}, QStringLiteral("Microsoft Windows Network"));
    prop(net, lan, same(u"PrimaryDNS"), QStringLiteral("10.0.0.2"));
    prop(net, lan, same(u"SecondaryDNS"), QStringLiteral("10.0.0.3"));
    for (int a = 0; a < 2; ++a) {
        prop(net, adapter, {u"アダプター名", u"Adapter name"},
             a == 0 ? QStringLiteral("Intel(R) PRO/1000 MT Network Connection") : s(en ? u"1394 Net Adapter" : u"1394 ネット アダプタ"));
        QString address;
        if (a == 0) {
            address = QStringLiteral("10.%1.%2.%3").arg(1 + subnet).arg(dice.below(4)).arg(host);
            if (!machine.address.isEmpty())
                address = machine.address;
        } else {
            const int x = dice.below(255);
            address = QStringLiteral("169.254.%1.%2").arg(x).arg(1 + dice.below(254));
        }
        prop(net, adapter, {u"IPアドレス", u"IP address"}, address);
        prop(net, adapter, {u"サブネットマスク", u"Subnet mask"}, QStringLiteral("255.255.0.0"));
        prop(net, adapter, {u"ゲートウェイ", u"Gateway address"},
             machine.gateway.isEmpty() ? QStringLiteral("10.%1.0.1").arg(1 + subnet) : machine.gateway);
        const QString b1 = dice.hex2(), b2 = dice.hex2(), b3 = dice.hex2();
        prop(net, adapter, {u"MACアドレス", u"MAC address"}, QStringLiteral("00:0C:29:%1:%2:%3").arg(b1, b2, b3));
        prop(net, adapter, same(u"DHCPServer"), QStringLiteral("10.0.0.5"));
        prop(net, adapter, same(u"PrimaryWINS"), QStringLiteral("10.0.0.6"));
        prop(net, adapter, same(u"SecondaryWINS"), a == 0 ? QString() : QStringLiteral("10.0.0.7"));
        prop(net, adapter, same(u"DNSSuffix"), QStringLiteral("corp.example.co.jp"));
    }
    const Word full{u"全容量", u"Capacity"}, usedWord{u"使用量", u"Amount used"}, freeWord{u"空容量", u"Empty capacity"};
    const QString memoryItem = w({u"メモリ", u"Memory"}), pageItem = w({u"ページファイル", u"PageFile"});
    const QString kb = QStringLiteral("KB");
    const int memory = 256 << dice.below(3);
    const int used = memory * (30 + dice.below(60)) / 100;
    prop(hard, memoryItem, full, QString::number(memory * 1024), kb);
    prop(hard, memoryItem, usedWord, QString::number(used * 1024), kb);
    prop(hard, memoryItem, freeWord, QString::number((memory - used) * 1024), kb);
    prop(hard, pageItem, full, QString::number(memory * 2048), kb);
    prop(hard, pageItem, usedWord, QString::number(used * 1024 + 4096), kb);
    prop(hard, pageItem, freeWord, QString::number(memory * 2048 - used * 1024 - 4096), kb);
    const int disk = 40000 + 20000 * dice.below(5);
    const int diskUsed = disk * (20 + dice.below(70)) / 100;
    const QString systemHdd = QStringLiteral("SystemHDD");
    prop(hard, systemHdd, same(u"Drive"), QStringLiteral("C:"));
    // in KB, as the main list's GB columns take them
    prop(hard, systemHdd, full, QString::number(qint64(disk) * 1000), kb);
    prop(hard, systemHdd, usedWord, QString::number(qint64(diskUsed) * 1000), kb);
    prop(hard, systemHdd, freeWord, QString::number(qint64(disk - diskUsed) * 1000), kb);
    const QString drawnResolution = dice.below(2) ? s(u"1024×768") : s(u"1280×1024");
    prop(hard, w({u"画面", u"Screen"}), {u"解像度", u"Resolution"}, machine.resolution.isEmpty() ? drawnResolution : machine.resolution);
    prop(hard, QStringLiteral("System"), same(u"Model"), machine.model);
    prop(hard, QStringLiteral("BIOS"), same(u"SerialNo"), QStringLiteral("5X") + pad(n * 7919 % 10000000, 7));
    prop(hard, QStringLiteral("BIOS"), same(u"Version"), machine.maker + QStringLiteral(" - 6040000"));
    const QString windows = QStringLiteral("Windows");
    prop(soft, windows, same(u"Version"), machine.operatingSystem);
    prop(soft, windows, same(u"ProductID"), QStringLiteral("55274-640-%1-23456").arg(pad(n, 7)));
    prop(soft, windows, same(u"OEM Manufacturer"), machine.maker);
    prop(soft, windows, same(u"OEM Model"), machine.model);
    prop(soft, windows, same(u"Directory"),
         machine.operatingSystem.contains(QStringLiteral("2000")) ? QStringLiteral("C:\\WINNT") : QStringLiteral("C:\\WINDOWS"));
    prop(soft, QStringLiteral("IE"), same(u"Version"), QStringLiteral("6.0.2900.2180"));
    prop(soft, QStringLiteral("IE"), {u"更新Version", u"UpdatingVersion"}, QStringLiteral(";SP2;"));
    const QString internet = QStringLiteral("Internet");
    for (const Word& setting : kInternetSettings)
        add(soft, internet, QStringLiteral("Setting"), w(setting), dice.below(2) ? QStringLiteral("True") : QStringLiteral("False"), stamp);
    add(soft, internet, QStringLiteral("Setting"), QStringLiteral("Start Page"), QStringLiteral("http://intra.example.co.jp/"), stamp);
    const bool amd = machine.cpu.startsWith(QStringLiteral("AMD"));
    prop(hard, cpu, same(u"Name"), amd ? QStringLiteral("AMD Athlon XP") : QStringLiteral("Intel Pentium 4"));
    prop(hard, cpu, same(u"Clock"), QString::number(2400 + 200 * dice.below(5)), QStringLiteral("MHz"));
    prop(hard, cpu, same(u"ID"), amd ? QStringLiteral("AuthenticAMD") : QStringLiteral("GenuineIntel"));
    prop(hard, cpu, same(u"Number of processors"), QStringLiteral("1"));
    prop(hard, cpu, same(u"NameString"), machine.cpu);
    prop(hard, cpu, same(u"Type"), QStringLiteral("0"));
    prop(hard, cpu, same(u"Family"), QStringLiteral("15"));
    prop(hard, cpu, same(u"Model"), QString::number(2 + dice.below(3)));
    prop(hard, cpu, same(u"Stepping"), QString::number(dice.below(10)));
    prop(hard, cpu, {u"L1命令キャッシュ", u"L1 instruction cache"}, QString(), kb);
    prop(hard, cpu, {u"L1Dataキャッシュ", u"L1 data cache"}, QStringLiteral("8"), kb);
    prop(hard, cpu, {u"L2キャッシュ", u"L2 cache"}, QStringLiteral("512"), kb);
    prop(hard, cpu, {u"L3キャッシュ", u"L3 cache"}, QString(), kb);
    prop(hard, cpu, {u"L1トレースキャッシュ", u"L1 trace cache"}, QStringLiteral("12"), w({u"Kμops", u"Kuops"}));
    prop(hard, cpu, same(u"SerialNumber"), QString());
    for (const char16_t* flag : kCpuFlags)
        prop(hard, cpu, same(flag), QStringLiteral("TRUE"));
    for (const char16_t* flag : kMoreFlags)
        prop(hard, cpu, same(flag), dice.below(4) ? QStringLiteral("TRUE") : QStringLiteral("FALSE"));
    for (int h = 0; h < 95; ++h)
        add(soft, QStringLiteral("Hotfix"), QStringLiteral("KB%1").arg(890000 + h * 37 + dice.below(30)),
            QStringLiteral("Windows XP Hotfix"), QString(), date);
    for (int a = 0; a < 30; ++a) {
        const QString name = s(kApplications[size_t((n + a) % int(kApplications.size()))]);
        const int major = 1 + dice.below(12);
        add(soft, QStringLiteral("Application"), name, QStringLiteral("%1.%2").arg(major).arg(dice.below(100)),
            QStringLiteral("C:\\Program Files\\%1\\").arg(name.section(QLatin1Char(' '), 0, 0)), date);
    }
    for (int d = 0; d < 40; ++d) {
        const int build = dice.below(3000);
        const size_t category = size_t(d) % kDeviceCategories.size(), which = size_t(d) / kDeviceCategories.size();
        const Device& device = kDevices[category][which];
        add(QStringLiteral("Device"), w(kDeviceCategories[category]), s(device.name), s(device.provider),
            QStringLiteral("5.1.2600.%1").arg(build), date);
    }
    if (machine.printers.empty()) {
        for (int p = 0; p < 5; ++p)
            add(hard, QStringLiteral("Printer"),
                p == 0 ? section + s(en ? u" color laser" : u" カラーレーザー") : QStringLiteral("EPSON LP-%1").arg(8000 + p * 100),
                p == 0 ? QStringLiteral("LPT1:") : QStringLiteral("IP_10.0.9.%1").arg(p), QString(), date);
    }
    for (const auto& [printer, port] : machine.printers)
        add(hard, QStringLiteral("Printer"), printer, port, QString(), date);
    for (int e = 0; e < 30; ++e)
        add(QStringLiteral("Environmental"), e == 0 ? QStringLiteral("Path") : QStringLiteral("VAR_%1").arg(e),
            e == 0 ? QStringLiteral("C:\\WINDOWS\\system32;C:\\WINDOWS") : QStringLiteral("C:\\DOCUME~1\\user%1\\Data%2").arg(n).arg(e),
            QString(), QString(), date);
    const QString text = lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
    return text::ToCp932(text);
}

int WriteInventoryFiles(const QString& folder, int count)
{
    QDir().mkpath(folder);
    for (int n = 1; n <= count; ++n) {
        QFile f(QDir(folder).filePath(QStringLiteral("pc%1.csv").arg(pad(n, 5))));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(InventoryFile(n)) < 0)
            return n - 1;
    }
    return count;
}

} // namespace demo
