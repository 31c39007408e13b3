#include "support/ScriptedDialogs.h"

ScriptedDialogs::ScriptedDialogs() { ui::SetDialogs(this); }

ScriptedDialogs::~ScriptedDialogs() { ui::SetDialogs(nullptr); }

ScriptedDialogs& ScriptedDialogs::answerMessage(int result)
{
    m_messages.push_back(result);
    return *this;
}

ScriptedDialogs& ScriptedDialogs::answerInput(const std::optional<QString>& text)
{
    m_inputs.push_back(text);
    return *this;
}

ScriptedDialogs& ScriptedDialogs::answerFile(const std::optional<QString>& path)
{
    m_files.push_back(path);
    return *this;
}

ScriptedDialogs& ScriptedDialogs::answerPrinter(bool confirmed)
{
    m_printers.push_back(confirmed);
    return *this;
}

std::vector<ScriptedDialogs::Call> ScriptedDialogs::messages() const
{
    std::vector<Call> out;
    for (const Call& c : m_calls)
        if (c.kind == Call::Message)
            out.push_back(c);
    return out;
}

QStringList ScriptedDialogs::messageTexts() const
{
    QStringList out;
    for (const Call& c : m_calls)
        if (c.kind == Call::Message)
            out << c.prompt;
    return out;
}

std::vector<long> ScriptedDialogs::errorBoxes() const
{
    std::vector<long> out;
    for (const Call& c : messages()) {
        const qsizetype a = c.prompt.indexOf(QStringLiteral("（エラーコード：")) + 8;
        if (c.title == QStringLiteral("警告") && a >= 8)
            out.push_back(c.prompt.mid(a, c.prompt.indexOf(QStringLiteral("）"), a) - a).toLong());
    }
    return out;
}

int ScriptedDialogs::MessageBox(const QString& prompt, int buttons, const QString& title)
{
    m_calls.push_back({Call::Message, prompt, title, buttons, {}, {}});
    if (!m_messages.empty()) {
        const int r = m_messages.front();
        m_messages.pop_front();
        return r;
    }
    switch (buttons & 7) {
    case ui::vbYesNo:
    case ui::vbYesNoCancel: return ui::vbYes;
    case ui::vbAbortRetryIgnore: return ui::vbAbort;
    case ui::vbRetryCancel: return ui::vbRetry;
    default: return ui::vbOK;
    }
}

std::optional<QString> ScriptedDialogs::InputBox(const QString& prompt, const QString& title, const QString&)
{
    m_calls.push_back({Call::Input, prompt, title, 0, {}, {}});
    std::optional<QString> answer;
    if (!m_inputs.empty()) {
        answer = std::move(m_inputs.front());
        m_inputs.pop_front();
    }
    return answer;
}

std::optional<QString> ScriptedDialogs::FileDialog(const ui::FileDialogRequest& request)
{
    m_calls.push_back({Call::File, request.title, request.title, 0, request, {}});
    std::optional<QString> answer;
    if (!m_files.empty()) {
        answer = std::move(m_files.front());
        m_files.pop_front();
    }
    return answer;
}

bool ScriptedDialogs::PrinterDialog(const ui::PrinterDialogRequest& request)
{
    m_calls.push_back({Call::Printer, QString(), QString(), 0, {}, request});
    bool answer = false;
    if (!m_printers.empty()) {
        answer = m_printers.front();
        m_printers.pop_front();
    }
    return answer;
}
