#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Line input over a whole file, the way the system reads inventory files: CR LF, a lone LF and a
// lone CR each end a line; the line end is not part of the line. A last line without an end is
// still a line; a file that ends with a line end has no empty line after it.
namespace text {

class LineInput {
public:
    explicit LineInput(QByteArray bytes) : m_bytes(std::move(bytes)) {}

    bool atEnd() const { return m_pos >= m_bytes.size(); }
    // The next line's raw bytes, without its end. Empty at the end of the data.
    QByteArray nextBytes();
    // The next line decoded from CP932.
    QString next();

private:
    QByteArray m_bytes;
    qsizetype m_pos = 0;
};

// Reads a whole file into memory. Throws vb::VbError 53 when it does not exist and 75/70 when it
// cannot be read, as VB's Open For Input failed.
QByteArray ReadWholeFile(const QString& path);

} // namespace text
