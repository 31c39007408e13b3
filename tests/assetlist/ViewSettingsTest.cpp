#include "AssetListFixture.h"

#include "platform/vb/VbError.h"
#include "support/VbErrors.h"

using namespace Mdl_gData;

namespace {

class ViewSettings : public AssetListFixture {
protected:
    // What an earlier view left in memory.
    void earlierView()
    {
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
};

TEST_F(ViewSettings, NoFileGivesTheEmptyViewAndKeepsTheDirections)
{
    earlierView();
    mdl_ini::LoadViewSettings();
    EXPECT_EQ(g.OptDel, 0);
    EXPECT_EQ(g.SelectNumber, 0);
    EXPECT_EQ(g.SelectedColumnCount, 0);
    for (int i = 0; i <= 2; ++i) {
        EXPECT_EQ(g.SortKeyName[i], QString()) << i;
        EXPECT_EQ(g.SortKeyCaption[i], QString()) << i;
        EXPECT_EQ(g.SortKeyDirection[i], QStringLiteral("DESC")) << "a direction left out keeps memory's";
    }
    for (int i = 1; i <= 76; ++i)
        EXPECT_EQ(g.SelectedColumns[i], 0) << i;
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(ViewSettings, ReadsTheSectionOfTheCurrentView)
{
    earlierView();
    writeView(5, {{QStringLiteral("OptDel"), QStringLiteral("1")},
                  {QStringLiteral("SelectNumber"), QStringLiteral("2")},
                  {QStringLiteral("KeyName0"), QStringLiteral("Location_Name")},
                  {QStringLiteral("KeyCaption0"), QStringLiteral("設置場所")},
                  {QStringLiteral("KeyASCDESC0"), QStringLiteral("ASC")},
                  {QStringLiteral("KeyName1"), QStringLiteral("Computer_Name")},
                  {QStringLiteral("KeyCaption1"), QStringLiteral("コンピュータ名")},
                  {QStringLiteral("MSFlexGrit_SelectNum"), QStringLiteral("3")},
                  {QStringLiteral("MSFlexGrit_Select1"), QStringLiteral("8")},
                  {QStringLiteral("MSFlexGrit_Select3"), QStringLiteral("76")}});
    writeColumns(0, {1, 2, 3, 4, 5});   // another view's section is not read
    g.SectionNumber = 5;
    mdl_ini::LoadViewSettings();
    EXPECT_EQ(g.OptDel, 1);
    EXPECT_EQ(g.SelectNumber, 2);
    EXPECT_EQ(g.SortKeyName[0], QStringLiteral("Location_Name"));
    EXPECT_EQ(g.SortKeyCaption[0], QStringLiteral("設置場所"));
    EXPECT_EQ(g.SortKeyDirection[0], QStringLiteral("ASC"));
    EXPECT_EQ(g.SortKeyName[1], QStringLiteral("Computer_Name"));
    EXPECT_EQ(g.SortKeyCaption[1], QStringLiteral("コンピュータ名"));
    EXPECT_EQ(g.SortKeyDirection[1], QStringLiteral("DESC"));
    EXPECT_EQ(g.SortKeyName[2], QString());
    EXPECT_EQ(g.SelectedColumnCount, 3);
    // place 0 is never loaded; a place without its key reads 0, the key column
    EXPECT_EQ(g.SelectedColumns[0], 0);
    EXPECT_EQ(g.SelectedColumns[1], 8);
    EXPECT_EQ(g.SelectedColumns[2], 0);
    EXPECT_EQ(g.SelectedColumns[3], 76);
    EXPECT_EQ(g.SelectedColumns[4], 0) << "the rest of the earlier view is cleared";
}

TEST_F(ViewSettings, BadNumbersAndTooManyColumnsGoToTheCaller)
{
    writeView(0, {{QStringLiteral("OptDel"), QStringLiteral("すべて")}});
    EXPECT_EQ(ErrorOf([] { mdl_ini::LoadViewSettings(); }), vb::Err::TypeMismatch);

    writeView(0, {{QStringLiteral("OptDel"), QStringLiteral("0")}, {QStringLiteral("MSFlexGrit_Select2"), QStringLiteral("x")},
                  {QStringLiteral("MSFlexGrit_SelectNum"), QStringLiteral("2")}});
    EXPECT_EQ(ErrorOf([] { mdl_ini::LoadViewSettings(); }), vb::Err::TypeMismatch);

    // SelectedColumns ends at 256: the 257th place runs off it, after the 256th was loaded
    mdl_ini::IniWrite(QStringLiteral("0"), QStringLiteral("MSFlexGrit_SelectNum"), QStringLiteral("300"));
    mdl_ini::IniWrite(QStringLiteral("0"), QStringLiteral("MSFlexGrit_Select2"), QStringLiteral("9"));
    mdl_ini::IniWrite(QStringLiteral("0"), QStringLiteral("MSFlexGrit_Select256"), QStringLiteral("12"));
    EXPECT_EQ(ErrorOf([] { mdl_ini::LoadViewSettings(); }), vb::Err::SubscriptOutOfRange);
    EXPECT_EQ(g.SelectedColumnCount, 300);
    EXPECT_EQ(g.SelectedColumns[2], 9);
    EXPECT_EQ(g.SelectedColumns[256], 12);
    EXPECT_TRUE(dialogs.calls().empty());
}

} // namespace
