#pragma once

#include "platform/ui/Form.h"

#include <QString>
#include <QStringList>

#include <array>

class QAction;
class QLineEdit;
class QMenu;
class QMenuBar;

namespace ui {
class FlexGrid;
}

// The one editor of the five small master tables (sections, divisions, locations, makers,
// models). The opener names the table in CurrentTableName and its caption in
// CurrentTableCaption; the window learns the field names from the table, relying on the first
// four being code, name, comment and Available_flug. Rows are never removed: a delete sets the
// flag to "1", and the row drops out of this window while lists that use it show it gray. Code 0
// is the reserved unset row and is never shown.
//
// Modal, of fixed size. Its routines have no error handler: a failing statement ends the run.
class frm_Edit_Table : public ui::SingleForm<frm_Edit_Table> {
    Q_OBJECT

public:
    frm_Edit_Table();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mue_Close;
    QMenu* Mnu_Edit;
    QAction* Mnu_Add;
    QAction* Mnu_Update;
    QAction* Mnu_Delete;
    ui::FlexGrid* MSFlexGrid_Edit;
    std::array<QLineEdit*, 3> tbxEdit{};

    // events
    void MSFlexGrid_Edit_Click();
    void Mnu_Add_Click();
    void Mnu_Update_Click();
    void Mnu_Delete_Click();
    void Mue_Close_Click();

protected:
    void Form_Load() override;

private:
    void buildControls();
    // The table's field names, read from "SELECT * FROM" it.
    QStringList fieldNames() const;
    void fillGrid();
    void clearEdits();

    QString m_table;
    QString m_caption;
    bool m_filled = false;
    int m_selectedRow = 0;
};
