#pragma once

#include "platform/vb/Variant.h"
#include "platform/vb/VbError.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <ostream>
#include <variant>

inline void PrintTo(const QDateTime& d, std::ostream* os)
{
    *os << d.toString(QStringLiteral("yyyy/MM/dd HH:mm:ss.zzz")).toStdString();
}

namespace vbtest {

// The run-time error a case expects instead of a value.
struct Raises {
    long number;
};

template <typename T>
using Outcome = std::variant<T, Raises>;

// Runs one case of a table: the call must give the expected value, or raise the expected error.
template <typename T, typename F>
void ExpectOutcome(const Outcome<T>& expected, F&& call)
{
    if (const auto* raises = std::get_if<Raises>(&expected)) {
        try {
            const T got = call();
            ADD_FAILURE() << "returned " << ::testing::PrintToString(got) << " instead of raising error "
                          << raises->number;
        } catch (const vb::VbError& e) {
            EXPECT_EQ(e.Number(), raises->number) << e.what();
        }
        return;
    }
    try {
        EXPECT_EQ(call(), std::get<T>(expected));
    } catch (const vb::VbError& e) {
        ADD_FAILURE() << "raised " << e.what();
    }
}

} // namespace vbtest
