// The profile window as a user meets it: what each box shows for a computer read from an
// inventory file, the stepper, the band's choices, the key filters, the date check, the size.
#include "ProfileFixture.h"

#include "masters/frm_Edit_Table.h"
#include "masters/frm_Edit_User.h"
#include "platform/ui/DropDownCombo.h"
#include "platform/ui/Twips.h"

#include <QAction>
#include <QCheckBox>
#include <QFocusEvent>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

namespace {

QStringList texts(const auto& boxes)
{
    QStringList out;
    for (const auto* b : boxes)
        out << (b ? b->text() : QString());
    return out;
}

QString ticks(const auto& boxes)
{
    QString out;
    for (const QCheckBox* b : boxes)
        out += b->isChecked() ? u'1' : u'0';
    return out;
}

// A user's visit to a box: focus in, the text replaced, focus out.
void visit(QLineEdit* box, const QString& text)
{
    QFocusEvent in(QEvent::FocusIn);
    QApplication::sendEvent(box, &in);
    box->setText(text);
    QFocusEvent out(QEvent::FocusOut);
    QApplication::sendEvent(box, &out);
}

using ProfileWindow = ProfileTest;

TEST_F(ProfileWindow, EveryBoxShowsItsColumnAsTheWindowRendersIt)
{
    ledger.exec(QStringLiteral("UPDATE tbl_Pclist SET Cdrom_Drive = 1, Mo_Drive = 0 WHERE MainKey = 1"));
    frm_Edit_Computer& w = open(1);

    // the band
    EXPECT_EQ(w.tbx_UserCode->text(), QStringLiteral("1"));
    EXPECT_EQ(w.tbx_Section->text(), QStringLiteral("総務部"));
    EXPECT_EQ(w.cmb_Dat[3]->currentText(), QStringLiteral("本社3F"));
    EXPECT_EQ(w.cmb_Dat[4]->currentText(), QStringLiteral("NEC"));
    EXPECT_EQ(texts(w.tbx_CmbKey), (QStringList{"", "", "", "1", "1", "1"}));
    EXPECT_FALSE(w.tbx_UserCode->isVisibleTo(&w));
    EXPECT_EQ(w.tbx_Key->text() + u'/' + w.tbx_PC_Numbers->text(), QStringLiteral("1/2"));
    EXPECT_FALSE(w.tbx_Key->isEnabled());

    // the 55 fields: a Null is an empty box, numbers as they are, the date in its short form
    EXPECT_EQ(texts(w.tbx_Dat),
              (QStringList{"PC-SOUMU-01", "WORKGROUP", "192.168.0.10", "PC-MY26XEZ7", "5X0123456",
                           // CPU
                           "Intel Pentium 4", "Intel(R) Pentium(R) 4 CPU 2.60GHz", "3", "1", "0", "15", "2", "9", "", "GenuineIntel", "0",
                           "8", "12", "512", "0",
                           // network
                           "yamada", "", "pc-soumu-01", "", "総務部 共用機", "Microsoft Windows Network",
                           "Intel(R) PRO/100 VE Network Connection", "C0A8000A", "255.255.255.0", "192.168.0.1", "192.168.0.1",
                           "192.168.0.2", "169.254.0.9", "192.168.0.1", "192.168.0.3", "", "00：0C：29：3A：5B：7C",
                           // maintenance
                           "NEC", "PC-MY26XEZ7", "55274-640-1234567-23456", "", "6.0.2900.2180", "；SP2；", "0", "", "", "", "2005/04/01",
                           "", "4800", "", "", "", "窓際", "Microsoft Windows XP Professional"}));

    // CPU features by index; the box beside a label is not its own (ChkBox(1) stands by "APIC")
    EXPECT_EQ(ticks(w.ChkBox), QStringLiteral("11111101111110110011111001111011"));
    EXPECT_EQ(w.lbr_CPU_Feature[9]->text(), QStringLiteral("APIC"));
    const QRect apic = w.lbr_CPU_Feature[9]->geometry();
    const QRect vme = w.ChkBox[1]->geometry();
    EXPECT_LT(qAbs(vme.center().y() - apic.center().y()), 4);
    EXPECT_LT(qAbs(vme.left() - apic.right()), ui::TwipsToPixels(200));

    // IE settings: black when set, dark grey otherwise
    QStringList colours;
    for (const QLabel* l : w.IE_Env)
        colours << (l->palette().color(QPalette::WindowText) == ui::QBColor(0) ? l->text() : QStringLiteral("-"));
    EXPECT_EQ(colours, (QStringList{"インターネット接続", "-", "LAN経由", "-", "-", "RASインストール"}));

    // drives: a 0 shows no digits, a unit as stored (here a digit that slipped into it)
    EXPECT_EQ(texts(w.tbx_Drive), (QStringList{" MB", "301,284 KB", "40,015 MB", "12,873 MB", "1 281", "236,428 KB"}));
    EXPECT_EQ(ticks(w.Chk_Drive), QStringLiteral("010000"));
    // 12873 of 40015 is 32 per cent; used above full leaves a bar as it was
    EXPECT_EQ(w.ProgressBar_val[1]->value(), 32);
    EXPECT_EQ(w.ProgressBar_val[2]->value(), 0);

    // the first page is up, the lists are not read until their tab is chosen
    EXPECT_EQ(w.SelectedTab(), 1);
    EXPECT_TRUE(w.Picture_Page[0]->isVisible());
    EXPECT_EQ(w.MSGrid_Application->Rows(), 2);
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(ProfileWindow, ABrokenCodeShowsBlankFieldsAndStillThePosition)
{
    // a model code without its master row: the record's select finds nothing, the drive page
    // (which joins no master) is still filled
    ledger.exec(QStringLiteral("UPDATE tbl_Computer_List SET Model_Code = 9 WHERE MainKey = 2"));
    frm_Edit_Computer& w = open(2);
    EXPECT_EQ(texts(w.tbx_Dat).join(QString()), QString());
    EXPECT_EQ(w.cmb_Dat[3]->currentText(), QString());
    EXPECT_EQ(w.tbx_Drive[2]->text(), QStringLiteral("38,154 MB"));
    EXPECT_EQ(w.tbx_Key->text() + u'/' + w.tbx_PC_Numbers->text(), QStringLiteral("2/2"));
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(ProfileWindow, TheStepperWalksTheMainListWithinItsBoundsAndDropsUnsavedEdits)
{
    frm_Edit_Computer& w = open(1);
    w.tbx_Dat[53]->setText(QStringLiteral("未保存"));

    w.cmd_Prev->click(); // at the first position: nothing
    EXPECT_EQ(w.CurrentPosition, 1);
    EXPECT_EQ(w.tbx_Dat[53]->text(), QStringLiteral("未保存"));

    w.cmd_Next->click();
    EXPECT_EQ(w.CurrentPosition, 2);
    EXPECT_EQ(w.tbx_Key->text(), QStringLiteral("2"));
    EXPECT_EQ(w.tbx_Dat[0]->text(), QStringLiteral("SALES-PC07"));
    EXPECT_EQ(w.tbx_Dat[53]->text(), QString()) << "the edit is replaced without a question";
    // the code-0 rows: blanks in the band, a key of 0
    EXPECT_EQ(w.tbx_User->text(), QStringLiteral(" "));
    EXPECT_EQ(w.cmb_Dat[3]->currentText(), QString());
    EXPECT_EQ(w.tbx_CmbKey[3]->text(), QStringLiteral("0"));

    w.cmd_Next->click(); // at the last position: nothing
    EXPECT_EQ(w.CurrentPosition, 2);
    EXPECT_EQ(w.tbx_Dat[0]->text(), QStringLiteral("SALES-PC07"));

    w.cmd_Prev->click();
    EXPECT_EQ(w.tbx_Dat[0]->text(), QStringLiteral("PC-SOUMU-01"));
    EXPECT_EQ(w.tbx_User->text(), QStringLiteral("山田 太郎"));

    // a computer deleted since the list was loaded: the stepper moves, the window stands empty,
    // the check boxes as the last computer left them, and nothing is said
    ledger.exec(QStringLiteral("DELETE FROM tbl_Computer_List WHERE MainKey = 2"));
    w.cmd_Next->click();
    EXPECT_EQ(w.tbx_Key->text(), QStringLiteral("2"));
    EXPECT_EQ(texts(w.tbx_Dat).join(QString()) + w.tbx_User->text() + w.cmb_Dat[4]->currentText(), QString());
    EXPECT_TRUE(w.ChkBox[0]->isChecked());
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(ProfileWindow, OpensAtItsSizeOverTheMainWindowAndKeepsItsResizeSize)
{
    Mdl_gData::g.MainFormTop = 600;
    Mdl_gData::g.MainFormLeft = 900;
    frm_Edit_Computer& w = open(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(w.Top(), 600);
    EXPECT_EQ(w.Left(), 900);
    EXPECT_EQ(w.Width(), 12000);
    EXPECT_EQ(ui::TwipsToPixels(w.Height()), ui::TwipsToPixels(8500));

    // any later resize gives 12000 by 8900, a maximise is undone, a minimise left alone
    w.resize(500, 300);
    EXPECT_EQ(w.Width(), 12000);
    EXPECT_EQ(ui::TwipsToPixels(w.Height()), ui::TwipsToPixels(8900));
    w.SetWindowState(ui::vbMaximized);
    QCoreApplication::processEvents();
    EXPECT_EQ(w.WindowState(), ui::vbNormal);
    EXPECT_EQ(w.Width(), 12000);
    w.SetWindowState(ui::vbMinimized);
    QCoreApplication::processEvents();
    EXPECT_EQ(w.WindowState(), ui::vbMinimized);
}

TEST_F(ProfileWindow, KeyFiltersFocusColoursAndTheLeaseDateCheckFollowEachFieldsRule)
{
    frm_Edit_Computer& w = open(1);
    const struct {
        int index;
        const char* typed;
        const char* shown;
    } cases[] = {
        {2, "19a2.168/", "192.168"},      // address: digits and dots
        {7, "2.6GHz", "26"},              // clock: digits
        {47, "2005-12x/01", "200512/01"}, // lease date: digits and slashes
        {0, "PC-01/a.b", "PC-01/a.b"},    // computer name: anything
    };
    for (const auto& c : cases) {
        QLineEdit* box = w.tbx_Dat[size_t(c.index)];
        box->clear();
        QTest::keyClicks(box, QString::fromUtf8(c.typed));
        EXPECT_EQ(box->text(), QString::fromUtf8(c.shown)) << c.index;
    }
    QTest::keyClick(w.tbx_Dat[7], Qt::Key_Backspace);
    EXPECT_EQ(w.tbx_Dat[7]->text(), QStringLiteral("2"));
    w.tbx_Drive[0]->clear();
    QTest::keyClicks(w.tbx_Drive[0], QStringLiteral("1,024 MB"));
    EXPECT_EQ(w.tbx_Drive[0]->text(), QStringLiteral("1024"));

    // the focus colour, and the text kept for the date check
    const QColor cyan(128, 255, 255);
    for (QWidget* control :
         {static_cast<QWidget*>(w.tbx_Dat[20]), static_cast<QWidget*>(w.tbx_Drive[3]), static_cast<QWidget*>(w.cmb_Dat[4])}) {
        QFocusEvent in(QEvent::FocusIn);
        QApplication::sendEvent(control, &in);
        EXPECT_EQ(control->palette().color(QPalette::Base), cyan) << control->objectName().toStdString();
        QFocusEvent out(QEvent::FocusOut);
        QApplication::sendEvent(control, &out);
        EXPECT_EQ(control->palette().color(QPalette::Base), QColor(Qt::white)) << control->objectName().toStdString();
    }
    EXPECT_EQ(w.EditBackup, QStringLiteral("yamada"));

    // the lease date check puts the earlier text back on each failed test
    const struct {
        int index;
        const char* before;
        const char* typed;
        const char* after;
        const char* message;
    } dates[] = {
        {47, "2005/04/01", "2005/13/01", "2005/04/01", "値が不正です"}, // month above 12
        {47, "2005/04/01", "2005/00/10", "2005/04/01", "値が不正です"}, // month not above 0
        {48, "", "2005/12/32", "0", "値が不正です"},                    // empty before: "0" comes back
        {48, "", "2005.12.01", "0", "値が不正です"},                    // pasted, unfiltered
        {47, "2005/04/01", "2005/02/31", "2005/02/31", ""},             // the month's length is not checked
        {48, "2006/03/31", "", "", ""},
    };
    for (const auto& c : dates) {
        QLineEdit* box = w.tbx_Dat[size_t(c.index)];
        box->setText(QString::fromUtf8(c.before));
        visit(box, QString::fromUtf8(c.typed));
        EXPECT_EQ(box->text(), QString::fromUtf8(c.after)) << c.typed;
        EXPECT_EQ(panel(w), QString::fromUtf8(c.message)) << c.typed;
    }
    // other fields are not checked
    visit(w.tbx_Dat[46], QStringLiteral("2005/13/01"));
    EXPECT_EQ(w.tbx_Dat[46]->text(), QStringLiteral("2005/13/01"));
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(ProfileWindow, MasterListsAreReadOnDemandNameAndCodeNeverPartAndTheMenusOpenTheEditors)
{
    frm_Edit_Computer& w = open(1);
    ui::DropDownCombo& location = *w.cmb_Dat[3];
    EXPECT_EQ(location.count(), 0);
    w.cmb_Dat_DropDown(3);
    // the reserved row 0 is available too; a removed location is not offered
    EXPECT_EQ(entries(location, true), (QStringList{"=0", "本社3F=1", "大阪支店=2"}));
    EXPECT_EQ(location.currentText(), QStringLiteral("本社3F"));

    location.setCurrentIndex(2);
    Q_EMIT location.activated(2);
    EXPECT_EQ(location.currentText(), QStringLiteral("大阪支店"));
    EXPECT_EQ(w.tbx_CmbKey[3]->text(), QStringLiteral("2"));
    // typing changes the text alone
    location.setEditText(QStringLiteral("手入力の場所"));
    EXPECT_EQ(w.tbx_CmbKey[3]->text(), QStringLiteral("2"));

    // users who can be chosen, by reading; a click brings the section and division along
    QStringList users;
    for (int i = 0; i < w.List_User->count(); ++i)
        users << w.List_User->item(i)->text() + u'=' + w.List_User->item(i)->data(Qt::UserRole).toString();
    EXPECT_EQ(users, (QStringList{"=0", "青木 花子=2", "山田 太郎=1"}));
    w.List_User->setCurrentRow(1);
    EXPECT_EQ(w.tbx_User->text(), QStringLiteral("青木 花子"));
    EXPECT_EQ(w.tbx_UserCode->text(), QStringLiteral("2"));
    EXPECT_EQ(w.tbx_Section->text(), QStringLiteral("総務部"));
    EXPECT_EQ(w.tbx_Division->text(), QStringLiteral(" "));

    // the menus open the master editors, and close the window
    w.Mnu_Edit_Teble[4]->trigger();
    ASSERT_NE(frm_Edit_Table::IfLoaded(), nullptr);
    EXPECT_EQ(Mdl_gData::g.CurrentTableName, QStringLiteral("tbl_Manufacturer"));
    frm_Edit_Table::IfLoaded()->Unload();

    w.Mnu_Edit_User->trigger();
    ASSERT_NE(frm_Edit_User::IfLoaded(), nullptr);
    EXPECT_EQ(frm_Edit_User::IfLoaded()->windowModality(), Qt::ApplicationModal);
    frm_Edit_User::IfLoaded()->Unload();

    w.Mnu_Close->trigger();
    EXPECT_EQ(frm_Edit_Computer::IfLoaded(), nullptr);
    EXPECT_TRUE(dialogs.calls().empty());
}

} // namespace
