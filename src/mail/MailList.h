#pragma once

#include "platform/ui/FlexGrid.h"

#include <QString>

#include <cstdint>
#include <vector>

// The grid of the mail register, MSFlexGrid_Mail, and what fills it: one row per mail account
// whose user and computer both exist (with their section, division and location), sorted by
// address, optionally of one location's computers. The grid is at once the register's view and
// the source of its three exports, which read its cells. frm_Edit_Mail owns one MailList over its
// grid; fenwold-admin fills a hidden one.
//
// Columns: 0 the running number (headed "Key"), 1 the account's key (width 0), 2 to 11 the
// account, 12 to 17 location, section, division, computer name, its address and OS. The names of
// retired users, locations, sections and divisions are gray.
class MailList {
public:
    explicit MailList(ui::FlexGrid& grid);
    MailList(const MailList&) = delete;
    MailList& operator=(const MailList&) = delete;

    // The grid's columns, the hidden key included.
    static constexpr int Cols = 18;
    enum Column {
        RunningNumber = 0,
        Key = 1,
        UserName = 3,
        MailAddress = 7,
        LocationName = 12,
        SectionName = 13,
        DivisionName = 14,
        ComputerName = 15,
    };

    ui::FlexGrid& MSFlexGrid_Mail;

    // window state
    bool GridReady = false;
    std::int16_t PreviousRow = 0;
    std::int16_t SelectedRow = 0;

    // Fills the grid with the accounts of the computers of one location, or of all with 0. The
    // system's routine answers True when it filled rows; NoRows leaves the grid without rows and
    // columns (GridReady as it was), Failed has shown StandardErrorBox.
    ui::FillResult View_MailList(std::int16_t location);
    // No row selected: PreviousRow 1, SelectedRow 0, row 1 painted white.
    void ResetMailSelection();
    // Paints a row's cells from column 1 on; a row below 1 does nothing.
    void PaintMailRow(int row, int qbColour);

    // The text of the statement View_MailList opens.
    static QString MailListSql(std::int16_t location);
};

// One entry of a combo of the mail register: the text shown and the key it stands for.
struct MailChoice {
    QString text;
    std::int16_t key = 0;
};

// The lists of the register's three combos, read afresh on each drop-down. No handler: a failure
// goes to the caller.
namespace MailChoices {
// " " for all locations (key 0), then each location in use by code.
std::vector<MailChoice> Locations();
// Computers not retired, "name location", by name.
std::vector<MailChoice> Computers();
// Users in use with a name, each followed by one blank, by section and division.
std::vector<MailChoice> Users();
} // namespace MailChoices
