#pragma once

#include "intake/InventoryRead.h"
#include "profile/frm_Edit_Computer.h"

#include "platform/ui/StatusBar.h"

#include "support/WindowTest.h"

#include "TestPaths.h"

#include <QLineEdit>

// The profile over a ledger read from the inventory fixtures: computer 1 from ja_pc01.csv (PC-SOUMU-01),
// computer 2 from en_pc02.csv (SALES-PC07), each with its applications, devices, printers and
// variables. Computer 1 is given a user, location, maker and model; computer 2 keeps the code-0
// rows the read gives it. The main list holds both, in the order 1, 2.
class ProfileTest : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Mdl_gData::FillCodeTables();
        const QString dir = QString::fromUtf8(FENWOLD_TEST_DATA_DIR "/inventory/");
        ReadInventoryFiles({dir + QStringLiteral("ja_pc01.csv")}, InventoryLanguage::Japanese);
        ReadInventoryFiles({dir + QStringLiteral("en_pc02.csv")}, InventoryLanguage::English);
        ASSERT_EQ(ledger.rows(QStringLiteral("SELECT MainKey, Computer_Name FROM tbl_Pclist WHERE MainKey > 0")),
                  (QStringList{"1|PC-SOUMU-01", "2|SALES-PC07"}));
        for (const char* sql : {
                 "INSERT INTO tbl_Section VALUES (1, '総務部', '', '0')",
                 "INSERT INTO tbl_Division VALUES (1, '庶務課', '', '0')",
                 "INSERT INTO tbl_Location VALUES (1, '本社3F', '', '0')",
                 "INSERT INTO tbl_Location VALUES (2, '大阪支店', '', '0')",
                 "INSERT INTO tbl_Location VALUES (3, '旧倉庫', '', '1')",
                 "INSERT INTO tbl_Manufacturer VALUES (1, 'NEC', '', '0')",
                 "INSERT INTO tbl_Model VALUES (1, 'PC-MY26X', '', '0')",
                 "INSERT INTO tbl_User VALUES (1, '山田 太郎', '', '0', 'やまだ', '1001', 'yamada', 'pw', 1, 1)",
                 "INSERT INTO tbl_User VALUES (2, '青木 花子', '', '0', 'あおき', '1002', 'aoki', 'pw', 1, 0)",
                 "INSERT INTO tbl_User VALUES (3, '退職 者', '', '1', 'たいしょく', '1003', 'x', 'pw', 0, 0)",
                 "UPDATE tbl_Computer_List SET Location_Code = 1, User_Code = 1, Manufacturer_Code = 1, Model_Code = 1, "
                 "Leasing_StartDate = '2005/04/01', Leasing_Monthly_Amount = 4800, Comment = '窓際' WHERE MainKey = 1",
             })
            ledger.exec(QString::fromUtf8(sql));
        list({1, 2});
    }

    // The main list as fnc_View_PClist leaves it.
    static void list(std::initializer_list<std::int16_t> keys)
    {
        std::int16_t n = 0;
        for (std::int16_t key : keys)
            Mdl_gData::g.ListRowKeys[++n] = key;
        Mdl_gData::g.ListRowCount = n;
    }

    // Opens the profile on a row of the main list, as the main list's double-click does.
    static frm_Edit_Computer& open(std::int16_t position)
    {
        Mdl_gData::g.SelectedMainKey = Mdl_gData::g.ListRowKeys[position];
        Mdl_gData::g.SelectedGridRow = position;
        frm_Edit_Computer::Instance().Show(ui::vbModeless);
        return frm_Edit_Computer::Instance();
    }

    static QString panel(frm_Edit_Computer& w) { return w.StatusBar1->PanelText(1); }

    // Both rows of a computer as "table.column=value", every column, for comparing a record
    // before and after a save.
    QStringList record(int key)
    {
        QStringList out;
        for (const QString& table : {QStringLiteral("tbl_Pclist"), QStringLiteral("tbl_Computer_List")})
            for (const QString& field : ledger.fields(table, key))
                out << table + u'.' + field;
        return out;
    }
    // The entries of b that are not in a.
    static QStringList changed(const QStringList& a, const QStringList& b)
    {
        QStringList out;
        for (const QString& entry : b)
            if (!a.contains(entry))
                out << entry;
        return out;
    }
};
