#pragma once

#include "profile/ProfileTables.h"

#include <QString>

#include <array>
#include <cstdint>

// The save of the computer profile (Mnu_Update): every control is compared with the stored
// record, only what differs is assigned, and the changed columns of both tables are written in
// one transaction. A message box then lists each change by its field's caption. Nothing differs:
// nothing is written, nothing is shown.
namespace ProfileSave {

// What the save reads from the window: the texts and ticks of its controls, by index as the
// control arrays are numbered. Entries 0 to 2 of the combo arrays are unused.
struct Entries {
    std::array<QString, ProfileTables::ProfileFieldCount> tbx_Dat;
    std::array<QString, 6> tbx_CmbKey;
    std::array<QString, 6> cmb_Dat;
    QString tbx_UserCode;
    QString tbx_User;
    std::array<bool, ProfileTables::CpuFeatureCount> ChkBox{};
    std::array<bool, 6> Chk_Drive{};
    std::array<QString, 6> tbx_Drive;
};

enum class Outcome {
    NoRecord, // the computer is gone: nothing happened, nothing was said
    NoChange, // nothing differed: nothing was written or shown
    Saved,    // written, then reported
    Failed,   // the error box was shown; nothing was written
};

struct Result {
    Outcome outcome = Outcome::NoChange;
    QString changeLog; // the report's lines, each ending in CR LF
};

// Saves the computer of that key. Besides the ledger it may change one entry on screen: the sort
// key tbx_Dat(27), which follows the address (so the window shows it again from entries, whatever
// the outcome).
//
// The report is shown after the commit has succeeded: a change is never reported as written
// before it is. A failure (a date that is no date, letters in a number column, a Null capacity,
// a failed commit) shows StandardErrorBox and discards every assignment.
Result Mnu_Update(std::int16_t key, Entries& entries);

} // namespace ProfileSave
