#include "platform/db/JetSql.h"

#include "support/TempDir.h"
#include "support/TempLedger.h"

#include <QFile>

#include <gtest/gtest.h>
#include <sqlite3.h>

using db::JetSql;
using db::JetStatement;

namespace {

struct RewriteCase {
    const char* name;
    const char* jet;
    const char* sqlite;
};

const RewriteCase kRewrites[] = {
    {"plain_delete_keeps_doubled_blank", "DELETE  FROM tbl_NetworkList;", "DELETE  FROM tbl_NetworkList;"},
    {"qualified_column_on_the_right_stays", "UPDATE tbl_Pclist SET tbl_Pclist.[Gateway] = tbl_Pclist.SubnetMask WHERE MainKey = 2",
     "UPDATE tbl_Pclist SET \"Gateway\" = tbl_Pclist.SubnetMask WHERE MainKey = 2"},
    {"words_inside_text_stay", "SELECT * FROM tbl_ReadCsv WHERE Item = 'Group Key [x] Update #1#'",
     "SELECT * FROM tbl_ReadCsv WHERE Item = 'Group Key [x] Update #1#'"},
    {"doubled_quote_in_text", "UPDATE tbl_Pclist SET tbl_Pclist.[Comment] = 'it''s' WHERE MainKey = 1",
     "UPDATE tbl_Pclist SET \"Comment\" = 'it''s' WHERE MainKey = 1"},
    {"jet_double_quoted_text", "SELECT * FROM tbl_User WHERE User_Name = \"O'Brien \"\"x\"\"\"",
     "SELECT * FROM tbl_User WHERE User_Name = 'O''Brien \"x\"'"},
    {"date_literal_month_first", "UPDATE tbl_Computer_List SET Remove_Date = #12/4/2005# WHERE MainKey = 1",
     "UPDATE tbl_Computer_List SET \"Remove_Date\" = '2005/12/04' WHERE MainKey = 1"},
    {"date_literal_with_time", "SELECT * FROM t WHERE d = #2005-12-04 9:05#", "SELECT * FROM t WHERE d = '2005/12/04 09:05:00'"},
};

class Rewrite : public ::testing::TestWithParam<RewriteCase> {};

TEST_P(Rewrite, GivesSqliteText) { EXPECT_EQ(JetSql::Rewrite(QString::fromUtf8(GetParam().jet)).toStdString(), GetParam().sqlite); }

INSTANTIATE_TEST_SUITE_P(JetSql, Rewrite, ::testing::ValuesIn(kRewrites), [](const auto& info) { return std::string(info.param.name); });

// Every statement text the program builds, rewritten, must prepare against the empty ledger:
// both the text itself and the shape with its literals lifted.
TEST(JetSql, EveryStatementOfTheProgramPreparesAgainstTheLedger)
{
    QFile f(TestDataPath(QStringLiteral("jet_statements.txt")));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << "tests/data/jet_statements.txt is missing";
    TempLedger ledger;
    sqlite3* h = ledger.connection().handle();
    int count = 0;
    QStringList failures;
    int lineNo = 0;
    for (const QByteArray& raw : f.readAll().split('\n')) {
        ++lineNo;
        const QString line = QString::fromUtf8(raw);
        if (line.trimmed().isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        ++count;
        const JetStatement st = JetSql::Parse(line);
        for (const QString& text : {st.sql, st.shape}) {
            sqlite3_stmt* p = nullptr;
            if (sqlite3_prepare_v2(h, text.toUtf8().constData(), -1, &p, nullptr) != SQLITE_OK || !p)
                failures << QStringLiteral("line %1: %2\n  -> %3\n  %4").arg(lineNo).arg(line, text, QString::fromUtf8(sqlite3_errmsg(h)));
            sqlite3_finalize(p);
        }
    }
    EXPECT_GT(count, 300);
    EXPECT_TRUE(failures.isEmpty()) << failures.join(QLatin1Char('\n')).toStdString();
}

} // namespace
