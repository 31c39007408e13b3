#include "assetlist/frm_SelectView.h"

#include "assetlist/ListQuery.h"
#include "foundation/Mdl_gData.h"
#include "foundation/mdl_ini.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FixedSize.h"
#include "platform/ui/Menus.h"
#include "platform/ui/StatusBar.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QVBoxLayout>

#include <functional>
#include <optional>

using namespace Mdl_gData;
using mdl_ini::IniWrite;

namespace {

// the window's fixed size, in twips
constexpr int kWidth = 8010;
constexpr int kHeight = 6045;

// the columns a view can choose from: rows 1 to 76 of ColumnTable
constexpr int kColumns = 76;

// A sort key combo. Its list is filled only when the user opens it (DropDown), so while the user
// has not picked in it its index is -1 and it shows the stored key's caption, as the text part
// of the combo did. The caption is drawn as the placeholder, in the colour of ordinary text.
class SortKeyCombo : public QComboBox {
public:
    explicit SortKeyCombo(QWidget* parent) : QComboBox(parent)
    {
        QPalette p = palette();
        p.setColor(QPalette::PlaceholderText, p.color(QPalette::ButtonText));
        setPalette(p);
    }

    std::function<void()> DropDown;

    void showPopup() override
    {
        if (DropDown)
            ui::Dispatch(DropDown);
        QComboBox::showPopup();
    }
};

} // namespace

frm_SelectView::frm_SelectView()
{
    setObjectName(QStringLiteral("frm_SelectView"));
    setWindowTitle(QStringLiteral("表示設定"));
    buildMenus();
    buildControls();
}

void frm_SelectView::buildMenus()
{
    MenuBar = ui::AddMenuBar(this);
    using ui::AddMenuItem;
    using ui::PaddedCaption;

    // the top-level captions are widened with ideographic blanks, as in the main window
    Mnu_File = ui::AddMenu(MenuBar, "Mnu_File", PaddedCaption("ファイル", 7));
    Mnu_Close = AddMenuItem(
        Mnu_File, "Mnu_Close", PaddedCaption("閉じる", 4), [this] { Mnu_Close_Click(); }, QKeySequence(Qt::CTRL | Qt::Key_W));

    Mnu_Edit = ui::AddMenu(MenuBar, "Mnu_Edit", PaddedCaption("編集", 8));
    Mnu_SelectAll = AddMenuItem(Mnu_Edit, "Mnu_SelectAll", "リスト全選択", [this] { Mnu_SelectAll_Click(); });
    Mnu_deSelect_All = AddMenuItem(Mnu_Edit, "Mnu_deSelect_All", "リスト全解除", [this] { Mnu_deSelect_All_Click(); });
    ui::AddMenuSeparator(Mnu_Edit, "sepalate02");
    Mnu_Update = AddMenuItem(Mnu_Edit, "Mnu_Update", "条件を適用", [this] { Mnu_Update_Click(); });

    Mnu_View = ui::AddMenu(MenuBar, "Mnu_View", PaddedCaption("表示", 9));
    Mnu_SetNameStr = AddMenuItem(Mnu_View, "Mnu_SetNameStr", "名称を変更", [this] { Mnu_SetNameStr_Click(); });
    ui::AddMenuSeparator(Mnu_View, "sepalate03");
    for (int i = 0; i <= 7; ++i) {
        QAction* a = AddMenuItem(Mnu_View, "", QString::number(i) + u':', [this, i] { Mnu_ViewSelect_Click(i); });
        ui::SetArrayName(a, "Mnu_ViewSelect", i);
        a->setCheckable(true);
        Mnu_ViewSelect[size_t(i)] = a;
    }
}

void frm_SelectView::buildControls()
{
    Lst_Select = new QListWidget(this);
    Lst_Select->setObjectName(QStringLiteral("Lst_Select"));
    // each click toggles one column in or out of the view
    Lst_Select->setSelectionMode(QAbstractItemView::MultiSelection);
    // The list raises its click for every change of the selection, the program's included: the
    // two menu commands that select or clear all mark the view changed through it.
    ui::Connect(Lst_Select, &QListWidget::itemSelectionChanged, this, [this] { Lst_Select_Click(); });

    Frame1 = new QGroupBox(QStringLiteral("表示"), this);
    Frame1->setObjectName(QStringLiteral("Frame1"));
    auto* frameLayout = new QHBoxLayout(Frame1);
    const char* const shown[] = {"設置", "撤去"};
    for (int i = 0; i <= 1; ++i) {
        auto* o = new QRadioButton(QString::fromUtf8(shown[i]), Frame1);
        ui::SetArrayName(o, "OptDel", i);
        frameLayout->addWidget(o);
        OptDel[size_t(i)] = o;
        ui::Connect(o, &QRadioButton::clicked, this, [this, i] { OptDel_Click(i); });
    }
    frameLayout->addStretch(1);

    auto* keys = new QGridLayout;
    keys->setHorizontalSpacing(8);
    keys->setVerticalSpacing(2);
    const char* const labels[] = {"最優先されるキー", "2番目に優先されるキー", "3番目に優先されるキー"};
    std::array<QLabel*, 3> keyLabels{};
    for (int i = 0; i <= 2; ++i) {
        auto* combo = new SortKeyCombo(this);
        ui::SetArrayName(combo, "cmb_Order", i);
        combo->setMaxVisibleItems(20);
        combo->DropDown = [this, i] { cmb_Order_DropDown(i); };
        cmb_Order[size_t(i)] = combo;
        ui::Connect(combo, &QComboBox::activated, this, [this, i] { cmb_Order_Click(i); });

        auto* label = new QLabel(QString::fromUtf8(labels[i]), this);
        label->setObjectName(QStringLiteral("Label%1").arg(i + 1));
        label->setBuddy(combo);
        keyLabels[size_t(i)] = label;

        auto* frame = new QGroupBox(this);
        ui::SetArrayName(frame, "Frm_ASC_DESC", i);
        auto* directions = new QHBoxLayout(frame);
        directions->setContentsMargins(6, 2, 6, 2);
        const char* const captions[] = {"昇順", "降順"};
        for (int d = 0; d <= 1; ++d) {
            const int index = 2 * i + d;
            auto* o = new QRadioButton(QString::fromUtf8(captions[d]), frame);
            ui::SetArrayName(o, "Opt_ASC_DESC", index);
            directions->addWidget(o);
            Opt_ASC_DESC[size_t(index)] = o;
            ui::Connect(o, &QRadioButton::clicked, this, [this, index] { Opt_ASC_DESC_Click(index); });
        }
        Frm_ASC_DESC[size_t(i)] = frame;

        keys->addWidget(label, 2 * i, 0, 1, 2);
        keys->addWidget(combo, 2 * i + 1, 0);
        keys->addWidget(frame, 2 * i + 1, 1);
        keys->setRowMinimumHeight(2 * i + 1, 0);
    }
    keys->setColumnStretch(0, 1);
    Label1 = keyLabels[0];
    Label2 = keyLabels[1];
    Label3 = keyLabels[2];

    auto* right = new QVBoxLayout;
    right->setSpacing(8);
    right->addWidget(Frame1);
    right->addLayout(keys);
    right->addStretch(1);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(8, 6, 8, 4);
    body->setSpacing(10);
    body->addWidget(Lst_Select, 4);
    body->addLayout(right, 5);

    StatusBar1 = new ui::StatusBar(1, this);
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(MenuBar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(body, 1);
    layout->addWidget(StatusBar1);
}

void frm_SelectView::Form_Load()
{
    ui::FixedSize::Apply(*this, kWidth, kHeight);
    for (int i = 1; i <= kColumns; ++i) {
        auto* item = new QListWidgetItem(g.ColumnTable[i].caption, Lst_Select);
        item->setData(Qt::UserRole, i);
    }
    ShowSelectedColumns();
    ShowOptDel();
    ShowSortKeys();
    ShowSortDirections();
    Mnu_Update->setEnabled(false);
    ShowViewMenu();
}

// ---------------------------------------------------------------------------------------------
// globals -> controls

void frm_SelectView::ShowSelectedColumns()
{
    Lst_Select->clearSelection();
    for (int i = 0; i <= g.SelectedColumnCount; ++i) {
        const int column = g.SelectedColumns[i];
        // A column number beyond the list, which only a hand-edited file holds, is left out; the
        // next apply drops it from the view.
        if (column > 0 && column <= Lst_Select->count())
            Lst_Select->item(column - 1)->setSelected(true);
    }
}

void frm_SelectView::ShowOptDel()
{
    // A value other than 0 or 1 (a hand-edited file lists both kinds) checks neither option; the
    // value then stays as it is until the user picks one.
    if (Mdl_gData::g.OptDel == 0 || Mdl_gData::g.OptDel == 1) {
        OptDel[size_t(Mdl_gData::g.OptDel)]->setChecked(true);
    } else {
        for (QRadioButton* o : OptDel) {
            o->setAutoExclusive(false);
            o->setChecked(false);
            o->setAutoExclusive(true);
        }
    }
}

void frm_SelectView::ShowSortKeys()
{
    // The combos show the stored keys as not picked (index -1), so that the next apply takes
    // each row's key from cmb_key, whatever the combo's list held before.
    for (int i = 0; i <= 2; ++i) {
        cmb_Order[size_t(i)]->setCurrentIndex(-1);
        cmb_Order[size_t(i)]->setPlaceholderText(g.SortKeyCaption[i]);
        cmb_key[size_t(i)] = g.SortKeyName[i];
    }
}

void frm_SelectView::ShowSortDirections()
{
    // only the keys in use; a count beyond the three rows (a hand-edited file) shows the three
    for (int i = 0; i < g.SelectNumber && i <= 2; ++i) {
        if (g.SortKeyDirection[i] == QStringLiteral("DESC"))
            Opt_ASC_DESC[size_t(2 * i + 1)]->setChecked(true);
        else
            Opt_ASC_DESC[size_t(2 * i)]->setChecked(true);
    }
}

void frm_SelectView::ShowViewMenu()
{
    for (int i = 0; i <= 7; ++i) {
        Mnu_ViewSelect[size_t(i)]->setChecked(false);
        Mnu_ViewSelect[size_t(i)]->setText(QString::number(i) + QStringLiteral(":") + g.ViewNames[i]);
    }
    if (g.SectionNumber >= 0 && g.SectionNumber <= 7)
        Mnu_ViewSelect[size_t(g.SectionNumber)]->setChecked(true);
}

// ---------------------------------------------------------------------------------------------
// controls -> globals

void frm_SelectView::ReadSelectedColumns()
{
    g.SelectedColumnCount = 0;
    for (int i = 1; i <= kColumns; ++i)
        g.SelectedColumns[i] = 0;
    // in the order of ColumnTable, whatever order the user clicked in: a view chooses columns,
    // it does not order them
    for (int i = 1; i <= kColumns; ++i) {
        if (Lst_Select->item(i - 1)->isSelected()) {
            ++g.SelectedColumnCount;
            g.SelectedColumns[g.SelectedColumnCount] = std::int16_t(i);
        }
    }
}

void frm_SelectView::ReadOptDel()
{
    if (OptDel[0]->isChecked())
        Mdl_gData::g.OptDel = 0;
    else if (OptDel[1]->isChecked())
        Mdl_gData::g.OptDel = 1;
}

void frm_SelectView::ReadSortKeys()
{
    const QString blank = QStringLiteral(" ");
    // n is the next free slot: the keys in use move to the front, without gaps
    int n = 0;
    for (int i = 0; i <= 2; ++i) {
        g.SortKeyDirection[n] = Opt_ASC_DESC[size_t(2 * i + 1)]->isChecked() ? QStringLiteral("DESC") : QStringLiteral("ASC");
        const QComboBox* combo = cmb_Order[size_t(i)];
        const int picked = combo->currentIndex();
        if (picked >= 1) {
            const int row = combo->itemData(picked).toInt();
            g.SortKeyName[n] = g.ColumnTable[row].field;
            g.SortKeyCaption[n] = g.ColumnTable[row].caption;
            cmb_key[size_t(n)] = g.ColumnTable[row].field;
            ++n;
        } else if (picked == 0) {
            // the blank item: the row's key is given up
            g.SortKeyName[n] = QString();
            g.SortKeyCaption[n] = blank;
            cmb_key[size_t(n)] = QString();
        } else if (cmb_key[size_t(i)].isEmpty()) {
            // not touched, and no key before either
            g.SortKeyName[i] = QString();
            g.SortKeyCaption[i] = blank;
        } else {
            // not touched: the row keeps the key it had
            g.SortKeyName[n] = cmb_key[size_t(i)];
            g.SortKeyCaption[n] = g.SortKeyCaption[i];
            cmb_key[size_t(n)] = cmb_key[size_t(i)];
            ++n;
        }
    }
    g.SelectNumber = std::int16_t(n);
    // The slots behind the keys in use are emptied. Their direction reads "DESC" while the
    // ascending option is set; a direction beyond SelectNumber is never read.
    for (int j = n; j <= 2; ++j) {
        g.SortKeyName[j] = QString();
        g.SortKeyCaption[j] = blank;
        cmb_key[size_t(j)] = QString();
        g.SortKeyDirection[j] = QStringLiteral("DESC");
        Opt_ASC_DESC[size_t(2 * j)]->setChecked(true);
    }
}

// ---------------------------------------------------------------------------------------------
// events

void frm_SelectView::Lst_Select_Click() { Mnu_Update->setEnabled(true); }

void frm_SelectView::OptDel_Click(int index)
{
    OptDel[size_t(index)]->setChecked(true);
    Mnu_Update->setEnabled(true);
    ShowSortKeys();
}

void frm_SelectView::Opt_ASC_DESC_Click(int) { Mnu_Update->setEnabled(true); }

void frm_SelectView::cmb_Order_Click(int) { Mnu_Update->setEnabled(true); }

void frm_SelectView::cmb_Order_DropDown(int index)
{
    // The list is made anew at each opening: a blank item to give the key up, then the columns,
    // so that a pick's index is its column number. The stored caption stays shown until a pick.
    QComboBox* combo = cmb_Order[size_t(index)];
    combo->clear();
    combo->addItem(QStringLiteral(" "), 0);
    for (int i = 1; i <= kColumns; ++i)
        combo->addItem(g.ColumnTable[i].caption, i);
    combo->setCurrentIndex(-1);
}

void frm_SelectView::Mnu_SelectAll_Click() { Lst_Select->selectAll(); }

void frm_SelectView::Mnu_deSelect_All_Click() { Lst_Select->clearSelection(); }

void frm_SelectView::Mnu_Update_Click()
{
    ReadSelectedColumns();
    ReadOptDel();
    ReadSortKeys();
    gSetSQLVal();

    // The view's section is erased first, so that no key of an earlier, longer column list
    // survives.
    const QString section = QString::number(g.SectionNumber);
    IniWrite(section, std::nullopt, std::nullopt);
    IniWrite(section, QStringLiteral("OptDel"), QString::number(Mdl_gData::g.OptDel));
    IniWrite(section, QStringLiteral("SelectNumber"), QString::number(g.SelectNumber));
    for (int i = 0; i <= 2; ++i)
        IniWrite(section, QStringLiteral("KeyName%1").arg(i), g.SortKeyName[i]);
    for (int i = 0; i <= 2; ++i)
        IniWrite(section, QStringLiteral("KeyCaption%1").arg(i), g.SortKeyCaption[i]);
    for (int i = 0; i <= 2; ++i)
        IniWrite(section, QStringLiteral("KeyASCDESC%1").arg(i), g.SortKeyDirection[i]);
    IniWrite(section, QStringLiteral("MSFlexGrit_SelectNum"), QString::number(g.SelectedColumnCount));
    for (int i = 1; i <= g.SelectedColumnCount; ++i)
        IniWrite(section, QStringLiteral("MSFlexGrit_Select%1").arg(i), QString::number(g.SelectedColumns[i]));

    IniWrite(QStringLiteral("Main"), QStringLiteral("SectionNumber"), QString::number(g.SectionNumber));
    for (int i = 0; i <= 7; ++i)
        IniWrite(QStringLiteral("Main"), QStringLiteral("SectionName%1").arg(i), g.ViewNames[i]);

    // The list is filled again without clearing its selection: row 1 is painted as selected
    // while the main window keeps the key it had.
    refreshMainList();

    ShowOptDel();
    ShowSortKeys();
    ShowSortDirections();
    Mnu_Update->setEnabled(false);
    ShowViewMenu();
}

void frm_SelectView::Mnu_SetNameStr_Click()
{
    if (g.SectionNumber < 0 || g.SectionNumber > 7)
        return;
    const QString name = ui::InputBox(QStringLiteral("項目") + QString::number(g.SectionNumber) + QStringLiteral("に名前をつけてください"),
                                      QStringLiteral("名称変更"));
    if (!name.isEmpty())
        g.ViewNames[g.SectionNumber] = name;
    // written even when the box was cancelled: the same name goes back to the file
    IniWrite(QStringLiteral("Main"), QStringLiteral("SectionName") + QString::number(g.SectionNumber), g.ViewNames[g.SectionNumber]);
    ShowViewMenu();
}

void frm_SelectView::Mnu_ViewSelect_Click(int index)
{
    // Unsaved changes are dropped in silence. The view's number reaches the file only at an
    // apply or at Mnu_Close, so the close box leaves the next start on the earlier view.
    g.SectionNumber = std::int16_t(index);
    LoadView();
    refreshMainList();

    ShowSelectedColumns();
    ShowOptDel();
    ShowSortKeys();
    ShowSortDirections();
    ShowViewMenu();
    Mnu_Update->setEnabled(false);
}

void frm_SelectView::Mnu_Close_Click()
{
    IniWrite(QStringLiteral("Main"), QStringLiteral("SectionNumber"), QString::number(g.SectionNumber));
    Unload();
}

void frm_SelectView::refreshMainList()
{
    if (g.RefillMainList)
        g.RefillMainList();
}
