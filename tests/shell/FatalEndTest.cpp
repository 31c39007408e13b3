// The fatal end as the program takes it, in a process of its own: the report, then the end with
// status 1 (not a crash), and the ledger keeps what was written before the error.
#include "platform/ui/Dispatch.h"

#include "support/AdminProcess.h"
#include "support/QtPrinters.h"
#include "support/TempLedger.h"

#include <QFile>

#include <gtest/gtest.h>

TEST(FatalEnd, AnUnhandledErrorEndsTheProcessWithStatusOneAndTheLedgerKeepsItsWrite)
{
    const struct {
        const char* raise;
        const char* report;
    } cases[] = {
        {"vb", "Fenwold: 実行時エラー '3021':  BOF と EOF のいずれかが True になっているか、または現在のレコードが削除されています。\n"},
        {"other", "Fenwold: 実行時エラー '51':  内部エラーです。 bad state\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.raise);
        TempLedger ledger;
        ledger.closeConnection();
        const ProcessRun r = RunProcess(QStringLiteral(FATAL_END_PROBE), {ledger.folder(), QString::fromUtf8(c.raise)});
        EXPECT_EQ(r.exitCode, ui::FatalExitStatus) << "-1 is a crash, 2 no end at all";
        EXPECT_TRUE(r.err.endsWith(QString::fromUtf8(c.report))) << r.err.toStdString();
        EXPECT_EQ(ledger.value(QStringLiteral("SELECT Section_Name FROM tbl_Section WHERE Section_Code = 7")), QStringLiteral("総務部"));
        EXPECT_FALSE(QFile::exists(ledger.path() + QStringLiteral("-journal"))) << "the ledger was left mid-write";
    }
}
