#include "ledger/LedgerFile.h"

#include "support/TempLedger.h"

#include <gtest/gtest.h>

namespace {

struct Refusal {
    const char* name;
    const char* sql;
};

TEST(Schema, RefusesWhatJetRefused)
{
    TempLedger l;
    l.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (1)"));
    // besides those whose error numbers the connection's tests check
    const Refusal refusals[] = {
        {"a fraction in a long column", "UPDATE tbl_Pclist SET Memory_Full = 2.5 WHERE MainKey = 0"},
        {"a month that does not exist", "UPDATE tbl_Computer_List SET Remove_Date = '2005/13/01' WHERE MainKey = 1"},
        {"a date that is no date", "UPDATE tbl_Computer_List SET Leasing_EndDate = 'soon' WHERE MainKey = 1"},
        {"a bad date in a licence", "INSERT INTO tbl_License_Dat (\"Key\", \"Update\") VALUES (1, '2005/2/30')"},
        {"letters in a staging-free key", "INSERT INTO tbl_Mail_Management (\"Key\") VALUES ('A')"},
    };
    for (const Refusal& r : refusals)
        EXPECT_THROW(l.exec(QString::fromUtf8(r.sql)), std::runtime_error) << r.name;

    // what Jet took, SQLite takes too
    l.exec(QStringLiteral("UPDATE tbl_Pclist SET Memory_Full = '512', CPU_FPU = '1', Computer_Name = 42 WHERE MainKey = 0"));
    EXPECT_EQ(l.rows(QStringLiteral("SELECT typeof(Memory_Full), Memory_Full, typeof(CPU_FPU), Computer_Name FROM tbl_Pclist")),
              QStringList{QStringLiteral("integer|512|integer|42")});
    l.exec(QStringLiteral("UPDATE tbl_ReadCsv SET Renewalday = printf('%.1000c', 'x')"));
    l.exec(QStringLiteral("INSERT INTO tbl_ReadCsv (\"Key\", Renewalday) VALUES (printf('%.254c', 'k'), printf('%.1000c', 'r'))"));
}

TEST(Schema, StoresDatesInOneForm)
{
    TempLedger l;
    struct {
        const char* given;
        const char* stored;
    } const cases[] = {
        {"2005/2/3", "2005/02/03"},
        {"2005/02/03 10:11:12", "2005/02/03 10:11:12"},
        {"2005/2/3 9:05", "2005/02/03 09:05:00"},
    };
    int key = 1;
    for (const auto& c : cases) {
        l.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Leasing_StartDate) VALUES (%1, '%2')")
                   .arg(key)
                   .arg(QString::fromUtf8(c.given)));
        EXPECT_EQ(l.value(QStringLiteral("SELECT Leasing_StartDate FROM tbl_Computer_List WHERE MainKey = %1").arg(key)),
                  QString::fromUtf8(c.stored))
            << c.given;
        l.exec(
            QStringLiteral("UPDATE tbl_Computer_List SET Remove_Date = '%1' WHERE MainKey = %2").arg(QString::fromUtf8(c.given)).arg(key));
        EXPECT_EQ(l.value(QStringLiteral("SELECT Remove_Date FROM tbl_Computer_List WHERE MainKey = %1").arg(key)),
                  QString::fromUtf8(c.stored))
            << c.given;
        ++key;
    }
    // the "date text" columns keep what they were given
    l.exec(QStringLiteral("UPDATE tbl_Pclist SET \"Update\" = '2005/2/3 10：11' WHERE MainKey = 0"));
    EXPECT_EQ(l.value(QStringLiteral("SELECT \"Update\" FROM tbl_Pclist WHERE MainKey = 0")), QStringLiteral("2005/2/3 10：11"));
}

TEST(Schema, NamesAreCaseBlind)
{
    TempLedger l;
    EXPECT_EQ(l.value(QStringLiteral("SELECT count(*) FROM tbl_PClist")), QStringLiteral("1"));
    l.exec(QStringLiteral("UPDATE tbl_PClist SET ipaddress = '10.0.0.1', WorkGroup = 'W', CPU_3DNowEX = 1, Memory_Used_Unit = 'MB'"));
    EXPECT_EQ(l.rows(QStringLiteral("SELECT IPAddress, Workgroup, CPU_3DNowEx, Memory_Used_unit FROM tbl_Pclist")),
              QStringList{QStringLiteral("10.0.0.1|W|1|MB")});
    l.exec(QStringLiteral("INSERT INTO tbl_User (User_Code, User_Name, Available_flug) VALUES (1, 'Sato', '0')"));
    EXPECT_EQ(l.value(QStringLiteral("SELECT User_Code FROM tbl_User WHERE User_Name = 'SATO' AND Available_Flug = '0'")),
              QStringLiteral("1"))
        << "text compares without regard to case, as Jet compared it";
}

TEST(Schema, NewLedgerRefusesToOverwrite)
{
    TempDir d;
    const QString path = d.file(QStringLiteral("x.mdb"));
    EXPECT_EQ(ledger::CreateLedger(path), QString());
    const QByteArray before = d.read(QStringLiteral("x.mdb"));
    EXPECT_TRUE(before.startsWith("SQLite format 3"));
    EXPECT_FALSE(ledger::CreateLedger(path).isEmpty());
    EXPECT_EQ(d.read(QStringLiteral("x.mdb")), before);
    EXPECT_FALSE(ledger::CreateLedger(d.file(QStringLiteral("no/such/folder/x.mdb"))).isEmpty());
}

} // namespace
