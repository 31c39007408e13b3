#include "platform/ui/ListBox.h"

namespace ui {

ListBox::ListBox(QWidget* parent) : QListWidget(parent) { connect(this, &QListWidget::itemClicked, this, &ListBox::Click); }

void ListBox::keyPressEvent(QKeyEvent* e)
{
    const int before = currentRow();
    QListWidget::keyPressEvent(e);
    if (currentRow() >= 0 && currentRow() != before)
        Q_EMIT Click();
}

} // namespace ui
