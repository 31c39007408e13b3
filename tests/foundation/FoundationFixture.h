#pragma once

#include "foundation/Mdl_gData.h"
#include "platform/app/App.h"

#include "support/ScriptedDialogs.h"
#include "support/TempLedger.h"

#include <gtest/gtest.h>

// A fresh ledger beside a program folder of its own, the dialogs scripted, the globals reset.
class FoundationFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        Mdl_gData::Reset();
        app::SetPath(ledger.folder());
        Mdl_gData::g.StatusPanelText = [this](const QString& t) { statusText = t; };
    }
    void TearDown() override
    {
        Mdl_gData::Reset();
        app::SetPath(QString());
    }

    TempLedger ledger;
    ScriptedDialogs dialogs;
    QString statusText;
};
