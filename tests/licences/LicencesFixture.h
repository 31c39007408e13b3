#pragma once

#include "platform/app/App.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include "support/WindowTest.h"

// The windows' fixture with a fixed day (the day an assignment is written) and short helpers that
// put computers and licences into the ledger in plain SQL.
class LicencesFixture : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        app::SetNow(vb::MakeDate(2006, 3, 31, 9, 15, 0));
    }
    void TearDown() override
    {
        WindowTest::TearDown();
        app::SetNow({});
    }

    // A computer with its two rows, on the code-0 maker and model.
    void computer(int key, const QString& name, int location = 0, int user = 0, int deleted = 0)
    {
        ledger.computer(key, deleted, user, QStringLiteral("Computer_Name = '%1'").arg(name),
                        QStringLiteral("Location_Code = %1").arg(location));
    }
    // A purchased application; the name is an SQL literal.
    void purchase(int key, const QString& name, int units)
    {
        ledger.exec(QStringLiteral("INSERT INTO tbl_License_Key VALUES (%1, %2, %3)").arg(key).arg(name).arg(units));
    }
    // An assignment; the rest is "column = value, ..." for an UPDATE, empty for none.
    void assignment(int key, int application, int computer, const QString& rest = {})
    {
        ledger.exec(QStringLiteral("INSERT INTO tbl_License_Dat (Key, Application_Code, Computer_Code) VALUES (%1, %2, %3)")
                        .arg(key)
                        .arg(application)
                        .arg(computer));
        if (!rest.isEmpty())
            ledger.exec(QStringLiteral("UPDATE tbl_License_Dat SET %1 WHERE Key = %2").arg(rest).arg(key));
    }
};
