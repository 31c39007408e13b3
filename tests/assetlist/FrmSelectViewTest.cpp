#include "AssetListFixture.h"

#include "assetlist/frm_SelectView.h"
#include "platform/text/Cp932.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QRadioButton>
#include <QTest>

#include <set>

using namespace Mdl_gData;

namespace {

class FrmSelectView : public AssetListFixture {
protected:
    void SetUp() override
    {
        AssetListFixture::SetUp();
        list->FGridViewSelect_ini();
        for (int i = 0; i <= 7; ++i)
            ViewNames[i] = QStringLiteral(" ");
        // three installed computers and a retired one, all on the code-0 masters
        computer(1, 0, 0, QStringLiteral("Computer_Name = 'PC-A', Workgroup = 'W3'"));
        computer(2, 0, 0, QStringLiteral("Computer_Name = 'PC-C', Workgroup = 'W1'"));
        computer(3, 0, 0, QStringLiteral("Computer_Name = 'PC-B', Workgroup = 'W2'"));
        computer(4, 1, 0, QStringLiteral("Computer_Name = 'PC-X'"));
    }
    void TearDown() override
    {
        delete form.data();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        AssetListFixture::TearDown();
    }

    // The window as the main window opens it: modal, over the view in memory.
    frm_SelectView& open()
    {
        form = new frm_SelectView;
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
    QStringList headings() const
    {
        QStringList out;
        for (int c = 2; c < grid->Cols(); ++c)
            out << grid->TextMatrix(0, c);
        return out;
    }
    QStringList listedKeys() const
    {
        QStringList out;
        for (int r = 1; r < grid->Rows(); ++r)
            out << grid->TextMatrix(r, 1);
        return out;
    }

    QPointer<frm_SelectView> form;
};

TEST_F(FrmSelectView, OpensOnTheCurrentViewAtItsFixedSize)
{
    writeView(2, {{QStringLiteral("OptDel"), QStringLiteral("1")},
                  {QStringLiteral("SelectNumber"), QStringLiteral("2")},
                  {QStringLiteral("KeyName0"), QStringLiteral("Computer_Name")},
                  {QStringLiteral("KeyCaption0"), QStringLiteral("コンピュータ名")},
                  {QStringLiteral("KeyASCDESC0"), QStringLiteral("DESC")},
                  {QStringLiteral("KeyName1"), QStringLiteral("ipaddress")},
                  {QStringLiteral("KeyCaption1"), QStringLiteral("IPアドレス")},
                  {QStringLiteral("KeyASCDESC1"), QStringLiteral("ASC")},
                  {QStringLiteral("MSFlexGrit_SelectNum"), QStringLiteral("3")},
                  {QStringLiteral("MSFlexGrit_Select1"), QStringLiteral("3")},
                  {QStringLiteral("MSFlexGrit_Select2"), QStringLiteral("8")},
                  {QStringLiteral("MSFlexGrit_Select3"), QStringLiteral("76")}});
    SectionNumber = 2;
    ViewNames[0] = QStringLiteral("全体");
    ViewNames[2] = QStringLiteral("撤去分");
    mdl_ini::LoadViewSettings();

    frm_SelectView& f = open();
    EXPECT_EQ(f.windowTitle(), QStringLiteral("表示設定"));
    EXPECT_TRUE(f.isModal());
    EXPECT_EQ(f.Width(), 8010);
    EXPECT_EQ(f.Height(), 6045);
    f.resize(f.width() + 200, f.height() + 100);
    EXPECT_EQ(f.Width(), 8010) << "the size is fixed";
    EXPECT_EQ(f.Height(), 6045);

    // the 76 columns a view can show, each with its number
    ASSERT_EQ(f.Lst_Select->count(), 76);
    for (int i = 1; i <= 76; ++i) {
        EXPECT_EQ(f.Lst_Select->item(i - 1)->text(), ColumnTable[i].caption) << i;
        EXPECT_EQ(f.Lst_Select->item(i - 1)->data(Qt::UserRole).toInt(), i);
    }
    EXPECT_EQ(selectedColumns(), (std::set<int>{3, 8, 76}));
    EXPECT_TRUE(f.OptDel[1]->isChecked());
    EXPECT_FALSE(f.OptDel[0]->isChecked());

    // the combos are empty until opened, showing the stored keys' captions
    EXPECT_EQ(placeholders(), (QStringList{QStringLiteral("コンピュータ名"), QStringLiteral("IPアドレス"), QString()}));
    for (const QComboBox* c : f.cmb_Order)
        EXPECT_EQ(c->count(), 0);
    EXPECT_EQ(f.cmb_key[0], QStringLiteral("Computer_Name"));
    EXPECT_EQ(f.cmb_key[1], QStringLiteral("ipaddress"));
    EXPECT_EQ(f.cmb_key[2], QString());
    EXPECT_EQ(checkedDirections(), (std::vector<int>{1, 2}));

    EXPECT_FALSE(f.Mnu_Update->isEnabled()) << "nothing changed yet";
    EXPECT_EQ(viewMenu(), (QStringList{QStringLiteral("0:全体"), QStringLiteral("1: "), QStringLiteral("*2:撤去分"),
                                       QStringLiteral("3: "), QStringLiteral("4: "), QStringLiteral("5: "),
                                       QStringLiteral("6: "), QStringLiteral("7: ")}));
    EXPECT_EQ(f.Mnu_Close->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_W));
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(FrmSelectView, ApplyingRewritesTheViewsSectionAndRefillsTheMainList)
{
    // an earlier, longer view with a key nobody writes any more
    writeColumns(0, {1, 2, 3, 4, 5});
    writeView(0, {{QStringLiteral("Stale"), QStringLiteral("x")}});
    ViewNames[0] = QStringLiteral("標準");
    ASSERT_TRUE(loadList());
    ASSERT_EQ(grid->Cols(), 7);
    list->CurrentMainKey = 5;   // what the main window had selected before

    open();
    form->Mnu_deSelect_All->trigger();
    // the user clicks the last column first: the view keeps the table's order
    clickColumn(76);
    clickColumn(8);
    pick(0, 0);   // the first row's key given up
    pick(1, 8);   // コンピュータ名
    form->Opt_ASC_DESC[3]->click();
    ASSERT_TRUE(form->Mnu_Update->isEnabled());
    form->Mnu_Update->trigger();

    const QStringList expected{
        QStringLiteral("OptDel=0"),
        QStringLiteral("SelectNumber=1"),
        QStringLiteral("KeyName0=Computer_Name"),
        QStringLiteral("KeyName1="),
        QStringLiteral("KeyName2="),
        QStringLiteral("KeyCaption0=コンピュータ名"),
        QStringLiteral("KeyCaption1="),
        QStringLiteral("KeyCaption2="),
        QStringLiteral("KeyASCDESC0=DESC"),
        QStringLiteral("KeyASCDESC1=DESC"),
        QStringLiteral("KeyASCDESC2=DESC"),
        QStringLiteral("MSFlexGrit_SelectNum=2"),
        QStringLiteral("MSFlexGrit_Select1=8"),
        QStringLiteral("MSFlexGrit_Select2=76"),
    };
    EXPECT_EQ(iniSection(QStringLiteral("0")), expected) << "no key of the earlier view survives";
    EXPECT_EQ(iniSection(QStringLiteral("Main")),
              (QStringList{QStringLiteral("SectionNumber=0"), QStringLiteral("SectionName0=標準"),
                           QStringLiteral("SectionName1="), QStringLiteral("SectionName2="), QStringLiteral("SectionName3="),
                           QStringLiteral("SectionName4="), QStringLiteral("SectionName5="), QStringLiteral("SectionName6="),
                           QStringLiteral("SectionName7=")}));

    // the main list follows at once, installed computers by name, descending
    EXPECT_EQ(headings(), (QStringList{QStringLiteral("コンピュータ名"), QStringLiteral("コメント")}));
    EXPECT_EQ(listedKeys(), (QStringList{QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("1")}));
    // the refresh leaves row 1 painted as selected and the main window's key as it was
    EXPECT_EQ(back(1, 1), gray());
    EXPECT_EQ(list->CurrentMainKey, 5);

    // the window shows what was saved and is clean again
    EXPECT_FALSE(form->Mnu_Update->isEnabled());
    EXPECT_EQ(placeholders(), (QStringList{QStringLiteral("コンピュータ名"), QStringLiteral(" "), QStringLiteral(" ")}));
    EXPECT_EQ(checkedDirections(), (std::vector<int>{1, 2, 4}));

    // applying again with nothing changed in the sort rows writes the same section
    form->OptDel[0]->click();
    form->Mnu_Update->trigger();
    EXPECT_EQ(iniSection(QStringLiteral("0")), expected);
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(FrmSelectView, SortKeysMoveUpOverRowsGivenUpAndUntouchedRowsKeepTheirKeys)
{
    writeView(0, {{QStringLiteral("SelectNumber"), QStringLiteral("3")},
                  {QStringLiteral("KeyName0"), QStringLiteral("Location_Name")},
                  {QStringLiteral("KeyCaption0"), QStringLiteral("設置場所")},
                  {QStringLiteral("KeyASCDESC0"), QStringLiteral("ASC")},
                  {QStringLiteral("KeyName1"), QStringLiteral("Computer_Name")},
                  {QStringLiteral("KeyCaption1"), QStringLiteral("コンピュータ名")},
                  {QStringLiteral("KeyASCDESC1"), QStringLiteral("DESC")},
                  {QStringLiteral("KeyName2"), QStringLiteral("ipaddress")},
                  {QStringLiteral("KeyCaption2"), QStringLiteral("IPアドレス")},
                  {QStringLiteral("KeyASCDESC2"), QStringLiteral("ASC")}});
    loadList();
    open();
    pick(0, 0);   // given up
    // row 1 untouched: its key moves to the front with its direction
    pick(2, 9);   // ワークグループ
    form->Opt_ASC_DESC[5]->click();
    form->Mnu_Update->trigger();

    EXPECT_EQ(SelectNumber, 2);
    EXPECT_EQ(SortKeyName[0], QStringLiteral("Computer_Name"));
    EXPECT_EQ(SortKeyCaption[0], QStringLiteral("コンピュータ名"));
    EXPECT_EQ(SortKeyDirection[0], QStringLiteral("DESC"));
    EXPECT_EQ(SortKeyName[1], QStringLiteral("Workgroup"));
    EXPECT_EQ(SortKeyCaption[1], QStringLiteral("ワークグループ"));
    EXPECT_EQ(SortKeyDirection[1], QStringLiteral("DESC"));
    EXPECT_EQ(SortKeyName[2], QString());
    EXPECT_TRUE(ListSql.endsWith(QStringLiteral(" ORDER BY Computer_Name DESC,Workgroup DESC;"))) << ListSql.toStdString();
    EXPECT_EQ(placeholders(), (QStringList{QStringLiteral("コンピュータ名"), QStringLiteral("ワークグループ"), QStringLiteral(" ")}));
    EXPECT_EQ(checkedDirections(), (std::vector<int>{1, 3, 4}));
    EXPECT_EQ(listedKeys(), (QStringList{QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("1")}));

    // Two columns share the caption "パスワード"; the one picked is the one that stays, through
    // later applies that leave the row alone.
    pick(2, 51);
    form->Mnu_Update->trigger();
    form->OptDel[0]->click();
    form->Mnu_Update->trigger();
    EXPECT_EQ(SelectNumber, 3);
    EXPECT_EQ(SortKeyName[2], QStringLiteral("UserPassword"));
    EXPECT_TRUE(iniSection(QStringLiteral("0")).contains(QStringLiteral("KeyName2=UserPassword")));
}

TEST_F(FrmSelectView, SwitchingLoadsAViewAndRefreshesTheListButOnlyTheMenuSavesItsNumber)
{
    writeColumns(0, {8});
    writeView(1, {{QStringLiteral("OptDel"), QStringLiteral("1")}, {QStringLiteral("MSFlexGrit_SelectNum"), QStringLiteral("0")}});
    ViewNames[0] = QStringLiteral("標準");
    ViewNames[1] = QStringLiteral("撤去");
    ASSERT_TRUE(loadList());
    ASSERT_EQ(listedKeys().size(), 3);

    open();
    clickColumn(10);   // a change the switch drops in silence
    ASSERT_TRUE(form->Mnu_Update->isEnabled());
    form->Mnu_ViewSelect[1]->trigger();

    EXPECT_EQ(SectionNumber, 1);
    // no column chosen: the list has its row numbers and the hidden key only
    EXPECT_EQ(grid->Cols(), 2);
    EXPECT_EQ(listedKeys(), QStringList{QStringLiteral("4")}) << "the retired computer";
    EXPECT_TRUE(selectedColumns().empty());
    EXPECT_TRUE(form->OptDel[1]->isChecked());
    EXPECT_FALSE(form->Mnu_Update->isEnabled());
    EXPECT_EQ(viewMenu().filter(QStringLiteral("*")), QStringList{QStringLiteral("*1:撤去")});
    EXPECT_TRUE(iniSection(QStringLiteral("Main")).isEmpty()) << "a switch writes nothing";

    // the close box does not save the view's number ...
    form->close();
    EXPECT_TRUE(form.isNull() || form->IsUnloaded());
    EXPECT_TRUE(iniSection(QStringLiteral("Main")).isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    // ... the menu's close does
    open();
    EXPECT_EQ(viewMenu().filter(QStringLiteral("*")), QStringList{QStringLiteral("*1:撤去")});
    form->Mnu_Close->trigger();
    EXPECT_TRUE(form.isNull() || form->IsUnloaded());
    EXPECT_EQ(iniSection(QStringLiteral("Main")), QStringList{QStringLiteral("SectionNumber=1")});
}

TEST_F(FrmSelectView, NamingAViewWritesItsNameEvenWhenTheBoxIsCancelled)
{
    SectionNumber = 3;
    ViewNames[3] = QStringLiteral("旧名");
    open();
    dialogs.answerInput(QStringLiteral("新しい名前"));
    form->Mnu_SetNameStr->trigger();

    ASSERT_EQ(dialogs.calls().size(), 1u);
    EXPECT_EQ(dialogs.calls()[0].kind, ScriptedDialogs::Call::Input);
    EXPECT_EQ(dialogs.calls()[0].prompt, QStringLiteral("項目3に名前をつけてください"));
    EXPECT_EQ(dialogs.calls()[0].title, QStringLiteral("名称変更"));
    EXPECT_EQ(ViewNames[3], QStringLiteral("新しい名前"));
    EXPECT_EQ(form->Mnu_ViewSelect[3]->text(), QStringLiteral("3:新しい名前"));
    EXPECT_EQ(iniSection(QStringLiteral("Main")), QStringList{QStringLiteral("SectionName3=新しい名前")});
    EXPECT_FALSE(form->Mnu_Update->isEnabled()) << "a name is saved at once, not a change of the view";

    mdl_ini::IniWrite(QStringLiteral("Main"), QStringLiteral("SectionName3"), std::nullopt);
    dialogs.answerInput(std::nullopt);
    form->Mnu_SetNameStr->trigger();
    EXPECT_EQ(ViewNames[3], QStringLiteral("新しい名前"));
    EXPECT_EQ(iniSection(QStringLiteral("Main")), QStringList{QStringLiteral("SectionName3=新しい名前")});
}

TEST_F(FrmSelectView, EveryChangeOfTheControlsEnablesApplyingAndNothingElseDoes)
{
    writeView(0, {{QStringLiteral("SelectNumber"), QStringLiteral("1")},
                  {QStringLiteral("KeyName0"), QStringLiteral("Computer_Name")},
                  {QStringLiteral("KeyCaption0"), QStringLiteral("コンピュータ名")}});
    loadList();
    frm_SelectView& f = open();
    // whether the step marked the view changed; the mark is taken off again for the next step
    const auto marks = [&f](const std::function<void()>& step) {
        step();
        const bool on = f.Mnu_Update->isEnabled();
        f.Mnu_Update->setEnabled(false);
        return on;
    };

    EXPECT_TRUE(marks([&] { f.Mnu_SelectAll->trigger(); }));
    EXPECT_EQ(selectedColumns().size(), 76u);
    EXPECT_TRUE(marks([&] { f.Mnu_deSelect_All->trigger(); }));
    EXPECT_TRUE(selectedColumns().empty());
    EXPECT_TRUE(marks([&] { clickColumn(12); }));
    EXPECT_TRUE(marks([&] { pick(0, 20); }));
    EXPECT_TRUE(marks([&] { f.Opt_ASC_DESC[2]->click(); }));
    EXPECT_FALSE(marks([&] {
        f.cmb_Order[1]->showPopup();
        f.cmb_Order[1]->hidePopup();
    })) << "opening a combo without a pick";
    EXPECT_EQ(f.cmb_Order[1]->count(), 77) << "the blank item and the 76 columns";
    EXPECT_EQ(f.cmb_Order[1]->itemText(51), QStringLiteral("パスワード"));
    EXPECT_EQ(f.cmb_Order[1]->itemData(51).toInt(), 51);

    // choosing installed or removed computers shows the saved sort keys again
    EXPECT_TRUE(marks([&] { f.OptDel[1]->click(); }));
    EXPECT_EQ(placeholders(), (QStringList{QStringLiteral("コンピュータ名"), QString(), QString()}));
    EXPECT_EQ(f.cmb_key[0], QStringLiteral("Computer_Name"));
}

} // namespace
