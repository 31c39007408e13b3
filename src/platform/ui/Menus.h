#pragma once

#include <QKeySequence>
#include <QString>

#include <functional>

class QAction;
class QMenu;
class QMenuBar;
class QObject;
class QWidget;

// A form's menu as the form designer made it: a bar inside the window (never the desktop's
// global one), menus and items that carry their control names as object names, so that tests
// and the dispatcher find them by name. An item's click runs its handler through ui::Dispatch.
namespace ui {

QMenuBar* AddMenuBar(QWidget* form);
QMenu* AddMenu(QMenuBar* bar, const char* name, const QString& caption);
QAction* AddMenuItem(QMenu* menu, const char* name, const QString& caption, std::function<void()> click = {},
                     const QKeySequence& shortcut = {});
void AddMenuSeparator(QMenu* menu, const char* name);

// A caption widened by blanks behind it; the top-level captions use ideographic ones.
QString PaddedCaption(const QString& caption, int blanks, QChar blank = QChar(0x3000));

// A member of a VB control array: the members share the array's name and differ by Index, so
// each carries "name_index" as its object name (tbx_Dat_3, Mnu_Edit_Table_1).
void SetArrayName(QObject* control, const char* name, int index);

} // namespace ui
