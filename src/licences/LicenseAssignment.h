#pragma once

#include "platform/ui/FlexGrid.h"
#include "platform/vb/Variant.h"

#include <QString>

#include <cstdint>

// What frm_Edit_License computes, apart from the window: the grid of assignments, which the
// companion program fills too, and the rows of its two lists. An assignment is plain record: it
// is never counted against the number bought.
namespace LicenseAssignment {

// The SELECT of the assignments, narrowed to one purchased application and to one location when
// their keys are above 0.
QString AssignmentSql(std::int16_t applicationKey, std::int16_t locationKey);

// Fills FGrid_EditLicense: the hidden assignment key, a running number and the fourteen columns,
// the computer's name gray when it is retired and each master's name gray when the entry is
// deleted. Only assignments that reach a live chain of user, section, division, location, maker
// and model show. Without a row the grid is left with no rows and no columns (NoRows); a failure
// shows StandardErrorBox (Failed).
ui::FillResult FillAssignmentGrid(ui::FlexGrid& grid, std::int16_t applicationKey, std::int16_t locationKey);

// A row of the purchased applications' list: the name padded with blanks to 35 bytes of the
// ANSI code page (none when it is longer), " 数量", the number bought (nothing for a Null).
QString ApplicationRow(const QString& name, const vb::Variant& unitNum);

// A row of the computers' list: the name padded to 17 characters, the location, " ", the user.
// A name longer than 17 characters cannot be padded and raises error 5.
QString ComputerRow(const QString& computerName, const QString& locationName, const QString& userName);

} // namespace LicenseAssignment
