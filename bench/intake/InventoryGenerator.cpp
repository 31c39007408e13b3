#include "InventoryGenerator.h"

#include "platform/text/Cp932.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <array>
#include <cstdint>

namespace bench {

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

private:
    std::uint32_t m_state;
};

const std::array<const char16_t*, 12> kApplications = {
    u"Microsoft Office Professional Edition 2003", u"ウイルスバスター2006", u"Adobe Reader 7.0.5 - 日本語",
    u"Tom's Mail Checker", u"秀丸エディタ", u"一太郎2005", u"Lhaplus", u"Windows Media Player 10",
    u"JUST Suite 2005", u"Sleipnir", u"Becky! Internet Mail", u"筆まめVer.16"};
const std::array<const char16_t*, 8> kDeviceCategories = {
    u"ディスプレイ アダプタ", u"ネットワーク アダプタ", u"ディスク ドライブ", u"キーボード",
    u"マウスとそのほかのポインティング デバイス", u"システム デバイス", u"IDE ATA/ATAPI コントローラ", u"ポート (COM と LPT)"};
const std::array<const char16_t*, 6> kSections = {u"総務部", u"経理部", u"営業部", u"開発部", u"製造部", u"人事部"};
const std::array<const char16_t*, 12> kCpuFlags = {u"FPU", u"VME", u"DE", u"PSE", u"TSC", u"MSR",
                                                   u"PAE", u"MCE", u"CX8", u"APIC", u"SEP", u"MTRR"};
const std::array<const char16_t*, 20> kMoreFlags = {u"PGE", u"MCA", u"CMOV", u"PAT", u"PSE36", u"PSN", u"MMX",
                                                    u"FXSR", u"SSE", u"SSE2", u"HTT", u"TM", u"3DNow", u"3DNowEx",
                                                    u"SSE3", u"MONITOR", u"DSCPL", u"EST", u"TM2", u"CID"};

QString s(const char16_t* t) { return QString::fromUtf16(t); }

} // namespace

QByteArray InventoryFile(int n)
{
    Dice dice(n);
    QStringList lines;
    lines << QStringLiteral("Key,Group,Item,SubItem,Contents,Unit,Renewalday");
    const QString date = QStringLiteral("2006/%1/%2").arg(1 + dice.below(12), 2, 10, QLatin1Char('0')).arg(1 + dice.below(28), 2, 10, QLatin1Char('0'));
    const QString stamp = date + QStringLiteral(" %1:%2:%3").arg(8 + dice.below(10), 2, 10, QLatin1Char('0'))
                                     .arg(dice.below(60), 2, 10, QLatin1Char('0')).arg(dice.below(60), 2, 10, QLatin1Char('0'));
    int key = 0;
    const auto add = [&](const QString& group, const QString& item, const QString& subItem, const QString& contents,
                         const QString& unit, const QString& day) {
        lines << QStringLiteral("%1,%2,%3,%4,%5,%6,%7").arg(++key).arg(group, item, subItem, contents, unit, day);
    };
    const auto prop = [&](const QString& group, const QString& item, const char16_t* subItem, const QString& contents,
                          const QString& unit = QString()) { add(group, item, s(subItem), contents, unit, stamp); };
    const QString section = s(kSections[size_t(dice.below(int(kSections.size())))]);
    const QString net = QStringLiteral("Network"), hard = QStringLiteral("Hard"), soft = QStringLiteral("Soft");
    const QString lan = QStringLiteral("LAN"), adapter = QStringLiteral("Adapter"), cpu = QStringLiteral("CPU");
    const int host = 10 + n % 240, subnet = n / 240;

    add(QStringLiteral("Create"), QStringLiteral("DateTime"), stamp, QString(), QString(), stamp);
    prop(net, lan, u"コンピュータ名", QStringLiteral("PC-%1").arg(n, 5, 10, QLatin1Char('0')));
    prop(net, lan, u"ワークグループ", QStringLiteral("WORKGROUP"));
    prop(net, lan, u"ユーザー名", QStringLiteral("user%1").arg(n));
    prop(net, lan, u"ホスト名", QStringLiteral("pc-%1").arg(n, 5, 10, QLatin1Char('0')));
    prop(net, lan, u"ドメイン", QStringLiteral("corp.example.co.jp"));
    prop(net, lan, u"コンピュータの説明", section + QStringLiteral(" %1番機").arg(n));
    prop(net, lan, u"プロバイダ名", QStringLiteral("Microsoft Windows Network"));
    prop(net, lan, u"PrimaryDNS", QStringLiteral("10.0.0.2"));
    prop(net, lan, u"SecondaryDNS", QStringLiteral("10.0.0.3"));
    for (int a = 0; a < 2; ++a) {
        prop(net, adapter, u"アダプター名", a == 0 ? QStringLiteral("Intel(R) PRO/1000 MT Network Connection") : s(u"1394 ネット アダプタ"));
        prop(net, adapter, u"IPアドレス", a == 0 ? QStringLiteral("10.%1.%2.%3").arg(1 + subnet).arg(dice.below(4)).arg(host)
                                                 : QStringLiteral("169.254.%1.%2").arg(dice.below(255)).arg(1 + dice.below(254)));
        prop(net, adapter, u"サブネットマスク", a == 0 ? QStringLiteral("255.255.0.0") : QStringLiteral("255.255.0.0"));
        prop(net, adapter, u"ゲートウェイ", QStringLiteral("10.%1.0.1").arg(1 + subnet));
        prop(net, adapter, u"MACアドレス", QStringLiteral("00:0C:29:%1:%2:%3").arg(dice.below(256), 2, 16, QLatin1Char('0'))
                                                .arg(dice.below(256), 2, 16, QLatin1Char('0')).arg(dice.below(256), 2, 16, QLatin1Char('0')).toUpper());
        prop(net, adapter, u"DHCPServer", QStringLiteral("10.0.0.5"));
        prop(net, adapter, u"PrimaryWINS", QStringLiteral("10.0.0.6"));
        prop(net, adapter, u"SecondaryWINS", a == 0 ? QString() : QStringLiteral("10.0.0.7"));
        prop(net, adapter, u"DNSSuffix", QStringLiteral("corp.example.co.jp"));
    }
    const int memory = 256 << dice.below(3);
    const int used = memory * (30 + dice.below(60)) / 100;
    prop(hard, s(u"メモリ"), u"全容量", QString::number(memory * 1024), QStringLiteral("KB"));
    prop(hard, s(u"メモリ"), u"使用量", QString::number(used * 1024), QStringLiteral("KB"));
    prop(hard, s(u"メモリ"), u"空容量", QString::number((memory - used) * 1024), QStringLiteral("KB"));
    prop(hard, s(u"ページファイル"), u"全容量", QString::number(memory * 2048), QStringLiteral("KB"));
    prop(hard, s(u"ページファイル"), u"使用量", QString::number(used * 1024 + 4096), QStringLiteral("KB"));
    prop(hard, s(u"ページファイル"), u"空容量", QString::number(memory * 2048 - used * 1024 - 4096), QStringLiteral("KB"));
    const int disk = 40000 + 20000 * dice.below(5), diskUsed = disk * (20 + dice.below(70)) / 100;
    prop(hard, QStringLiteral("SystemHDD"), u"Drive", QStringLiteral("C:"));
    prop(hard, QStringLiteral("SystemHDD"), u"全容量", QString::number(disk), QStringLiteral("MB"));
    prop(hard, QStringLiteral("SystemHDD"), u"使用量", QString::number(diskUsed), QStringLiteral("MB"));
    prop(hard, QStringLiteral("SystemHDD"), u"空容量", QString::number(disk - diskUsed), QStringLiteral("MB"));
    prop(hard, s(u"画面"), u"解像度", dice.below(2) ? s(u"1024×768") : s(u"1280×1024"));
    prop(hard, QStringLiteral("System"), u"Model", QStringLiteral("PC-MY%1XEZ7").arg(20 + dice.below(10)));
    prop(hard, QStringLiteral("BIOS"), u"SerialNo", QStringLiteral("5X%1").arg(n * 7919 % 10000000, 7, 10, QLatin1Char('0')));
    prop(hard, QStringLiteral("BIOS"), u"Version", QStringLiteral("NEC - 6040000"));
    prop(soft, QStringLiteral("Windows"), u"Version", QStringLiteral("Microsoft Windows XP Professional"));
    prop(soft, QStringLiteral("Windows"), u"ProductID", QStringLiteral("55274-640-%1-23456").arg(n, 7, 10, QLatin1Char('0')));
    prop(soft, QStringLiteral("Windows"), u"OEM Manufacturer", QStringLiteral("NEC"));
    prop(soft, QStringLiteral("Windows"), u"OEM Model", QStringLiteral("PC-MY26XEZ7"));
    prop(soft, QStringLiteral("Windows"), u"Directory", QStringLiteral("C:\\WINDOWS"));
    prop(soft, QStringLiteral("IE"), u"Version", QStringLiteral("6.0.2900.2180"));
    prop(soft, QStringLiteral("IE"), u"更新Version", QStringLiteral(";SP2;"));
    const QString internet = QStringLiteral("Internet");
    for (const char16_t* setting : {u"インターネット接続", u"モデム経由", u"LAN経由", u"PROXY経由", u"オフラインモード", u"RASインストール"})
        add(soft, internet, QStringLiteral("Setting"), s(setting), dice.below(2) ? QStringLiteral("True") : QStringLiteral("False"), stamp);
    add(soft, internet, QStringLiteral("Setting"), QStringLiteral("Start Page"), QStringLiteral("http://intra.example.co.jp/"), stamp);
    prop(hard, cpu, u"Name", QStringLiteral("Intel Pentium 4"));
    prop(hard, cpu, u"Clock", QString::number(2400 + 200 * dice.below(5)), QStringLiteral("MHz"));
    prop(hard, cpu, u"ID", QStringLiteral("GenuineIntel"));
    prop(hard, cpu, u"Number of processors", QStringLiteral("1"));
    prop(hard, cpu, u"NameString", QStringLiteral("Intel(R) Pentium(R) 4 CPU 2.80GHz"));
    prop(hard, cpu, u"Type", QStringLiteral("0"));
    prop(hard, cpu, u"Family", QStringLiteral("15"));
    prop(hard, cpu, u"Model", QString::number(2 + dice.below(3)));
    prop(hard, cpu, u"Stepping", QString::number(dice.below(10)));
    prop(hard, cpu, u"L1命令キャッシュ", QString(), QStringLiteral("KB"));
    prop(hard, cpu, u"L1Dataキャッシュ", QStringLiteral("8"), QStringLiteral("KB"));
    prop(hard, cpu, u"L2キャッシュ", QStringLiteral("512"), QStringLiteral("KB"));
    prop(hard, cpu, u"L3キャッシュ", QString(), QStringLiteral("KB"));
    prop(hard, cpu, u"L1トレースキャッシュ", QStringLiteral("12"), s(u"Kμops"));
    prop(hard, cpu, u"SerialNumber", QString());
    for (const char16_t* flag : kCpuFlags)
        prop(hard, cpu, flag, QStringLiteral("TRUE"));
    for (const char16_t* flag : kMoreFlags)
        prop(hard, cpu, flag, dice.below(4) ? QStringLiteral("TRUE") : QStringLiteral("FALSE"));
    for (int h = 0; h < 95; ++h)
        add(soft, QStringLiteral("Hotfix"), QStringLiteral("KB%1").arg(890000 + h * 37 + dice.below(30)),
            QStringLiteral("Windows XP Hotfix"), QString(), date);
    for (int a = 0; a < 30; ++a) {
        const QString name = s(kApplications[size_t((n + a) % int(kApplications.size()))]) + (a >= 12 ? QStringLiteral(" %1").arg(a) : QString());
        add(soft, QStringLiteral("Application"), name, QStringLiteral("%1.%2").arg(1 + dice.below(12)).arg(dice.below(100)),
            QStringLiteral("C:\\Program Files\\App%1\\").arg(a), date);
    }
    for (int d = 0; d < 40; ++d)
        add(QStringLiteral("Device"), s(kDeviceCategories[size_t(d % int(kDeviceCategories.size()))]),
            QStringLiteral("Device %1 Model %2").arg(d).arg(dice.below(1000)), QStringLiteral("Microsoft"),
            QStringLiteral("5.1.2600.%1").arg(dice.below(3000)), date);
    for (int p = 0; p < 5; ++p)
        add(hard, QStringLiteral("Printer"), p == 0 ? section + s(u" カラーレーザー") : QStringLiteral("EPSON LP-%1").arg(8000 + p * 100),
            p == 0 ? QStringLiteral("LPT1:") : QStringLiteral("IP_10.0.9.%1").arg(p), QString(), date);
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
        QFile f(QDir(folder).filePath(QStringLiteral("pc%1.csv").arg(n, 5, 10, QLatin1Char('0'))));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return n - 1;
        f.write(InventoryFile(n));
    }
    return count;
}

} // namespace bench
