#include "platform/text/AnsiFile.h"

#include "platform/text/Cp932.h"
#include "platform/vb/VbError.h"

#include <QDir>
#include <QFileInfo>

namespace text {

namespace {

// The output is handed to the file in pieces of this size; a list export of a full ledger is a
// few megabytes.
constexpr qsizetype kFlushSize = 64 * 1024;

// A file that nobody may write, the counterpart of Windows' read-only attribute. Checked by its
// mode bits because root (the usual user in a container) writes through them, where Windows
// refused the administrator too.
bool IsReadOnly(const QFileInfo& info)
{
    return info.exists() && info.isFile() && !(info.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther));
}

} // namespace

AnsiFile::AnsiFile(const QString& path) : m_file(path)
{
    const QFileInfo info(path);
    if (!info.absoluteDir().exists())
        throw vb::VbError::PathNotFound();
    // Our own buffer collects the encoded text, so QFile's would only copy it once more.
    if (IsReadOnly(info) || !m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        throw vb::VbError::PathFileAccessError();
    m_buffer.reserve(kFlushSize);
}

AnsiFile::~AnsiFile()
{
    try {
        Close();
    } catch (const vb::VbError&) {
        // A destructor runs during unwinding too; a failure to flush there has nobody to tell.
    }
}

void AnsiFile::Write(QStringView s)
{
    if (!m_file.isOpen())
        throw vb::VbError::BadFileNameOrNumber();
    m_buffer += ToCp932(s);
    if (m_buffer.size() >= kFlushSize) {
        const bool written = m_file.write(m_buffer) == m_buffer.size();
        m_buffer.resize(0);
        if (!written)
            throw vb::VbError::PathFileAccessError();
    }
}

void AnsiFile::WriteLine(QStringView s)
{
    Write(s);
    m_buffer += "\r\n";
}

void AnsiFile::Close()
{
    // Closing a closed file is no error, as VB's Close of a free file number was none.
    if (!m_file.isOpen())
        return;
    const bool written = m_buffer.isEmpty() || m_file.write(m_buffer) == m_buffer.size();
    m_buffer.clear();
    m_file.close();
    if (!written || m_file.error() != QFileDevice::NoError)
        throw vb::VbError::PathFileAccessError();
}

} // namespace text
