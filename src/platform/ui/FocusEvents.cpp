#include "platform/ui/FocusEvents.h"

#include "platform/ui/Dispatch.h"

#include <QEvent>
#include <QWidget>

namespace ui {

FocusEvents::FocusEvents(QWidget* control, std::function<void()> gotFocus, std::function<void()> lostFocus)
    : QObject(control), m_got(std::move(gotFocus)), m_lost(std::move(lostFocus))
{
}

FocusEvents* FocusEvents::Install(QWidget* control, std::function<void()> gotFocus, std::function<void()> lostFocus)
{
    auto* f = new FocusEvents(control, std::move(gotFocus), std::move(lostFocus));
    control->installEventFilter(f);
    return f;
}

FocusEvents* FocusEvents::InstallFocusColor(QWidget* control, void (*setFocusColor)(QWidget*, std::int16_t))
{
    return Install(
        control, [control, setFocusColor] { setFocusColor(control, 1); }, [control, setFocusColor] { setFocusColor(control, 2); });
}

bool FocusEvents::eventFilter(QObject* watched, QEvent* e)
{
    if (e->type() == QEvent::FocusIn && m_got)
        Dispatch(m_got);
    else if (e->type() == QEvent::FocusOut && m_lost)
        Dispatch(m_lost);
    return QObject::eventFilter(watched, e);
}

} // namespace ui
