#include "platform/ui/KeyPressFilter.h"

#include "platform/vb/Like.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

namespace ui {

KeyPressFilter::KeyPressFilter(QObject* control, QString pattern) : QObject(control), m_pattern(std::move(pattern)) {}

KeyPressFilter* KeyPressFilter::Install(QObject* control, const QString& pattern)
{
    auto* filter = new KeyPressFilter(control, pattern);
    control->installEventFilter(filter);
    return filter;
}

bool KeyPressFilter::Passes(QChar c) const { return c == QChar(8) || vb::Like(QString(c), m_pattern); }

bool KeyPressFilter::eventFilter(QObject* watched, QEvent* e)
{
    if (e->type() == QEvent::KeyPress) {
        const auto* k = static_cast<QKeyEvent*>(e);
        if (k->key() == Qt::Key_Backspace || k->key() == Qt::Key_Tab || k->key() == Qt::Key_Backtab)
            return false;
        if (k->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return false;
        const QString text = k->text();
        if (text.isEmpty())
            return false;
        for (QChar c : text)
            if (!Passes(c))
                return true;
        return false;
    }
    if (e->type() == QEvent::InputMethod) {
        auto* im = static_cast<QInputMethodEvent*>(e);
        const QString commit = im->commitString();
        QString kept;
        for (QChar c : commit)
            if (Passes(c))
                kept += c;
        if (kept == commit)
            return false;
        QInputMethodEvent filtered(im->preeditString(), im->attributes());
        filtered.setCommitString(kept, im->replacementStart(), im->replacementLength());
        QCoreApplication::sendEvent(watched, &filtered);
        return true;
    }
    return QObject::eventFilter(watched, e);
}

} // namespace ui
