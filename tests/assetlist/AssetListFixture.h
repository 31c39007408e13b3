#pragma once

#include "assetlist/ListQuery.h"
#include "assetlist/MainList.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "foundation/mdl_ini.h"
#include "platform/app/App.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/Twips.h"

#include "support/ScriptedDialogs.h"
#include "support/TempLedger.h"

#include <QStringList>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <ostream>


// A fresh ledger beside a program folder of its own, connected as the main window connects it,
// with the main grid and its list made directly, offscreen. Helpers add master rows and computers
// in plain SQL and write the saved view into DB.ini.
class AssetListFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        Mdl_gData::Reset();
        app::SetPath(ledger.folder());
        ASSERT_TRUE(Mdl_Access_mdb::ConnectDatabase());
        grid = std::make_unique<ui::FlexGrid>();
        grid->QWidget::resize(900, 500);
        grid->show();
        list = std::make_unique<MainList>(*grid);
        // the hook through which the view window refills the main list
        Mdl_gData::g.RefillMainList = [this] { list->fnc_View_PClist(); };
    }
    void TearDown() override
    {
        list.reset();
        grid.reset();
        Mdl_gData::Reset();
        app::SetPath(QString());
    }

    // One row of a master table that has code, name, comment and flag.
    void master(const QString& table, int code, const QString& name, const QString& flag = QStringLiteral("0"))
    {
        ledger.exec(QStringLiteral("INSERT INTO %1 VALUES (%2, '%3', '', '%4')").arg(table).arg(code).arg(name, flag));
    }
    void user(int code, const QString& name, const QString& flag = QStringLiteral("0"), int section = 0, int division = 0)
    {
        ledger.exec(QStringLiteral("INSERT INTO tbl_User (User_Code, User_Name, Available_flug, Employee_SerialNumber, "
                                   "Acount_Name, Section_Code, Division_Code) VALUES (%1, '%2', '%3', 'E%1', 'acc%1', %4, %5)")
                        .arg(code)
                        .arg(name, flag)
                        .arg(section)
                        .arg(division));
    }
    // A computer with its two rows; pclist and computerList are "column = value, ..." lists for
    // an UPDATE of each table, empty for none.
    void computer(int key, int deleted = 0, int userCode = 0, const QString& pclist = {}, const QString& computerList = {})
    {
        ledger.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, "
                                   "Model_Code, Deleted_Flug) VALUES (%1, 0, %2, 0, 0, %3)")
                        .arg(key)
                        .arg(userCode)
                        .arg(deleted));
        ledger.exec(QStringLiteral("INSERT INTO tbl_Pclist (MainKey) VALUES (%1)").arg(key));
        if (!pclist.isEmpty())
            ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET %1 WHERE MainKey = %2").arg(pclist).arg(key));
        if (!computerList.isEmpty())
            ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET %1 WHERE MainKey = %2").arg(computerList).arg(key));
    }
    // Computers first to last, all on the code-0 masters, in one statement.
    void manyComputers(int first, int last)
    {
        ledger.exec(QStringLiteral("WITH RECURSIVE n(k) AS (SELECT %1 UNION ALL SELECT k + 1 FROM n WHERE k < %2) "
                                   "INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, "
                                   "Model_Code, Deleted_Flug) SELECT k, 0, 0, 0, 0, 0 FROM n")
                        .arg(first)
                        .arg(last));
        ledger.exec(QStringLiteral("WITH RECURSIVE n(k) AS (SELECT %1 UNION ALL SELECT k + 1 FROM n WHERE k < %2) "
                                   "INSERT INTO tbl_Pclist (MainKey, Computer_Name) SELECT k, 'PC' || k FROM n")
                        .arg(first)
                        .arg(last));
    }

    // Writes the keys of a saved view's section.
    void writeView(int section, const std::map<QString, QString>& keys)
    {
        for (const auto& [key, value] : keys)
            mdl_ini::IniWrite(QString::number(section), key, value);
    }
    // The saved view with these shown columns, installed computers, no sort.
    void writeColumns(int section, const std::vector<int>& columns)
    {
        std::map<QString, QString> keys{{QStringLiteral("OptDel"), QStringLiteral("0")},
                                        {QStringLiteral("SelectNumber"), QStringLiteral("0")},
                                        {QStringLiteral("MSFlexGrit_SelectNum"), QString::number(columns.size())}};
        for (size_t i = 0; i < columns.size(); ++i)
            keys[QStringLiteral("MSFlexGrit_Select%1").arg(i + 1)] = QString::number(columns[i]);
        writeView(section, keys);
    }

    // What the main window's load does with the list: the view, the columns, the query, the fill,
    // and no selection afterwards.
    bool loadList()
    {
        const bool filled = list->ShowView() == ui::FillResult::Rows;
        if (filled)
            list->MSFlexGrid_Main_ini();
        return filled;
    }

    QStringList rowTexts(int row) const
    {
        QStringList out;
        for (int c = 0; c < grid->Cols(); ++c)
            out << grid->TextMatrix(row, c);
        return out;
    }
    QColor back(int row, int col) const { return grid->CellBackColorAt(row, col); }
    static QColor gray() { return ui::QBColor(8); }
    static QColor white() { return ui::QBColor(15); }

    // The numbers of the errors StandardErrorBox showed, in order.
    std::vector<long> errorBoxes() const
    {
        std::vector<long> out;
        for (const auto& m : dialogs.messages()) {
            if (m.title != QStringLiteral("警告"))
                continue;
            const qsizetype a = m.prompt.indexOf(QStringLiteral("（エラーコード：")) + 8;
            const qsizetype b = m.prompt.indexOf(QStringLiteral("）"), a);
            out.push_back(m.prompt.mid(a, b - a).toLong());
        }
        return out;
    }

    TempLedger ledger;
    ScriptedDialogs dialogs;
    std::unique_ptr<ui::FlexGrid> grid;
    std::unique_ptr<MainList> list;
};
