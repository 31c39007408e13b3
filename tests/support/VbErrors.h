#pragma once

#include "platform/vb/VbError.h"

#include <functional>

// The number of the run-time error that f raises, or 0 when it raises none.
inline long ErrorOf(const std::function<void()>& f)
{
    try {
        f();
    } catch (const vb::VbError& e) {
        return e.Number();
    }
    return 0;
}
