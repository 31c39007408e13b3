#pragma once

#include <QObject>

#include <cstdint>
#include <functional>

class QWidget;

namespace ui {

// A control's GotFocus and LostFocus events, delivered through ui::Dispatch.
class FocusEvents : public QObject {
    Q_OBJECT

public:
    static FocusEvents* Install(QWidget* control, std::function<void()> gotFocus, std::function<void()> lostFocus);

    // The focus highlight of a data-entry control: the routine is called with mode 1 when the
    // control gets the focus and with mode 2 when it loses it (Mdl_Sub::SetFocusColor).
    static FocusEvents* InstallFocusColor(QWidget* control, void (*setFocusColor)(QWidget*, std::int16_t));

protected:
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    FocusEvents(QWidget* control, std::function<void()> gotFocus, std::function<void()> lostFocus);
    std::function<void()> m_got;
    std::function<void()> m_lost;
};

} // namespace ui
