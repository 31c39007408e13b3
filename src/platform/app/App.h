#pragma once

#include <QDateTime>
#include <QString>

#include <functional>

// What VB's App object and clock gave a program: the program's folder, where pcdb.mdb and
// DB.ini live, the program's title, and the time. Tests set their own folder and clock.
namespace app {

// The folder of the running executable, without a trailing separator; or the one set.
QString Path();
void SetPath(const QString& folder);

// App.Title: the default title of message boxes.
QString Title();

// The date and time now (local time as UTC-tagged wall clock, like vb dates); fixable in tests.
QDateTime Now();
void SetNow(const QDateTime& fixed); // an invalid QDateTime returns to the real clock

// VB's End: the program stops here with the status. Without a hook the process exits at once
// (each statement of the ledger is already committed, so nothing written is lost); tests set a
// hook that records the status and returns, and the caller then leaves its routine.
void End(int status);
void SetEndHook(std::function<void(int)> hook); // an empty hook returns to the real end

} // namespace app
