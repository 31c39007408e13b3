#include "profile/ProfileControls.h"

#include "platform/ui/DropDownCombo.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/Menus.h"
#include "platform/ui/StatusBar.h"
#include "platform/ui/Twips.h"
#include "profile/DeviceIcons.h"
#include "profile/ProfileLists.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

using namespace ProfileTables;

// Places a control as the designer did, in twips of its container.
void place(QWidget* w, int left, int top, int width, int height)
{
    w->setGeometry(ui::TwipsToPixels(left), ui::TwipsToPixels(top), ui::TwipsToPixels(width), ui::TwipsToPixels(height));
}

constexpr int kBoxHeight = 330;
constexpr int kRowPitch = 390;

// The design text that every copy of a label array carried until a record set its caption.
const char* const kFieldLabelDesignText = "ユーザー名";
const char* const kCpuLabelDesignText = "MONITOR";

// Where the field pairs of a page stand: the top of the first row, the rows of a column, and for
// each column its left, the caption's width and the box's width.
struct FieldColumn {
    int left;
    int captionWidth;
    int boxWidth;
};
struct FieldBlock {
    Page page;
    int firstIndex;
    int left;
    int top;
    int rows;
    std::array<FieldColumn, 3> columns;
};
constexpr FieldBlock kFieldBlocks[] = {
    {Page::Band, 0, 7700, 540, 5, {{{0, 1400, 2500}}}},
    {Page::Cpu, 5, 120, 90, 5, {{{0, 1250, 2700}, {4100, 1700, 1800}, {7750, 1950, 1400}}}},
    {Page::Network, 20, 120, 90, 9, {{{0, 1900, 2700}, {4750, 1800, 2350}}}},
    {Page::Maintenance, 37, 120, 90, 9, {{{0, 2350, 3000}, {5500, 2700, 2900}}}},
};

const FieldBlock& blockOf(Page page)
{
    for (const FieldBlock& b : kFieldBlocks)
        if (b.page == page)
            return b;
    return kFieldBlocks[0];
}

// The pages lie at top 3120, left 240 of the window, under the tab strip.
constexpr int kPageLeft = 240;
constexpr int kPageTop = 3120;
constexpr int kPageWidth = 11280;
constexpr int kPageHeight = 4440;
constexpr int kTabTop = 2700;

QLabel* label(QWidget* parent, const QString& text, int left, int top, int width, int height = kBoxHeight)
{
    auto* l = new QLabel(text, parent);
    place(l, left, top, width, height);
    return l;
}

QLineEdit* textBox(QWidget* parent, const char* name, int index = -1)
{
    auto* box = new QLineEdit(parent);
    if (index >= 0)
        ui::SetArrayName(box, name, index);
    else
        box->setObjectName(QString::fromUtf8(name));
    return box;
}

} // namespace

void ProfileControls::Build(QWidget* form)
{
    MenuBar = ui::AddMenuBar(form);
    auto* client = new QWidget(form);
    client->setObjectName(QStringLiteral("ClientArea"));
    StatusBar1 = new ui::StatusBar(1, form);
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));
    auto* layout = new QVBoxLayout(form);
    layout->setMenuBar(MenuBar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(client, 1);
    layout->addWidget(StatusBar1);

    // the band: the user and the masters on the left, the stepper and the computer on the right
    label(client, QStringLiteral("利用ユーザー名"), 120, 90, 1400);
    tbx_User = textBox(client, "tbx_User");
    place(tbx_User, 1560, 90, 2500, kBoxHeight);
    tbx_UserCode = textBox(client, "tbx_UserCode");
    tbx_UserCode->hide();
    List_User = new QListWidget(client);
    List_User->setObjectName(QStringLiteral("List_User"));
    place(List_User, 1560, 480, 2500, 2100);

    const char* const masterCaptions[] = {"部", "課", "設置場所", "メーカー", "モデル"};
    for (int r = 0; r < 5; ++r)
        label(client, QString::fromUtf8(masterCaptions[r]), 4260, 90 + r * 420, 950);
    tbx_Section = textBox(client, "tbx_Section");
    place(tbx_Section, 5220, 90, 2300, kBoxHeight);
    tbx_Division = textBox(client, "tbx_Division");
    place(tbx_Division, 5220, 510, 2300, kBoxHeight);
    for (int n = 3; n <= 5; ++n) {
        auto* combo = new ui::DropDownCombo(client);
        ui::SetArrayName(combo, "cmb_Dat", n);
        combo->setEditable(true);
        combo->setInsertPolicy(QComboBox::NoInsert);
        place(combo, 5220, 90 + (n - 1) * 420, 2300, kBoxHeight);
        cmb_Dat[size_t(n)] = combo;
        tbx_CmbKey[size_t(n)] = textBox(client, "tbx_CmbKey", n);
        tbx_CmbKey[size_t(n)]->hide();
    }

    cmd_Prev = new QPushButton(QStringLiteral("<<"), client);
    cmd_Prev->setObjectName(QStringLiteral("cmd_Prev"));
    place(cmd_Prev, 8500, 60, 600, 390);
    tbx_Key = textBox(client, "tbx_Key");
    place(tbx_Key, 9160, 90, 750, kBoxHeight);
    label(client, QStringLiteral("/"), 9960, 90, 180)->setAlignment(Qt::AlignCenter);
    tbx_PC_Numbers = textBox(client, "tbx_PC_Numbers");
    place(tbx_PC_Numbers, 10190, 90, 750, kBoxHeight);
    for (QLineEdit* box : {tbx_Key, tbx_PC_Numbers}) {
        box->setEnabled(false);
        box->setAlignment(Qt::AlignRight);
    }
    cmd_Next = new QPushButton(QStringLiteral(">>"), client);
    cmd_Next->setObjectName(QStringLiteral("cmd_Next"));
    place(cmd_Next, 11000, 60, 600, 390);

    // the tab strip, and under it the eight pages in one place
    TabStrip1 = new QTabBar(client);
    TabStrip1->setObjectName(QStringLiteral("TabStrip1"));
    TabStrip1->setExpanding(false);
    TabStrip1->setDrawBase(false);
    for (const char* caption : TabCaptions)
        TabStrip1->addTab(ui::PaddedCaption(QString::fromUtf8(caption), TabCaptionPadding));
    place(TabStrip1, 120, kTabTop, 11520, kPageTop - kTabTop - 30);
    auto* body = new QFrame(client);
    body->setFrameShape(QFrame::StyledPanel);
    place(body, 120, kPageTop - 60, 11520, kPageHeight + 120);
    for (size_t p = 0; p < Picture_Page.size(); ++p) {
        auto* page = new QWidget(client);
        ui::SetArrayName(page, "Picture_Page", int(p));
        page->setAutoFillBackground(true);
        place(page, kPageLeft, kPageTop, kPageWidth, kPageHeight);
        page->hide();
        Picture_Page[p] = page;
    }

    // the field pairs of the band and of pages 1, 2 and 8
    for (const ProfileField& f : ProfileFields) {
        const FieldBlock& block = blockOf(f.page);
        QWidget* parent = f.page == Page::Band      ? client
                          : f.page == Page::Cpu     ? Picture_Page[TabCpu - 1]
                          : f.page == Page::Network ? Picture_Page[TabNetwork - 1]
                                                    : Picture_Page[TabMaintenance - 1];
        const int k = f.index - block.firstIndex;
        const FieldColumn& column = block.columns[size_t(k / block.rows)];
        const int left = block.left + column.left;
        const int top = block.top + (k % block.rows) * kRowPitch;
        QLabel* caption = label(parent, QString::fromUtf8(kFieldLabelDesignText), left, top, column.captionWidth - 60);
        ui::SetArrayName(caption, "lbr_dat", f.index);
        QLineEdit* box = textBox(parent, "tbx_Dat", f.index);
        place(box, left + column.captionWidth, top, column.boxWidth, kBoxHeight);
        lbr_dat[size_t(f.index)] = caption;
        tbx_Dat[size_t(f.index)] = box;
    }

    // page 1: the CPU features, labels along the rows and boxes down the columns
    QWidget* cpu = Picture_Page[TabCpu - 1];
    Frame_CPU = new QGroupBox(QStringLiteral("機能"), cpu);
    Frame_CPU->setObjectName(QStringLiteral("Frame_CPU"));
    place(Frame_CPU, 120, 2130, 11040, 1800);
    for (int i = 0; i < CpuFeatureCount; ++i) {
        const Place at = CpuLabelPlace(i);
        QLabel* name = label(Frame_CPU, QString::fromUtf8(kCpuLabelDesignText), at.left, at.top, CpuFeatureLabelWidth, 270);
        ui::SetArrayName(name, "lbr_CPU_Feature", i);
        lbr_CPU_Feature[size_t(i)] = name;
        auto* box = new QCheckBox(Frame_CPU);
        ui::SetArrayName(box, "ChkBox", i);
        const Place boxAt = CpuBoxPlace(i);
        place(box, boxAt.left, boxAt.top, 300, 300);
        ChkBox[size_t(i)] = box;
    }

    // page 2: the IE settings, labels only
    QWidget* network = Picture_Page[TabNetwork - 1];
    Frame_IE = new QGroupBox(QStringLiteral("IE設定環境"), network);
    Frame_IE->setObjectName(QStringLiteral("Frame_IE"));
    place(Frame_IE, 9150, 90, 2010, 2640);
    for (size_t i = 0; i < IE_Env.size(); ++i) {
        IE_Env[i] = label(Frame_IE, QString::fromUtf8(ProfileTables::IE_Env[i].caption), 180, 330 + int(i) * 360, 1750);
        ui::SetArrayName(IE_Env[i], "IE_Env", int(i));
    }

    // pages 3 to 6: the lists
    auto grid = [](QWidget* page, const ProfileLists::ListGrid& list) {
        auto* g = new ui::FlexGrid(page);
        g->setObjectName(QString::fromUtf8(list.gridName));
        g->setFont(ui::MsGothic());
        ProfileLists::DesignGrid(*g);
        place(g, 0, 0, kPageWidth, kPageHeight);
        return g;
    };
    MSGrid_Application = grid(Picture_Page[TabApplications - 1], ProfileLists::Applications);
    TreeView1 = new QTreeWidget(Picture_Page[TabDevices - 1]);
    TreeView1->setObjectName(QStringLiteral("TreeView1"));
    TreeView1->setHeaderHidden(true);
    TreeView1->setIconSize(QSize(DeviceIcons::IconSize, DeviceIcons::IconSize));
    TreeView1->setRootIsDecorated(true);
    place(TreeView1, 0, 0, kPageWidth, kPageHeight);
    MSFlexGrid_Printer = grid(Picture_Page[TabPrinters - 1], ProfileLists::Printers);
    MSFlexGrid_Environmental = grid(Picture_Page[TabEnvironment - 1], ProfileLists::Environment);

    // page 7: capacities with their bars, and the drives
    QWidget* drive = Picture_Page[TabDrive - 1];
    for (size_t i = 0; i < CapacityRows.size(); ++i) {
        const int top = 300 + int(i) * 450;
        lbr_Drive[i] = label(drive, QString::fromUtf8(CapacityRows[i].caption), 360, top, 2300);
        ui::SetArrayName(lbr_Drive[i], "lbr_Drive", int(i));
        tbx_Drive[i] = textBox(drive, "tbx_Drive", int(i));
        tbx_Drive[i]->setAlignment(Qt::AlignRight);
        place(tbx_Drive[i], 2700, top, 2400, kBoxHeight);
        auto* flag = new QCheckBox(drive);
        ui::SetArrayName(flag, "Chk_Drive", int(i));
        place(flag, 8700, top, 2300, kBoxHeight);
        Chk_Drive[i] = flag;
    }
    for (size_t k = 0; k < ProgressBar_val.size(); ++k) {
        auto* bar = new QProgressBar(drive);
        ui::SetArrayName(bar, "ProgressBar_val", int(k));
        bar->setRange(0, 100);
        bar->setValue(0);
        bar->setTextVisible(false);
        place(bar, 5400, 300 + int(k) * 900 + 60, 2800, 720);
        ProgressBar_val[k] = bar;
    }

    // the status bar's and the grids' font is the window's
    form->setFont(ui::MsGothic());
}
