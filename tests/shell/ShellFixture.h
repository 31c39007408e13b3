#pragma once

#include "assetlist/MainList.h"
#include "foundation/Mdl_gData.h"
#include "platform/app/App.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/Form.h"
#include "shell/frm_Main.h"

#include "support/ScriptedDialogs.h"
#include "support/TempDir.h"

#include <QApplication>

#include <gtest/gtest.h>

// The main window started in a program folder of the test's own, the dialogs scripted, the end
// of the program recorded instead of taken. Every window left is destroyed afterwards.
class ShellFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        Mdl_gData::Reset();
        ui::InstallFontSubstitutes();
        app::SetEndHook([this](int status) { ended.push_back(status); });
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

    // Loads the main window as the program does, with the program folder given.
    frm_Main& start(const QString& folder)
    {
        app::SetPath(folder);
        return frm_Main::Instance();
    }

    // The visible top-level window of that name, or nullptr.
    static ui::Form* window(const QString& name)
    {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == name && w->isVisible())
                return qobject_cast<ui::Form*>(w);
        return nullptr;
    }

    ScriptedDialogs dialogs;
    std::vector<int> ended;
};
