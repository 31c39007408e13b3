#include "AssetListFixture.h"

#include "platform/vb/VbError.h"
#include "support/VbErrors.h"

using namespace Mdl_gData;

namespace {

class ViewSettings : public AssetListFixture {
protected:
    // What an earlier view left in memory.
    void SetUp() override
    {
        AssetListFixture::SetUp();
        g.ColumnCount = 76;
        g.OptDel = 1;
        g.SelectNumber = 2;
        for (int i = 0; i <= 2; ++i) {
            g.SortKeyName[i] = QStringLiteral("old");
            g.SortKeyCaption[i] = QStringLiteral("古い");
            g.SortKeyDirection[i] = QStringLiteral("DESC");
        }
        g.SelectedColumnCount = 4;
        for (int i = 1; i <= 76; ++i)
            g.SelectedColumns[i] = std::int16_t(i);
    }
    // Each sort slot as "name|caption|direction".
    static QStringList sortKeys()
    {
        QStringList out;
        for (int i = 0; i <= 2; ++i)
            out << g.SortKeyName[i] + u'|' + g.SortKeyCaption[i] + u'|' + g.SortKeyDirection[i];
        return out;
    }
};

TEST_F(ViewSettings, NoFileGivesTheEmptyViewAndKeepsTheDirections)
{
    mdl_ini::LoadViewSettings();
    EXPECT_EQ(g.OptDel, 0);
    EXPECT_EQ(g.SelectNumber, 0);
    EXPECT_EQ(g.SelectedColumnCount, 0);
    EXPECT_EQ(sortKeys(), (QStringList{"||DESC", "||DESC", "||DESC"})) << "a direction left out keeps memory's";
    for (int i = 1; i <= 76; ++i)
        EXPECT_EQ(g.SelectedColumns[i], 0) << i;
}

TEST_F(ViewSettings, ReadsTheSectionOfTheCurrentView)
{
    writeView(5,
              {"OptDel=1", "SelectNumber=2", "KeyName0=Location_Name", "KeyCaption0=設置場所", "KeyASCDESC0=ASC", "KeyName1=Computer_Name",
               "KeyCaption1=コンピュータ名", "MSFlexGrit_SelectNum=3", "MSFlexGrit_Select1=8", "MSFlexGrit_Select3=76"});
    writeColumns(0, {1, 2, 3, 4, 5}); // another view's section is not read
    g.SectionNumber = 5;
    mdl_ini::LoadViewSettings();
    EXPECT_EQ(g.OptDel, 1);
    EXPECT_EQ(g.SelectNumber, 2);
    EXPECT_EQ(sortKeys(), (QStringList{"Location_Name|設置場所|ASC", "Computer_Name|コンピュータ名|DESC", "||DESC"}));
    EXPECT_EQ(g.SelectedColumnCount, 3);
    // place 0 is never loaded; a place without its key reads 0, the key column; the rest of the
    // earlier view is cleared
    const std::int16_t places[] = {0, 8, 0, 76, 0};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(g.SelectedColumns[i], places[i]) << i;
}

TEST_F(ViewSettings, BadNumbersAndTooManyColumnsGoToTheCaller)
{
    writeView(0, {"OptDel=すべて"});
    EXPECT_EQ(ErrorOf([] { mdl_ini::LoadViewSettings(); }), vb::Err::TypeMismatch);
    writeView(0, {"OptDel=0", "MSFlexGrit_Select2=x", "MSFlexGrit_SelectNum=2"});
    EXPECT_EQ(ErrorOf([] { mdl_ini::LoadViewSettings(); }), vb::Err::TypeMismatch);

    // SelectedColumns ends at 256: the 257th place runs off it, after the 256th was loaded
    writeView(0, {"MSFlexGrit_SelectNum=300", "MSFlexGrit_Select2=9", "MSFlexGrit_Select256=12"});
    EXPECT_EQ(ErrorOf([] { mdl_ini::LoadViewSettings(); }), vb::Err::SubscriptOutOfRange);
    EXPECT_EQ(g.SelectedColumnCount, 300);
    EXPECT_EQ(g.SelectedColumns[2], 9);
    EXPECT_EQ(g.SelectedColumns[256], 12);
    EXPECT_TRUE(dialogs.calls().empty());
}

} // namespace
