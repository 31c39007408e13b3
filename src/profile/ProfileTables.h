#pragma once

#include <array>
#include <cstddef>

// The field tables of the computer profile: which column of the joined record each control of
// frm_Edit_Computer shows, under which caption, on which page, and which keys it accepts. The
// window builds its control arrays from these tables by one loop each, the save walks them in
// index order, and the printed sheet reads the controls they made. No widget here.
namespace ProfileTables {

enum class Page { Band, Cpu, Network, Maintenance };

// The key press rule of a tbx_Dat box.
enum class KeyRule { Any, Digits, DigitsAndDots, DigitsAndSlashes };

// One pair tbx_Dat(index) / lbr_dat(index). The caption also names the field in the report of a
// save.
struct ProfileField {
    int index;
    const char* caption;
    const char16_t* column;
    Page page;
    KeyRule keys;
};

inline constexpr int ProfileFieldCount = 55;
// The two lease dates, the only fields handled as dates.
inline constexpr int LeasingStartDate = 47;
inline constexpr int LeasingEndDate = 48;
// The address and its hexadecimal sort key, which a save keeps in step.
inline constexpr int IPAddressField = 2;
inline constexpr int IPAddressSortKeyField = 27;

// clang-format off
inline constexpr std::array<ProfileField, ProfileFieldCount> ProfileFields = {{
    {0, "コンピュータ名", u"Computer_Name", Page::Band, KeyRule::Any},
    {1, "ワークグループ", u"Workgroup", Page::Band, KeyRule::Any},
    {2, "IPアドレス", u"IPAddress", Page::Band, KeyRule::DigitsAndDots},
    {3, "M/T", u"Type_Number", Page::Band, KeyRule::Any},
    {4, "S/N", u"Sereals_Number", Page::Band, KeyRule::Any},
    {5, "CPU一般名", u"CPU_Name", Page::Cpu, KeyRule::Any},
    {6, "CPU表示名", u"CPU_NameString", Page::Cpu, KeyRule::Any},
    {7, "動作クロック", u"CPU_Clock", Page::Cpu, KeyRule::Digits},
    {8, "プロセッサ数", u"CPU_Unit", Page::Cpu, KeyRule::Digits},
    {9, "Type", u"CPU_Type", Page::Cpu, KeyRule::Digits},
    {10, "Family", u"CPU_Family", Page::Cpu, KeyRule::Digits},
    {11, "Model", u"CPU_Model", Page::Cpu, KeyRule::Digits},
    {12, "Stepping", u"CPU_Stepping", Page::Cpu, KeyRule::Digits},
    {13, "CPU SerialNumber", u"CPU_SerialNumber", Page::Cpu, KeyRule::Any},
    {14, "CPU VenderID", u"CPU_ID", Page::Cpu, KeyRule::Any},
    {15, "L1命令キャッシュ", u"CPU_L1_Instruction_Cache", Page::Cpu, KeyRule::Digits},
    {16, "L1Dataキャッシュ", u"CPU_L1_Data_Cache", Page::Cpu, KeyRule::Digits},
    {17, "L1トレースキャッシュ", u"CPU_L1_Trace_Cache", Page::Cpu, KeyRule::Digits},
    {18, "L2キャッシュ", u"CPU_L2_Cache", Page::Cpu, KeyRule::Digits},
    {19, "L3キャッシュ", u"CPU_L3_Cache", Page::Cpu, KeyRule::Digits},
    {20, "ユーザー名", u"UserName", Page::Network, KeyRule::Any},
    {21, "パスワード", u"UserPassword", Page::Network, KeyRule::Any},
    {22, "ホスト名", u"HostsName", Page::Network, KeyRule::Any},
    {23, "ドメイン", u"DomeinName", Page::Network, KeyRule::Any},
    {24, "コンピュータの説明", u"PC_Explanation", Page::Network, KeyRule::Any},
    {25, "プロバイダ名", u"ProviderName", Page::Network, KeyRule::Any},
    {26, "アダプター名", u"AdapterName", Page::Network, KeyRule::Any},
    {27, "IPアドレス(16)", u"IPAddress_16num", Page::Network, KeyRule::Any},
    {28, "サブネットマスク", u"SubnetMask", Page::Network, KeyRule::DigitsAndDots},
    {29, "ゲートウェイ", u"Gateway", Page::Network, KeyRule::DigitsAndDots},
    {30, "DHCPServer", u"DHCPServer", Page::Network, KeyRule::DigitsAndDots},
    {31, "PrimaryWINS", u"PrimaryWINS", Page::Network, KeyRule::DigitsAndDots},
    {32, "SecondaryWINS", u"SecondaryWINS", Page::Network, KeyRule::DigitsAndDots},
    {33, "PrimaryDNS", u"PrimaryDNS", Page::Network, KeyRule::DigitsAndDots},
    {34, "SecondaryDNS", u"SecondaryDNS", Page::Network, KeyRule::DigitsAndDots},
    {35, "接続先HUB名", u"HUB_Name", Page::Network, KeyRule::Any},
    {36, "Macアドレス", u"MacAddress", Page::Network, KeyRule::Any},
    {37, "OEM 製造業者", u"OEM_Manufacturer", Page::Maintenance, KeyRule::Any},
    {38, "OEM モデル名", u"OEM_Model", Page::Maintenance, KeyRule::Any},
    {39, "Product ID", u"ProductID", Page::Maintenance, KeyRule::Any},
    {40, "Product Key", u"ProductKey", Page::Maintenance, KeyRule::Any},
    {41, "IEバージョン", u"IE_Version", Page::Maintenance, KeyRule::Any},
    {42, "IEサービスパック", u"IE_SP", Page::Maintenance, KeyRule::Any},
    {43, "資産区分(現金/リース)", u"Asset_Code", Page::Maintenance, KeyRule::Any},
    {44, "購入先", u"Selling_Agent", Page::Maintenance, KeyRule::Any},
    {45, "リース会社", u"Leasing_Company", Page::Maintenance, KeyRule::Any},
    {46, "リース契約番号", u"Leasing_Contract_Number", Page::Maintenance, KeyRule::Any},
    {47, "リース開始日(例2005/12/05)", u"Leasing_StartDate", Page::Maintenance, KeyRule::DigitsAndSlashes},
    {48, "リース終了日(例2005/12/05)", u"Leasing_EndDate", Page::Maintenance, KeyRule::DigitsAndSlashes},
    {49, "リース月額(円)", u"Leasing_Monthly_Amount", Page::Maintenance, KeyRule::Digits},
    {50, "現金支払額(円)", u"Cash_Payment", Page::Maintenance, KeyRule::Digits},
    {51, "保守会社", u"Maintenance_Agent", Page::Maintenance, KeyRule::Any},
    {52, "保守契約番号", u"Maintenance_Contract_Number", Page::Maintenance, KeyRule::Any},
    {53, "コメント", u"Comment", Page::Maintenance, KeyRule::Any},
    {54, "OS", u"Operating_System", Page::Maintenance, KeyRule::Any},
}};
// clang-format on

// One CPU feature: ChkBox(i) holds the flag, lbr_CPU_Feature(i) shows the short name with the
// explanation as its tool tip.
struct CpuFeature {
    const char* shortName;
    const char16_t* column;
    const char* explanation;
};

inline constexpr int CpuFeatureCount = 32;

// clang-format off
inline constexpr std::array<CpuFeature, CpuFeatureCount> CpuFeatures = {{
    {"FPU", u"CPU_FPU", "Intel387浮動小数点命令セットをサポートするFPUを内蔵"},
    {"VME", u"CPU_VME", "仮想8086モードへの拡張をサポート"},
    {"DE", u"CPU_DE", "I/Oブレークポイントをサポート"},
    {"PSE", u"CPU_PSE", "4Mバイトのページをサポート"},
    {"TSC", u"CPU_TSC", "アクセス/特権制御用のCR4.TSDビットを含めたRDTSC命令をサポート"},
    {"MSR", u"CPU_MSR", "RDMSR命令とWRMSR命令によってモデル固有レジスタの組み込み"},
    {"PAE", u"CPU_PAE", "32ビットを超える物理アドレスをサポート"},
    {"MCE", u"CPU_MCE", "マシン・チェック例外、例外18、およびCR4.MCEイネーブル・ビットをサポート"},
    {"CX8", u"CPU_CX8", "比較および交換を実行する8バイト命令をサポート"},
    {"APIC", u"CPU_APIC", "ソフトウェア・アクセスが可能なローカルAPICを格納する"},
    {"SEP", u"CPU_SEP", "SYSENTERとSYSEXITという2つの高速システム・コール命令をサポート"},
    {"MTRR", u"CPU_MTRR", "メモリ・タイプ・レンジ・レジスタ（MTRR_CAPレジスタ）をサポート"},
    {"PGE", u"CPU_PGE", "PDE(page directory entries)とPTE(page table entries)のグローバル・ビットをサポート。複数プロセスに共通のTLBエントリをサポート"},
    {"MCA", u"CPU_MCA", "マシン・チェック・アーキテクチャ（MCG_CAPレジスタ）をサポート"},
    {"CMOV", u"CPU_CMOV", "CMOVccをサポート。FPU機能フラグ（ビット0）も1にセットされている場合は、FCMOVCC命令とFCOMI命令もサポート"},
    {"PAT", u"CPU_PAT", "ページ属性テーブルをサポート。MTRR（Memory Type Range Register)の値を増大させ、OSはリニア・アドレスを介してメモリ属性を4K単位で指定できる"},
    {"PS E36", u"CPU_PSE36", "4GB を超える物理メモリのアドレス指定をサポート｡4M バイトページの物理アドレスの上位4 ビットが、ページ・ディレクトリ・エントリのビット13 ～ 16 によってコード化される"},
    {"PSN", u"CPU_PSN", "プロセッサシリアルナンバが有効化"},
    {"MMX", u"CPU_MMX", "インテル・アーキテクチャMMX テクノロジ拡張命令セットをサポート"},
    {"FXSR", u"CPU_FXSR", "浮動小数点コンテキストの高速セーブ/ リストア用のFXSAVE 命令とFXRSTOR 命令をサポート"},
    {"SSE", u"CPU_SSE", "インテル・アーキテクチャ・ストリーミングSIMD拡張命令をサポート"},
    {"SSE2", u"CPU_SSE2", "ストリーミングSIMD2拡張命令"},
    {"TM", u"CPU_TM", "温度モニタの自動温度制御回路（TCC）を実装"},
    {"3DNow", u"CPU_3DNow", "3DNow命令"},
    {"3DNowEX", u"CPU_3DNowEX", "拡張3DNow命令"},
    {"HTT", u"CPU_HTT", "ハイパースレッド"},
    {"SSE3", u"CPU_SSE3", "ストリーミングSIMD3拡張命令"},
    {"MONITOR", u"CPU_MONITOR", "MONITOR 命令とMWAIT 命令をサポート"},
    {"DSCPL", u"CPU_DSCPL", "CPL の条件を満たす分岐メッセージの格納を可能にするデバッグストア拡張機能をサポート"},
    {"EST", u"CPU_EST", "第二世代のIntel SpeedStep テクノロジを実装"},
    {"TM2", u"CPU_TM2", "温度モニタ2 の温度制御回路（TCC）を実装"},
    {"CID", u"CPU_CID", "BIOS によってL1 データ・キャッシュ・モードをアダプティブ・モードまたは共有モードに設定できる"},
}};
// clang-format on

// Where the labels and the boxes of the CPU features stand in their frame, in twips. The labels
// run along the rows, nine to a row; the boxes run down the columns, four to a column for
// indices 0 to 19 and three for 20 to 31. So the box beside a label is in general not the box of
// that label's index (ChkBox(1), CPU_VME, stands beside "APIC"); load and save go by index only.
struct Place {
    int left;
    int top;
};
inline constexpr int CpuFeatureLabelWidth = 900;
inline constexpr std::array<int, 9> CpuLabelLefts = {105, 1515, 2805, 3990, 5160, 6270, 7221, 8640, 9840};
inline constexpr std::array<int, 4> CpuLabelTops = {240, 600, 960, 1320};
inline constexpr std::array<int, 9> CpuBoxLefts = {960, 2145, 3330, 4515, 5700, 6885, 8070, 9255, 10440};
inline constexpr std::array<int, 4> CpuBoxTops = {220, 580, 940, 1300};

constexpr Place CpuLabelPlace(int i) { return {CpuLabelLefts[std::size_t(i % 9)], CpuLabelTops[std::size_t(i / 9)]}; }
constexpr Place CpuBoxPlace(int i)
{
    return i < 20 ? Place{CpuBoxLefts[std::size_t(i / 4)], CpuBoxTops[std::size_t(i % 4)]}
                  : Place{CpuBoxLefts[std::size_t(5 + (i - 20) / 3)], CpuBoxTops[std::size_t((i - 20) % 3)]};
}

// A caption and a flag column (0 or 1): the IE settings labels and the drive check boxes.
struct FlagRow {
    const char* caption;
    const char16_t* column;
};

inline constexpr std::array<FlagRow, 6> IE_Env = {{
    {"インターネット接続", u"Internet_Connection"},
    {"モデム経由", u"Modem_Connection"},
    {"LAN経由", u"LAN_Connection"},
    {"PROXY経由", u"PROXY_Connection"},
    {"オフラインモード ", u"OfflineMode"},
    {"RASインストール", u"RASInstalled"},
}};

inline constexpr std::array<FlagRow, 6> DriveFlags = {{
    {"FDドライブ", u"Floppydisk_Drive"},
    {"CDドライブ", u"Cdrom_Drive"},
    {"DVDドライブ", u"DVD_Drive"},
    {"CD-Rドライブ", u"Cdr_Drive"},
    {"コンボドライブ", u"Combo_Drive"},
    {"MOドライブ", u"Mo_Drive"},
}};

// One capacity of the drive page: lbr_Drive(i), tbx_Drive(i). Rows 2k and 2k+1 (full, used)
// share ProgressBar_val(k).
struct CapacityRow {
    const char* caption;
    const char16_t* value;
    const char16_t* unit;
};

inline constexpr std::array<CapacityRow, 6> CapacityRows = {{
    {"メモリ全容量", u"Memory_Full", u"Memory_Full_unit"},
    {"メモリ使用量", u"Memory_Used", u"Memory_Used_Unit"},
    {"Ｃドライブ全容量", u"SysHD_Full", u"SysHD_Full_Unit"},
    {"Ｃドライブ使用量", u"SysHD_Used", u"SysHD_Used_Unit"},
    {"ページファイル全容量", u"Pagefile_Full", u"Pagefile_Full_Unit"},
    {"ページファイル使用量", u"Pagefile_Used", u"Pagefile_Used_Unit"},
}};

// The eight tabs of TabStrip1; tab n (from 1) shows Picture_Page(n-1).
inline constexpr std::array<const char*, 8> TabCaptions = {"CPU",      "ネットワーク", "アプリケーション", "デバイス",
                                                           "プリンタ", "環境変数",     "ドライブ",         "保守"};
// The tabs are widened by ideographic blanks behind their captions.
inline constexpr int TabCaptionPadding = 1;

enum Tab { TabCpu = 1, TabNetwork, TabApplications, TabDevices, TabPrinters, TabEnvironment, TabDrive, TabMaintenance };

} // namespace ProfileTables
