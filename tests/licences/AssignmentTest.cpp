// The assignment window: its two lists, assignments made, changed and deleted through the menus,
// the filters, the colours of retired computers and deleted masters.
#include "LicencesFixture.h"

#include "licences/frm_Edit_License.h"
#include "platform/ui/DropDownCombo.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>

namespace {

class Assignment : public LicencesFixture {
protected:
    // Two locations (the second deleted), two users (the second deleted), three computers (the
    // third retired), two purchased applications and a blank purchase line.
    void SetUp() override
    {
        LicencesFixture::SetUp();
        ledger.master("tbl_Location", 1, QStringLiteral("本館1F"));
        ledger.master("tbl_Location", 2, QStringLiteral("別館"), "1");
        ledger.user(1, QStringLiteral("山田"));
        ledger.user(2, QStringLiteral("佐藤"), "1");
        computer(1, QStringLiteral("PC-SOUMU-01"), 1, 1);
        computer(2, QStringLiteral("PC-EIGYO-02"), 2, 2);
        computer(3, QStringLiteral("PC-OLD-03"), 1, 1, 1);
        purchase(1, QStringLiteral("'Microsoft Office Professional Edition 2003'"), 10);
        purchase(2, QStringLiteral("'ウイルスバスター2006'"), 5);
        purchase(3, QStringLiteral("NULL"), 0);
    }
    frm_Edit_License& open()
    {
        frm_Edit_License::Instance().Show(ui::vbModeless);
        return frm_Edit_License::Instance();
    }
    static QStringList items(const QListWidget& list)
    {
        QStringList out;
        for (int i = 0; i < list.count(); ++i)
            out << list.item(i)->text() + QStringLiteral(" #") + list.item(i)->data(Qt::UserRole).toString();
        return out;
    }
    QStringList assignments() { return ledger.rows(QStringLiteral("SELECT * FROM tbl_License_Dat ORDER BY Key")); }
    static std::array<bool, 3> menus(const frm_Edit_License& w)
    {
        return {w.Mnu_AddRecord->isEnabled(), w.Mnu_Update->isEnabled(), w.Mnu_DeleteRecord->isEnabled()};
    }
};

TEST_F(Assignment, TheListsPadByBytesAndByCharactersAndALongComputerNameStopsItsList)
{
    frm_Edit_License& w = open();
    // 42 bytes: no blanks; 8 double-byte characters and 4 digits are 20 bytes: 15 blanks
    EXPECT_EQ(items(*w.List_license), (QStringList{"Microsoft Office Professional Edition 2003 数量10 #1",
                                                   "ウイルスバスター2006" + QString(15, u' ') + " 数量5 #2"}));
    // the retired computer is not offered; the deleted masters are
    EXPECT_EQ(items(*w.List_ComuputerName), (QStringList{"PC-EIGYO-02      別館 佐藤 #2", "PC-SOUMU-01      本館1F 山田 #1"}));
    EXPECT_TRUE(dialogs.messages().empty());
    EXPECT_EQ(menus(w), (std::array<bool, 3>{false, false, false}));

    // each refresh lists the computers once more
    w.View_MSFlexGrid_License_assignment_Update->trigger();
    EXPECT_EQ(w.List_ComuputerName->count(), 4);
    EXPECT_EQ(w.List_license->count(), 2);

    // 18 characters cannot be padded to 17: the error box, and the list ends there
    computer(4, QStringLiteral("PC-KAIHATSU-000005"));
    w.List_ComuputerName->clear();
    w.View_ComputerNameList();
    EXPECT_EQ(items(*w.List_ComuputerName), QStringList{"PC-EIGYO-02      別館 佐藤 #2"});
    EXPECT_EQ(dialogs.errorBoxes(), std::vector<long>{5});
}

TEST_F(Assignment, AnAssignmentIsAddedChangedAndDeletedWithTheCommentCutTo50ThenTo49)
{
    frm_Edit_License& w = open();
    EXPECT_EQ(w.FGrid_EditLicense->Rows(), 0);
    w.List_license->setCurrentRow(1);
    EXPECT_EQ(menus(w), (std::array<bool, 3>{false, false, false})) << "no computer chosen yet";
    w.List_ComuputerName->setCurrentRow(1);
    EXPECT_EQ(menus(w), (std::array<bool, 3>{true, false, false}));
    EXPECT_EQ(w.tbx_LicenseKey->text(), QStringLiteral("2"));
    EXPECT_EQ(w.tbx_ComputerName->text(), QStringLiteral("PC-SOUMU-01      本館1F 山田"));

    const QString comment = QString(45, u'あ') + QStringLiteral("12345");
    w.tbx_ProductID->setText(QStringLiteral("55274-640"));
    pick(*w.cmb_Payment_Type, 1);
    w.cmb_AssetType->setEditText(QStringLiteral("ボリューム")); // a free text is stored as typed
    w.tbx_Comment->setText(comment + QStringLiteral("X"));
    w.Mnu_AddRecord->trigger();
    EXPECT_EQ(assignments(), QStringList{"1|2|1|55274-640|||リース|ボリューム|0|" + comment + "|2006/03/31"});
    EXPECT_EQ(cells(*w.FGrid_EditLicense),
              QStringList{"1|1|ウイルスバスター2006|PC-SOUMU-01|55274-640|||リース|ボリューム|山田|||本館1F|0|" + comment});
    EXPECT_TRUE(w.tbx_LicenseKey->text().isEmpty());
    EXPECT_EQ(menus(w), (std::array<bool, 3>{false, false, false}));

    // a price past 16 bits cannot be added: the run ends and nothing is written
    w.List_license->setCurrentRow(0);
    w.List_ComuputerName->setCurrentRow(0);
    w.tbx_Purchase_Price->setText(QStringLiteral("40000"));
    w.Mnu_AddRecord->trigger();
    EXPECT_EQ(fatalEnd(), QStringLiteral("6"));
    EXPECT_EQ(assignments().size(), 1);

    // selecting the row fills the form from the grid and the keys from the ledger
    click(*w.FGrid_EditLicense, 1);
    EXPECT_EQ(menus(w), (std::array<bool, 3>{false, true, true}));
    EXPECT_EQ(w.tbx_LicenseKey->text(), QStringLiteral("2"));
    EXPECT_EQ(w.tbx_ComputerKey->text(), QStringLiteral("1"));
    EXPECT_EQ(w.tbx_Comment->text(), comment);
    EXPECT_EQ(w.FGrid_EditLicense->CellBackColorAt(1, 2), ui::QBColor(8));
    // a list click offers a new assignment instead, and the grid click takes the keys back
    w.List_ComuputerName_Click();
    EXPECT_EQ(menus(w), (std::array<bool, 3>{true, false, false}));
    click(*w.FGrid_EditLicense, 1);
    EXPECT_EQ(w.tbx_ComputerKey->text(), QStringLiteral("1"));
    // the same price is written through the field at an update; the comment loses a character
    w.tbx_Purchase_Price->setText(QStringLiteral("40000"));
    w.Mnu_Update->trigger();
    EXPECT_EQ(assignments(), QStringList{"1|2|1|55274-640|||リース|ボリューム|40000|" + comment.left(49) + "|2006/03/31"});
    EXPECT_TRUE(w.tbx_ComputerKey->text().isEmpty());
    EXPECT_TRUE(w.cmb_Payment_Type->currentText().isEmpty());
    EXPECT_EQ(w.tbx_ProductID->text(), QStringLiteral("55274-640")) << "the other boxes keep their text";
    EXPECT_EQ(w.FGrid_EditLicense->CellBackColorAt(1, 2), ui::QBColor(15));

    click(*w.FGrid_EditLicense, 1);
    dialogs.answerMessage(ui::vbNo);
    w.Mnu_DeleteRecord->trigger();
    EXPECT_EQ(assignments().size(), 1);
    dialogs.answerMessage(ui::vbYes);
    w.Mnu_DeleteRecord->trigger();
    EXPECT_TRUE(assignments().empty());
    EXPECT_EQ(w.FGrid_EditLicense->Rows(), 0);
    EXPECT_EQ(dialogs.messageTexts().back(), QStringLiteral("削除しますか？"));
}

TEST_F(Assignment, TheGridShowsLiveChainsOnlyGraysRetiredAndDeletedAndFiltersByApplicationAndLocation)
{
    assignment(1, 1, 1, QStringLiteral("Purchase_Price = 12000"));
    assignment(2, 2, 2);
    assignment(3, 1, 3);
    assignment(4, 9, 1); // its purchase line was deleted
    frm_Edit_License& w = open();
    const ui::FlexGrid& grid = *w.FGrid_EditLicense;
    EXPECT_EQ(cells(grid, 2), (QStringList{"ウイルスバスター2006|PC-EIGYO-02||||||佐藤|||別館||",
                                           "Microsoft Office Professional Edition 2003|PC-OLD-03||||||山田|||本館1F||",
                                           "Microsoft Office Professional Edition 2003|PC-SOUMU-01||||||山田|||本館1F|12000|"}));
    EXPECT_EQ(grid.TextMatrix(0, 13), QStringLiteral("単価"));
    EXPECT_EQ(grid.ColWidth(0), 0);
    const QColor gray = ui::QBColor(8), white = ui::QBColor(15);
    EXPECT_EQ(grid.CellBackColorAt(1, 1), gray);
    EXPECT_EQ(grid.CellBackColorAt(1, 9), gray) << "deleted user";
    EXPECT_EQ(grid.CellBackColorAt(1, 12), gray) << "deleted location";
    EXPECT_EQ(grid.CellBackColorAt(1, 3), white);
    EXPECT_EQ(grid.CellBackColorAt(2, 3), gray) << "retired computer";

    // the application filter's list: " " first, then every line, a blank one too
    pick(*w.cmb_Application, 2);
    EXPECT_EQ(w.cmb_Application->count(), 4);
    EXPECT_EQ(w.cmb_Application->itemText(1), QString());
    EXPECT_EQ(w.tbx_Application->text(), QStringLiteral("1"));
    EXPECT_EQ(cells(grid, 3).size(), 2);
    pick(*w.cmb_Location, 1);
    EXPECT_EQ(w.tbx_Location->text(), QStringLiteral("0"));
    pick(*w.cmb_Location, 2);
    EXPECT_EQ(cells(grid, 3).size(), 2) << "both Office computers stand on 本館1F";
    // no such assignment: the grid is emptied, and the filters stay through a refresh
    pick(*w.cmb_Location, 3);
    EXPECT_EQ(grid.Rows(), 0);
    w.View_MSFlexGrid_License_assignment_Update->trigger();
    EXPECT_EQ(grid.Rows(), 0);
    pick(*w.cmb_Application, 0);
    pick(*w.cmb_Location, 0);
    EXPECT_EQ(cells(grid, 3).size(), 3);
}

} // namespace
