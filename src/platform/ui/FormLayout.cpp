#include "platform/ui/FormLayout.h"

#include "platform/ui/FlexGrid.h"
#include "platform/ui/Fonts.h"

#include <QMenuBar>
#include <QVBoxLayout>

namespace ui {

QWidget* AddClientArea(QWidget* form, QMenuBar* menuBar)
{
    auto* client = new QWidget(form);
    auto* layout = new QVBoxLayout(form);
    layout->setMenuBar(menuBar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // the window may be made as small as the user likes; the controls then stand cut off
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(client, 1);
    return client;
}

FlexGrid* AddGrid(QWidget* client, const char* name)
{
    auto* grid = new FlexGrid(client);
    grid->setObjectName(QString::fromUtf8(name));
    grid->setFont(MsGothic());
    return grid;
}

} // namespace ui
