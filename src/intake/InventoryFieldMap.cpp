#include "intake/InventoryFieldMap.h"

#include "foundation/Mdl_IP.h"
#include "platform/vb/Conversion.h"

namespace {

using K = FieldKind;

constexpr FieldSelection item(QStringView item, QStringView subItem) { return {u"Item", item, u"SubItem", subItem}; }
constexpr FieldSelection setting(QStringView name) { return {u"SubItem", u"Setting", u"Contents", name}; }
constexpr FieldSelection group(QStringView group, QStringView item) { return {u"Group", group, u"Item", item}; }
constexpr FieldSelection cpu(QStringView subItem) { return item(u"CPU", subItem); }

// A unit row reads the same record as the number row above it: the selections are repeated so
// that each row stands for itself, as the grid of the review window needs it.
// clang-format off
const std::array<InventoryFieldRow, 107> kRows = {{
    {.row = 1, .caption = u"コンピュータ名", .field = u"Computer_Name", .kind = K::Text, .position = 4,
     .japanese = item(u"LAN", u"コンピュータ名"), .english = item(u"LAN", u"Computer name")},
    {.row = 2, .caption = u"ワークグループ名", .field = u"Workgroup", .kind = K::Text, .position = 4,
     .japanese = item(u"LAN", u"ワークグループ"), .english = item(u"LAN", u"Workgroup name")},
    {.row = 3, .caption = u"IPアドレス", .field = u"IPAddress", .kind = K::Text, .position = 4,
     .japanese = item(u"Adapter", u"IPアドレス"), .english = item(u"Adapter", u"IP address")},
    // the sort key beside the address, written unbracketed and unqualified
    {.row = 4, .caption = u"IPアドレス(16)", .field = u"IPAddress_16num", .kind = K::Hex, .position = 4,
     .japanese = item(u"Adapter", u"IPアドレス"), .english = item(u"Adapter", u"IP address"),
     .form = FieldForm::Unqualified},
    // the creation time: a record of its own in a Japanese file, the date of the first Windows
    // record in an English one; the bulk read writes it to tbl_Computer_List, then to tbl_Pclist
    {.row = 5, .caption = u"更新日", .field = u"Update", .kind = K::Date, .position = 3,
     .japanese = group(u"Create", u"DateTime"), .english = group(u"Soft", u"Windows"), .englishPosition = 6},
    {.row = 6, .caption = u"MACアドレス", .field = u"MacAddress", .kind = K::Text, .position = 4,
     .japanese = item(u"Adapter", u"MACアドレス"), .english = item(u"Adapter", u"MAC address")},
    {.row = 7, .caption = u"メモリ全容量", .field = u"Memory_Full", .kind = K::Number, .position = 4,
     .japanese = item(u"メモリ", u"全容量"), .english = item(u"Memory", u"Capacity")},
    {.row = 8, .caption = u"メモリ全容量 単位", .field = u"Memory_Full_unit", .kind = K::Unit, .position = 5,
     .japanese = item(u"メモリ", u"全容量"), .english = item(u"Memory", u"Capacity")},
    {.row = 9, .caption = u"メモリ使用量", .field = u"Memory_Used", .kind = K::Number, .position = 4,
     .japanese = item(u"メモリ", u"使用量"), .english = item(u"Memory", u"Amount used")},
    {.row = 10, .caption = u"メモリ使用量 単位", .field = u"Memory_Used_unit", .kind = K::Unit, .position = 5,
     .japanese = item(u"メモリ", u"使用量"), .english = item(u"Memory", u"Amount used")},
    {.row = 11, .caption = u"Cドライブ 全容量", .field = u"SysHD_Full", .kind = K::Number, .position = 4,
     .japanese = item(u"SystemHDD", u"全容量"), .english = item(u"SystemHDD", u"Capacity")},
    {.row = 12, .caption = u"Cドライブ全容量 単位", .field = u"SysHD_Full_unit", .kind = K::Unit, .position = 5,
     .japanese = item(u"SystemHDD", u"全容量"), .english = item(u"SystemHDD", u"Capacity")},
    {.row = 13, .caption = u"Cドライブ使用量", .field = u"SysHD_Used", .kind = K::Number, .position = 4,
     .japanese = item(u"SystemHDD", u"使用量"), .english = item(u"SystemHDD", u"Amount used")},
    {.row = 14, .caption = u"Cドライブ使用量 単位", .field = u"SysHD_Used_unit", .kind = K::Unit, .position = 5,
     .japanese = item(u"SystemHDD", u"使用量"), .english = item(u"SystemHDD", u"Amount used")},
    {.row = 15, .caption = u"メモリ空容量", .field = u"Memory_Free", .kind = K::Number, .position = 4,
     .japanese = item(u"メモリ", u"空容量"), .english = item(u"Memory", u"Empty capacity")},
    {.row = 16, .caption = u"メモリ空容量 単位", .field = u"Memory_Free_unit", .kind = K::Unit, .position = 5,
     .japanese = item(u"メモリ", u"空容量"), .english = item(u"Memory", u"Empty capacity")},
    {.row = 17, .caption = u"ページファイル全容量", .field = u"Pagefile_Full", .kind = K::Number, .position = 4,
     .japanese = item(u"ページファイル", u"全容量"), .english = item(u"PageFile", u"Capacity")},
    {.row = 18, .caption = u"ページファイル全容量 単位", .field = u"Pagefile_Full_unit", .kind = K::Unit, .position = 5,
     .japanese = item(u"ページファイル", u"全容量"), .english = item(u"PageFile", u"Capacity")},
    {.row = 19, .caption = u"ページファイル使用量", .field = u"Pagefile_Used", .kind = K::Number, .position = 4,
     .japanese = item(u"ページファイル", u"使用量"), .english = item(u"PageFile", u"Amount used")},
    {.row = 20, .caption = u"ページファイル使用量 単位", .field = u"Pagefile_Used_unit", .kind = K::Unit, .position = 5,
     .japanese = item(u"ページファイル", u"使用量"), .english = item(u"PageFile", u"Amount used")},
    {.row = 21, .caption = u"ページファイル空容量", .field = u"Pagefile_Free", .kind = K::Number, .position = 4,
     .japanese = item(u"ページファイル", u"空容量"), .english = item(u"PageFile", u"Empty capacity")},
    {.row = 22, .caption = u"ページファイル空容量 単位", .field = u"Pagefile_Free_unit", .kind = K::Unit, .position = 5,
     .japanese = item(u"ページファイル", u"空容量"), .english = item(u"PageFile", u"Empty capacity")},
    {.row = 23, .caption = u"Cドライブ ドライブ名", .field = u"SysHD_Driveletter", .kind = K::Text, .position = 4,
     .japanese = item(u"SystemHDD", u"Drive")},
    {.row = 24, .caption = u"Cドライブ空容量", .field = u"SysHD_Free", .kind = K::Number, .position = 4,
     .japanese = item(u"SystemHDD", u"空容量"), .english = item(u"SystemHDD", u"Empty capacity")},
    {.row = 25, .caption = u"Cドライブ空容量 単位", .field = u"SysHD_Free_unit", .kind = K::Unit, .position = 5,
     .japanese = item(u"SystemHDD", u"空容量"), .english = item(u"SystemHDD", u"Empty capacity")},
    // the Version property of Windows is the name of the operating system
    {.row = 26, .caption = u"OS名称", .field = u"Operating_System", .kind = K::Text, .position = 4,
     .japanese = item(u"Windows", u"Version")},
    {.row = 27, .caption = u"プロダクトID", .field = u"ProductID", .kind = K::Text, .position = 4,
     .japanese = item(u"Windows", u"ProductID")},
    {.row = 28, .caption = u"OEM Manufacturer", .field = u"OEM_Manufacturer", .kind = K::Text, .position = 4,
     .japanese = item(u"Windows", u"OEM Manufacturer")},
    {.row = 29, .caption = u"OEM Model", .field = u"OEM_Model", .kind = K::Text, .position = 4,
     .japanese = item(u"Windows", u"OEM Model")},
    {.row = 30, .caption = u"IE Version", .field = u"IE_Version", .kind = K::Text, .position = 4,
     .japanese = item(u"IE", u"Version")},
    // IE_SP holds the browser's update version
    {.row = 31, .caption = u"IE 更新Version", .field = u"IE_SP", .kind = K::Text, .position = 4,
     .japanese = item(u"IE", u"更新Version"), .english = item(u"IE", u"UpdatingVersion")},
    {.row = 32, .caption = u"画面 解像度", .field = u"Resolution", .kind = K::Text, .position = 4,
     .japanese = item(u"画面", u"解像度"), .english = item(u"Screen", u"Resolution")},
    {.row = 33, .caption = u"CPU名称", .field = u"CPU_Name", .kind = K::Text, .position = 4, .japanese = cpu(u"Name")},
    // no unit row: the record's unit (MHz) is not carried
    {.row = 34, .caption = u"CPUクロック", .field = u"CPU_Clock", .kind = K::Number, .position = 4, .japanese = cpu(u"Clock")},
    {.row = 35, .caption = u"CPU ID", .field = u"CPU_ID", .kind = K::Text, .position = 4, .japanese = cpu(u"ID")},
    // CPU_Unit holds the number of processors
    {.row = 36, .caption = u"CPU Number of processors", .field = u"CPU_Unit", .kind = K::Number, .position = 4,
     .japanese = cpu(u"Number of processors")},
    {.row = 37, .caption = u"CPU NameString", .field = u"CPU_NameString", .kind = K::Text, .position = 4, .japanese = cpu(u"NameString")},
    {.row = 38, .caption = u"CPU Type", .field = u"CPU_Type", .kind = K::Number, .position = 4, .japanese = cpu(u"Type")},
    {.row = 39, .caption = u"CPU Family", .field = u"CPU_Family", .kind = K::Number, .position = 4, .japanese = cpu(u"Family")},
    {.row = 40, .caption = u"CPU Model", .field = u"CPU_Model", .kind = K::Number, .position = 4, .japanese = cpu(u"Model")},
    {.row = 41, .caption = u"CPU Stepping", .field = u"CPU_Stepping", .kind = K::Number, .position = 4, .japanese = cpu(u"Stepping")},
    {.row = 42, .caption = u"CPU L1命令キャッシュ", .field = u"CPU_L1_Instruction_Cache", .kind = K::GuardedNumber, .position = 4,
     .japanese = cpu(u"L1命令キャッシュ"), .english = cpu(u"L1 instruction cache")},
    {.row = 43, .caption = u"CPU L1命令キャッシュ 単位", .field = u"CPU_L1_Instruction_Cache_unit", .kind = K::Unit, .position = 5,
     .japanese = cpu(u"L1命令キャッシュ"), .english = cpu(u"L1 instruction cache")},
    {.row = 44, .caption = u"CPU L1Dataキャッシュ", .field = u"CPU_L1_Data_Cache", .kind = K::GuardedNumber, .position = 4,
     .japanese = cpu(u"L1Dataキャッシュ"), .english = cpu(u"L1 data cache")},
    {.row = 45, .caption = u"CPU L1Dataキャッシュ 単位", .field = u"CPU_L1_Data_Cache_unit", .kind = K::Unit, .position = 5,
     .japanese = cpu(u"L1Dataキャッシュ"), .english = cpu(u"L1 data cache")},
    {.row = 46, .caption = u"CPU L2キャッシュ", .field = u"CPU_L2_Cache", .kind = K::GuardedNumber, .position = 4,
     .japanese = cpu(u"L2キャッシュ"), .english = cpu(u"L2 cache")},
    {.row = 47, .caption = u"CPU L2キャッシュ 単位", .field = u"CPU_L2_Cache_unit", .kind = K::Unit, .position = 5,
     .japanese = cpu(u"L2キャッシュ"), .english = cpu(u"L2 cache")},
    {.row = 48, .caption = u"CPU L3キャッシュ", .field = u"CPU_L3_Cache", .kind = K::GuardedNumber, .position = 4,
     .japanese = cpu(u"L3キャッシュ"), .english = cpu(u"L3 cache")},
    {.row = 49, .caption = u"CPU L3キャッシュ 単位", .field = u"CPU_L3_Cache_unit", .kind = K::Unit, .position = 5,
     .japanese = cpu(u"L3キャッシュ"), .english = cpu(u"L3 cache")},
    {.row = 50, .caption = u"CPU L1トレースキャッシュ", .field = u"CPU_L1_Trace_Cache", .kind = K::GuardedNumber, .position = 4,
     .japanese = cpu(u"L1トレースキャッシュ"), .english = cpu(u"L1 trace cache")},
    // The grid carries the L3 unit under the trace cache's caption, so the review overwrites the
    // L3 unit with the trace unit; the bulk read writes the trace unit to its own field.
    {.row = 51, .caption = u"CPU L1トレースキャッシュ 単位", .field = u"CPU_L3_Cache_unit", .kind = K::Unit, .position = 5,
     .japanese = cpu(u"L1トレースキャッシュ"), .english = cpu(u"L1 trace cache"), .bulkField = u"CPU_L1_Trace_Cache_unit"},
    {.row = 52, .caption = u"CPU SerialNumber", .field = u"CPU_SerialNumber", .kind = K::Text, .position = 4, .japanese = cpu(u"SerialNumber")},
    {.row = 53, .caption = u"CPU FPU", .field = u"CPU_FPU", .kind = K::Flag, .position = 4, .japanese = cpu(u"FPU")},
    {.row = 54, .caption = u"CPU VME", .field = u"CPU_VME", .kind = K::Flag, .position = 4, .japanese = cpu(u"VME")},
    {.row = 55, .caption = u"CPU DE", .field = u"CPU_DE", .kind = K::Flag, .position = 4, .japanese = cpu(u"DE")},
    {.row = 56, .caption = u"CPU PSE", .field = u"CPU_PSE", .kind = K::Flag, .position = 4, .japanese = cpu(u"PSE")},
    {.row = 57, .caption = u"CPU TSC", .field = u"CPU_TSC", .kind = K::Flag, .position = 4, .japanese = cpu(u"TSC")},
    {.row = 58, .caption = u"CPU MSR", .field = u"CPU_MSR", .kind = K::Flag, .position = 4, .japanese = cpu(u"MSR")},
    {.row = 59, .caption = u"CPU PAE", .field = u"CPU_PAE", .kind = K::Flag, .position = 4, .japanese = cpu(u"PAE")},
    {.row = 60, .caption = u"CPU MCE", .field = u"CPU_MCE", .kind = K::Flag, .position = 4, .japanese = cpu(u"MCE")},
    {.row = 61, .caption = u"CPU CX8", .field = u"CPU_CX8", .kind = K::Flag, .position = 4, .japanese = cpu(u"CX8")},
    {.row = 62, .caption = u"CPU APIC", .field = u"CPU_APIC", .kind = K::Flag, .position = 4, .japanese = cpu(u"APIC")},
    {.row = 63, .caption = u"CPU SEP", .field = u"CPU_SEP", .kind = K::Flag, .position = 4, .japanese = cpu(u"SEP")},
    {.row = 64, .caption = u"CPU MTRR", .field = u"CPU_MTRR", .kind = K::Flag, .position = 4, .japanese = cpu(u"MTRR")},
    {.row = 65, .caption = u"CPU PGE", .field = u"CPU_PGE", .kind = K::Flag, .position = 4, .japanese = cpu(u"PGE")},
    // In the grid a second copy of row 65 under the caption of MCA, so the review never touches
    // CPU_MCA; the bulk read selects the MCA record and writes CPU_MCA.
    {.row = 66, .caption = u"CPU MCA", .field = u"CPU_PGE", .kind = K::Flag, .position = 4, .japanese = cpu(u"PGE"),
     .bulkField = u"CPU_MCA", .bulkSubItem = u"MCA"},
    {.row = 67, .caption = u"CPU CMOV", .field = u"CPU_CMOV", .kind = K::Flag, .position = 4, .japanese = cpu(u"CMOV")},
    {.row = 68, .caption = u"CPU PAT", .field = u"CPU_PAT", .kind = K::Flag, .position = 4, .japanese = cpu(u"PAT")},
    {.row = 69, .caption = u"CPU PSE36", .field = u"CPU_PSE36", .kind = K::Flag, .position = 4, .japanese = cpu(u"PSE36")},
    {.row = 70, .caption = u"CPU PSN", .field = u"CPU_PSN", .kind = K::Flag, .position = 4, .japanese = cpu(u"PSN")},
    {.row = 71, .caption = u"CPU MMX", .field = u"CPU_MMX", .kind = K::Flag, .position = 4, .japanese = cpu(u"MMX")},
    {.row = 72, .caption = u"CPU FXSR", .field = u"CPU_FXSR", .kind = K::Flag, .position = 4, .japanese = cpu(u"FXSR")},
    {.row = 73, .caption = u"CPU SSE", .field = u"CPU_SSE", .kind = K::Flag, .position = 4, .japanese = cpu(u"SSE")},
    {.row = 74, .caption = u"CPU SSE2", .field = u"CPU_SSE2", .kind = K::Flag, .position = 4, .japanese = cpu(u"SSE2")},
    {.row = 75, .caption = u"CPU HTT", .field = u"CPU_HTT", .kind = K::Flag, .position = 4, .japanese = cpu(u"HTT")},
    {.row = 76, .caption = u"CPU TM", .field = u"CPU_TM", .kind = K::Flag, .position = 4, .japanese = cpu(u"TM")},
    {.row = 77, .caption = u"CPU 3DNow", .field = u"CPU_3DNow", .kind = K::Flag, .position = 4, .japanese = cpu(u"3DNow")},
    // written as CPU_3DNowEx here and CPU_3DNowEX by the profile window: one column, since the
    // ledger's names are not case-sensitive
    {.row = 78, .caption = u"CPU 3DNowEx", .field = u"CPU_3DNowEx", .kind = K::Flag, .position = 4, .japanese = cpu(u"3DNowEx")},
    {.row = 79, .caption = u"CPU SSE3", .field = u"CPU_SSE3", .kind = K::Flag, .position = 4, .japanese = cpu(u"SSE3")},
    {.row = 80, .caption = u"CPU MONITOR", .field = u"CPU_MONITOR", .kind = K::Flag, .position = 4, .japanese = cpu(u"MONITOR")},
    {.row = 81, .caption = u"CPU DSCPL", .field = u"CPU_DSCPL", .kind = K::Flag, .position = 4, .japanese = cpu(u"DSCPL")},
    {.row = 82, .caption = u"CPU EST", .field = u"CPU_EST", .kind = K::Flag, .position = 4, .japanese = cpu(u"EST")},
    {.row = 83, .caption = u"CPU TM2", .field = u"CPU_TM2", .kind = K::Flag, .position = 4, .japanese = cpu(u"TM2")},
    {.row = 84, .caption = u"CPU CID", .field = u"CPU_CID", .kind = K::Flag, .position = 4, .japanese = cpu(u"CID")},
    {.row = 85, .caption = u"LAN ユーザー名", .field = u"UserName", .kind = K::Text, .position = 4,
     .japanese = item(u"LAN", u"ユーザー名"), .english = item(u"LAN", u"User name")},
    {.row = 86, .caption = u"LAN ホスト名", .field = u"HostsName", .kind = K::Text, .position = 4,
     .japanese = item(u"LAN", u"ホスト名"), .english = item(u"LAN", u"Host name")},
    {.row = 87, .caption = u"LAN ドメイン", .field = u"DomeinName", .kind = K::Text, .position = 4,
     .japanese = item(u"LAN", u"ドメイン"), .english = item(u"LAN", u"Domain name")},
    {.row = 88, .caption = u"LAN コンピュータの説明", .field = u"PC_Explanation", .kind = K::Text, .position = 4,
     .japanese = item(u"LAN", u"コンピュータの説明"), .english = item(u"LAN", u"Explanation of a computer")},
    {.row = 89, .caption = u"LAN プロバイダ名", .field = u"ProviderName", .kind = K::Text, .position = 4,
     .japanese = item(u"LAN", u"プロバイダ名"), .english = item(u"LAN", u"Network provider name")},
    {.row = 90, .caption = u"アダプター名", .field = u"AdapterName", .kind = K::Text, .position = 4,
     .japanese = item(u"Adapter", u"アダプター名"), .english = item(u"Adapter", u"Adapter name")},
    {.row = 91, .caption = u"サブネットマスク", .field = u"SubnetMask", .kind = K::Text, .position = 4,
     .japanese = item(u"Adapter", u"サブネットマスク"), .english = item(u"Adapter", u"Subnet mask")},
    {.row = 92, .caption = u"ゲートウェイ", .field = u"Gateway", .kind = K::Text, .position = 4,
     .japanese = item(u"Adapter", u"ゲートウェイ"), .english = item(u"Adapter", u"Gateway address")},
    {.row = 93, .caption = u"DHCPServer", .field = u"DHCPServer", .kind = K::Text, .position = 4, .japanese = item(u"Adapter", u"DHCPServer")},
    {.row = 94, .caption = u"PrimaryWINS", .field = u"PrimaryWINS", .kind = K::Text, .position = 4, .japanese = item(u"Adapter", u"PrimaryWINS")},
    {.row = 95, .caption = u"SecondaryWINS", .field = u"SecondaryWINS", .kind = K::Text, .position = 4, .japanese = item(u"Adapter", u"SecondaryWINS")},
    {.row = 96, .caption = u"PrimaryDNS", .field = u"PrimaryDNS", .kind = K::Text, .position = 4, .japanese = item(u"LAN", u"PrimaryDNS")},
    // the grid repeats row 96; the bulk read writes PrimaryDNS once
    {.row = 97, .caption = u"PrimaryDNS", .field = u"PrimaryDNS", .kind = K::Text, .position = 4, .japanese = item(u"LAN", u"PrimaryDNS"),
     .bulkSkips = true},
    {.row = 98, .caption = u"SecondaryDNS", .field = u"SecondaryDNS", .kind = K::Text, .position = 4, .japanese = item(u"LAN", u"SecondaryDNS")},
    {.row = 99, .caption = u"インターネット接続", .field = u"Internet_Connection", .kind = K::SettingFlag, .position = 5,
     .japanese = setting(u"インターネット接続"), .english = setting(u"Internet connectivity")},
    {.row = 100, .caption = u"モデム経由", .field = u"Modem_Connection", .kind = K::SettingFlag, .position = 5,
     .japanese = setting(u"モデム経由"), .english = setting(u"Modem course")},
    {.row = 101, .caption = u"LAN経由", .field = u"LAN_Connection", .kind = K::SettingFlag, .position = 5,
     .japanese = setting(u"LAN経由"), .english = setting(u"LAN course")},
    {.row = 102, .caption = u"PROXY経由", .field = u"PROXY_Connection", .kind = K::SettingFlag, .position = 5,
     .japanese = setting(u"PROXY経由"), .english = setting(u"PROXY course")},
    {.row = 103, .caption = u"オフラインモード", .field = u"OfflineMode", .kind = K::SettingFlag, .position = 5,
     .japanese = setting(u"オフラインモード"), .english = setting(u"Off-line mode")},
    {.row = 104, .caption = u"RASインストール", .field = u"RASInstalled", .kind = K::SettingFlag, .position = 5,
     .japanese = setting(u"RASインストール"), .english = setting(u"RAS installation")},
    {.row = 105, .caption = u"Start Page", .field = u"Start_Page", .kind = K::Text, .position = 5, .japanese = setting(u"Start Page")},
    // the two fields of the administrative record, written unbracketed
    {.row = 106, .caption = u"Model", .field = u"Type_Number", .kind = K::Text, .position = 4, .japanese = item(u"System", u"Model"),
     .table = u"tbl_Computer_List", .form = FieldForm::Unbracketed},
    {.row = 107, .caption = u"Serial", .field = u"Sereals_Number", .kind = K::Text, .position = 4, .japanese = item(u"BIOS", u"SerialNo"),
     .table = u"tbl_Computer_List", .form = FieldForm::Unbracketed},
}};
// clang-format on

// The value as a 32-bit whole number in decimal, rounded half to even; "0" when it is no number
// or out of range (the conversion fails and the working number stays 0).
QString wholeNumber(const QString& value)
{
    std::int32_t number = 0;
    try {
        number = vb::CLng(vb::Variant(value));
    } catch (const vb::VbError&) {
    }
    return QString::number(number);
}

} // namespace

FieldSelection InventoryFieldRow::selection(InventoryLanguage language, FieldMapPath path) const
{
    FieldSelection s = language == InventoryLanguage::English && !english.isEmpty() ? english : japanese;
    if (path == FieldMapPath::BulkRead && !bulkSubItem.isEmpty())
        s.secondValue = bulkSubItem;
    return s;
}

int InventoryFieldRow::valuePosition(InventoryLanguage language) const
{
    return language == InventoryLanguage::English && englishPosition != 0 ? englishPosition : position;
}

QStringView InventoryFieldRow::writtenField(FieldMapPath path) const
{
    return path == FieldMapPath::BulkRead && !bulkField.isEmpty() ? bulkField : field;
}

const std::array<InventoryFieldRow, 107>& InventoryFieldMap() { return kRows; }

QString FieldLookupSql(const FieldSelection& s)
{
    // the first condition keeps a blank behind its closing quote, so " AND " doubles it
    return QStringLiteral("SELECT * ") + QStringLiteral("FROM tbl_ReadCsv ") + QStringLiteral(" WHERE (") + s.firstColumn
           + QStringLiteral(" = '") + s.firstValue + QStringLiteral("' ") + QStringLiteral(" AND ") + s.secondColumn
           + QStringLiteral(" = '") + s.secondValue + QStringLiteral("'") + QStringLiteral(");");
}

Mdl_Access_mdb::FirstRow FieldLookup(const Mdl_Access_mdb::StagedLines& lines, const FieldSelection& s)
{
    const int first = Mdl_Access_mdb::StagingColumn(s.firstColumn);
    const int second = Mdl_Access_mdb::StagingColumn(s.secondColumn);
    Mdl_Access_mdb::FirstRow record;
    for (const Mdl_Access_mdb::StagedLine& line : lines) {
        if (Mdl_Access_mdb::StagedEquals(line[size_t(second)], s.secondValue)
            && Mdl_Access_mdb::StagedEquals(line[size_t(first)], s.firstValue)) {
            for (size_t i = 0; i < line.size(); ++i)
                record[i] = Mdl_Access_mdb::SanitizeField(line[i]);
            break;
        }
    }
    return record;
}

QString BulkReadValue(const InventoryFieldRow& row, InventoryLanguage language, const Mdl_Access_mdb::FirstRow& record)
{
    const QString& value = record[size_t(row.valuePosition(language))];
    switch (row.kind) {
    case FieldKind::Text:
    case FieldKind::Date: return value.left(255);
    case FieldKind::Unit: return value;
    case FieldKind::Number: return wholeNumber(value);
    case FieldKind::GuardedNumber: return value.isEmpty() ? QStringLiteral("0") : wholeNumber(value);
    // the two sections of a file write their truths differently, and each row knows only its own
    case FieldKind::Flag: return value == QLatin1String("1") || value == QLatin1String("TRUE") ? QStringLiteral("1") : QStringLiteral("0");
    case FieldKind::SettingFlag:
        return value == QLatin1String("1") || value == QLatin1String("True") ? QStringLiteral("1") : QStringLiteral("0");
    case FieldKind::Hex: return Mdl_IP::IpToHex8(value);
    }
    return value;
}

QStringList BulkReadStatements(const InventoryFieldRow& row, const QString& value, const QString& key)
{
    const QString where = QStringLiteral(" WHERE MainKey = ") + key;
    const QStringView field = row.writtenField(FieldMapPath::BulkRead);
    if (row.kind == FieldKind::Date) {
        return {QStringLiteral("UPDATE tbl_Computer_List SET ") + QStringLiteral("tbl_Computer_List.[") + field + QStringLiteral("] = '")
                    + value + QStringLiteral("'") + where,
                QStringLiteral("UPDATE tbl_Pclist SET ") + QStringLiteral("tbl_Pclist.[") + field + QStringLiteral("] = '") + value
                    + QStringLiteral("'") + where};
    }
    QString left;
    switch (row.form) {
    case FieldForm::Bracketed: left = row.table + QStringLiteral(".[") + field + QStringLiteral("]"); break;
    case FieldForm::Unbracketed: left = row.table + QStringLiteral(".") + field; break;
    case FieldForm::Unqualified: left = field.toString(); break;
    }
    const bool number = row.kind == FieldKind::Number || row.kind == FieldKind::GuardedNumber;
    const QString right = number ? value : QStringLiteral("'") + value + QStringLiteral("'");
    return {QStringLiteral("UPDATE ") + row.table + QStringLiteral(" SET ") + left + QStringLiteral(" = ") + right + where};
}
