#pragma once

#include "platform/vb/VbError.h"

#include <array>
#include <cstddef>

namespace vb {

// A VB array declared "(0 To N-1)": an index outside the bounds raises error 9, as VB's bound
// check did. Several of the system's limits rest on it (the 2560 rows of the main list).
template <typename T, std::size_t N> class FixedArray {
public:
    T& operator[](long i)
    {
        check(i);
        return m_items[std::size_t(i)];
    }
    const T& operator[](long i) const
    {
        check(i);
        return m_items[std::size_t(i)];
    }
    static constexpr long UBound() { return long(N) - 1; }
    void fill(const T& v) { m_items.fill(v); }

private:
    static void check(long i)
    {
        if (i < 0 || i >= long(N))
            throw VbError::SubscriptOutOfRange();
    }
    std::array<T, N> m_items{};
};

// On Error Resume Next over one statement: runs it and drops a run-time error.
template <typename F> void ResumeNext(F&& statement)
{
    try {
        statement();
    } catch (const VbError&) {
    }
}

} // namespace vb
