// The application census: counts over live computers, the computers behind a name, the location
// filter with the list it leaves standing, the refresh, and the export with its name line.
#include "LicencesFixture.h"

#include "licences/frm_List_Application.h"
#include "platform/ui/DropDownCombo.h"

#include "support/TempDir.h"

#include <QAction>
#include <QLineEdit>

namespace {

class Census : public LicencesFixture {
protected:
    frm_List_Application& open()
    {
        Mdl_gData::g.MainFormWidth = 15000;
        Mdl_gData::g.MainFormHeight = 9000;
        frm_List_Application::Instance().Show(ui::vbModeless);
        return frm_List_Application::Instance();
    }
    static QStringList sorted(QStringList rows)
    {
        rows.sort();
        return rows;
    }
    QByteArray exported(frm_List_Application& w)
    {
        dialogs.answerFile(out.file(QStringLiteral("apps")));
        w.Mnu_Export_CSV->trigger();
        return FileBytes(out.file(QStringLiteral("apps.csv")));
    }
    TempDir out;
};

TEST_F(Census, CountsRowsOfLiveComputersAndListsEachNameAndVersionOnce)
{
    ledger.master("tbl_Location", 1, QStringLiteral("本館1F"));
    ledger.master("tbl_Location", 2, QStringLiteral("別館"));
    ledger.master("tbl_Location", 3, QStringLiteral("倉庫"));
    ledger.user(1, QStringLiteral("佐藤"), "1");
    computer(1, QStringLiteral("PC-A"), 1);
    computer(2, QStringLiteral("PC-B"), 2, 1);
    computer(3, QStringLiteral("PC-C"), 1, 0, 1);
    ledger.exec(
        QStringLiteral("INSERT INTO tbl_ApplicationsList (Key, Application_Name, Application_Version) VALUES (1, 'Office', '11.0'), "
                       "(1, 'Office', '11.0'), (2, 'Office', '11.0'), (2, 'Office', '12.0'), (3, 'Office', '11.0'), "
                       "(3, 'OnlyOnRetired', NULL), (1, '', NULL), (2, 'Tom''s Tool', NULL)"));

    frm_List_Application& w = open();
    EXPECT_TRUE(w.CensusReady);
    // rows, not computers: Office twice on PC-A counts 2; the retired PC-C is not counted
    EXPECT_EQ(cells(*w.MSFlexGrid_Applications), (QStringList{"1||1", "2|Office|4", "3|Tom's Tool|1"}));
    EXPECT_EQ(w.MSFlexGrid_Applications->CellBackColorAt(1, 0), ui::QBColor(8));

    click(*w.MSFlexGrid_Applications, 2);
    EXPECT_EQ(w.tbx_ApplicationName->text(), QStringLiteral("Office"));
    EXPECT_EQ(w.tbx_ApplicationNum->text(), QStringLiteral("4"));
    EXPECT_EQ(sorted(cells(*w.MSFlexGrid_User, 1)), (QStringList{"PC-A|本館1F||||11.0", "PC-B|別館|||佐藤|11.0", "PC-B|別館|||佐藤|12.0"}));
    EXPECT_EQ(w.MSFlexGrid_User->CellBackColorAt(2, 5), ui::QBColor(8)) << "a deleted user";
    EXPECT_EQ(w.MSFlexGrid_User->CellBackColorAt(2, 2), ui::QBColor(15));

    // a location narrows the list; one without such a computer leaves it standing
    pick(*w.cmb_Location, QStringLiteral("別館"));
    EXPECT_EQ(w.tbx_Location->text(), QStringLiteral("2"));
    EXPECT_EQ(sorted(cells(*w.MSFlexGrid_User, 1)), (QStringList{"PC-B|別館|||佐藤|11.0", "PC-B|別館|||佐藤|12.0"}));
    pick(*w.cmb_Location, QStringLiteral("倉庫"));
    EXPECT_EQ(cells(*w.MSFlexGrid_User, 1).size(), 2);
    const QByteArray file = exported(w);
    EXPECT_TRUE(file.startsWith("Office\r\n")) << "the name line first, as it stands";
    EXPECT_EQ(file.count("\r\n"), 4);

    // the refresh lifts the filter and lists the same name from every location
    w.Mnu_ViewUpdate->trigger();
    EXPECT_TRUE(w.tbx_Location->text().isEmpty());
    EXPECT_EQ(w.cmb_Location->currentIndex(), -1);
    EXPECT_EQ(cells(*w.MSFlexGrid_User, 1).size(), 3);
    EXPECT_EQ(w.tbx_ApplicationName->text(), QStringLiteral("Office"));

    // a quote in the name breaks the SELECT: the error box, and the list stays
    dialogs.clear();
    click(*w.MSFlexGrid_Applications, 3);
    ASSERT_EQ(dialogs.messages().size(), 1u);
    EXPECT_EQ(cells(*w.MSFlexGrid_User, 1).size(), 3);
}

TEST_F(Census, WithoutApplicationsNothingIsClickableAndTheExportWritesAnEmptyNameAndTheBareGrid)
{
    computer(1, QStringLiteral("PC-A"));
    frm_List_Application& w = open();
    EXPECT_FALSE(w.CensusReady);
    w.MSFlexGrid_Applications->SetRow(1);
    w.MSFlexGrid_Applications_Click();
    w.Mnu_ViewUpdate->trigger();
    EXPECT_FALSE(w.ComputerReady);
    EXPECT_TRUE(dialogs.messages().empty());
    // the computers' grid at its design size: two rows of two empty columns
    EXPECT_EQ(exported(w), QByteArray("\r\n, \r\n, \r\n"));
    EXPECT_EQ(dialogs.messageTexts(), QStringList{"完了しました"});
}

TEST_F(Census, TheRefreshAfterLoadActsOnTheLastRowAndAClickOnTheHeadingDoesNothing)
{
    computer(1, QStringLiteral("PC-A"));
    computer(2, QStringLiteral("PC-B"));
    ledger.exec(QStringLiteral("INSERT INTO tbl_ApplicationsList (Key, Application_Name, Application_Version) VALUES (1, 'Office', NULL), "
                               "(2, 'Viewer', '2.0')"));
    frm_List_Application& w = open();
    w.Mnu_ViewUpdate->trigger();
    EXPECT_EQ(w.ApplicationName, QStringLiteral("Viewer"));
    EXPECT_EQ(cells(*w.MSFlexGrid_User, 1), QStringList{"PC-B|||||2.0"});
    w.MSFlexGrid_Applications->SetRow(0);
    w.MSFlexGrid_Applications_Click();
    EXPECT_EQ(w.ApplicationName, QStringLiteral("Viewer"));
    EXPECT_EQ(w.MSFlexGrid_Applications->CellBackColorAt(2, 1), ui::QBColor(8));
}

} // namespace
