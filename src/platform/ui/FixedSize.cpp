#include "platform/ui/FixedSize.h"

#include "platform/ui/Form.h"
#include "platform/ui/Twips.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

namespace ui {

FixedSize::FixedSize(Form& form, int widthTwips, int heightTwips) : QObject(&form), m_form(form), m_width(widthTwips), m_height(heightTwips)
{
}

FixedSize* FixedSize::Apply(Form& form, int widthTwips, int heightTwips)
{
    auto* rule = new FixedSize(form, widthTwips, heightTwips);
    form.SetWidth(widthTwips);
    form.SetHeight(heightTwips);
    QSize screen(0, 0);
    if (const QScreen* s = QGuiApplication::primaryScreen())
        screen = s->geometry().size();
    form.SetTop((PixelsToTwips(screen.height()) - form.Height()) / 2);
    form.SetLeft((PixelsToTwips(screen.width()) - form.Width()) / 2);
    form.installEventFilter(rule);
    return rule;
}

void FixedSize::restore()
{
    switch (m_form.WindowState()) {
    case vbMaximized: m_form.SetWindowState(vbNormal); break;
    case vbMinimized: break;
    default:
        if (m_form.Width() != m_width)
            m_form.SetWidth(m_width);
        if (m_form.Height() != m_height)
            m_form.SetHeight(m_height);
        break;
    }
}

bool FixedSize::eventFilter(QObject* watched, QEvent* e)
{
    if (watched == &m_form && (e->type() == QEvent::Resize || e->type() == QEvent::WindowStateChange))
        restore();
    return QObject::eventFilter(watched, e);
}

} // namespace ui
