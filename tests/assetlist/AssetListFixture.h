#pragma once

#include "assetlist/ListQuery.h"
#include "assetlist/MainList.h"
#include "foundation/mdl_ini.h"
#include "platform/ui/Twips.h"

#include "support/WindowTest.h"

#include <map>
#include <memory>

// The windows' fixture with the main grid and its list made directly, offscreen. Helpers write
// many computers in plain SQL and the saved view into DB.ini.
class AssetListFixture : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        grid = std::make_unique<ui::FlexGrid>();
        grid->QWidget::resize(900, 500);
        grid->show();
        list = std::make_unique<MainList>(*grid);
        // the hook through which the view window refills the main list
        Mdl_gData::g.RefillMainList = [this] { list->fnc_View_PClist(); };
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        list.reset();
        grid.reset();
    }

    // Computers first to last, all on the code-0 masters, in two statements.
    void manyComputers(int first, int last)
    {
        const QString keys =
            QStringLiteral("WITH RECURSIVE n(k) AS (SELECT %1 UNION ALL SELECT k + 1 FROM n WHERE k < %2) ").arg(first).arg(last);
        ledger.exec(keys
                    + QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, "
                                     "Model_Code, Deleted_Flug) SELECT k, 0, 0, 0, 0, 0 FROM n"));
        ledger.exec(keys + QStringLiteral("INSERT INTO tbl_Pclist (MainKey, Computer_Name) SELECT k, 'PC' || k FROM n"));
    }

    // Writes the keys of a saved view's section.
    static void writeKeys(int section, const std::map<QString, QString>& keys)
    {
        for (const auto& [key, value] : keys)
            mdl_ini::IniWrite(QString::number(section), key, value);
    }
    // The same, each written as "key=value".
    static void writeView(int section, std::initializer_list<const char*> keyIsValue)
    {
        for (const char* entry : keyIsValue) {
            const QString s = QString::fromUtf8(entry);
            mdl_ini::IniWrite(QString::number(section), s.section(u'=', 0, 0), s.section(u'=', 1));
        }
    }
    // The saved view with these shown columns, installed computers, no sort.
    static void writeColumns(int section, const std::vector<int>& columns)
    {
        std::map<QString, QString> keys{{QStringLiteral("OptDel"), QStringLiteral("0")},
                                        {QStringLiteral("SelectNumber"), QStringLiteral("0")},
                                        {QStringLiteral("MSFlexGrit_SelectNum"), QString::number(columns.size())}};
        for (size_t i = 0; i < columns.size(); ++i)
            keys[QStringLiteral("MSFlexGrit_Select%1").arg(i + 1)] = QString::number(columns[i]);
        writeKeys(section, keys);
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
    QStringList listedKeys() const { return column(*grid, 1); }
    QColor back(int row, int col) const { return grid->CellBackColorAt(row, col); }
    static QColor gray() { return ui::QBColor(8); }
    static QColor white() { return ui::QBColor(15); }
    // The backgrounds of a row's cells from column 1 on, a letter each: G gray, W white, Y yellow.
    QString colours(int row) const
    {
        QString out;
        for (int c = 1; c < grid->Cols(); ++c)
            out += back(row, c) == gray() ? u'G' : back(row, c) == white() ? u'W' : back(row, c) == QColor(Qt::yellow) ? u'Y' : u'?';
        return out;
    }

    std::unique_ptr<ui::FlexGrid> grid;
    std::unique_ptr<MainList> list;
};
