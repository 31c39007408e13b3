#pragma once

#include "platform/vb/VbError.h"

#include <QString>

#include <functional>

// The run-time error that f raises: number 0 and no text when it raises none.
struct Raised {
    long number = 0;
    QString description;
};
inline Raised RaisedBy(const std::function<void()>& f)
{
    try {
        f();
    } catch (const vb::VbError& e) {
        return {e.Number(), e.Description()};
    }
    return {};
}
inline long ErrorOf(const std::function<void()>& f) { return RaisedBy(f).number; }
