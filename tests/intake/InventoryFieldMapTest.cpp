#include "intake/InventoryFieldMap.h"

#include "IntakeFixture.h"

#include <QSet>

namespace {

// The statements of tests/data/jet_statements.txt under their "# " headings.
QStringList Section(const QString& heading)
{
    static const QStringList lines = QString::fromUtf8(ReadTestData(QStringLiteral("jet_statements.txt"))).split(QLatin1Char('\n'));
    QStringList out;
    bool inside = false;
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1String("# "))) {
            inside = line.mid(2) == heading;
            continue;
        }
        if (inside && !line.isEmpty())
            out << line;
    }
    EXPECT_FALSE(out.isEmpty()) << "no section " << heading.toStdString();
    return out;
}

const QString kJapaneseLookups = QStringLiteral("inventory field map, Japanese lookups (bulk read and review window)");
const QString kEnglishLookups = QStringLiteral("inventory field map, English lookups");
const QString kBulkUpdates = QStringLiteral("inventory field map, UPDATEs of the bulk read");
const QString kMissingRecord = QStringLiteral("bulk read: a row whose record is missing writes an empty text or 0");
const QString kNewRecord = QStringLiteral("new record (Mnu_AddNew)");

TEST(InventoryFieldMap, EveryLookupIsAStatementOfTheSystemAndEveryOneIsAsked)
{
    const QStringList japanese = Section(kJapaneseLookups);
    const QStringList english = Section(kEnglishLookups);
    QSet<QString> asked;
    for (const InventoryFieldRow& row : InventoryFieldMap()) {
        for (FieldMapPath path : {FieldMapPath::BulkRead, FieldMapPath::Review}) {
            const QString ja = FieldLookupSql(row.selection(InventoryLanguage::Japanese, path));
            EXPECT_TRUE(japanese.contains(ja)) << "row " << row.row << ": " << ja.toStdString();
            asked << ja;
        }
        // the review knows Japanese keywords only
        const QString en = FieldLookupSql(row.selection(InventoryLanguage::English, FieldMapPath::BulkRead));
        EXPECT_TRUE(japanese.contains(en) || english.contains(en)) << "row " << row.row << ": " << en.toStdString();
        asked << en;
    }
    for (const QString& line : japanese + english)
        EXPECT_TRUE(asked.contains(line)) << "never asked: " << line.toStdString();
}

// The bulk read's UPDATEs of the walk for key 5, each split at its value: what stands before and
// after it must match the system's statements line by line, in order. The five codes follow row
// 1; those the new-record command shares stand in its own section.
TEST(InventoryFieldMap, BulkReadStatementsAreTheSystemsInWalkingOrder)
{
    const QChar mark(0x0001);
    struct Frame {
        QString before, after;
        int row;
    };
    std::vector<Frame> frames;
    for (const InventoryFieldRow& row : InventoryFieldMap()) {
        if (row.bulkSkips)
            continue;
        for (const QString& sql : BulkReadStatements(row, mark, QStringLiteral("5")))
            frames.push_back({sql.section(mark, 0, 0), sql.section(mark, 1), row.row});
        if (row.row == 1) {
            for (const char* code : {"Location_Code", "User_Code", "Manufacturer_Code", "Model_Code", "Asset_Code"})
                frames.push_back(
                    {QStringLiteral("UPDATE tbl_Computer_List SET tbl_Computer_List.[%1] = 0 WHERE MainKey = 5").arg(QLatin1String(code)),
                     QString(), 1});
        }
    }
    const QStringList updates = Section(kBulkUpdates);
    const QStringList newRecord = Section(kNewRecord);
    qsizetype at = 0;
    for (const Frame& f : frames) {
        if (f.after.isEmpty() && newRecord.contains(f.before) && !updates.contains(f.before))
            continue;
        ASSERT_LT(at, updates.size()) << "row " << f.row << " has no statement";
        const QString& line = updates[at++];
        EXPECT_TRUE(line.startsWith(f.before) && line.endsWith(f.after) && line.size() >= f.before.size() + f.after.size())
            << "row " << f.row << "\n  expected " << QString(f.before + QStringLiteral("…") + f.after).toStdString() << "\n  system   "
            << line.toStdString();
    }
    EXPECT_EQ(at, updates.size());

    // with no record found, every row still writes: an empty text, 0 for a number, "" for the key
    const Mdl_Access_mdb::FirstRow none;
    QStringList written;
    for (const InventoryFieldRow& row : InventoryFieldMap())
        written << BulkReadStatements(row, BulkReadValue(row, InventoryLanguage::Japanese, none), QStringLiteral("5"));
    for (const QString& line : Section(kMissingRecord))
        EXPECT_TRUE(written.contains(line)) << line.toStdString();
}

TEST(InventoryFieldMap, ValuesAreConvertedByKind)
{
    const auto& map = InventoryFieldMap();
    const auto rowOf = [&](int n) -> const InventoryFieldRow& { return map[size_t(n - 1)]; };
    struct Case {
        int row;
        int position;
        QString value;
        QString written;
    };
    const QString longText = QStringLiteral("あ").repeated(300);
    // what the read of tests/data/inventory/ja_pc01.csv does not already show
    const std::vector<Case> cases = {
        {34, 4, QStringLiteral("2.5"), QStringLiteral("2")}, // number: a half to the even one
        {34, 4, QStringLiteral("3.5"), QStringLiteral("4")},
        {7, 4, QStringLiteral("3000000000"), QStringLiteral("0")}, // past 32 bits: 0
        {42, 4, QString(), QStringLiteral("0")},                   // guarded
        {99, 5, QStringLiteral("True"), QStringLiteral("1")},      // setting flag
        {99, 5, QStringLiteral("TRUE"), QStringLiteral("0")},
        {1, 4, longText, longText.left(255)},                   // text: 255 characters
        {8, 5, QStringLiteral(" KB "), QStringLiteral(" KB ")}, // unit: as it stands
    };
    for (const Case& c : cases) {
        Mdl_Access_mdb::FirstRow record;
        record[size_t(c.position)] = c.value;
        EXPECT_EQ(BulkReadValue(rowOf(c.row), InventoryLanguage::Japanese, record), c.written)
            << "row " << c.row << " value " << c.value.toStdString();
    }
}

class FieldLookupInStaging : public IntakeFixture {
protected:
    TempDir files;
};

// The bulk read looks records up among the lines it staged; for every row of the map, in both
// languages and on both paths, it must find what the row's SELECT finds in tbl_ReadCsv: the
// same first line (staging's order, A to Z compared without case, nothing else), sanitised.
TEST_F(FieldLookupInStaging, FindsWhatTheSelectFindsForEveryRow)
{
    QByteArray bytes = ReadTestData(QStringLiteral("inventory/ja_pc01.csv"));
    bytes.replace(",LAN,\x83R", ",lan,\x83R"); // the computer's name under "lan"
    bytes.replace(",CPU,Clock,", ",Cpu,clock,");
    bytes += "90,Hard,CPU,NAME,Second name,,\r\n" // later: the first one counts
             "91,Soft,Internet,setting,Start Page,http://late/,\r\n"
             "92,Network,Adapter,IP address ,10.9.9.9,,\r\n" // a blank behind: no match
             "93,Soft,Windows,Version,2000,,2006/01/15 09:05:00\r\n";
    bytes += ReadTestData(QStringLiteral("inventory/en_pc02.csv")).mid(50);
    files.write(QStringLiteral("mixed.csv"), bytes);
    const QString path = files.file(QStringLiteral("mixed.csv"));
    ASSERT_TRUE(Mdl_Access_mdb::ReadCsvToStaging(path));
    const std::optional<Mdl_Access_mdb::StagedLines> lines = Mdl_Access_mdb::ReadInventoryLines(path);
    ASSERT_TRUE(lines);

    int found = 0;
    for (const InventoryFieldRow& row : InventoryFieldMap()) {
        for (InventoryLanguage language : {InventoryLanguage::Japanese, InventoryLanguage::English}) {
            for (FieldMapPath path : {FieldMapPath::BulkRead, FieldMapPath::Review}) {
                const FieldSelection s = row.selection(language, path);
                const Mdl_Access_mdb::FirstRow fromTable = Mdl_Access_mdb::OpenRecordsetFirstRow(FieldLookupSql(s));
                EXPECT_EQ(FieldLookup(*lines, s), fromTable) << "row " << row.row << ": " << FieldLookupSql(s).toStdString();
                found += fromTable[0].isEmpty() ? 0 : 1;
            }
        }
    }
    EXPECT_GT(found, 300);
}

} // namespace
