#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <utility>

namespace vb {
class VbError;
}

// The one entry of every event of the user interface. A VB event procedure without an error
// handler passed a run-time error to the run time, which showed it and ended the program; here
// the dispatcher does that: a vb::VbError that no routine caught shows
//     実行時エラー 'N':
//
//     description
// with the program's title, the critical icon and OK, and the program ends (app::End) with a
// non-zero status. Each statement of the ledger commits on its own, so what was written stays.
namespace ui {

// The status the program ends with after a fatal error.
inline constexpr int FatalExitStatus = 1;

// Runs one event's handler under the fatal path. Every handler is a root: a dispatcher reached
// from inside another handler (an event that Qt delivers at once, a modal window's loop) reports
// its own error instead of passing it outward, since an exception must not cross Qt's event
// delivery.
void Dispatch(const std::function<void()>& handler);

// The text of the fatal report.
QString FatalErrorText(const vb::VbError& e);

// connect() for event handlers: the signal's arguments are dropped and the handler runs through
// Dispatch.
template <typename Sender, typename Signal, typename Handler>
QMetaObject::Connection Connect(Sender* sender, Signal signal, QObject* context, Handler handler)
{
    return QObject::connect(sender, signal, context, [h = std::move(handler)] { Dispatch(h); });
}

} // namespace ui
