#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace ui {

// Show's modality, QueryUnload's unload modes and WindowState, with VB's numbers.
enum FormShowConstants { vbModeless = 0, vbModal = 1 };
enum QueryUnloadConstants { vbFormControlMenu = 0, vbFormCode = 1, vbAppWindows = 2, vbAppTaskManager = 3 };
enum FormWindowStateConstants { vbNormal = 0, vbMinimized = 1, vbMaximized = 2 };

// A window with a VB form's life: loaded once (Form_Load), shown modeless or modal, unloaded by
// Unload or by its close box (Form_QueryUnload with the unload mode, then Form_Unload; either may
// cancel), and destroyed after the unload. Its place and size are read and set in twips of the
// outer window, as Left, Top, Width and Height were. The frame is known only once the window
// manager has framed the window: a width or height set before that is set again, frame
// allowed for, when the frame is first known, so that the outer window has the size asked for.
// Every event reaches the handlers through ui::Dispatch.
//
// A modal Show runs a loop of its own until the window is hidden or unloaded. With the modal
// loop turned off (SetModalLoop(false), as the tests do) it shows the window application-modal
// and returns at once, so that a test drives the window and closes it itself.
class Form : public QWidget {
    Q_OBJECT

public:
    explicit Form(QWidget* parent = nullptr);
    ~Form() override;

    // Runs Form_Load the first time and then puts the form into the Forms collection. An error in
    // Form_Load goes to the caller, as it went to the code that loaded the form, and leaves the
    // form not loaded: the next Load runs Form_Load again.
    void Load();
    bool IsLoaded() const { return m_loaded && !m_unloaded; }
    bool IsUnloaded() const { return m_unloaded; }

    // Loads the form if needed and shows it. A modal Show of a window already shown modeless
    // raises error 400.
    void Show(int modal = vbModeless);
    void Hide();
    // True when the form was unloaded, false when a handler cancelled.
    bool Unload(int unloadMode = vbFormCode);

    int Left() const;
    int Top() const;
    int Width() const;
    int Height() const;
    void SetLeft(int twips);
    void SetTop(int twips);
    void SetWidth(int twips);
    void SetHeight(int twips);
    int WindowState() const;
    void SetWindowState(int state);

Q_SIGNALS:
    // The form was unloaded; it is deleted once control returns to the event loop.
    void Unloaded();
    // The form was hidden by the program (not by minimising).
    void Hidden();

protected:
    virtual void Form_Load() {}
    virtual void Form_Resize() {}
    // The window lost the focus to another window.
    virtual void Form_LostFocus() {}
    virtual void Form_QueryUnload(int& cancel, int unloadMode) {}
    virtual void Form_Unload(int& cancel) {}

    bool event(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void hideEvent(QHideEvent* e) override;

private:
    int frameExtraWidth() const;
    int frameExtraHeight() const;
    bool framed() const;
    void applyUnframedSize();

    // Width and Height in twips set while the window had no frame yet; 0 when none waits.
    int m_unframedWidth = 0;
    int m_unframedHeight = 0;

    bool m_loading = false;
    bool m_loaded = false;
    bool m_unloading = false;
    bool m_unloaded = false;
};

// A form class that owns its one instance, as VB gave each form class one: Instance() creates and
// loads it on first use, from any window; an unload ends it, and the next use creates a fresh one.
// A Form_Load that fails leaves no instance behind. Declared as
//     class frm_X : public ui::SingleForm<frm_X> { Q_OBJECT ... };
template <typename T> class SingleForm : public Form {
public:
    using Form::Form;

    static T& Instance()
    {
        QPointer<T>& form = slot();
        if (!form || form->IsUnloaded()) {
            auto* made = new T();
            form = made;
            try {
                made->Load();
            } catch (...) {
                form = nullptr;
                delete made;
                throw;
            }
        }
        return *form;
    }
    // The instance when it is loaded, else nullptr; never creates one.
    static T* IfLoaded()
    {
        const QPointer<T>& form = slot();
        return form && form->IsLoaded() ? form.data() : nullptr;
    }

private:
    static QPointer<T>& slot()
    {
        static QPointer<T> form;
        return form;
    }
};

// The loaded forms, in the order they were loaded (VB's Forms collection).
QList<Form*> Forms();

// Whether a modal Show runs its own loop (the program) or returns at once (tests).
void SetModalLoop(bool run);
bool ModalLoop();

} // namespace ui
