#include "platform/ui/Menus.h"

#include "platform/ui/Dispatch.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace ui {

QMenuBar* AddMenuBar(QWidget* form)
{
    auto* bar = new QMenuBar(form);
    bar->setObjectName(QStringLiteral("MenuBar"));
    bar->setNativeMenuBar(false);
    return bar;
}

QMenu* AddMenu(QMenuBar* bar, const char* name, const QString& caption)
{
    QMenu* menu = bar->addMenu(caption);
    menu->setObjectName(QString::fromUtf8(name));
    return menu;
}

QAction* AddMenuItem(QMenu* menu, const char* name, const QString& caption, std::function<void()> click, const QKeySequence& shortcut)
{
    QAction* item = menu->addAction(caption);
    item->setObjectName(QString::fromUtf8(name));
    item->setShortcut(shortcut);
    if (click)
        Connect(item, &QAction::triggered, item, std::move(click));
    return item;
}

void AddMenuSeparator(QMenu* menu, const char* name) { menu->addSeparator()->setObjectName(QString::fromUtf8(name)); }

QString PaddedCaption(const QString& caption, int blanks, QChar blank) { return caption + QString(blanks, blank); }

void SetArrayName(QObject* control, const char* name, int index)
{
    control->setObjectName(QString::fromUtf8(name) + u'_' + QString::number(index));
}

} // namespace ui
