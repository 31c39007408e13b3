#pragma once

#include "platform/ui/Form.h"

#include <QPointer>

#include <functional>

namespace ui {

// The auto-created instance of a form class, as VB gave each form: the first use creates and
// loads the form, an unload ends it, and the next use creates a fresh one.
template <typename T>
class FormInstance {
public:
    FormInstance() : m_make([] { return new T(); }) {}
    explicit FormInstance(std::function<T*()> make) : m_make(std::move(make)) {}

    // The loaded form, created and loaded on first use.
    T& operator()()
    {
        if (!Loaded()) {
            m_form = m_make();
            m_form->Load();
        }
        return *m_form;
    }
    // The form when it is loaded, else nullptr; never creates one.
    T* IfLoaded() const { return Loaded() ? m_form.data() : nullptr; }
    bool Loaded() const { return m_form && !m_form->IsUnloaded(); }

private:
    std::function<T*()> m_make;
    QPointer<T> m_form;
};

} // namespace ui
