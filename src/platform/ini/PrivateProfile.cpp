#include "platform/ini/PrivateProfile.h"

#include "platform/text/Cp932.h"

#include <QFile>
#include <QFileInfo>
#include <QList>

namespace ini {

namespace {

// One line of the file as it stands: its text is bytes [begin, end), its line end (CR LF, LF, CR
// or nothing on a last line) bytes [end, next). A write copies every line it does not touch by
// these offsets, so comments, blank lines and odd spacing survive byte for byte.
struct Line {
    enum Kind { Other, Section, Key };

    qsizetype begin = 0;
    qsizetype end = 0;
    qsizetype next = 0;
    Kind kind = Other;
    bool blank = false;
    QString name;          // of the section or the key, without the blanks around it
    bool hasValue = false; // a key line without '=' names a key that has no value
    QString value;         // without the blanks around it; quotes are still on

    bool hasLineEnd() const { return next > end; }
};

struct Profile {
    QByteArray bytes;
    QList<Line> lines;
};

bool IsBlank(QChar c) { return c == u' ' || c == u'\t'; }

QStringView TrimBlanks(QStringView s)
{
    qsizetype b = 0;
    qsizetype e = s.size();
    while (b < e && IsBlank(s[b]))
        ++b;
    while (e > b && IsBlank(s[e - 1]))
        --e;
    return s.sliced(b, e - b);
}

// Names are compared as Windows compared them: blanks around them do not count, nor does case.
// Kana and kanji have no case and so compare as they are.
bool SameName(QStringView fileName, const QString& wanted) { return fileName.compare(TrimBlanks(wanted), Qt::CaseInsensitive) == 0; }

void Classify(Line& line, QStringView text)
{
    const QStringView t = TrimBlanks(text);
    if (t.isEmpty()) {
        line.blank = true;
        return;
    }
    if (t.front() == u'[') {
        // "[name]", blanks allowed around the brackets and inside them. A '[' line without ']'
        // is no header.
        const qsizetype close = t.lastIndexOf(u']');
        if (close > 0) {
            line.kind = Line::Section;
            line.name = TrimBlanks(t.sliced(1, close - 1)).toString();
            return;
        }
    }
    if (t.front() == u';')
        return; // a comment
    line.kind = Line::Key;
    const qsizetype eq = t.indexOf(u'=');
    if (eq < 0) {
        line.name = t.toString();
        return;
    }
    line.name = TrimBlanks(t.first(eq)).toString();
    line.hasValue = true;
    line.value = TrimBlanks(t.sliced(eq + 1)).toString();
}

// CP932 keeps CR and LF out of its double-byte characters (trail bytes are 0x40 and above), so the
// bytes can be split into lines before they are decoded.
Profile Parse(QByteArray bytes)
{
    Profile p;
    p.bytes = std::move(bytes);
    const char* const data = p.bytes.constData();
    const qsizetype size = p.bytes.size();
    qsizetype pos = 0;
    while (pos < size) {
        Line line;
        line.begin = pos;
        qsizetype i = pos;
        while (i < size && data[i] != '\r' && data[i] != '\n')
            ++i;
        line.end = i;
        if (i < size)
            i += (data[i] == '\r' && i + 1 < size && data[i + 1] == '\n') ? 2 : 1;
        line.next = i;
        Classify(line, text::FromCp932(QByteArrayView(data + line.begin, line.end - line.begin)));
        p.lines.append(std::move(line));
        pos = i;
    }
    return p;
}

// The first section of that name: its header line, and the line after its last one (the next
// header or the end of the file). Header -1 when there is none.
struct SectionSpan {
    qsizetype header = -1;
    qsizetype end = -1;
};

SectionSpan FindSection(const Profile& p, const QString& section)
{
    SectionSpan span;
    for (qsizetype i = 0; i < p.lines.size(); ++i) {
        if (p.lines[i].kind != Line::Section)
            continue;
        if (span.header >= 0) {
            span.end = i;
            return span;
        }
        if (SameName(p.lines[i].name, section))
            span.header = i;
    }
    span.end = p.lines.size();
    return span;
}

// The first line of that key inside the section, or -1.
qsizetype FindKey(const Profile& p, const SectionSpan& span, const QString& key)
{
    if (span.header < 0)
        return -1;
    for (qsizetype i = span.header + 1; i < span.end; ++i) {
        if (p.lines[i].kind == Line::Key && SameName(p.lines[i].name, key))
            return i;
    }
    return -1;
}

bool ReadFile(const QString& path, QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    bytes = file.readAll();
    return file.error() == QFileDevice::NoError;
}

// The counterpart of Windows' read-only attribute: a file that no one may write. Read from the
// mode bits because root writes through them, where Windows refused the administrator too.
bool IsReadOnly(const QFileInfo& info) { return !(info.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther)); }

bool IsLeadByte(unsigned char c) { return (c >= 0x81 && c <= 0x9F) || (c >= 0xE0 && c <= 0xFC); }

// The text as the ANSI buffer holds it: at most maxBytes bytes of CP932. A double-byte character
// that does not fit whole is left out, rather than half of it kept.
QString CutToBytes(const QString& s, int maxBytes)
{
    if (maxBytes <= 0)
        return QString();
    QByteArray bytes = text::ToCp932(s);
    if (bytes.size() <= maxBytes)
        return s;
    qsizetype n = 0;
    while (n < maxBytes) {
        const qsizetype width = IsLeadByte(static_cast<unsigned char>(bytes[n])) ? 2 : 1;
        if (n + width > maxBytes)
            break;
        n += width;
    }
    bytes.truncate(n);
    return text::FromCp932(bytes);
}

QString Unquoted(const QString& value)
{
    if (value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') && value.back() == value.front())
        return value.sliced(1, value.size() - 2);
    return value;
}

QByteArray KeyLine(const QString& key, const QString& value) { return text::ToCp932(QString(key % u'=' % value)) + "\r\n"; }

QByteArray Slice(const Profile& p, qsizetype from, qsizetype to) { return p.bytes.sliced(from, to - from); }

QByteArray EraseSection(const Profile& p, const QString& section)
{
    const SectionSpan span = FindSection(p, section);
    if (span.header < 0)
        return p.bytes;
    const qsizetype from = p.lines[span.header].begin;
    const qsizetype to = span.end < p.lines.size() ? p.lines[span.end].begin : p.bytes.size();
    return Slice(p, 0, from) + Slice(p, to, p.bytes.size());
}

QByteArray EraseKey(const Profile& p, const QString& section, const QString& key)
{
    const qsizetype k = FindKey(p, FindSection(p, section), key);
    if (k < 0)
        return p.bytes;
    return Slice(p, 0, p.lines[k].begin) + Slice(p, p.lines[k].next, p.bytes.size());
}

QByteArray SetKey(const Profile& p, const QString& section, const QString& key, const QString& value)
{
    const QByteArray line = KeyLine(key, value);
    const SectionSpan span = FindSection(p, section);
    if (span.header < 0) {
        // A new section goes at the end of the file, right after its last line.
        QByteArray out = p.bytes;
        if (!p.lines.isEmpty() && !p.lines.back().hasLineEnd())
            out += "\r\n";
        return out + text::ToCp932(QString(u'[' % section % u']')) + "\r\n" + line;
    }
    const qsizetype k = FindKey(p, span, key);
    if (k >= 0)
        return Slice(p, 0, p.lines[k].begin) + line + Slice(p, p.lines[k].next, p.bytes.size());

    // A new key follows the section's last line that is not blank, so the blank lines that
    // separate it from the next section stay between them.
    qsizetype last = span.end - 1;
    while (p.lines[last].blank)
        --last;
    const Line& after = p.lines[last];
    return Slice(p, 0, after.next) + (after.hasLineEnd() ? QByteArray() : QByteArray("\r\n")) + line + Slice(p, after.next, p.bytes.size());
}

} // namespace

QString GetPrivateProfileString(const QString& section, const QString& key, const QString& def, int bufferSize, const QString& path)
{
    QByteArray bytes;
    ReadFile(path, bytes); // a file that cannot be read is an empty one
    const Profile p = Parse(std::move(bytes));
    const qsizetype k = FindKey(p, FindSection(p, section), key);
    if (k >= 0 && p.lines[k].hasValue)
        return CutToBytes(Unquoted(p.lines[k].value), bufferSize - 1);
    // Windows drops the blanks at the end of the default.
    qsizetype n = def.size();
    while (n > 0 && IsBlank(def[n - 1]))
        --n;
    return CutToBytes(def.first(n), bufferSize - 1);
}

bool WritePrivateProfileString(const QString& section, const std::optional<QString>& key, const std::optional<QString>& value,
                               const QString& path)
{
    const QFileInfo info(path);
    QByteArray before;
    if (info.exists() && !ReadFile(path, before))
        return false;
    const Profile p = Parse(before);
    const QByteArray after = !key ? EraseSection(p, section) : !value ? EraseKey(p, section, *key) : SetKey(p, section, *key, *value);
    // Nothing to erase, or the same value again: the file is not touched (nor made).
    if (after == before)
        return true;
    if (info.exists() && IsReadOnly(info))
        return false;
    // Rewritten in place, as Windows wrote it: the file keeps its owner, mode and links.
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const bool written = file.write(after) == after.size();
    file.close();
    return written && file.error() == QFileDevice::NoError;
}

} // namespace ini
