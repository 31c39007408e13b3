#include "assetlist/MainList.h"

#include "assetlist/ListQuery.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/GridSelection.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/Format.h"

#include <optional>
#include <vector>

using namespace Mdl_gData;

namespace {

// The palette colours of the list: gray for headings, row numbers, the selection and a retired
// master entry; white for data cells.

// The columns a view can show. Users' DB.ini files hold these row numbers, so the order is fixed.
// Two rows stay crossed as they always were: "ページファイル全容量" reads Pagefile_Used and
// "ページファイル使用量" reads Memory_Used, the same field as "メモリ使用量".
struct ColumnRow {
    const char16_t* field;
    const char16_t* caption;
};
constexpr ColumnRow kColumns[] = {
    {u"tbl_Computer_List.MainKey", u" "},
    {u"Location_Name", u"設置場所"},
    {u"Section_Name", u"部署"},
    {u"Division_Name", u"課"},
    {u"User_Name", u"ユーザ"},
    {u"Employee_SerialNumber", u"社員番号"},
    {u"Acount_Name", u"アカウント"},
    {u"logon_Password", u"パスワード"},
    {u"Computer_Name", u"コンピュータ名"},
    {u"Workgroup", u"ワークグループ"},
    {u"ipaddress", u"IPアドレス"},
    {u"IPAddress_16num", u"IPアドレス(16)"},
    {u"MacAddress", u"MACアドレス"},
    {u"Manufacturer_Name", u"メーカー"},
    {u"Model_Name", u"モデル"},
    {u"Type_Number", u"M/T"},
    {u"Sereals_Number", u"S/N"},
    {u"Operating_System", u"OS"},
    {u"Version_Number", u"バージョン"},
    {u"ServicePack", u"サービスパック"},
    {u"ProductID", u"プロダクトID"},
    {u"ProductKey", u"プロダクトKey"},
    {u"OEM_Manufacturer", u"OEM 製造業者"},
    {u"OEM_Model", u"OEM モデル名"},
    {u"CPU_NameString", u"CPU"},
    {u"CPU_Clock", u"CPUクロック"},
    {u"SysHD_Full", u"Ｃドライブ全容量"},
    {u"SysHD_Used", u"Ｃドライブ使用量"},
    {u"Memory_Full", u"メモリ全容量"},
    {u"Memory_Used", u"メモリ使用量"},
    {u"Pagefile_Used", u"ページファイル全容量"},
    {u"Memory_Used", u"ページファイル使用量"},
    {u"Pagefile_Free", u"ページファイル空容量"},
    {u"SysHD_Driveletter", u"システムDiskドライブ名"},
    {u"SysHD_Free", u"システムDisk空容量"},
    {u"Floppydisk_Drive", u"フロッピードライブ"},
    {u"Cdrom_Drive", u"CDドライブ"},
    {u"DVD_Drive", u"DVDドライブ"},
    {u"Cdr_Drive", u"CDRドライブ"},
    {u"Mo_Drive", u"MOドライブ"},
    {u"Combo_Drive", u"コンボドライブ"},
    {u"IE_Version", u"IE Version"},
    {u"IE_SP", u"IE ServicePack"},
    {u"Internet_Connection", u"インターネット接続"},
    {u"Modem_Connection", u"モデム経由"},
    {u"LAN_Connection", u"LAN経由"},
    {u"PROXY_Connection", u"PROXY経由"},
    {u"OfflineMode", u"オフラインモード"},
    {u"RASInstalled", u"RASインストール"},
    {u"Resolution", u"画面解像度"},
    {u"UserName", u"ユーザー名"},
    {u"UserPassword", u"パスワード"},
    {u"HostsName", u"ホスト名"},
    {u"DomeinName", u"ドメイン"},
    {u"PC_Explanation", u"コンピュータの説明"},
    {u"ProviderName", u"プロバイダ名"},
    {u"AdapterName", u"アダプター名"},
    {u"SubnetMask", u"サブネットマスク"},
    {u"Gateway", u"ゲートウェイ"},
    {u"DHCPServer", u"DHCPサーバ"},
    {u"PrimaryWINS", u"プライマリWINS"},
    {u"SecondaryWINS", u"セカンダリWINS"},
    {u"PrimaryDNS", u"プライマリDNS"},
    {u"SecondaryDNS", u"セカンダリDNS"},
    {u"HUB_Name", u"接続先HUB名"},
    {u"tbl_Computer_List.Update", u"更新日"},
    {u"Asset_Code", u"資産区分"},
    {u"Selling_Agent", u"購入先"},
    {u"Leasing_Company", u"リース会社"},
    {u"Leasing_Contract_Number", u"リース契約番号"},
    {u"Leasing_StartDate", u"リース開始日"},
    {u"Leasing_EndDate", u"リース終了日"},
    {u"Leasing_Monthly_Amount", u"リース月額"},
    {u"Cash_Payment", u"別途現金支払"},
    {u"Maintenance_Agent", u"保守会社"},
    {u"Remove_Date", u"撤去日"},
    {u"Comment", u"コメント"},
};
static_assert(std::size(kColumns) == 77);

QString text16(const char16_t* s) { return QString::fromUtf16(s); }

// How a cell shows its value, chosen by the field the column reads.
enum class Rendering { Text, Master, Gigabytes, Megabytes, Equipped, Enabled };

struct RenderRule {
    const char16_t* field;
    Rendering rendering;
    const char16_t* flagField; // the master's Available_flug, for Master
};
// The renderer also knows Memory_Free and Pagefile_Full, which no column asks for.
constexpr RenderRule kRules[] = {
    {u"User_Name", Rendering::Master, u"tbl_User.Available_flug"},
    {u"Location_Name", Rendering::Master, u"tbl_Location.Available_flug"},
    {u"Section_Name", Rendering::Master, u"tbl_Section.Available_flug"},
    {u"Division_Name", Rendering::Master, u"tbl_Division.Available_flug"},
    {u"Manufacturer_Name", Rendering::Master, u"tbl_Manufacturer.Available_flug"},
    {u"Model_Name", Rendering::Master, u"tbl_Model.Available_flug"},
    {u"SysHD_Full", Rendering::Gigabytes, nullptr},
    {u"SysHD_Used", Rendering::Gigabytes, nullptr},
    {u"SysHD_Free", Rendering::Gigabytes, nullptr},
    {u"Memory_Full", Rendering::Megabytes, nullptr},
    {u"Memory_Used", Rendering::Megabytes, nullptr},
    {u"Memory_Free", Rendering::Megabytes, nullptr},
    {u"Pagefile_Full", Rendering::Megabytes, nullptr},
    {u"Pagefile_Used", Rendering::Megabytes, nullptr},
    {u"Pagefile_Free", Rendering::Megabytes, nullptr},
    {u"Floppydisk_Drive", Rendering::Equipped, nullptr},
    {u"Cdrom_Drive", Rendering::Equipped, nullptr},
    {u"DVD_Drive", Rendering::Equipped, nullptr},
    {u"Cdr_Drive", Rendering::Equipped, nullptr},
    {u"Mo_Drive", Rendering::Equipped, nullptr},
    {u"Combo_Drive", Rendering::Equipped, nullptr},
    {u"Internet_Connection", Rendering::Enabled, nullptr},
    {u"Modem_Connection", Rendering::Enabled, nullptr},
    {u"LAN_Connection", Rendering::Enabled, nullptr},
    {u"PROXY_Connection", Rendering::Enabled, nullptr},
    {u"OfflineMode", Rendering::Enabled, nullptr},
    {u"RASInstalled", Rendering::Enabled, nullptr},
};

// A field of the list's recordset, its number looked up once per fill. A name the recordset
// does not know fails when it is first read, through Fields(name), exactly as a read by name.
class FieldSlot {
public:
    FieldSlot(db::Recordset& rs, QString name) : m_name(std::move(name)), m_index(rs.FieldIndex(m_name)) {}
    const vb::Variant& read(db::Recordset& rs) const
    {
        if (m_index < 0)
            return rs.Fields(m_name).Value();
        return rs.Value(m_index);
    }

private:
    QString m_name;
    int m_index;
};

// One shown column of a fill: where it reads and how it renders.
struct ShownColumn {
    FieldSlot value;
    Rendering rendering = Rendering::Text;
    std::optional<FieldSlot> flag;
};

ShownColumn shownColumn(db::Recordset& rs, const QString& field)
{
    ShownColumn c{FieldSlot(rs, field), Rendering::Text, std::nullopt};
    for (const RenderRule& r : kRules) {
        // the field names are compared as written, letter case included
        if (field == QStringView(r.field)) {
            c.rendering = r.rendering;
            if (r.flagField)
                c.flag.emplace(rs, text16(r.flagField));
            break;
        }
    }
    return c;
}

// VB's test = "1": a number compares with the text as the number 1, a text compares as text.
// The flag columns hold numbers, so their case is decided here without parsing "1" each time.
bool isOne(const vb::Variant& v)
{
    if (v.Type() == vb::VarType::Integer)
        return v.integerValue() == 1;
    if (v.Type() == vb::VarType::Long)
        return v.longValue() == 1;
    return vb::Equal(v, vb::Variant(QStringLiteral("1"))).value_or(false);
}

// A capacity above 1000 shows in the larger unit, on the right; the comparison with 1000 raises
// error 13 for a text that is no number.
void renderCapacity(ui::FlexGrid& grid, const vb::Variant& v, double divisor, const QString& unit)
{
    const double n = vb::CDbl(v);
    if (n > 1000) {
        grid.SetText(vb::Format(vb::Variant(n / divisor), QStringLiteral("###,###")) + unit);
        grid.SetCellAlignment(ui::flexAlignRightBottom);
    }
}

void renderFlag(ui::FlexGrid& grid, const vb::Variant& v, const QString& on)
{
    grid.SetText(isOne(v) ? on : QStringLiteral("-"));
    grid.SetCellAlignment(ui::flexAlignRightBottom);
}

} // namespace

MainList::MainList(ui::FlexGrid& grid) : MSFlexGrid_Main(grid) {}

MainList::~MainList() = default;

void MainList::FGridViewSelect_ini()
{
    for (long i = 0; i < long(std::size(kColumns)); ++i)
        g.ColumnTable[i] = {text16(kColumns[i].field), text16(kColumns[i].caption)};
    g.ColumnCount = 76;
}

ui::FillResult MainList::fnc_View_PClist()
{
    ui::FlexGrid& grid = MSFlexGrid_Main;
    ui::FillResult result = ui::FillResult::Failed;
    db::Recordset rs;
    try {
        rs.Open(g.ListSql, DbConnection(), db::adOpenStatic, db::adLockOptimistic, -1);
        if (rs.RecordCount() < 1) {
            grid.SetCols(0);
            grid.SetRows(0);
            rs.Close();
            return ui::FillResult::NoRows;
        }

        // hidden for the time of the fill, so that the grid is drawn once (hidden before the
        // clear, which then costs no repaint of its own)
        grid.SetVisible(false);
        grid.Clear();

        const QColor gray = ui::QBColor(ui::qbGray);
        const QColor white = ui::QBColor(ui::qbWhite);
        const QString equipped = QStringLiteral("装備");
        const QString enabled = QStringLiteral("有効");
        const QString gigabytes = QStringLiteral("GB");
        const QString megabytes = QStringLiteral("MB");

        grid.SetCols(g.SelectedColumnCount + 2);
        std::vector<ShownColumn> shown;
        for (int k = 0; k <= g.SelectedColumnCount; ++k) {
            grid.SetRows(2);
            grid.SetRow(0);
            grid.SetCol(k + 1);
            grid.SetColWidth(k + 1, 1500);
            grid.SetCellBackColor(gray);
            grid.SetCellAlignment(ui::flexAlignCenterBottom);
            const ColumnDescriptor& d = g.ColumnTable[g.SelectedColumns[k]];
            if (!d.caption.isEmpty())
                grid.SetText(d.caption);
            shown.push_back(shownColumn(rs, d.field));
        }

        const FieldSlot key(rs, QStringLiteral("tbl_Pclist.MainKey"));
        int counter = 1;
        rs.MoveFirst();
        while (!rs.Eof()) {
            // computer 0, the unset computer, is never listed
            if (vb::Equal(key.read(rs), vb::Variant(0)).value_or(false)) {
                rs.MoveNext();
                continue;
            }
            grid.SetRows(counter + 1);
            grid.SetRow(counter);
            grid.SetCol(0);
            grid.SetText(QString::number(counter));
            grid.SetCellBackColor(gray);

            for (int k = 0; k <= g.SelectedColumnCount; ++k) {
                grid.SetRows(counter + 1);
                grid.SetCol(k + 1);
                grid.SetCellBackColor(white);
                grid.SetCellAlignment(ui::flexAlignLeftBottom);
                const ShownColumn& c = shown[size_t(k)];
                // Null and the empty text count as empty; a number, 0 included, does not
                const vb::Variant& v = c.value.read(rs);
                if (v.IsNull())
                    continue;
                const QString text = vb::CStr(v);
                if (text.isEmpty())
                    continue;
                grid.SetText(text);
                switch (c.rendering) {
                case Rendering::Text: break;
                case Rendering::Master:
                    if (isOne(c.flag->read(rs)))
                        grid.SetCellBackColor(gray);
                    break;
                case Rendering::Gigabytes: renderCapacity(grid, v, 1000000.0, gigabytes); break;
                case Rendering::Megabytes: renderCapacity(grid, v, 1000.0, megabytes); break;
                case Rendering::Equipped: renderFlag(grid, v, equipped); break;
                case Rendering::Enabled: renderFlag(grid, v, enabled); break;
                }
            }

            grid.SetCol(1);
            if (!grid.Text().isEmpty())
                g.ListRowKeys[counter] = vb::CInt(vb::Variant(grid.Text())); // error 9 past row 2560
            ++counter;
            rs.MoveNext();
        }
        g.ListRowCount = std::int16_t(counter - 1);

        grid.SetColWidth(0, 500);
        grid.SetColWidth(1, 0);
        grid.SetVisible(true);
        result = ui::FillResult::Rows;
        ListReady = true;

        if (grid.Rows() > 1) {
            PreviousRow = 1;
            CurrentRow = 1;
            PaintGridRow(CurrentRow, ui::qbGray);
        }
        rs.Close();
    } catch (const vb::VbError& e) {
        // the grid stays hidden with what was filled, until the next full fill
        Mdl_Access_mdb::StandardErrorBox(e);
        rs.CloseIfOpen();
        return ui::FillResult::Failed;
    }
    return result;
}

ui::FillResult MainList::ShowView()
{
    FGridViewSelect_ini();
    LoadView();
    return fnc_View_PClist();
}

void MainList::MSFlexGrid_Main_ini()
{
    PreviousRow = 1;
    CurrentRow = 0;
    CurrentMainKey = 0;
    PaintGridRow(PreviousRow, ui::qbWhite);
}

// The system paints its selection itself, over whatever colour the cells had: the gray of a
// retired master entry and the search's yellow are lost once a row has been painted.
void MainList::PaintGridRow(std::int16_t row, std::int16_t qbColour)
{
    if (row < 1)
        return;
    MSFlexGrid_Main.SetVisible(false);
    ui::PaintGridRow(MSFlexGrid_Main, row, qbColour);
    MSFlexGrid_Main.SetVisible(true);
}

void MainList::MSFlexGrid_Main_Click()
{
    ui::FlexGrid& grid = MSFlexGrid_Main;
    if (!ListReady || grid.Row() == 0)
        return;
    grid.SetCol(1);
    if (grid.Text().isEmpty())
        return;
    CurrentMainKey = vb::CInt(vb::Variant(grid.Text()));
    CurrentRow = std::int16_t(grid.Row());
    if (SetMenuEnabled) {
        for (MenuItem item : {Mnu_Edit_profile, Mnu_Delete, Mnu_ReplacePC, Mnu_View_Select})
            SetMenuEnabled(item, true);
    }
    PaintGridRow(PreviousRow, ui::qbWhite);
    PaintGridRow(CurrentRow, ui::qbGray);
    PreviousRow = CurrentRow;
}
