#include "platform/vb/Conversion.h"
#include "platform/vb/Format.h"
#include "platform/vb/VbError.h"

#include <gtest/gtest.h>

using namespace vb;

TEST(Vb, Placeholder) { EXPECT_EQ(CInt(Variant(QStringLiteral("12"))), 12); }
