#pragma once

#include "platform/ui/Form.h"

#include <QString>

#include <cstdint>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;

namespace ui {
class DropDownCombo;
class FlexGrid;
} // namespace ui

// The application census: how many live computers carry each application name, from the
// inventory rows of tbl_ApplicationsList, and, for the name clicked, which computers those are,
// with their location, section, division, user and the version found, narrowed by location on
// request. It reads only. The census is counted once, at load: "一覧更新" lifts the location
// filter and lists the chosen name's computers again, new counts show only in a new window.
//
// Modeless; placed by the main window's size and place. The fills and the export show
// StandardErrorBox on a failure; a single quote in a name fails the computers' SELECT so.
class frm_List_Application : public ui::SingleForm<frm_List_Application> {
    Q_OBJECT

public:
    frm_List_Application();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mnu_Export_CSV;
    QAction* Mnu_Close;
    QMenu* Mnu_View;
    QAction* Mnu_ViewUpdate;
    QLineEdit* tbx_ApplicationName;
    QLineEdit* tbx_ApplicationNum;
    ui::DropDownCombo* cmb_Location;
    QLineEdit* tbx_Location;
    ui::FlexGrid* MSFlexGrid_Applications;
    ui::FlexGrid* MSFlexGrid_User;

    std::int16_t CensusPreviousRow = 0;
    std::int16_t CensusSelectedRow = 0;
    // True when the census grid has rows; set at load only.
    bool CensusReady = false;
    std::int16_t ComputerPreviousRow = 0;
    std::int16_t ComputerSelectedRow = 0;
    // True after the first click on a census row.
    bool ComputerReady = false;
    // column 1 and column 2 of the census row clicked last; the name drives the computers' list
    QString ApplicationName;
    QString ApplicationCount;

    bool View_ApplicationCensus();
    // Lists the computers of ApplicationName, at one location when location is above 0. Without
    // such a computer the grid keeps what it showed.
    bool View_ApplicationComputers(std::int16_t location);
    void PaintCensusRow(std::int16_t row, std::int16_t qbColour);
    void PaintComputerRow(std::int16_t row, std::int16_t qbColour);

    // events
    void MSFlexGrid_Applications_Click();
    void MSFlexGrid_User_Click();
    void cmb_Location_DropDown();
    void cmb_Location_Click();
    void Mnu_ViewUpdate_Click();
    void Mnu_Export_CSV_Click();
    void Mnu_Close_Click();

protected:
    void Form_Load() override;
    void Form_Resize() override;

private:
    void buildMenus();
    void buildControls();
    // The two grids side by side, sized from the window's width and height in twips.
    void placeControls(int width, int height);

    QWidget* m_client = nullptr;
    QLabel* m_locationLabel = nullptr;
};
