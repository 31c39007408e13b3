#pragma once

#include <QListWidget>

namespace ui {

// VB's ListBox events on a list widget: Click is emitted when an entry is clicked (also the one
// already chosen), or when the keys move to another entry; filling the list, or giving it the
// focus, is no click.
class ListBox : public QListWidget {
    Q_OBJECT

public:
    explicit ListBox(QWidget* parent = nullptr);

Q_SIGNALS:
    void Click();

protected:
    void keyPressEvent(QKeyEvent* e) override;
};

} // namespace ui
