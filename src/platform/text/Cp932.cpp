#include "platform/text/Cp932.h"

#include <QSysInfo>
#include <QtGlobal>

#include <cerrno>
#include <cstring>
#include <iconv.h>

namespace text {

namespace {

// QString's own storage is UTF-16 in the machine's byte order, so iconv writes into it and reads
// from it directly.
constexpr const char* kUtf16 = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? "UTF-16LE" : "UTF-16BE";

// One conversion descriptor per direction and thread: iconv_open loads a gconv module and costs
// far more than converting a whole inventory file, and a descriptor must not be shared by threads.
class Converter {
public:
    Converter(const char* to, const char* from) : m_cd(iconv_open(to, from))
    {
        if (m_cd == reinterpret_cast<iconv_t>(-1))
            qFatal("iconv cannot convert %s to %s: glibc's gconv modules are missing", from, to);
    }
    ~Converter() { iconv_close(m_cd); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    // The descriptor, back in its initial state.
    iconv_t handle()
    {
        iconv(m_cd, nullptr, nullptr, nullptr, nullptr);
        return m_cd;
    }

private:
    iconv_t m_cd;
};

iconv_t Decoder()
{
    thread_local Converter c(kUtf16, "CP932");
    return c.handle();
}

iconv_t Encoder()
{
    thread_local Converter c("CP932", kUtf16);
    return c.handle();
}

constexpr size_t kFailed = static_cast<size_t>(-1);

bool IsAscii(QByteArrayView bytes)
{
    unsigned char any = 0;
    for (const char c : bytes)
        any |= static_cast<unsigned char>(c);
    return any < 0x80;
}

bool IsAscii(QStringView s)
{
    char16_t any = 0;
    for (const QChar c : s)
        any |= c.unicode();
    return any < 0x80;
}

} // namespace

QString FromCp932(QByteArrayView bytes)
{
    if (IsAscii(bytes))
        return QString::fromLatin1(bytes);

    // Every CP932 character, single or double byte, is one UTF-16 unit (the user-defined area
    // maps into the BMP's private use area), and every bad byte is one U+FFFD: the result is
    // never longer than the input.
    QString out(bytes.size(), Qt::Uninitialized);
    iconv_t cd = Decoder();
    char* in = const_cast<char*>(bytes.data());
    size_t inLeft = size_t(bytes.size());
    char* const outBegin = reinterpret_cast<char*>(out.data());
    char* o = outBegin;
    size_t outLeft = size_t(out.size()) * sizeof(char16_t);
    while (inLeft > 0) {
        if (iconv(cd, &in, &inLeft, &o, &outLeft) != kFailed)
            break;
        if (errno != EILSEQ && errno != EINVAL)
            qFatal("iconv failed while decoding CP932 (errno %d)", errno);
        // A byte that starts no valid sequence, or a lead byte cut off by the end: one
        // replacement character for it, then go on from the next byte, so a bad lead byte does
        // not swallow the ASCII character after it.
        const char16_t replacement = 0xFFFD;
        memcpy(o, &replacement, sizeof replacement);
        o += sizeof replacement;
        outLeft -= sizeof replacement;
        ++in;
        --inLeft;
    }
    out.truncate((o - outBegin) / qsizetype(sizeof(char16_t)));
    return out;
}

QByteArray ToCp932(QStringView s)
{
    if (IsAscii(s))
        return s.toLatin1();

    // At most two bytes per UTF-16 unit; an unencodable pair becomes one '?'.
    QByteArray out(s.size() * 2, Qt::Uninitialized);
    iconv_t cd = Encoder();
    char* in = reinterpret_cast<char*>(const_cast<char16_t*>(s.utf16()));
    size_t inLeft = size_t(s.size()) * sizeof(char16_t);
    char* const outBegin = out.data();
    char* o = outBegin;
    size_t outLeft = size_t(out.size());
    while (inLeft > 0) {
        if (iconv(cd, &in, &inLeft, &o, &outLeft) != kFailed)
            break;
        if (errno != EILSEQ && errno != EINVAL)
            qFatal("iconv failed while encoding CP932 (errno %d)", errno);
        // A character CP932 lacks, or a lone surrogate: '?', as Windows writes it. A surrogate
        // pair is one character and gives one '?'.
        const auto* unit = reinterpret_cast<const char16_t*>(in);
        size_t skip = sizeof(char16_t);
        if (QChar::isHighSurrogate(unit[0]) && inLeft >= 2 * sizeof(char16_t) && QChar::isLowSurrogate(unit[1]))
            skip *= 2;
        *o++ = '?';
        --outLeft;
        in += skip;
        inLeft -= skip;
    }
    out.truncate(o - outBegin);
    return out;
}

int ByteLength(QStringView s)
{
    if (IsAscii(s))
        return int(s.size());
    return int(ToCp932(s).size());
}

} // namespace text
