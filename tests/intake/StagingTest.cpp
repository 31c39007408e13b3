#include "intake/Staging.h"

#include "IntakeFixture.h"

#include "platform/text/LineInput.h"

#include <iterator>
#include <random>

using namespace Mdl_Access_mdb;

namespace {

const QString kHeader = QStringLiteral("Key,Group,Item,SubItem,Contents,Unit,Renewalday");

// (case, an empty file, a BOM and a blank first line are refused in Staging below)
TEST(CsvHeader, OnlyTheExactSevenNamesPass)
{
    EXPECT_TRUE(CheckCsvHeader(kHeader));
    for (const char* line : {"Key,Group,Item,SubItem,Contents,Unit", "Key,Group,Item,SubItem,Contents,Unit,Renewalday,",
                             "Key,Group,Item,SubItem,Contents,Unit,Renewalday ", "Group,Key,Item,SubItem,Contents,Unit,Renewalday"})
        EXPECT_FALSE(CheckCsvHeader(QString::fromLatin1(line))) << line;
}

// A file of these lines under the header, each ended by CR LF.
QByteArray Csv(const QByteArrayList& lines) { return kHeader.toLatin1() + "\r\n" + lines.join("\r\n") + "\r\n"; }

class Staging : public IntakeFixture {
protected:
    QString write(const QString& name, const QByteArray& bytes)
    {
        files.write(name, bytes);
        return files.file(name);
    }
    TempDir files;
};

TEST_F(Staging, SplitsEachLineWithoutQuotingAndCutsNothingButLongFields)
{
    // LF line ends, a .txt extension: the extension is not tested
    ASSERT_TRUE(ReadCsvToStaging(Inventory(QStringLiteral("ja_pc03.txt"))));
    EXPECT_EQ(Mdl_gData::g.CsvFileBaseName, QStringLiteral("ja_pc03"));
    EXPECT_EQ(Mdl_gData::g.CsvFileExtension, QStringLiteral("txt"));

    const QString explanation = QStringLiteral("開発部の共用機。").repeated(37) + QStringLiteral("ABCD");
    const QStringList expected = {
        // nothing is sanitised in staging: colons stay
        QStringLiteral("1|Create|DateTime|2006/02/01 13:45:00|||2006/02/01 13:45:00"),
        // a double quote is an ordinary character
        QStringLiteral("2|Network|LAN|コンピュータ名|\"PC-KAIHATSU-05\"||2006/02/01 13:45:00"),
        // 300 characters are stored as 254
        QStringLiteral("3|Network|LAN|コンピュータの説明|") + explanation.left(254) + QStringLiteral("||2006/02/01 13:45:00"),
        // an empty line is a row of empty fields
        QStringLiteral("||||||"),
        // the seventh field takes the rest, commas included; backslashes stay
        QStringLiteral("4|Soft|Application|Visual Studio .NET 2003|7.1.3088|C:\\Program Files\\Microsoft Visual Studio .NET "
                       "2003\\|2006/01/20,updated,twice"),
        // no comma at all: the whole line is lost
        QStringLiteral("||||||"),
        // too few commas: the fields without a comma stay empty and the tail lands in Renewalday
        QStringLiteral("5|Hard|CPU|Clock|||2800"),
    };
    EXPECT_EQ(staging(), expected);
}

TEST_F(Staging, ARefusedFileLeavesStagingAsItWas)
{
    ASSERT_TRUE(ReadCsvToStaging(Inventory(QStringLiteral("ja_pc01.csv"))));
    const QStringList before = staging();

    // (a wrong or miscased first line: the review window and the read command)
    const QStringList refused = {
        write(QStringLiteral("empty.csv"), QByteArray()),
        write(QStringLiteral("blank_first.csv"), "\r\n" + kHeader.toLatin1() + "\r\n1,a,b,c,d,e,f\r\n"),
        write(QStringLiteral("bom.csv"), "\xEF\xBB\xBF" + kHeader.toLatin1() + "\r\n1,a,b,c,d,e,f\r\n"),
    };
    for (const QString& path : refused) {
        EXPECT_FALSE(ReadCsvToStaging(path)) << path.toStdString();
        EXPECT_EQ(staging(), before) << path.toStdString();
    }
}

// The file is decoded whole and then cut into lines: each line must come out as line input
// decodes it alone, whatever bytes stand before its end (a lead byte cut off, a bad byte).
TEST_F(Staging, EachLineIsDecodedAsLineInputDecodesIt)
{
    std::mt19937 dice(7);
    const QByteArray pieces[] = {"a",    "Z",    "0",    " ",    "\"",   "\x82\xa0", "\x83\x52", "\x81", "\x9f",    "\xe0",
                                 "\xfc", "\xfd", "\xa0", "\x80", "\xff", "\x82\x63", "\xb1",     "\x00", "\x88\x9f"};
    const QByteArray ends[] = {"\r\n", "\n", "\r", "\r\r\n", "\n\r"};
    for (int file = 0; file < 40; ++file) {
        QByteArray bytes = kHeader.toLatin1() + "\r\n";
        for (int line = 0; line < 30; ++line) {
            for (int field = 0; field < 7; ++field) {
                if (field > 0)
                    bytes += ',';
                for (int n = int(dice() % 6); n > 0; --n)
                    bytes += pieces[dice() % std::size(pieces)];
            }
            bytes += ends[dice() % std::size(ends)];
        }
        if (file % 2)
            bytes.chop(1); // a last line with its end cut, or no end
        const QString path = write(QStringLiteral("random%1.csv").arg(file), bytes);

        const std::optional<StagedLines> lines = ReadInventoryLines(path);
        ASSERT_TRUE(lines) << file;
        text::LineInput input(bytes);
        input.next();
        size_t i = 0;
        for (; !input.atEnd(); ++i) {
            const QString expected = input.next();
            ASSERT_LT(i, lines->size()) << file;
            const StagedLine& got = (*lines)[i];
            // an empty line stages as seven empty fields; every other has its six commas
            const QString joined = expected.isEmpty() ? QString() : QStringList(got.begin(), got.end()).join(QLatin1Char(','));
            EXPECT_EQ(joined, expected) << "file " << file << " line " << i;
        }
        EXPECT_EQ(i, lines->size()) << file;
    }
}

// The copies from the lines of a file in memory select and write what the copies from
// tbl_ReadCsv do: the ledger's comparison folds A to Z only, the order is staging's, a row the
// ledger refuses drops alone, and the texts are sanitised.
TEST_F(Staging, CopiesFromTheStagedLinesAsFromTheTable)
{
    const QByteArray longDate(300, '9');
    const QString path = write(QStringLiteral("cases.csv"),
                               Csv({"1,Soft,Application,First,1.0,C:\\A\\,2005/12/04", "2,soft,APPLICATION,Second,2.0,,2005/12/05",
                                    "3,Soft,Application ,Blank behind,,,x", "4,Soft,Application,Too long,,," + longDate,
                                    "5,DEVICE,Disk,Drive 'A',Maker;Co,1#2,2006",
                                    "6,\x82\x63"
                                    "evice,Disk,Full-width D,,,",
                                    "7,Hard,printer,P1,LPT1:,,2006", "8,Hard,Printers,P2,,,", "9,environmental,PATH,C:\\bin,,,2006",
                                    "10,Environmental,TEMP,C:\\tmp,,,", "11,Soft,Application,Third,3.0,,2005/12/06"}));
    const auto all = [&] {
        QStringList rows;
        for (const char* table : {"tbl_ApplicationsList", "tbl_Device_Management", "tbl_Printer_Management", "tbl_Environmental"})
            rows << ledger.rows(QStringLiteral("SELECT * FROM %1 ORDER BY rowid").arg(QLatin1String(table)));
        return rows;
    };
    ASSERT_TRUE(ReadCsvToStaging(path));
    CopyAllStagingRows(QStringLiteral("7"));
    const QStringList fromTable = all();
    EXPECT_EQ(fromTable.size(), 7) << fromTable.join(QLatin1Char('\n')).toStdString();
    for (const char* table : {"tbl_ApplicationsList", "tbl_Device_Management", "tbl_Printer_Management", "tbl_Environmental"})
        ledger.exec(QStringLiteral("DELETE FROM %1").arg(QLatin1String(table)));

    const std::optional<StagedLines> lines = ReadInventoryLines(path);
    ASSERT_TRUE(lines);
    CopyAllStagedLines(*lines, QStringLiteral("7"));
    EXPECT_EQ(all(), fromTable);
}

} // namespace
