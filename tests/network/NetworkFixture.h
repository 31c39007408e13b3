#pragma once

#include "support/WindowTest.h"

#include "platform/ui/Twips.h"

// A ledger with the computers and devices of a small office, for the network device window, the
// printer list and their exports. Set up through plain SQL, as the intake and the profile leave
// the rows.
class NetworkFixture : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        using Mdl_gData::g;
        g.MainFormWidth = 14835;
        g.MainFormHeight = 10530;
        g.MainFormTop = 50;
        g.MainFormLeft = 50;
    }

    // Masters, and five computers: three installed and listed (their addresses in the order
    // 10.0.0.255, 192.168.0.9, 192.168.0.10, which text order would turn round), one retired and
    // one whose user has no row.
    void addComputers()
    {
        ledger.master(QStringLiteral("tbl_Location"), 1, QStringLiteral("本社1F"));
        ledger.user(1, QStringLiteral("山田 太郎"));
        ledger.master(QStringLiteral("tbl_Manufacturer"), 1, QStringLiteral("NEC"));
        ledger.master(QStringLiteral("tbl_Model"), 1, QStringLiteral("Mate MY26X"));
        computer(1, 1, 1, QStringLiteral("'PC-SOUMU-01', 'WORKGROUP', '192.168.0.10', 'C0A8000A', '00:0C:29:3A:5B:7C'"),
                 QStringLiteral("'PC-MY26XEZ7', '5X0123456'"));
        computer(2, 0, 0, QStringLiteral("'PC-EIGYO-02', 'EIGYO', '192.168.0.9', 'C0A80009', ''"), QStringLiteral("Null, Null"));
        computer(3, 1, 1, QStringLiteral("'PC-KAIHATSU', Null, '10.0.0.255', '0A0000FF', Null"), QStringLiteral("'', 'SN-3'"));
        computer(4, 1, 1, QStringLiteral("'PC-OLD', 'WORKGROUP', '10.0.0.1', '0A000001', Null"), QStringLiteral("Null, Null"), 1);
        computer(5, 1, 9, QStringLiteral("'PC-NOUSER', 'WORKGROUP', '10.0.0.2', '0A000002', Null"), QStringLiteral("Null, Null"));
    }

    // Four devices: a router with its login, one whose name has a quote, one without an address
    // and one with an address of wrong form.
    void addDevices()
    {
        ledger.exec(QStringLiteral(
            "INSERT INTO tbl_NetworkUnit (Key, Deleted_Flug, Location_Name, User_Name, Computer_Name, WorkGroup, IPAddress, "
            "IPAddress_16num, MacAddress, Manufacturer_Name, Model_Name, Type_Number, Sereals_Number, ID, PassWord) VALUES "
            "(0, 0, '本社1F', '情報システム', 'ルータ', 'WORKGROUP', '192.168.0.1', 'C0A80001', '00:A0:DE:11:22:33', 'YAMAHA', "
            "'RTX1000', 'RTX', 'S100', 'admin', 'secret'), "
            "(1, 0, '本社2F', Null, 'プリンタ''S', Null, '192.168.0.201', 'C0A800C9', Null, 'EPSON', Null, Null, Null, Null, Null), "
            "(2, 0, '', Null, 'HUB', Null, Null, Null, Null, Null, Null, Null, Null, Null, Null), "
            "(3, 0, '倉庫', Null, 'NAS', Null, '999.1.1.1', 'FFFFFFFF', Null, Null, Null, Null, Null, Null, Null)"));
    }

    // One computer's two rows; pc: Computer_Name, Workgroup, IPAddress, IPAddress_16num,
    // MacAddress; list: Type_Number, Sereals_Number.
    void computer(int key, int location, int user, const QString& pc, const QString& list, int deleted = 0)
    {
        ledger.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, "
                                   "Model_Code, Type_Number, Sereals_Number, Deleted_Flug) VALUES (%1, %2, %3, %2, %2, %4, %5)")
                        .arg(key)
                        .arg(location)
                        .arg(user)
                        .arg(list)
                        .arg(deleted));
        ledger.exec(QStringLiteral("INSERT INTO tbl_Pclist (MainKey, Computer_Name, Workgroup, IPAddress, IPAddress_16num, "
                                   "MacAddress) VALUES (%1, %2)")
                        .arg(key)
                        .arg(pc));
    }

    // What the rebuild leaves, row by row in the order of its keys.
    QStringList networkList() { return ledger.rows(QStringLiteral("SELECT * FROM tbl_NetworkList ORDER BY Key")); }
};
