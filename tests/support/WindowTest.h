#pragma once

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/app/App.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/Form.h"

#include "support/QtPrinters.h"
#include "support/ScriptedDialogs.h"
#include "support/TempLedger.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QStringList>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

// The fixture of a window's tests: a fresh ledger in the program folder, connected as the main
// window connects it; the dialogs scripted; the end of the program recorded instead of taken (a
// test that expects the fatal end clears `ended` itself). Every window left is unloaded after.
class WindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        Mdl_gData::Reset();
        app::SetPath(ledger.folder());
        app::SetEndHook([this](int status) { ended.push_back(status); });
        ASSERT_TRUE(Mdl_Access_mdb::ConnectDatabase());
    }
    void TearDown() override
    {
        for (ui::Form* f : ui::Forms())
            f->Unload();
        flushDeletes();
        Mdl_Access_mdb::DisconnectDatabase();
        app::SetEndHook({});
        Mdl_gData::Reset();
        app::SetPath(QString());
        EXPECT_TRUE(ended.empty()) << "the program ended";
    }

    static void flushDeletes() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    // The number in the fatal report of a run-time error, as the last message box showed it; the
    // end is taken back so that the fixture does not fail the test for it.
    QString fatalEnd()
    {
        EXPECT_EQ(ended, std::vector<int>{ui::FatalExitStatus});
        ended.clear();
        const auto boxes = dialogs.messages();
        return boxes.empty() ? QString() : boxes.back().prompt.section(QLatin1Char('\''), 1, 1);
    }

    // A user's click on a cell of the grid (column 1 unless told).
    static void click(ui::FlexGrid& grid, int row, int col = 1)
    {
        grid.scrollTo(grid.model()->index(row, col));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.CellRect(row, col).center());
    }
    // A user's pick in a combo: its list opened (and so filled), then the entry chosen.
    static void pick(QComboBox& combo, int index)
    {
        combo.showPopup();
        combo.hidePopup();
        combo.setCurrentIndex(index);
        Q_EMIT combo.activated(index);
    }
    static void pick(QComboBox& combo, const QString& text)
    {
        combo.showPopup();
        combo.hidePopup();
        const int at = combo.findText(text);
        ASSERT_GE(at, 0) << text.toStdString();
        pick(combo, at);
    }
    // A combo's entries, each as its text, or as "text=data".
    static QStringList entries(const QComboBox& combo, bool withData = false)
    {
        QStringList out;
        for (int i = 0; i < combo.count(); ++i)
            out << combo.itemText(i) + (withData ? u'=' + combo.itemData(i).toString() : QString());
        return out;
    }
    // The texts of one column below the heading (column 1 of a list holds the keys).
    static QStringList column(const ui::FlexGrid& grid, int col = 1)
    {
        QStringList out;
        for (int r = grid.FixedRows(); r < grid.Rows(); ++r)
            out << grid.TextMatrix(r, col);
        return out;
    }
    // The rows below the heading, each as its cells from firstCol on joined by "|".
    static QStringList cells(const ui::FlexGrid& grid, int firstCol = 0)
    {
        QStringList out;
        for (int r = grid.FixedRows(); r < grid.Rows(); ++r) {
            QStringList row;
            for (int c = firstCol; c < grid.Cols(); ++c)
                row << grid.TextMatrix(r, c);
            out << row.join(QLatin1Char('|'));
        }
        return out;
    }

    TempLedger ledger;
    ScriptedDialogs dialogs;
    std::vector<int> ended;
};
