#include "demo/LedgerGenerator.h"

#include "platform/db/Connection.h"

#include <QStringList>

#include <random>

namespace LedgerGenerator {

namespace {

const QStringList kLocations = {QStringLiteral("本社1F"),       QStringLiteral("本社2F"),       QStringLiteral("本社3F"),
                                QStringLiteral("本社4F会議室"), QStringLiteral("東京営業所"),   QStringLiteral("大阪支店"),
                                QStringLiteral("名古屋支店"),   QStringLiteral("福岡営業所"),   QStringLiteral("第一工場"),
                                QStringLiteral("第二工場"),     QStringLiteral("物流センター"), QStringLiteral("研究所")};
const QStringList kSections = {QStringLiteral("総務部"),     QStringLiteral("経理部"),        QStringLiteral("人事部"),
                               QStringLiteral("営業部"),     QStringLiteral("開発部"),        QStringLiteral("製造部"),
                               QStringLiteral("品質保証部"), QStringLiteral("情報システム部")};
const QStringList kDivisions = {QStringLiteral("庶務課"),     QStringLiteral("会計課"),     QStringLiteral("採用課"),
                                QStringLiteral("第一営業課"), QStringLiteral("第二営業課"), QStringLiteral("設計課"),
                                QStringLiteral("生産管理課"), QStringLiteral("検査課"),     QStringLiteral("運用課")};
const QStringList kFamily = {QStringLiteral("佐藤"), QStringLiteral("鈴木"), QStringLiteral("高橋"), QStringLiteral("田中"),
                             QStringLiteral("伊藤"), QStringLiteral("渡辺"), QStringLiteral("山本"), QStringLiteral("中村"),
                             QStringLiteral("小林"), QStringLiteral("加藤"), QStringLiteral("吉田"), QStringLiteral("山田")};
const QStringList kFamilyKana = {QStringLiteral("サトウ"),   QStringLiteral("スズキ"),   QStringLiteral("タカハシ"),
                                 QStringLiteral("タナカ"),   QStringLiteral("イトウ"),   QStringLiteral("ワタナベ"),
                                 QStringLiteral("ヤマモト"), QStringLiteral("ナカムラ"), QStringLiteral("コバヤシ"),
                                 QStringLiteral("カトウ"),   QStringLiteral("ヨシダ"),   QStringLiteral("ヤマダ")};
const QStringList kGiven = {QStringLiteral("太郎"), QStringLiteral("花子"), QStringLiteral("一郎"), QStringLiteral("洋子"),
                            QStringLiteral("健二"), QStringLiteral("美紀"), QStringLiteral("誠"),   QStringLiteral("裕子")};
const QStringList kGivenKana = {QStringLiteral("タロウ"), QStringLiteral("ハナコ"), QStringLiteral("イチロウ"), QStringLiteral("ヨウコ"),
                                QStringLiteral("ケンジ"), QStringLiteral("ミキ"),   QStringLiteral("マコト"),   QStringLiteral("ユウコ")};
const QStringList kMakers = {QStringLiteral("NEC"), QStringLiteral("富士通"), QStringLiteral("東芝"),
                             QStringLiteral("IBM"), QStringLiteral("DELL"),   QStringLiteral("HP")};
// per maker: models, and the type number each model carries
const QStringList kModels[] = {
    {QStringLiteral("Mate MY20A"), QStringLiteral("VersaPro VY16M"), QStringLiteral("Mate MA28D")},
    {QStringLiteral("FMV-C6200"), QStringLiteral("FMV-E620"), QStringLiteral("FMV-BIBLO MG")},
    {QStringLiteral("dynabook Satellite J11"), QStringLiteral("EQUIUM 3300")},
    {QStringLiteral("ThinkCentre M51"), QStringLiteral("ThinkPad T42")},
    {QStringLiteral("OptiPlex GX280"), QStringLiteral("Latitude D600")},
    {QStringLiteral("Compaq d530 SF"), QStringLiteral("Compaq nx6110")},
};
const QStringList kCpus = {QStringLiteral("Intel(R) Pentium(R) 4 CPU 2.80GHz"), QStringLiteral("Intel(R) Pentium(R) 4 CPU 3.00GHz"),
                           QStringLiteral("Intel(R) Pentium(R) M processor 1.60GHz"), QStringLiteral("Intel(R) Celeron(R) CPU 2.40GHz"),
                           QStringLiteral("AMD Athlon(tm) XP 2500+")};
const int kClocks[] = {2800, 3000, 1600, 2400, 1833};
const QStringList kOses = {QStringLiteral("Microsoft Windows XP Professional"), QStringLiteral("Microsoft Windows 2000 Professional")};

class Values {
public:
    explicit Values(unsigned seed) : m_rng(seed) {}
    int upTo(int n) { return std::uniform_int_distribution<int>(0, n - 1)(m_rng); }
    int between(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(m_rng); }
    bool chance(int percent) { return upTo(100) < percent; }
    const QString& pick(const QStringList& l) { return l[upTo(int(l.size()))]; }

private:
    std::mt19937 m_rng;
};

void masterRows(db::Connection& c, const QString& table, const QString& prefix, const QStringList& names)
{
    for (int i = 0; i < names.size(); ++i)
        c.Execute(QStringLiteral("INSERT INTO %1 (%2_Code, %2_Name, %2_Comment, Available_flug) VALUES (%3, %4, '', '0')")
                      .arg(table, prefix)
                      .arg(i + 1)
                      .arg(Quoted(names[i])));
}

} // namespace

QString Quoted(const QString& text)
{
    QString q = text;
    q.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + q + QLatin1Char('\'');
}

const QStringList& Locations() { return kLocations; }
const QStringList& Sections() { return kSections; }
const QStringList& Divisions() { return kDivisions; }
const QStringList& Makers() { return kMakers; }

const QStringList& Models()
{
    static const QStringList models = [] {
        QStringList all;
        for (const QStringList& ofMaker : kModels)
            all << ofMaker;
        return all;
    }();
    return models;
}

int MakerOfModel(int modelCode)
{
    int code = 0;
    for (int m = 0; m < kMakers.size(); ++m) {
        code += int(kModels[m].size());
        if (modelCode <= code)
            return m + 1;
    }
    return 0;
}

void Masters(db::Connection& c)
{
    db::Transaction t(c);
    masterRows(c, QStringLiteral("tbl_Location"), QStringLiteral("Location"), kLocations);
    masterRows(c, QStringLiteral("tbl_Section"), QStringLiteral("Section"), kSections);
    masterRows(c, QStringLiteral("tbl_Division"), QStringLiteral("Division"), kDivisions);
    masterRows(c, QStringLiteral("tbl_Manufacturer"), QStringLiteral("Manufacturer"), kMakers);
    masterRows(c, QStringLiteral("tbl_Model"), QStringLiteral("Model"), Models());
    // a model and a location that were retired from the masters while computers still use them
    c.Execute(QStringLiteral("UPDATE tbl_Model SET Available_flug = '1' WHERE Model_Code = 3"));
    c.Execute(QStringLiteral("UPDATE tbl_Location SET Available_flug = '1' WHERE Location_Code = 4"));
    t.Commit();
}

std::vector<User> Users(db::Connection& c, int count, unsigned seed)
{
    Values v(seed);
    std::vector<User> users;
    db::Transaction t(c);
    for (int u = 1; u <= count; ++u) {
        const int f = v.upTo(int(kFamily.size())), g = v.upTo(int(kGiven.size()));
        const QString account = QStringLiteral("user%1").arg(u, 4, 10, QLatin1Char('0'));
        const QString password = QStringLiteral("pw%1").arg(v.between(1000, 9999));
        const int section = v.between(1, int(kSections.size()));
        const int division = v.between(1, int(kDivisions.size()));
        const QString name = kFamily[f] + QStringLiteral("　") + kGiven[g];
        c.Execute(QStringLiteral("INSERT INTO tbl_User (User_Code, User_Name, User_Comment, Available_flug, kana, "
                                 "Employee_SerialNumber, Acount_Name, logon_Password, Section_Code, Division_Code) "
                                 "VALUES (%1, %2, '', %3, %4, %5, %6, %7, %8, %9)")
                      .arg(u)
                      .arg(Quoted(name), Quoted(u % 30 == 0 ? QStringLiteral("1") : QStringLiteral("0")),
                           Quoted(kFamilyKana[f] + QStringLiteral(" ") + kGivenKana[g]),
                           Quoted(QStringLiteral("%1").arg(10000 + u, 6, 10, QLatin1Char('0'))), Quoted(account), Quoted(password))
                      .arg(section)
                      .arg(division));
        users.push_back({u, name, account, section});
    }
    t.Commit();
    return users;
}

void Generate(db::Connection& c, int computers, unsigned seed)
{
    Masters(c);
    // about one user per computer
    const int users = qMax(1, computers * 9 / 10);
    Users(c, users, seed);
    Values v(seed + 1);
    const QStringList& models = Models();
    db::Transaction t(c);

    for (int k = 1; k <= computers; ++k) {
        const int model = v.between(1, int(models.size()));
        const int maker = MakerOfModel(model);
        const int cpu = v.upTo(int(kCpus.size()));
        const int subnet = 1 + (k - 1) / 250, host = 1 + (k - 1) % 250;
        const QString ip = QStringLiteral("192.168.%1.%2").arg(subnet).arg(host);
        const QString ipHex = QStringLiteral("C0A8%1%2").arg(subnet, 2, 16, QLatin1Char('0')).arg(host, 2, 16, QLatin1Char('0')).toUpper();
        const int diskKb =
            v.pick({QStringLiteral("40"), QStringLiteral("80"), QStringLiteral("120"), QStringLiteral("160")}).toInt() * 1000000;
        const int diskUsed = diskKb / 100 * v.between(15, 85);
        const int memKb = 262144 * (1 << v.upTo(3));
        const int memUsed = memKb / 100 * v.between(30, 90);
        const int pageFull = memKb * 3 / 2, pageUsed = pageFull / 100 * v.between(10, 60);
        const bool notebook = models[model - 1].contains(QStringLiteral("Pad")) || models[model - 1].contains(QStringLiteral("Latitude"))
                              || models[model - 1].contains(QStringLiteral("VersaPro"))
                              || models[model - 1].contains(QStringLiteral("BIBLO")) || models[model - 1].contains(QStringLiteral("nx"))
                              || models[model - 1].contains(QStringLiteral("dynabook"));
        const QString name = QStringLiteral("PC%1").arg(k, 4, 10, QLatin1Char('0'));
        const int leaseMonth = v.between(1, 12);
        const int leaseYear = v.between(2002, 2005);

        c.Execute(
            QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, "
                           "Model_Code, Asset_Code, Type_Number, Sereals_Number, [Update], Selling_Agent, "
                           "Leasing_Company, Leasing_Contract_Number, Leasing_StartDate, Leasing_EndDate, "
                           "Leasing_Monthly_Amount, Cash_Payment, Maintenance_Agent, Maintenance_Contract_Number, "
                           "Comment, Deleted_Flug) VALUES (%1, %2, %3, %4, %5, %6, %7, %8, %9, %10, %11, %12, "
                           "%13, %14, %15, %16, %17, %18, %19, 0)")
                .arg(k)
                .arg(v.between(1, int(kLocations.size())))
                .arg(v.between(1, users))
                .arg(maker)
                .arg(model)
                .arg(Quoted(v.chance(70) ? QStringLiteral("リース") : QStringLiteral("購入")),
                     Quoted(QStringLiteral("%1-%2").arg(8000 + model).arg(v.between(100, 999))),
                     Quoted(QStringLiteral("SN%1").arg(v.between(10000000, 99999999))),
                     Quoted(QStringLiteral("2005/%1/%2").arg(v.between(1, 12)).arg(v.between(1, 28))),
                     Quoted(v.pick({QStringLiteral("大塚商会"), QStringLiteral("ソフマップ"), QStringLiteral("内田洋行")})),
                     Quoted(v.pick({QStringLiteral("オリックス"), QStringLiteral("東京リース"), QStringLiteral("三井住友銀リース")})),
                     Quoted(QStringLiteral("L-%1-%2").arg(leaseYear).arg(k, 5, 10, QLatin1Char('0'))),
                     Quoted(QStringLiteral("%1/%2/1").arg(leaseYear).arg(leaseMonth)))
                .arg(Quoted(QStringLiteral("%1/%2/1").arg(leaseYear + 4).arg(leaseMonth)))
                .arg(v.between(40, 120) * 100)
                .arg(v.chance(20) ? v.between(1, 50) * 1000 : 0)
                .arg(Quoted(v.pick({QStringLiteral("NECフィールディング"), QStringLiteral("富士通サポート"), QStringLiteral("日本IBM")})),
                     Quoted(QStringLiteral("M-%1").arg(v.between(1000, 9999))),
                     v.chance(15) ? Quoted(QStringLiteral("予備機")) : QStringLiteral("Null")));

        c.Execute(
            QStringLiteral("INSERT INTO tbl_Pclist (MainKey, [Update], Computer_Name, Workgroup, IPAddress, "
                           "IPAddress_16num, MacAddress, Operating_System, Version_Number, ServicePack, ProductID, "
                           "ProductKey, OEM_Manufacturer, OEM_Model, IE_Version, IE_SP, Resolution, Memory_Full, "
                           "Memory_Used, Memory_Free, Pagefile_Full, Pagefile_Used, Pagefile_Free, SysHD_Full, "
                           "SysHD_Used, SysHD_Free, SysHD_Driveletter, Floppydisk_Drive, Cdrom_Drive, DVD_Drive, "
                           "Cdr_Drive, Mo_Drive, Combo_Drive, CPU_NameString, CPU_Clock, UserName, UserPassword, "
                           "HostsName, DomeinName, PC_Explanation, ProviderName, AdapterName, SubnetMask, Gateway, "
                           "DHCPServer, PrimaryWINS, SecondaryWINS, PrimaryDNS, SecondaryDNS, HUB_Name, "
                           "Internet_Connection, Modem_Connection, LAN_Connection, PROXY_Connection, OfflineMode, "
                           "RASInstalled) VALUES (")
            + QString::number(k) + QStringLiteral(", ")
            + QStringList{Quoted(QStringLiteral("2005/%1/%2 %3:%4:00")
                                     .arg(v.between(1, 12))
                                     .arg(v.between(1, 28))
                                     .arg(v.between(9, 18))
                                     .arg(v.between(10, 59))),
                          Quoted(name),
                          Quoted(v.pick({QStringLiteral("WORKGROUP"), QStringLiteral("EIGYO"), QStringLiteral("KAIHATSU")})),
                          Quoted(ip),
                          Quoted(ipHex),
                          Quoted(QStringLiteral("00-0D-60-%1-%2-%3")
                                     .arg(v.upTo(256), 2, 16, QLatin1Char('0'))
                                     .arg(v.upTo(256), 2, 16, QLatin1Char('0'))
                                     .arg(v.upTo(256), 2, 16, QLatin1Char('0'))
                                     .toUpper()),
                          Quoted(v.pick(kOses)),
                          Quoted(QStringLiteral("5.1.2600")),
                          Quoted(v.pick({QStringLiteral("Service Pack 1"), QStringLiteral("Service Pack 2")})),
                          Quoted(QStringLiteral("55274-OEM-%1-%2").arg(v.between(1000000, 9999999)).arg(v.between(10000, 99999))),
                          Quoted(QStringLiteral("XXXXX-%1-%2-XXXXX-XXXXX").arg(v.between(10000, 99999)).arg(v.between(10000, 99999))),
                          Quoted(kMakers[maker - 1]),
                          Quoted(models[model - 1]),
                          Quoted(QStringLiteral("6.0.2900.2180")),
                          Quoted(QStringLiteral("SP2")),
                          Quoted(notebook ? QStringLiteral("1024x768") : v.pick({QStringLiteral("1280x1024"), QStringLiteral("1024x768")})),
                          QString::number(memKb),
                          QString::number(memUsed),
                          QString::number(memKb - memUsed),
                          QString::number(pageFull),
                          QString::number(pageUsed),
                          QString::number(pageFull - pageUsed),
                          QString::number(diskKb),
                          QString::number(diskUsed),
                          QString::number(diskKb - diskUsed),
                          Quoted(QStringLiteral("C:")),
                          QString::number(notebook ? 0 : int(v.chance(40))),
                          QString::number(int(v.chance(50))),
                          QString::number(int(v.chance(40))),
                          QString::number(int(v.chance(50))),
                          QString::number(int(v.chance(5))),
                          QString::number(int(v.chance(30))),
                          Quoted(kCpus[cpu]),
                          QString::number(kClocks[cpu]),
                          Quoted(QStringLiteral("user%1").arg(k, 4, 10, QLatin1Char('0'))),
                          Quoted(QString()),
                          Quoted(name.toLower()),
                          Quoted(QStringLiteral("corp.example.co.jp")),
                          Quoted(notebook ? QStringLiteral("ノートPC") : QStringLiteral("事務用PC")),
                          Quoted(QStringLiteral("社内LAN")),
                          Quoted(QStringLiteral("Intel(R) PRO/100 VE Network Connection")),
                          Quoted(QStringLiteral("255.255.255.0")),
                          Quoted(QStringLiteral("192.168.%1.254").arg(subnet)),
                          Quoted(QStringLiteral("192.168.0.10")),
                          Quoted(QStringLiteral("192.168.0.11")),
                          Quoted(QStringLiteral("192.168.0.12")),
                          Quoted(QStringLiteral("192.168.0.1")),
                          Quoted(QStringLiteral("192.168.0.2")),
                          Quoted(QStringLiteral("HUB-%1").arg(subnet, 2, 10, QLatin1Char('0'))),
                          QStringLiteral("1"),
                          QString::number(int(v.chance(5))),
                          QStringLiteral("1"),
                          QString::number(int(v.chance(20))),
                          QStringLiteral("0"),
                          QString::number(int(v.chance(10)))}
                  .join(QStringLiteral(", "))
            + QStringLiteral(")"));
    }
    t.Commit();
}

void AddDevices(db::Connection& c, int devices)
{
    const char* const kinds[] = {"ルータ", "プリンタ", "HUB", "NAS", "サーバ", "無線AP"};
    const char* const makers[] = {"YAMAHA", "EPSON", "CANON", "BUFFALO", "Cisco", "NEC"};
    db::Transaction t(c);
    for (int k = 0; k < devices; ++k) {
        QString address, key;
        if (k % 20 != 19) {
            const int a = k % 3 == 0 ? 10 : 192, b = a == 10 ? 1 + k % 7 : 168, s = 1 + k % 11, h = 200 + k % 50;
            address = QStringLiteral("%1.%2.%3.%4").arg(a).arg(b).arg(s).arg(h);
            key = QStringLiteral("%1%2%3%4")
                      .arg(a, 2, 16, QLatin1Char('0'))
                      .arg(b, 2, 16, QLatin1Char('0'))
                      .arg(s, 2, 16, QLatin1Char('0'))
                      .arg(h, 2, 16, QLatin1Char('0'))
                      .toUpper();
        }
        const QString kind = QString::fromUtf8(kinds[k % 6]);
        c.Execute(QStringLiteral("INSERT INTO tbl_NetworkUnit ([Key], Deleted_Flug, Location_Name, User_Name, Computer_Name, "
                                 "WorkGroup, IPAddress, IPAddress_16num, MacAddress, Manufacturer_Name, Model_Name, "
                                 "Type_Number, Sereals_Number, ID, PassWord) VALUES (%1, 0, '本社%2F', '情報システム', "
                                 "'%3-%4', 'WORKGROUP', '%5', '%6', '00:A0:DE:%7:%8:%9', '%10', 'M-%11', 'T-%11', "
                                 "'S%12', 'admin', 'pw%1')")
                      .arg(k)
                      .arg(1 + k % 4)
                      .arg(kind)
                      .arg(k, 3, 10, QLatin1Char('0'))
                      .arg(address, key)
                      .arg(k / 256 % 256, 2, 16, QLatin1Char('0'))
                      .arg(k % 256, 2, 16, QLatin1Char('0'))
                      .arg(k % 100, 2, 10, QLatin1Char('0'))
                      .arg(QString::fromUtf8(makers[k % 6]))
                      .arg(100 + k % 30)
                      .arg(700000 + k));
    }
    t.Commit();
}

void AddPrinters(db::Connection& c, int computers)
{
    db::Transaction t(c);
    for (int k = 1; k <= computers; ++k) {
        const int floor = 1 + k % 4;
        c.Execute(QStringLiteral("INSERT INTO tbl_Printer_Management ([Key], [Update], Printer_Name, PrinterPorts_Name) "
                                 "VALUES (%1, '2005/12/04', 'EPSON LP-9000C %2F', 'IP_192.168.%2.201')")
                      .arg(k)
                      .arg(floor));
        if (k % 3 != 0)
            c.Execute(QStringLiteral("INSERT INTO tbl_Printer_Management ([Key], [Update], Printer_Name, PrinterPorts_Name) "
                                     "VALUES (%1, '2005/12/04', '%2', '%3')")
                          .arg(k)
                          .arg(k % 2 ? QStringLiteral("Canon LBP-1310") : QStringLiteral("Microsoft Office Document Image Writer"),
                               k % 2 ? QStringLiteral("LPT1:") : QStringLiteral("Ne00:")));
    }
    t.Commit();
}

} // namespace LedgerGenerator
