#include "AssetListFixture.h"

#include "platform/vb/VbError.h"
#include "support/VbErrors.h"

using namespace Mdl_gData;

namespace {

using ViewSettings = AssetListFixture;

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
    EXPECT_EQ(g.SelectedColumns[256], 12);
    EXPECT_TRUE(dialogs.calls().empty());
}

} // namespace
