#pragma once

#include <QKeySequence>
#include <QString>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

// A form's menu as the form designer made it: a bar inside the window (never the desktop's
// global one), menus and items that carry their control names as object names, so that tests
// and the dispatcher find them by name.
namespace ui {

QMenuBar* AddMenuBar(QWidget* form);
QMenu* AddMenu(QMenuBar* bar, const char* name, const QString& caption);
QAction* AddMenuItem(QMenu* menu, const char* name, const QString& caption, const QKeySequence& shortcut = {});
void AddMenuSeparator(QMenu* menu, const char* name);

// A caption widened by blanks behind it; the top-level captions use ideographic ones.
QString PaddedCaption(const QString& caption, int blanks, QChar blank = QChar(0x3000));

} // namespace ui
