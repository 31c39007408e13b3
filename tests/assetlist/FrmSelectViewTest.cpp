#include "AssetListFixture.h"

#include "assetlist/frm_SelectView.h"
#include "platform/text/Cp932.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QListWidget>
#include <QPointer>
#include <QRadioButton>

#include <array>
#include <initializer_list>
#include <set>

using namespace Mdl_gData;

namespace {

QString u(const char* s) { return QString::fromUtf8(s); }
QStringList us(std::initializer_list<const char*> list)
{
    QStringList out;
    for (const char* s : list)
        out << u(s);
    return out;
}

class FrmSelectView : public AssetListFixture {
protected:
    void SetUp() override
    {
        AssetListFixture::SetUp();
        list->FGridViewSelect_ini();
        for (int i = 0; i <= 7; ++i)
            g.ViewNames[i] = QStringLiteral(" ");
        // three installed computers and a retired one, all on the code-0 masters
        ledger.computer(1, 0, 0, "Computer_Name = 'PC-A', Workgroup = 'W3'");
        ledger.computer(2, 0, 0, "Computer_Name = 'PC-C', Workgroup = 'W1'");
        ledger.computer(3, 0, 0, "Computer_Name = 'PC-B', Workgroup = 'W2'");
        ledger.computer(4, 1, 0, "Computer_Name = 'PC-X'");
    }

    // The window as the main window opens it: modal, over the view in memory.
    frm_SelectView& open()
    {
        form = &frm_SelectView::Instance();
        form->Show(ui::vbModal);
        return *form;
    }

    // The user opens the combo of sort row `row` and picks the item at `index` (0 the blank,
    // else the column number).
    void pick(int row, int index)
    {
        QComboBox* combo = form->cmb_Order[size_t(row)];
        combo->showPopup();
        combo->setCurrentIndex(index);
        combo->hidePopup();
        Q_EMIT combo->activated(index);
    }
    // The user clicks the list item of a column.
    void clickColumn(int column)
    {
        QListWidget* l = form->Lst_Select;
        QListWidgetItem* item = l->item(column - 1);
        l->scrollToItem(item);
        QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, l->visualItemRect(item).center());
    }
    std::set<int> selectedColumns() const
    {
        std::set<int> out;
        for (const QListWidgetItem* item : form->Lst_Select->selectedItems())
            out.insert(item->data(Qt::UserRole).toInt());
        return out;
    }
    QStringList placeholders() const
    {
        QStringList out;
        for (const QComboBox* c : form->cmb_Order)
            out << (c->currentIndex() < 0 ? c->placeholderText() : QStringLiteral("#%1").arg(c->currentIndex()));
        return out;
    }
    std::vector<int> checkedDirections() const
    {
        std::vector<int> out;
        for (int i = 0; i < 6; ++i)
            if (form->Opt_ASC_DESC[size_t(i)]->isChecked())
                out.push_back(i);
        return out;
    }
    QStringList viewMenu() const
    {
        QStringList out;
        for (const QAction* a : form->Mnu_ViewSelect)
            out << (a->isChecked() ? QStringLiteral("*") : QString()) + a->text();
        return out;
    }

    // The lines of one section of DB.ini as the file holds them.
    static QStringList iniSection(const QString& name)
    {
        QFile f(mdl_ini::IniPath());
        if (!f.open(QIODevice::ReadOnly))
            return {};
        QStringList out;
        bool inside = false;
        for (const QString& line : text::FromCp932(f.readAll()).split(QStringLiteral("\r\n"))) {
            if (line.startsWith(QLatin1Char('[')))
                inside = line == QLatin1Char('[') + name + QLatin1Char(']');
            else if (inside && !line.isEmpty())
                out << line;
        }
        return out;
    }
    // Writes the sort keys of a saved view: field, caption and direction of each, in slot order;
    // a null direction is left out.
    void writeSortKeys(int section, const std::vector<std::array<const char*, 3>>& keys)
    {
        std::map<QString, QString> m{{QStringLiteral("SelectNumber"), QString::number(keys.size())}};
        for (size_t i = 0; i < keys.size(); ++i) {
            m[QStringLiteral("KeyName%1").arg(i)] = u(keys[i][0]);
            m[QStringLiteral("KeyCaption%1").arg(i)] = u(keys[i][1]);
            if (keys[i][2])
                m[QStringLiteral("KeyASCDESC%1").arg(i)] = u(keys[i][2]);
        }
        writeKeys(section, m);
    }

    QPointer<frm_SelectView> form;
};

TEST_F(FrmSelectView, OpensOnTheCurrentViewAndNamesIt)
{
    writeColumns(2, {3, 8, 76});
    writeView(2, {"OptDel=1"});
    writeSortKeys(2, {{"Computer_Name", "コンピュータ名", "DESC"}, {"ipaddress", "IPアドレス", "ASC"}});
    g.SectionNumber = 2;
    g.ViewNames[0] = u("全体");
    g.ViewNames[2] = u("撤去分");
    mdl_ini::LoadViewSettings();

    frm_SelectView& f = open();
    ASSERT_EQ(f.Lst_Select->count(), 76);
    EXPECT_EQ(selectedColumns(), (std::set<int>{3, 8, 76}));
    EXPECT_TRUE(f.OptDel[1]->isChecked());

    // the combos are empty until opened, showing the stored keys' captions
    EXPECT_EQ(placeholders(), (QStringList{u("コンピュータ名"), u("IPアドレス"), QString()}));
    EXPECT_EQ(f.cmb_Order[0]->count(), 0);
    EXPECT_EQ(f.cmb_key, (std::array<QString, 3>{u("Computer_Name"), u("ipaddress"), QString()}));
    EXPECT_EQ(checkedDirections(), (std::vector<int>{1, 2}));

    EXPECT_FALSE(f.Mnu_Update->isEnabled()) << "nothing changed yet";
    EXPECT_EQ(viewMenu(), us({"0:全体", "1: ", "*2:撤去分", "3: ", "4: ", "5: ", "6: ", "7: "}));
    EXPECT_TRUE(dialogs.calls().empty());

    // naming the view writes its name at once, and again when the box is cancelled
    dialogs.answerInput(u("新しい名前"));
    f.Mnu_SetNameStr->trigger();
    ASSERT_EQ(dialogs.calls().size(), 1u);
    EXPECT_EQ(dialogs.calls()[0].prompt, u("項目2に名前をつけてください"));
    EXPECT_EQ(f.Mnu_ViewSelect[2]->text(), u("2:新しい名前"));
    EXPECT_EQ(iniSection(u("Main")), us({"SectionName2=新しい名前"}));
    EXPECT_FALSE(f.Mnu_Update->isEnabled()) << "a name is saved at once, not a change of the view";
    mdl_ini::IniWrite(u("Main"), u("SectionName2"), std::nullopt);
    dialogs.answerInput(std::nullopt);
    f.Mnu_SetNameStr->trigger();
    EXPECT_EQ(g.ViewNames[2], u("新しい名前"));
    EXPECT_EQ(iniSection(u("Main")), us({"SectionName2=新しい名前"}));
}

TEST_F(FrmSelectView, ApplyingRewritesTheViewsSectionMovesSortKeysUpAndRefillsTheMainList)
{
    // an earlier, longer view with a key nobody writes any more
    writeColumns(0, {1, 2, 3, 4, 5});
    writeView(0, {"Stale=x"});
    writeSortKeys(0,
                  {{"Location_Name", "設置場所", "ASC"}, {"Computer_Name", "コンピュータ名", "DESC"}, {"ipaddress", "IPアドレス", "ASC"}});
    g.ViewNames[0] = u("標準");
    ASSERT_TRUE(loadList());
    list->CurrentMainKey = 5; // what the main window had selected before

    open();
    form->Mnu_deSelect_All->trigger();
    // the user clicks the last column first: the view keeps the table's order
    clickColumn(76);
    clickColumn(8);
    pick(0, 0); // the first row's key given up; row 1 untouched moves up with its direction
    pick(2, 9); // ワークグループ
    form->Opt_ASC_DESC[5]->click();
    ASSERT_TRUE(form->Mnu_Update->isEnabled());
    form->Mnu_Update->trigger();

    const QStringList expected =
        us({"OptDel=0", "SelectNumber=2", "KeyName0=Computer_Name", "KeyName1=Workgroup", "KeyName2=", "KeyCaption0=コンピュータ名",
            "KeyCaption1=ワークグループ", "KeyCaption2=", "KeyASCDESC0=DESC", "KeyASCDESC1=DESC", "KeyASCDESC2=DESC",
            "MSFlexGrit_SelectNum=2", "MSFlexGrit_Select1=8", "MSFlexGrit_Select2=76"});
    EXPECT_EQ(iniSection(u("0")), expected) << "no key of the earlier view survives";
    EXPECT_EQ(iniSection(u("Main")), us({"SectionNumber=0", "SectionName0=標準", "SectionName1=", "SectionName2=", "SectionName3=",
                                         "SectionName4=", "SectionName5=", "SectionName6=", "SectionName7="}));

    // the main list follows at once, installed computers by name, descending
    EXPECT_TRUE(g.ListSql.endsWith(u(" ORDER BY Computer_Name DESC,Workgroup DESC;"))) << g.ListSql.toStdString();
    ASSERT_EQ(grid->Cols(), 4);
    EXPECT_EQ(listedKeys(), us({"2", "3", "1"}));
    // the refresh leaves row 1 painted as selected and the main window's key as it was
    EXPECT_EQ(back(1, 1), gray());
    EXPECT_EQ(list->CurrentMainKey, 5);

    // the window shows what was saved and is clean again
    EXPECT_FALSE(form->Mnu_Update->isEnabled());
    EXPECT_EQ(placeholders(), us({"コンピュータ名", "ワークグループ", " "}));
    EXPECT_EQ(checkedDirections(), (std::vector<int>{1, 3, 4}));

    // applying again with nothing changed in the sort rows writes the same section
    form->OptDel[0]->click();
    form->Mnu_Update->trigger();
    EXPECT_EQ(iniSection(u("0")), expected);
    EXPECT_TRUE(dialogs.calls().empty());

    // Two columns share the caption "パスワード"; the one picked is the one that stays, through
    // later applies that leave the row alone.
    pick(2, 51);
    form->Mnu_Update->trigger();
    form->OptDel[0]->click();
    form->Mnu_Update->trigger();
    EXPECT_EQ(g.SortKeyName[2], u("UserPassword"));
    EXPECT_TRUE(iniSection(u("0")).contains(u("KeyName2=UserPassword")));
}

TEST_F(FrmSelectView, SwitchingLoadsAViewAndRefreshesTheListButOnlyTheMenuSavesItsNumber)
{
    writeColumns(0, {8});
    writeView(1, {"OptDel=1", "MSFlexGrit_SelectNum=0"});
    g.ViewNames[0] = u("標準");
    g.ViewNames[1] = u("撤去");
    ASSERT_TRUE(loadList());
    ASSERT_EQ(listedKeys().size(), 3);

    open();
    clickColumn(10); // a change the switch drops in silence
    ASSERT_TRUE(form->Mnu_Update->isEnabled());
    form->Mnu_ViewSelect[1]->trigger();

    EXPECT_EQ(g.SectionNumber, 1);
    // no column chosen: the list has its row numbers and the hidden key only
    EXPECT_EQ(grid->Cols(), 2);
    EXPECT_EQ(listedKeys(), us({"4"})) << "the retired computer";
    EXPECT_TRUE(selectedColumns().empty());
    EXPECT_TRUE(form->OptDel[1]->isChecked());
    EXPECT_FALSE(form->Mnu_Update->isEnabled());
    EXPECT_EQ(viewMenu().filter(u("*")), us({"*1:撤去"}));
    EXPECT_TRUE(iniSection(u("Main")).isEmpty()) << "a switch writes nothing";

    // the close box does not save the view's number ...
    form->close();
    EXPECT_TRUE(form.isNull() || form->IsUnloaded());
    EXPECT_TRUE(iniSection(u("Main")).isEmpty());
    flushDeletes();

    // ... the menu's close does
    open();
    EXPECT_EQ(viewMenu().filter(u("*")), us({"*1:撤去"}));
    form->Mnu_Close->trigger();
    EXPECT_TRUE(form.isNull() || form->IsUnloaded());
    EXPECT_EQ(iniSection(u("Main")), us({"SectionNumber=1"}));
}

} // namespace
