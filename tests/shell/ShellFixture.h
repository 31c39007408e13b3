#pragma once

#include "assetlist/MainList.h"
#include "foundation/Mdl_gData.h"
#include "platform/app/App.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/Form.h"
#include "shell/frm_Main.h"

#include "support/QtPrinters.h"
#include "support/ScriptedDialogs.h"
#include "support/TempLedger.h"

#include <QApplication>

#include <gtest/gtest.h>

// The main window started in a program folder of the test's own (the ledger's unless told), the
// dialogs scripted, the end of the program recorded instead of taken. Every window left is
// destroyed afterwards.
class ShellFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        Mdl_gData::Reset();
        ui::InstallFontSubstitutes();
        app::SetEndHook([this](int status) { ended.push_back(status); });
        ledger.closeConnection();
    }
    void TearDown() override
    {
        for (ui::Form* f : ui::Forms())
            delete f;
        flushDeletes();
        app::SetEndHook({});
        Mdl_gData::Reset();
        app::SetPath(QString());
    }

    static void flushDeletes() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    // Loads the main window as the program does.
    frm_Main& start() { return start(ledger.folder()); }
    frm_Main& start(const QString& folder)
    {
        app::SetPath(folder);
        return frm_Main::Instance();
    }
    // Computers with their names "PC-<key>", and a view that shows the names.
    void computersNamed(std::initializer_list<int> keys)
    {
        for (int key : keys)
            ledger.computer(key, 0, 0, QStringLiteral("Computer_Name = 'PC-%1'").arg(key));
        ledger.dir().write(QStringLiteral("DB.ini"), "[0]\r\nMSFlexGrit_SelectNum=1\r\nMSFlexGrit_Select1=8\r\n");
        ledger.closeConnection();
    }

    // The visible top-level window of that name, or nullptr.
    static ui::Form* window(const QString& name)
    {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == name && w->isVisible())
                return qobject_cast<ui::Form*>(w);
        return nullptr;
    }

    TempLedger ledger;
    TempDir noLedger;
    ScriptedDialogs dialogs;
    std::vector<int> ended;
};
