#include "platform/ui/Form.h"

#include "platform/ui/Dispatch.h"
#include "platform/ui/Twips.h"
#include "platform/vb/VbError.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace ui {

namespace {
std::vector<Form*>& loadedForms()
{
    static std::vector<Form*> forms;
    return forms;
}
void forget(Form* f)
{
    auto& forms = loadedForms();
    forms.erase(std::remove(forms.begin(), forms.end(), f), forms.end());
}
bool g_modalLoop = true;
} // namespace

QList<Form*> Forms()
{
    QList<Form*> out;
    for (Form* f : loadedForms())
        out << f;
    return out;
}

void SetModalLoop(bool run) { g_modalLoop = run; }
bool ModalLoop() { return g_modalLoop; }

Form::Form(QWidget* parent) : QWidget(parent, Qt::Window) {}

Form::~Form() { forget(this); }

void Form::Load()
{
    if (m_loaded || m_loading)
        return;
    m_loading = true;
    try {
        Form_Load();
    } catch (...) {
        m_loading = false;
        throw;
    }
    m_loading = false;
    m_loaded = true;
    // a Form_Load that unloaded its own form leaves it out of the collection
    if (!m_unloaded)
        loadedForms().push_back(this);
}

void Form::Show(int modal)
{
    Load();
    if (m_unloaded)
        return;
    if (modal == vbModal) {
        if (isVisible())
            throw vb::VbError::FormAlreadyShown();
        setWindowModality(Qt::ApplicationModal);
    } else if (!isVisible()) {
        setWindowModality(Qt::NonModal);
    }
    show();
    raise();
    activateWindow();
    if (modal != vbModal || !g_modalLoop)
        return;
    QEventLoop loop;
    QPointer<Form> self(this);
    connect(this, &Form::Hidden, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    if (isVisible())
        loop.exec(QEventLoop::DialogExec);
}

void Form::Hide() { hide(); }

bool Form::Unload(int unloadMode)
{
    if (m_unloading || m_unloaded)
        return m_unloaded;
    m_unloading = true;
    int cancel = 0;
    try {
        Form_QueryUnload(cancel, unloadMode);
        if (!cancel)
            Form_Unload(cancel);
    } catch (...) {
        m_unloading = false;
        throw;
    }
    m_unloading = false;
    if (cancel)
        return false;
    m_unloaded = true;
    forget(this);
    hide();
    Q_EMIT Unloaded();
    deleteLater();
    return true;
}

int Form::frameExtraWidth() const { return frameGeometry().width() - width(); }
int Form::frameExtraHeight() const { return frameGeometry().height() - height(); }
bool Form::framed() const { return frameExtraWidth() > 0 || frameExtraHeight() > 0; }

int Form::Left() const { return PixelsToTwips(x()); }
int Form::Top() const { return PixelsToTwips(y()); }
int Form::Width() const { return PixelsToTwips(frameGeometry().width()); }
int Form::Height() const { return PixelsToTwips(frameGeometry().height()); }

void Form::SetLeft(int twips) { move(TwipsToPixels(twips), y()); }
void Form::SetTop(int twips) { move(x(), TwipsToPixels(twips)); }
void Form::SetWidth(int twips)
{
    m_unframedWidth = framed() ? 0 : twips;
    resize(qMax(0, TwipsToPixels(twips) - frameExtraWidth()), height());
}

void Form::SetHeight(int twips)
{
    m_unframedHeight = framed() ? 0 : twips;
    resize(width(), qMax(0, TwipsToPixels(twips) - frameExtraHeight()));
}

void Form::applyUnframedSize()
{
    // The window manager has just put its frame round the window (Qt learns the frame's size
    // with the move that follows): the size set before counted the frame as nothing.
    if (!framed() || (m_unframedWidth == 0 && m_unframedHeight == 0))
        return;
    if (m_unframedWidth > 0)
        SetWidth(m_unframedWidth);
    if (m_unframedHeight > 0)
        SetHeight(m_unframedHeight);
}

int Form::WindowState() const
{
    const Qt::WindowStates s = windowState();
    if (s & Qt::WindowMinimized)
        return vbMinimized;
    if (s & Qt::WindowMaximized)
        return vbMaximized;
    return vbNormal;
}

void Form::SetWindowState(int state)
{
    switch (state) {
    case vbMinimized: setWindowState(Qt::WindowMinimized); break;
    case vbMaximized: setWindowState(Qt::WindowMaximized); break;
    default: setWindowState(Qt::WindowNoState); break;
    }
}

bool Form::event(QEvent* e)
{
    if (e->type() == QEvent::Move || e->type() == QEvent::Resize)
        applyUnframedSize();
    if (e->type() == QEvent::WindowDeactivate && IsLoaded())
        Dispatch([this] { Form_LostFocus(); });
    return QWidget::event(e);
}

void Form::closeEvent(QCloseEvent* e)
{
    // The close box asks Form_QueryUnload with mode 0; the form goes only through Unload.
    e->ignore();
    if (!m_unloaded)
        Dispatch([this] { Unload(vbFormControlMenu); });
}

void Form::resizeEvent(QResizeEvent* e)
{
    QWidget::resizeEvent(e);
    if (IsLoaded())
        Dispatch([this] { Form_Resize(); });
}

void Form::hideEvent(QHideEvent* e)
{
    QWidget::hideEvent(e);
    if (!e->spontaneous())
        Q_EMIT Hidden();
}

} // namespace ui
