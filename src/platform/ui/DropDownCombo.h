#pragma once

#include "platform/ui/Dispatch.h"

#include <QComboBox>

#include <functional>

namespace ui {

// A combo box with VB's DropDown event: DropDown runs (through the dispatcher) just before the
// list opens, so that a window can fill the list only when the user asks for it.
class DropDownCombo : public QComboBox {
public:
    explicit DropDownCombo(QWidget* parent = nullptr) : QComboBox(parent) {}

    std::function<void()> DropDown;

    void showPopup() override
    {
        if (DropDown)
            ui::Dispatch(DropDown);
        QComboBox::showPopup();
    }
};

} // namespace ui
