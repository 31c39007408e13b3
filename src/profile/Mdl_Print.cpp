#include "profile/Mdl_Print.h"

#include "platform/app/App.h"
#include "platform/print/PrintSurface.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/ui/FlexGrid.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"
#include "profile/ProfileControls.h"

#include <QLineEdit>

#include <cmath>

namespace Mdl_Print {

namespace {

// Where the text of a line of the fixed part comes from.
enum class Source { Heading, User, Section, Division, Combo, Field, Drive };

struct SheetLine {
    int line;
    const char* label;
    const char* separator; // nullptr: ": "
    Source source;
    int index;
};

const char* const kWideGap = ": 　　　　"; // colon, blank, four ideographic blanks
const char* const kModelGap = ":　 ";      // colon, ideographic blank, blank

// clang-format off
constexpr SheetLine kFixedPart[] = {
    {3, "[ユーザー]", nullptr, Source::Heading, 0},
    {4, "ユーザ名", nullptr, Source::User, 0},
    {5, "部", kWideGap, Source::Section, 0},
    {6, "課", kWideGap, Source::Division, 0},
    {7, "設置場所", nullptr, Source::Combo, 3},
    {9, "メーカー", nullptr, Source::Combo, 4},
    {10, "モデル", kModelGap, Source::Combo, 5},
    {11, "マシンタイプ", nullptr, Source::Field, 3},
    {12, "シリアル", nullptr, Source::Field, 4},
    {14, "OS", nullptr, Source::Field, 54},
    {15, "Product ID", nullptr, Source::Field, 39},
    {16, "OEM 製造業者", nullptr, Source::Field, 37},
    {17, "OEM モデル名", nullptr, Source::Field, 38},
    {18, "Product Key", nullptr, Source::Field, 40},
    {19, "CPU", nullptr, Source::Field, 6},
    {20, "メモリ", nullptr, Source::Drive, 0},
    {21, "Cドライブ", nullptr, Source::Drive, 2},
    {23, "[ネットワーク]", nullptr, Source::Heading, 0},
    {24, "コンピュータ名", nullptr, Source::Field, 0},
    {25, "ワークグループ", nullptr, Source::Field, 1},
    {27, "IPアドレス", nullptr, Source::Field, 2},
    {28, "サブネットマスク", nullptr, Source::Field, 28},
    {29, "デフォルトゲートウェイ", nullptr, Source::Field, 29},
    {30, "DNSサーバ", nullptr, Source::Field, 33},
    {31, "DNSサーバ(2)", nullptr, Source::Field, 34},
    {32, "Macアドレス", nullptr, Source::Field, 36},
    {33, "ネットワークカード", nullptr, Source::Field, 26},
    {34, "接続先HUB", nullptr, Source::Field, 35},
    {36, "DHCPサーバ", nullptr, Source::Field, 30},
    {37, "WINSサーバ", nullptr, Source::Field, 31},
    {38, "WINSサーバ(2)", nullptr, Source::Field, 32},
    {40, "ユーザ名", nullptr, Source::Field, 20},
    {41, "パスワード", nullptr, Source::Field, 21},   // the stored password, in the clear
    {42, "ホスト名", nullptr, Source::Field, 22},
    {43, "ドメイン", nullptr, Source::Field, 23},
    {45, "[アプリケーション]", nullptr, Source::Heading, 0},
};
// clang-format on

// The purchase and lease lines; the contract number comes before the company.
const std::pair<const char*, int> kAssetLines[] = {
    {"購入先", 44}, {"リース契約番号", 46}, {"リース会社", 45}, {"リース開始日", 47}, {"リース終了日", 48}};

constexpr double kHeadingLeft = 10;
constexpr double kLineLeft = 15;

const QString kBox = QStringLiteral("□ ");

QString controlText(const ProfileControls& c, Source source, int index)
{
    switch (source) {
    case Source::Heading: return QString();
    case Source::User: return c.tbx_User->text();
    case Source::Section: return c.tbx_Section->text();
    case Source::Division: return c.tbx_Division->text();
    case Source::Combo: return c.cmb_Dat[size_t(index)]->currentText();
    case Source::Field: return c.tbx_Dat[size_t(index)]->text();
    case Source::Drive: return c.tbx_Drive[size_t(index)]->text();
    }
    return QString();
}

// One sheet being drawn: the surface, the controls and the page model.
class Sheet {
public:
    Sheet(const ProfileControls& c, print::PrintSurface& s, PageModel& m) : m_c(c), m_s(s), m_m(m) {}

    void at(double x, std::int32_t line, const QString& text)
    {
        m_s.SetCurrentX(x);
        m_s.SetCurrentY(double(line) * m_m.LineHeight);
        m_s.Print(text);
    }

    void pageBreak()
    {
        m_s.NewPage();
        m_m.PageNumber = vb::IntAdd(m_m.PageNumber, 1);
        fnc_Print_Frame(m_c, m_s, m_m);
    }

    // The rows of a grid below its heading, as the grid stands.
    void gridRows(const ui::FlexGrid& grid, int secondColumn, std::int32_t lineAfterBreak, bool bracketsAlways, std::int32_t& line)
    {
        for (int row = 1; row <= grid.Rows() - 1; ++row) {
            if (line + 3 > m_m.LinesPerPage) {
                pageBreak();
                line = lineAfterBreak;
            }
            const QString name = grid.TextMatrix(row, 1);
            const QString second = grid.TextMatrix(row, secondColumn);
            QString text = kBox + name;
            if (bracketsAlways || !second.isEmpty())
                text += QStringLiteral(" (") + second + QStringLiteral(")");
            at(kLineLeft, line, text);
            ++line;
        }
    }

private:
    const ProfileControls& m_c;
    print::PrintSurface& m_s;
    PageModel& m_m;
};

} // namespace

void fnc_Print_Sheet(const ProfileControls& controls, print::PrintSurface& surface)
{
    PageModel model = fnc_Print_Setup(controls, surface);
    model.PageNumber = 1;
    fnc_Print_Frame(controls, surface, model);
    fnc_Print_Body(controls, surface, model);
    surface.EndDoc();
}

PageModel fnc_Print_Setup(const ProfileControls& controls, print::PrintSurface& surface)
{
    const QFont font = controls.tbx_Dat[0]->font();
    surface.SetFont(font.family(), font.pointSizeF());
    PageModel m;
    m.LineHeight = std::int32_t(vb::RoundToEven(surface.TextHeight(QStringLiteral("A"))));
    if (m.LineHeight == 0)
        throw vb::VbError(11, QStringLiteral("0 で除算しました。"));
    m.LinesPerPage = std::int32_t(std::floor(surface.ScaleHeight() / m.LineHeight));
    m.TextHeightTotal = m.LinesPerPage * m.LineHeight;
    m.RightEdge = std::int32_t(vb::RoundToEven(surface.ScaleWidth() - 10));
    return m;
}

void fnc_Print_Frame(const ProfileControls& controls, print::PrintSurface& s, const PageModel& m)
{
    s.SetFontBold(true);
    s.SetFontItalic(true);
    s.SetDrawWidth(3);
    const auto printAt = [&](double x, double y, const QString& text) {
        s.SetCurrentX(x);
        s.SetCurrentY(y);
        s.Print(text);
    };
    printAt(10, m.LineHeight, controls.tbx_Dat[0]->text());
    const QString page = QString::number(m.PageNumber) + QStringLiteral("ページ");
    printAt(m.RightEdge - s.TextWidth(page), m.LineHeight, page);
    s.Line(10, 2 * m.LineHeight, m.RightEdge, 2 * m.LineHeight);

    const double footer = double(m.LinesPerPage - 1) * m.LineHeight;
    printAt(10, footer, QStringLiteral("Fenwold"));
    const QString today = app::Now().date().toString(QStringLiteral("yyyy/MM/dd"));
    printAt(m.RightEdge - s.TextWidth(today), footer, today);
    // the footer rule ends at the text height, not at the right margin: on upright paper it runs
    // on past the margin; that is the sheet as it always was
    s.Line(10, m.TextHeightTotal - m.LineHeight, m.TextHeightTotal, m.TextHeightTotal - m.LineHeight);
    s.SetFontBold(false);
    s.SetFontItalic(false);
}

void fnc_Print_Body(const ProfileControls& c, print::PrintSurface& s, PageModel& m)
{
    Sheet sheet(c, s, m);
    // the fixed part: no test for the end of the page (it needs 45 lines)
    for (const SheetLine& l : kFixedPart) {
        const QString label = QString::fromUtf8(l.label);
        if (l.source == Source::Heading) {
            sheet.at(kHeadingLeft, l.line, label);
            continue;
        }
        const QString separator = l.separator ? QString::fromUtf8(l.separator) : QStringLiteral(": ");
        sheet.at(kLineLeft, l.line, kBox + label + separator + controlText(c, l.source, l.index));
    }

    std::int32_t line = 46;
    // a break among the applications goes on at line 3, among the printers at line 4
    sheet.gridRows(*c.MSGrid_Application, 3, 3, false, line);
    line += 2;
    sheet.at(kHeadingLeft, line, QStringLiteral("[プリンター]"));
    ++line;
    sheet.gridRows(*c.MSFlexGrid_Printer, 2, 4, true, line);

    // a break before the asset data tightens the test of its lines by one
    int margin = 0;
    if (line + 3 > m.LinesPerPage) {
        sheet.pageBreak();
        line = 3;
        margin = 1;
    }
    line += 2;
    sheet.at(kHeadingLeft, line, QStringLiteral("[資産管理]"));
    for (const auto& [label, index] : kAssetLines) {
        if (line + margin + 3 > m.LinesPerPage) {
            sheet.pageBreak();
            line = 3;
            margin = 1;
        }
        ++line;
        sheet.at(kLineLeft, line, kBox + QString::fromUtf8(label) + QStringLiteral(": ") + c.tbx_Dat[size_t(index)]->text());
    }
}

} // namespace Mdl_Print
