#include "demo/DemoLedger.h"

#include "demo/InventoryGenerator.h"
#include "demo/LedgerGenerator.h"
#include "foundation/AdminLedger.h"
#include "foundation/Mdl_gData.h"
#include "intake/InventoryRead.h"
#include "ledger/LedgerFile.h"
#include "network/NetworkList.h"
#include "platform/app/CommandLine.h"
#include "platform/db/Connection.h"
#include "platform/text/Cp932.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <random>
#include <unistd.h>

namespace demo {

namespace {

using LedgerGenerator::Quoted;

constexpr int kComputers = 60;
constexpr int kUsers = 54;
constexpr int kDevices = 12;
constexpr unsigned kSeed = 20060401;
// The research lab and the logistics centre run English Windows: their PCs' files come from the
// English inventory tool and are read last, with the English reader.
constexpr int kFirstEnglish = 49;

struct Site {
    int location;       // code in tbl_Location
    const char* subnet; // the first three parts of the addresses
};
// Where the computers stand: the head office floors and the old meeting room (location 4, since
// retired from the masters), the branches, the plants; the lab and the logistics centre last.
const std::array<Site, 10> kSites = {{{1, "192.168.1"},
                                      {2, "192.168.1"},
                                      {3, "192.168.1"},
                                      {4, "192.168.1"},
                                      {5, "192.168.2"},
                                      {6, "192.168.3"},
                                      {7, "192.168.4"},
                                      {9, "10.1.20"},
                                      {10, "10.1.30"},
                                      {8, "192.168.5"}}};
const std::array<Site, 2> kEnglishSites = {{{12, "10.3.1"}, {11, "10.2.10"}}};
const std::array<const char*, 3> kSystems = {"Microsoft Windows XP Professional", "Microsoft Windows 2000 Professional",
                                             "Microsoft Windows XP Home Edition"};
const std::array<const char*, 5> kCpus = {"Intel(R) Pentium(R) 4 CPU 2.80GHz", "Intel(R) Pentium(R) 4 CPU 3.00GHz",
                                          "Intel(R) Pentium(R) M processor 1.60GHz", "Intel(R) Celeron(R) CPU 2.40GHz",
                                          "AMD Athlon(tm) XP 2500+"};

struct Purchase {
    const char* application;
    int units;
    const char* assetType;
    int price;
};
const std::array<Purchase, 6> kPurchases = {{{"Microsoft Office Professional Edition 2003", 40, "License", 52000},
                                             {"ウイルスバスター2006", 60, "License", 4200},
                                             {"一太郎2005", 10, "パッケージ FPP", 18000},
                                             {"Adobe Acrobat 7.0 Standard", 5, "パッケージ FPP", 38000},
                                             {"秀丸エディタ", 20, "License", 4000},
                                             {"JUST Suite 2005", 8, "パッケージ PIPC", 0}}};

// One computer of the demo: everything its inventory file and its administrative record say.
struct Computer {
    int key = 0;
    Site site{};
    int host = 0;
    int user = 0;
    int model = 0;
    int system = 0;
    int cpu = 0;
    bool english = false;
    bool retired = false;
    bool leased = false;
};

std::vector<Computer> planComputers()
{
    std::mt19937 rng(kSeed);
    const auto upTo = [&rng](int n) { return int(rng() % unsigned(n)); };
    std::vector<Computer> computers;
    for (int k = 1; k <= kComputers; ++k) {
        Computer c;
        c.key = k;
        c.english = k >= kFirstEnglish;
        c.site = c.english ? kEnglishSites[size_t(k % 2)] : kSites[size_t(upTo(int(kSites.size())))];
        c.host = 10 + k;
        c.user = 1 + (k - 1) % kUsers;
        c.model = 1 + upTo(int(LedgerGenerator::Models().size()));
        const int system = upTo(10);
        c.system = system < 6 ? 0 : system < 9 ? 1 : 2;
        c.cpu = upTo(int(kCpus.size()));
        c.retired = k % 12 == 7;
        c.leased = upTo(10) < 7;
        computers.push_back(c);
    }
    return computers;
}

QString pad(int n, int width) { return QStringLiteral("%1").arg(n, width, 10, QLatin1Char('0')); }
QString ascii(const char* s) { return QString::fromUtf8(s); }

InventoryMachine machineOf(const Computer& c, const std::vector<LedgerGenerator::User>& users)
{
    const LedgerGenerator::User& user = users[size_t(c.user - 1)];
    InventoryMachine m;
    m.english = c.english;
    m.computerName = QStringLiteral("PC%1").arg(pad(c.key, 4));
    m.userName = user.account;
    m.section = c.english ? QStringLiteral("Lab") : LedgerGenerator::Sections()[user.section - 1];
    m.address = QStringLiteral("%1.%2").arg(ascii(c.site.subnet)).arg(c.host);
    m.gateway = ascii(c.site.subnet) + QStringLiteral(".1");
    m.maker = LedgerGenerator::Makers()[LedgerGenerator::MakerOfModel(c.model) - 1];
    m.model = LedgerGenerator::Models()[c.model - 1];
    m.operatingSystem = ascii(kSystems[size_t(c.system)]);
    m.cpu = ascii(kCpus[size_t(c.cpu)]);
    m.year = c.key % 3 == 0 ? QStringLiteral("2005") : QStringLiteral("2006");
    // the printer of the site by its share name, the head office's colour printer, a local one
    // or the PDF printer on some
    const QString site = LedgerGenerator::Locations()[c.site.location - 1];
    m.printers.emplace_back(site + QStringLiteral("LP"), QStringLiteral("IP_%1.201").arg(ascii(c.site.subnet)));
    if (QByteArray(c.site.subnet) == "192.168.1")
        m.printers.emplace_back(QStringLiteral("本社カラー"), QStringLiteral("IP_192.168.1.210"));
    if (c.key % 4 == 1)
        m.printers.emplace_back(QStringLiteral("Canon LBP-3300"), QStringLiteral("LPT1:"));
    if (c.key % 5 == 2)
        m.printers.emplace_back(QStringLiteral("PDFCreator"), QStringLiteral("PDFCreator:"));
    return m;
}

// Reads the files with one reader; how many became computers.
int readFiles(const QStringList& files, InventoryLanguage language)
{
    int read = 0;
    const InventoryRunResult run = ReadInventoryFiles(files, language, [&read](const InventoryFileResult& r) {
        if (r.outcome == InventoryFileResult::Read && !r.keyOverflow)
            ++read;
    });
    if (run.failure)
        throw *run.failure;
    return read;
}

// The administrative side of each computer: its masters, the purchase or lease, maintenance, and
// the drives that the inventory does not tell.
void administrativeRecords(db::Connection& c, const std::vector<Computer>& computers)
{
    const QStringList sellers = {QStringLiteral("大塚商会"), QStringLiteral("ソフマップ"), QStringLiteral("内田洋行")};
    const QStringList lessors = {QStringLiteral("オリックス"), QStringLiteral("東京リース"), QStringLiteral("三井住友銀リース")};
    const QStringList maintainers = {QStringLiteral("NECフィールディング"), QStringLiteral("富士通サポート"), QStringLiteral("日本IBM")};
    for (const Computer& pc : computers) {
        const int year = 2002 + pc.key % 4, month = 1 + pc.key % 12;
        const QString lease = pc.leased
                                  ? QStringLiteral("Leasing_Company = %1, Leasing_Contract_Number = %2, "
                                                   "Leasing_StartDate = %3, Leasing_EndDate = %4, Leasing_Monthly_Amount = %5, ")
                                        .arg(Quoted(lessors[pc.key % 3]), Quoted(QStringLiteral("L-%1-%2").arg(year).arg(pad(pc.key, 4))),
                                             Quoted(QStringLiteral("%1/%2/01").arg(year).arg(pad(month, 2))),
                                             Quoted(QStringLiteral("%1/%2/01").arg(year + 4).arg(pad(month, 2))))
                                        .arg(4000 + 200 * (pc.key % 20))
                                  : QStringLiteral("Cash_Payment = %1, ").arg(98000 + 1000 * (pc.key % 30));
        QString comment = QStringLiteral("Null");
        if (pc.retired)
            comment = Quoted(QStringLiteral("リース満了につき返却"));
        else if (pc.key % 9 == 4)
            comment = Quoted(QStringLiteral("予備機"));
        c.Execute(QStringLiteral("UPDATE tbl_Computer_List SET Location_Code = %1, User_Code = %2, Manufacturer_Code = %3, "
                                 "Model_Code = %4, Asset_Code = %5, Type_Number = %6, Sereals_Number = %7, Selling_Agent = %8, ")
                      .arg(pc.site.location)
                      .arg(pc.user)
                      .arg(LedgerGenerator::MakerOfModel(pc.model))
                      .arg(pc.model)
                      .arg(Quoted(pc.leased ? QStringLiteral("リース") : QStringLiteral("購入")),
                           Quoted(QStringLiteral("%1-%2").arg(8000 + pc.model).arg(100 + pc.key * 7 % 900)),
                           Quoted(QStringLiteral("SN%1").arg(pad(pc.key * 7919 % 100000000, 8))), Quoted(sellers[pc.key % 3]))
                  + lease
                  + QStringLiteral("Maintenance_Agent = %1, Maintenance_Contract_Number = %2, Comment = %3, Deleted_Flug = %4, "
                                   "Remove_Date = %5 WHERE MainKey = %6")
                        .arg(Quoted(maintainers[pc.key % 3]), Quoted(QStringLiteral("M-%1").arg(1000 + pc.key)), comment)
                        .arg(pc.retired ? 1 : 0)
                        .arg(pc.retired ? Quoted(QStringLiteral("2006/%1/28").arg(pad(1 + pc.key % 3, 2))) : QStringLiteral("Null"))
                        .arg(pc.key));
        const bool notebook = LedgerGenerator::Models()[pc.model - 1].contains(QStringLiteral("Pad"))
                              || LedgerGenerator::Models()[pc.model - 1].contains(QStringLiteral("BIBLO"));
        c.Execute(QStringLiteral("UPDATE tbl_Pclist SET Floppydisk_Drive = %1, Cdrom_Drive = 1, DVD_Drive = %2, Cdr_Drive = %3, "
                                 "Mo_Drive = 0, Combo_Drive = %4, HUB_Name = %5 WHERE MainKey = %6")
                      .arg(notebook ? 0 : 1)
                      .arg(pc.key % 3 == 0 ? 1 : 0)
                      .arg(pc.key % 2)
                      .arg(notebook ? 1 : 0)
                      .arg(Quoted(QStringLiteral("HUB-%1").arg(pc.site.location, 2, 10, QLatin1Char('0'))))
                      .arg(pc.key));
    }
}

// Licences bought, and which computer holds one; returns the number of assignments.
int licences(db::Connection& c, const std::vector<Computer>& computers)
{
    for (size_t p = 0; p < kPurchases.size(); ++p)
        c.Execute(QStringLiteral("INSERT INTO tbl_License_Key ( [Key], Application_Name, Unit_Num ) VALUES ( %1, %2, %3 )")
                      .arg(p + 1)
                      .arg(Quoted(ascii(kPurchases[p].application)))
                      .arg(kPurchases[p].units));
    int key = 0;
    for (const Computer& pc : computers) {
        if (pc.retired)
            continue;
        const std::array<bool, kPurchases.size()> holds = {pc.key % 3 != 0, true,           pc.key % 6 == 1, pc.key % 12 == 5,
                                                           pc.key % 4 == 2, pc.key % 8 == 3};
        for (size_t p = 0; p < holds.size(); ++p) {
            if (!holds[p])
                continue;
            ++key;
            const bool cash = kPurchases[p].price == 0 || pc.key % 5 == 0;
            c.Execute(QStringLiteral("INSERT INTO tbl_License_Dat ( [Key], Application_Code, Computer_Code, ProductID, Licence_No, "
                                     "Install_Key, Payment_Type, Asset_Type, Purchase_Price, Comment, [Update] ) VALUES ( "
                                     "%1, %2, %3, %4, %5, %6, %7, %8, %9, %10, %11 )")
                          .arg(key)
                          .arg(p + 1)
                          .arg(pc.key)
                          .arg(Quoted(QStringLiteral("%1-OEM-%2").arg(70000 + int(p) * 1111).arg(pad(key * 3571 % 10000000, 7))),
                               Quoted(QStringLiteral("LIC-%1-%2").arg(p + 1).arg(pad(key, 4))),
                               Quoted(QStringLiteral("%1-%2-%3")
                                          .arg(pad(key * 7 % 100000, 5), pad(key * 13 % 100000, 5), pad(key * 31 % 100000, 5))),
                               Quoted(cash ? QStringLiteral("現金") : QStringLiteral("リース")), Quoted(ascii(kPurchases[p].assetType)))
                          .arg(kPurchases[p].price)
                          .arg(pc.key % 10 == 1 ? Quoted(QStringLiteral("再インストール済み")) : QStringLiteral("Null"),
                               Quoted(QStringLiteral("2005/%1/%2").arg(pad(1 + key % 12, 2), pad(1 + key % 28, 2)))));
        }
    }
    return key;
}

// A mail account for each user who has a computer; returns how many.
int mailAccounts(db::Connection& c, const std::vector<Computer>& computers, const std::vector<LedgerGenerator::User>& users)
{
    int key = 0;
    for (const LedgerGenerator::User& user : users) {
        const auto pc =
            std::find_if(computers.begin(), computers.end(), [&](const Computer& k) { return k.user == user.code && !k.retired; });
        if (pc == computers.end() || user.code % 7 == 3)
            continue;
        ++key;
        const QString mailServer = pc->english ? QStringLiteral("10.3.0.25") : QStringLiteral("192.168.0.25");
        c.Execute(QStringLiteral("INSERT INTO tbl_Mail_Management ( [Key], User_Code, Conputer_Code, beat_loginID, beat_loginPassward, "
                                 "Windows_UserName, Mail_Address, SMTP_IPAddress, POP3_IPAddress, Mailbox_AccountName, "
                                 "Mailbox_Password ) VALUES ( %1, %2, %3, %4, %5, %6, %7, %8, %8, %9, %10 )")
                      .arg(key)
                      .arg(user.code)
                      .arg(pc->key)
                      .arg(Quoted(QStringLiteral("b") + user.account), Quoted(QStringLiteral("bt%1").arg(pad(user.code * 37 % 10000, 4))),
                           Quoted(user.account), Quoted(user.account + QStringLiteral("@example.co.jp")), Quoted(mailServer),
                           Quoted(user.account), Quoted(QStringLiteral("mb%1").arg(pad(user.code * 53 % 10000, 4)))));
    }
    return key;
}

QString writeLedger(const QString& path, DemoLedgerSummary& summary)
{
    const std::vector<Computer> computers = planComputers();
    QTemporaryDir folder;
    if (!folder.isValid())
        return QStringLiteral("no temporary folder for the inventory files: ") + folder.errorString();
    db::Connection& c = Mdl_gData::DbConnection();
    c.Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + QFileInfo(path).absoluteFilePath());
    LedgerGenerator::Masters(c);
    const std::vector<LedgerGenerator::User> users = LedgerGenerator::Users(c, kUsers, kSeed);

    // the inventory files, read as the window reads them, in the order of their keys
    QStringList japanese, english;
    for (const Computer& pc : computers) {
        const QString file = folder.filePath(QStringLiteral("PC%1.csv").arg(pad(pc.key, 4)));
        QFile f(file);
        if (!f.open(QIODevice::WriteOnly) || f.write(InventoryFile(pc.key, machineOf(pc, users))) < 0)
            return QStringLiteral("cannot write the inventory file ") + file + QStringLiteral(": ") + f.errorString();
        (pc.english ? english : japanese) << file;
    }
    const int read = readFiles(japanese, InventoryLanguage::Japanese) + readFiles(english, InventoryLanguage::English);
    if (read != kComputers)
        return QStringLiteral("only %1 of %2 inventory files were read").arg(read).arg(kComputers);

    {
        db::Transaction t(c);
        administrativeRecords(c, computers);
        summary.assignments = licences(c, computers);
        summary.mailAccounts = mailAccounts(c, computers, users);
        t.Commit();
    }
    LedgerGenerator::AddDevices(c, kDevices);
    if (!RebuildNetworkList())
        return QStringLiteral("the address list could not be rebuilt");

    summary.computers = kComputers;
    summary.retired = int(std::count_if(computers.begin(), computers.end(), [](const Computer& pc) { return pc.retired; }));
    summary.english = english.size();
    summary.users = kUsers;
    summary.purchases = int(kPurchases.size());
    summary.devices = kDevices;
    return {};
}

// Gives the finished file at temp the name path, unless something took that name meanwhile.
QString takeName(const QString& temp, const QString& path)
{
    if (::link(QFile::encodeName(temp).constData(), QFile::encodeName(path).constData()) == 0)
        return {};
    return errno == EEXIST ? QStringLiteral("%1 exists already; the demo ledger never overwrites a file.").arg(path)
                           : QString::fromLocal8Bit(std::strerror(errno));
}

QString writeSettings(const QString& path)
{
    QSaveFile f(path);
    if (!f.open(QIODevice::WriteOnly) || f.write(DemoSettings()) < 0 || !f.commit())
        return QStringLiteral("cannot write %1: %2").arg(path, f.errorString());
    return {};
}

} // namespace

QString WriteDemoLedger(const QString& path, DemoLedgerSummary& summary)
{
    if (QFileInfo::exists(path))
        return QStringLiteral("%1 exists already; the demo ledger never overwrites a file.").arg(path);
    const QString temp = path + QStringLiteral(".part-") + QString::number(::getpid());
    QFile::remove(temp);
    QString error = ledger::CreateLedger(temp);
    if (error.isEmpty()) {
        try {
            error = writeLedger(temp, summary);
        } catch (const vb::VbError& e) {
            error = QStringLiteral("error %1: %2").arg(e.Number()).arg(e.Description());
        }
        AdminLedger::Close();
    }
    if (error.isEmpty())
        error = takeName(temp, path);
    QFile::remove(temp);
    QFile::remove(temp + QStringLiteral("-journal"));
    return error.isEmpty() ? QString() : QStringLiteral("cannot write %1: %2").arg(path, error);
}

QByteArray DemoSettings()
{
    struct View {
        const char* name;
        int removed;                                  // OptDel
        std::vector<std::array<const char*, 3>> keys; // field, caption, direction
        std::vector<int> columns;
    };
    const std::array<View, 3> views = {{
        {"部署別",
         0,
         {{"Section_Name", "部署", "ASC"}, {"Computer_Name", "コンピュータ名", "ASC"}},
         {2, 3, 4, 8, 10, 1, 13, 14, 17, 28, 26}},
        {"OS別", 0, {{"Operating_System", "OS", "ASC"}, {"Computer_Name", "コンピュータ名", "ASC"}}, {17, 8, 24, 25, 28, 26, 4, 1, 14}},
        {"撤去済み", 1, {{"Remove_Date", "撤去日", "DESC"}}, {8, 75, 1, 4, 13, 14, 16, 66, 68, 76}},
    }};
    QStringList lines = {QStringLiteral("[Main]"), QStringLiteral("SectionNumber=0")};
    for (size_t v = 0; v < views.size(); ++v)
        lines << QStringLiteral("SectionName%1=%2").arg(v).arg(ascii(views[v].name));
    for (size_t v = 0; v < views.size(); ++v) {
        const View& view = views[v];
        lines << QStringLiteral("[%1]").arg(v) << QStringLiteral("OptDel=%1").arg(view.removed)
              << QStringLiteral("SelectNumber=%1").arg(view.keys.size());
        for (size_t k = 0; k < view.keys.size(); ++k)
            lines << QStringLiteral("KeyName%1=%2").arg(k).arg(ascii(view.keys[k][0]))
                  << QStringLiteral("KeyCaption%1=%2").arg(k).arg(ascii(view.keys[k][1]))
                  << QStringLiteral("KeyASCDESC%1=%2").arg(k).arg(ascii(view.keys[k][2]));
        lines << QStringLiteral("MSFlexGrit_SelectNum=%1").arg(view.columns.size());
        for (size_t i = 0; i < view.columns.size(); ++i)
            lines << QStringLiteral("MSFlexGrit_Select%1=%2").arg(i + 1).arg(view.columns[i]);
    }
    return text::ToCp932(QString(lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")));
}

int DemoLedgerCommand(const QStringList& args)
{
    app::CommandLine command("demo-ledger", "PATH", {});
    if (!command.Parse(args))
        return app::ExitFailed;
    if (command.Operands().size() != 1)
        return command.Usage(QStringLiteral("one PATH"));
    const QString path = command.Operands().first();
    DemoLedgerSummary s;
    const QString error = WriteDemoLedger(path, s);
    if (!error.isEmpty()) {
        command.Error(error);
        return app::ExitFailed;
    }
    // the settings beside the ledger, where the program looks; a user's own are kept
    const QString ini = QFileInfo(path).dir().filePath(QStringLiteral("DB.ini"));
    QString settings = QStringLiteral("DB.ini beside it kept");
    if (!QFileInfo::exists(ini)) {
        const QString iniError = writeSettings(ini);
        if (!iniError.isEmpty()) {
            command.Error(QStringLiteral("%1 written, but %2").arg(path, iniError));
            return app::ExitFailed;
        }
        settings = QStringLiteral("DB.ini with 3 views written beside it");
    }
    app::PrintLine(stdout, QStringLiteral("%1: %2 computers (%3 retired, %4 read in English), %5 users, %6 licence purchases "
                                          "and %7 assignments, %8 mail accounts, %9 network devices; %10")
                               .arg(path)
                               .arg(s.computers)
                               .arg(s.retired)
                               .arg(s.english)
                               .arg(s.users)
                               .arg(s.purchases)
                               .arg(s.assignments)
                               .arg(s.mailAccounts)
                               .arg(s.devices)
                               .arg(settings));
    return app::ExitDone;
}

} // namespace demo
