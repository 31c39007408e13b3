#pragma once

#include <QDateTime>
#include <QString>

// What VB's App object and clock gave the original: the program's folder, where pcdb.mdb and
// DB.ini live, the program's title, and the time. Tests set their own folder and clock.
namespace app {

// The folder of the running executable, without a trailing separator; or the one set.
QString Path();
void SetPath(const QString& folder);

// App.Title: the default title of message boxes.
QString Title();

// The date and time now (local time as UTC-tagged wall clock, like vb dates); fixable in tests.
QDateTime Now();
void SetNow(const QDateTime& fixed);   // an invalid QDateTime returns to the real clock

} // namespace app
