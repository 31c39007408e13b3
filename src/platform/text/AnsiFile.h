#pragma once

#include <QFile>
#include <QString>

// Output to a text file in the ANSI code page (CP932), the way VB's Open For Output / Print #
// wrote: the file is replaced, text is encoded at the edge, and each line is closed by CR LF.
namespace text {

class AnsiFile {
public:
    // Opens for output, replacing a file of that name. Throws vb::VbError (75 path/file access
    // error, 76 path not found) when the file cannot be made.
    explicit AnsiFile(const QString& path);
    ~AnsiFile();
    AnsiFile(const AnsiFile&) = delete;
    AnsiFile& operator=(const AnsiFile&) = delete;

    // Print #n, text; : the text alone.
    void Write(QStringView s);
    // Print #n, text  : the text and CR LF.
    void WriteLine(QStringView s);
    // Flushes and closes; further writes throw. Also done by the destructor.
    void Close();

private:
    QFile m_file;
    QByteArray m_buffer;
};

} // namespace text
