#include "platform/text/LineInput.h"

#include "platform/text/Cp932.h"
#include "platform/vb/VbError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace text {

namespace {

// The line that starts at pos, without its end; pos moves past the end (CR LF, LF or CR).
QByteArrayView TakeLine(const QByteArray& bytes, qsizetype& pos)
{
    const char* const data = bytes.constData();
    const qsizetype size = bytes.size();
    const qsizetype begin = pos;
    qsizetype i = begin;
    while (i < size && data[i] != '\r' && data[i] != '\n')
        ++i;
    const QByteArrayView line(data + begin, i - begin);
    if (i < size)
        i += (data[i] == '\r' && i + 1 < size && data[i + 1] == '\n') ? 2 : 1;
    pos = i;
    return line;
}

} // namespace

QByteArray LineInput::nextBytes()
{
    if (atEnd())
        return {};
    return TakeLine(m_bytes, m_pos).toByteArray();
}

QString LineInput::next()
{
    if (atEnd())
        return {};
    return FromCp932(TakeLine(m_bytes, m_pos));
}

QByteArray ReadWholeFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        const QFileInfo info(path);
        if (info.exists())
            throw vb::VbError::PathFileAccessError();
        if (!info.absoluteDir().exists())
            throw vb::VbError::PathNotFound();
        throw vb::VbError::FileNotFound();
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw vb::VbError::PathFileAccessError();
    return bytes;
}

} // namespace text
