// The network device window driven as a user drives it: the fields typed, the grid clicked, the
// menu commands; the register, the merged address list and both grids checked after each.
#include "network/frm_Edit_Network.h"

#include "NetworkFixture.h"

#include "platform/ui/DropDownCombo.h"

#include <QAction>
#include <QLineEdit>

namespace {

class NetworkWindow : public NetworkFixture {
protected:
    frm_Edit_Network& open()
    {
        frm_Edit_Network::Instance().Show(ui::vbModeless);
        return frm_Edit_Network::Instance();
    }
    QStringList devices()
    {
        return ledger.rows(QStringLiteral("SELECT Key, Deleted_Flug, Location_Name, User_Name, Computer_Name, IPAddress, "
                                          "IPAddress_16num, MacAddress, ID, PassWord FROM tbl_NetworkUnit ORDER BY Key"));
    }
    // The user's choice of "一覧更新", answered as told.
    void rebuild(frm_Edit_Network& w, int answer = ui::vbYes)
    {
        dialogs.answerMessage(answer);
        if (answer == ui::vbYes)
            dialogs.answerMessage(ui::vbOK);
        w.Mnu_ViewUpdate->trigger();
    }
};

TEST_F(NetworkWindow, DevicesAreAddedFilledInUpdatedWithoutBlankingAndDeleted)
{
    frm_Edit_Network& w = open();
    EXPECT_EQ(w.MSFlexGrid_NetworkUnit->Rows(), 0);
    EXPECT_EQ(w.MSFlexGrid_Network->Rows(), 0);
    EXPECT_FALSE(w.Mnu_Update->isEnabled());

    // the first device of an empty register has key 0
    w.Mnu_AddRecord->trigger();
    EXPECT_EQ(devices(), QStringList{"0|0|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL"});
    EXPECT_EQ(cells(*w.MSFlexGrid_NetworkUnit), QStringList{"0||||||||||||"});

    click(*w.MSFlexGrid_NetworkUnit, 1);
    EXPECT_TRUE(w.Mnu_Update->isEnabled());
    w.cmb_Dat[0]->setEditText(QStringLiteral("本社1F"));
    w.cmb_Dat[2]->setEditText(QStringLiteral("YAMAHA"));
    w.tbx_nunit[1]->setText(QStringLiteral("ルータ"));
    // only the address box filters what is typed; the MAC address takes anything
    w.tbx_nunit[3]->setFocus();
    QTest::keyClicks(w.tbx_nunit[3], QStringLiteral("192.168.0.x1"));
    EXPECT_EQ(w.tbx_nunit[3]->text(), QStringLiteral("192.168.0.1"));
    QTest::keyClicks(w.tbx_nunit[4], QStringLiteral("00:A0:DE:11:22:33"));
    EXPECT_EQ(w.tbx_nunit[4]->text(), QStringLiteral("00:A0:DE:11:22:33"));
    w.tbx_nunit[7]->setText(QStringLiteral("admin"));
    w.tbx_nunit[8]->setText(QStringLiteral("pass'word"));
    w.Mnu_Update->trigger();
    EXPECT_EQ(devices(), QStringList{"0|0|本社1F|NULL|ルータ|192.168.0.1|C0A80001|00:A0:DE:11:22:33|admin|pass'word"});
    EXPECT_EQ(cells(*w.MSFlexGrid_NetworkUnit), QStringList{"0|本社1F||ルータ||192.168.0.1|00:A0:DE:11:22:33|YAMAHA||||admin|pass'word"});
    EXPECT_FALSE(w.Mnu_Update->isEnabled());

    // a new device has no address and sorts first
    w.Mnu_AddRecord->trigger();
    EXPECT_EQ(cells(*w.MSFlexGrid_NetworkUnit, 0).value(0), QStringLiteral("1||||||||||||"));
    // a box cleared before "更新" keeps the stored value; a changed address changes the key
    click(*w.MSFlexGrid_NetworkUnit, 2);
    EXPECT_EQ(w.tbx_nunit[1]->text(), QStringLiteral("ルータ"));
    EXPECT_EQ(w.cmb_Dat[0]->currentText(), QStringLiteral("本社1F"));
    w.tbx_nunit[1]->clear();
    w.tbx_nunit[8]->clear();
    w.tbx_nunit[3]->setText(QStringLiteral("10.0.0.255"));
    w.Mnu_Update->trigger();
    EXPECT_EQ(devices().value(0), QStringLiteral("0|0|本社1F|NULL|ルータ|10.0.0.255|0A0000FF|00:A0:DE:11:22:33|admin|pass'word"));

    // No keeps the device; Yes deletes the one chosen
    click(*w.MSFlexGrid_NetworkUnit, 2);
    dialogs.answerMessage(ui::vbNo);
    w.Mnu_Delete->trigger();
    EXPECT_EQ(devices().size(), 2);
    dialogs.answerMessage(ui::vbYes);
    w.Mnu_Delete->trigger();
    EXPECT_EQ(devices(), QStringList{"1|0|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL"});
    EXPECT_EQ(cells(*w.MSFlexGrid_NetworkUnit), QStringList{"1||||||||||||"});

    // the row painted before the delete is gone: the next click paints without it
    click(*w.MSFlexGrid_NetworkUnit, 1);
    EXPECT_EQ(w.MSFlexGrid_NetworkUnit->CellBackColorAt(1, 3), ui::QBColor(8));
}

TEST_F(NetworkWindow, TheComboListsOfferTheAvailableNamesAndKeepWhatWasTyped)
{
    ledger.exec(QStringLiteral("INSERT INTO tbl_Location VALUES (1, '本社1F', '', '0'), (2, '旧倉庫', '', '1'), (3, Null, '', '0')"));
    frm_Edit_Network& w = open();
    w.Mnu_AddRecord->trigger();
    click(*w.MSFlexGrid_NetworkUnit, 1);
    w.cmb_Dat[0]->setEditText(QStringLiteral("別館"));
    w.cmb_Dat[0]->showPopup();
    w.cmb_Dat[0]->hidePopup();
    EXPECT_EQ(entries(*w.cmb_Dat[0], true), (QStringList{"=0", "本社1F=1", "=3"}))
        << "a retired location is not offered; a Null name is an empty entry";
    // a typed name that no master has is written as it stands
    w.Mnu_Update->trigger();
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Location_Name FROM tbl_NetworkUnit")), QStringLiteral("別館"));
}

TEST_F(NetworkWindow, TheRebuildMergesComputersAndDevicesSortedByTheAddressKey)
{
    addComputers();
    addDevices();
    frm_Edit_Network& w = open();
    EXPECT_EQ(w.MSFlexGrid_Network->Rows(), 0) << "the list is not rebuilt at load";
    EXPECT_EQ(w.MSFlexGrid_NetworkUnit->Rows(), 5);

    // No keeps the list as it is
    rebuild(w, ui::vbNo);
    EXPECT_TRUE(networkList().isEmpty());

    rebuild(w);
    ASSERT_EQ(dialogs.messages().size(), 3u);
    EXPECT_EQ(dialogs.messages()[1].prompt, QStringLiteral("更新に時間がかかります。リストを更新しますか ?"));
    EXPECT_EQ(dialogs.messages()[2].prompt, QStringLiteral("完了"));

    // computers first, in address order, then the devices as stored; the retired computer and
    // the one whose user has no row are left out; the device with a quote in its name is lost
    // with its key; a missing value is one blank
    EXPECT_EQ(networkList(),
              (QStringList{
                  "0|本社1F|山田 太郎|PC-KAIHATSU| |10.0.0.255|0A0000FF|NEC|Mate MY26X| |SN-3| ",
                  "1| | |PC-EIGYO-02|EIGYO|192.168.0.9|C0A80009| | | | | ",
                  "2|本社1F|山田 太郎|PC-SOUMU-01|WORKGROUP|192.168.0.10|C0A8000A|NEC|Mate MY26X|PC-MY26XEZ7|5X0123456|00:0C:29:3A:5B:7C",
                  "3|本社1F|情報システム|ルータ|WORKGROUP|192.168.0.1|C0A80001|YAMAHA|RTX1000|RTX|S100|00:A0:DE:11:22:33",
                  "5| | |HUB| | | | | | | | ",
                  "6|倉庫| |NAS| |999.1.1.1|FFFFFFFF| | | | | ",
              }));
    // the grid merges them by the key (its texts are those the export writes, compared with
    // tests/data/network/network.csv where the exports are tested)
    EXPECT_EQ(column(*w.MSFlexGrid_Network, 3), (QStringList{"HUB", "PC-KAIHATSU", "ルータ", "PC-EIGYO-02", "PC-SOUMU-01", "NAS"}));
}

TEST_F(NetworkWindow, TheAddressListStaysAsTheLastRebuildLeftItUntilTheNext)
{
    addDevices();
    frm_Edit_Network& w = open();
    // with the list empty at load, a click on the register selects nothing
    EXPECT_FALSE(w.UnitGridReady);
    click(*w.MSFlexGrid_NetworkUnit, 2);
    EXPECT_EQ(w.SelectedUnitRow, 0);
    EXPECT_FALSE(w.Mnu_Update->isEnabled());
    EXPECT_EQ(w.tbx_nunit[1]->text(), QString());

    rebuild(w);
    const QStringList rebuilt = networkList();
    const QStringList shown = cells(*w.MSFlexGrid_Network);
    ASSERT_EQ(shown.size(), 3);
    // the rebuild fills the list but does not make the register selectable: only an addition,
    // an update or the next opening does
    click(*w.MSFlexGrid_NetworkUnit, 2);
    EXPECT_EQ(w.SelectedUnitRow, 0);

    // an addition, a change and a delete of devices leave the list and its grid as they were
    w.Mnu_AddRecord->trigger();
    click(*w.MSFlexGrid_NetworkUnit, 3);
    EXPECT_EQ(w.tbx_nunit[1]->text(), QStringLiteral("ルータ")) << "after the two devices without an address";
    w.tbx_nunit[3]->setText(QStringLiteral("192.168.10.1"));
    w.Mnu_Update->trigger();
    click(*w.MSFlexGrid_NetworkUnit, 3);
    EXPECT_EQ(w.tbx_nunit[1]->text(), QStringLiteral("プリンタ'S")) << "the router now sorts after it";
    dialogs.answerMessage(ui::vbYes);
    w.Mnu_Delete->trigger();
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT count(*) FROM tbl_NetworkUnit")), QStringLiteral("4"));
    EXPECT_EQ(networkList(), rebuilt);
    EXPECT_EQ(cells(*w.MSFlexGrid_Network), shown);

    // a window opened again shows the same stale list, and only the next rebuild renews it
    w.Mnu_Close->trigger();
    flushDeletes();
    frm_Edit_Network& again = open();
    EXPECT_EQ(cells(*again.MSFlexGrid_Network), shown);
    EXPECT_TRUE(again.UnitGridReady);
    rebuild(again);
    const QStringList renewed = cells(*again.MSFlexGrid_Network, 3);
    EXPECT_EQ(renewed.size(), 4);
    EXPECT_TRUE(renewed.contains(QStringLiteral("ルータ|WORKGROUP|192.168.10.1|00:A0:DE:11:22:33|YAMAHA|RTX1000|RTX|S100")))
        << renewed.join(QLatin1Char('\n')).toStdString();
}

} // namespace
