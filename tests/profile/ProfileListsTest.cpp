// The list pages of the profile: the three grids and the device tree, read when their tab is
// chosen, and left standing when the next computer has no rows.
#include "ProfileFixture.h"

#include "platform/ui/Twips.h"
#include "profile/ProfileLists.h"

#include <QTabBar>
#include <QTreeWidget>

namespace {

using ProfileLists::FindNode;

// The tree as "root: child | child" lines, each node with its picture's key in brackets.
QStringList tree(const QTreeWidget& t)
{
    QStringList out;
    for (int i = 0; i < t.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* root = t.topLevelItem(i);
        QStringList children;
        for (int j = 0; j < root->childCount(); ++j)
            children << root->child(j)->text(0) + u'[' + root->child(j)->data(0, ProfileLists::ImageKeyRole).toString() + u']';
        out << root->text(0) + u'[' + root->data(0, ProfileLists::ImageKeyRole).toString() + QStringLiteral("]: ")
                   + children.join(QStringLiteral(" | "));
    }
    return out;
}

using ProfileListPages = ProfileTest;

TEST_F(ProfileListPages, TheGridsShowTheComputersRowsAreReadWhenTheirTabIsChosenAndStayWhenTheNextHasNone)
{
    frm_Edit_Computer& w = open(1);
    w.TabStrip1->setCurrentIndex(2);
    ui::FlexGrid& apps = *w.MSGrid_Application;
    EXPECT_TRUE(w.Picture_Page[2]->isVisible());
    EXPECT_EQ(cells(apps),
              (QStringList{"1|Microsoft Office Professional Edition 2003|C：￥Program Files￥Microsoft Office￥|11.0.5614.0",
                           "2|ウイルスバスター2006|C：￥Program Files￥Trend Micro￥|14.10", "3|Tom’s Mail Checker|C：￥Tools￥|1.2",
                           "4|Adobe Reader 7.0.5 - 日本語||", "5|秀丸エディタ|16|4"}));
    const QColor grey = ui::QBColor(8);
    EXPECT_EQ(apps.CellBackColorAt(0, 2), grey);
    EXPECT_EQ(apps.CellBackColorAt(3, 0), grey);
    EXPECT_EQ(apps.CellAlignmentAt(3, 1), ui::flexAlignLeftBottom);
    EXPECT_EQ(apps.CellAlignmentAt(4, 3), ui::flexAlignGeneral) << "an empty cell is left as it is";

    w.TabStrip1->setCurrentIndex(4);
    EXPECT_EQ(cells(*w.MSFlexGrid_Printer), (QStringList{"1|EPSON LP-9000C|IP_192.168.0.201|", "2|総務部 カラーレーザー|LPT1：|"}));
    w.TabStrip1->setCurrentIndex(5);
    EXPECT_EQ(cells(*w.MSFlexGrid_Environmental), (QStringList{"1|TEMP|C：￥DOCUME~1￥yamada￥LOCALS~1￥Temp|",
                                                               "2|Path|C：￥WINDOWS￥system32；C：￥WINDOWS|", "3|OS|Windows_NT|"}));

    // read on every choice of the tab, never in between
    ledger.exec(QStringLiteral("DELETE FROM tbl_ApplicationsList WHERE \"Key\" = 2"));
    ledger.exec(QStringLiteral("INSERT INTO tbl_ApplicationsList (\"Key\", Application_Name) VALUES (1, '新しいソフト')"));
    w.TabStrip1->setCurrentIndex(0);
    EXPECT_EQ(w.MSGrid_Application->Rows(), 6);
    w.TabStrip1->setCurrentIndex(2);
    EXPECT_EQ(w.MSGrid_Application->Rows(), 7);

    // a step on the application page to a computer without applications keeps the rows
    w.cmd_Next_Click();
    EXPECT_EQ(w.tbx_Dat[0]->text(), QStringLiteral("SALES-PC07"));
    EXPECT_EQ(w.MSGrid_Application->Rows(), 7);
    EXPECT_EQ(w.MSGrid_Application->TextMatrix(6, 1), QStringLiteral("新しいソフト"));
    // while the printer grid, not shown, still has the first computer's printers
    EXPECT_EQ(cells(*w.MSFlexGrid_Printer).size(), 2);
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(ProfileListPages, TheDeviceTreeGroupsByCategoryWithTheCategorysPicture)
{
    ledger.exec(QStringLiteral("INSERT INTO tbl_Device_Management (\"Key\", Device_Category, Device_Name, Device_Provider, "
                               "Device_Version) VALUES (2, 'Display adapters', 'RADEON 9200', NULL, ''), "
                               "(2, 'USB (Universal Serial Bus) コントローラ', 'USB ルート ハブ', 'Microsoft', NULL)"));
    frm_Edit_Computer& w = open(2);
    w.TabStrip1->setCurrentIndex(3);
    EXPECT_EQ(tree(*w.TreeView1),
              (QStringList{"Display adapters[Display adapters]: RADEON 9200 ATI Technologies Inc. 6.14.10.6430[Display adapters] | "
                           "RADEON 9200  [Display adapters]",
                           "Network adapters[システム デバイス]: 3Com EtherLink XL 10/100 PCI 3Com 5.43.15.0[システム デバイス]",
                           "USB (Universal Serial Bus) コントローラ[USB (Universal Serial Bus) コントローラ]: USB ルート ハブ Microsoft "
                           "[USB (Universal Serial Bus) コントローラ]"}));
    // equal names are kept apart by the running count in their keys
    EXPECT_NE(FindNode(*w.TreeView1, QStringLiteral("RADEON 92001")), nullptr);
    EXPECT_NE(FindNode(*w.TreeView1, QStringLiteral("RADEON 92002")), nullptr);
    EXPECT_FALSE(FindNode(*w.TreeView1, QStringLiteral("Display adapters"))->icon(0).isNull());

    // the next computer's tree replaces it; one with no devices would leave it standing
    w.cmd_Prev_Click();
    EXPECT_EQ(w.TreeView1->topLevelItemCount(), 3);
    EXPECT_EQ(w.TreeView1->topLevelItem(0)->text(0), QStringLiteral("ディスク ドライブ"));
    ledger.exec(QStringLiteral("DELETE FROM tbl_Device_Management WHERE \"Key\" = 2"));
    w.cmd_Next_Click();
    EXPECT_EQ(w.TreeView1->topLevelItem(0)->text(0), QStringLiteral("ディスク ドライブ"));
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(ProfileListPages, ANullCategoryFailsTheSecondPassLeavingWhatWasAdded)
{
    ledger.exec(QStringLiteral("INSERT INTO tbl_Device_Management (\"Key\", Device_Category, Device_Name) VALUES (1, NULL, '謎の装置')"));
    frm_Edit_Computer& w = open(1);
    w.TabStrip1->setCurrentIndex(3);
    // the Null sorts first: the roots were all added, no child was
    EXPECT_EQ(w.TreeView1->topLevelItemCount(), 3);
    EXPECT_EQ(w.TreeView1->topLevelItem(0)->childCount(), 0);
    EXPECT_EQ(dialogs.errorBoxes(), std::vector<long>{94});
}

} // namespace
