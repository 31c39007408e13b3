#pragma once

#include "platform/ui/Form.h"

class QLabel;
class QPushButton;

// The About box: the program's title, its version and a link to the folder where the ledger and
// the settings file lie; OK closes it. It changes nothing.
class frmAbout : public ui::SingleForm<frmAbout> {
    Q_OBJECT

public:
    frmAbout();

    QLabel* lblTitle;
    QLabel* lblVersion;
    QLabel* lblDescription;
    QLabel* lblLink;
    QPushButton* cmdOK;

    void cmdOK_Click();

    // "バージョン " and the program's version.
    static QString VersionText();

protected:
    void Form_Load() override;
};
