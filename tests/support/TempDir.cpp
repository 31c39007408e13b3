#include "support/TempDir.h"

#include "TestPaths.h"

#include <QFile>

#include <stdexcept>

TempDir::TempDir()
{
    if (!m_dir.isValid())
        throw std::runtime_error("cannot make a temporary folder");
}

void TempDir::write(const QString& name, const QByteArray& bytes) const
{
    QFile f(file(name));
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + name.toStdString());
}

QByteArray TempDir::read(const QString& name) const
{
    QFile f(file(name));
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

QByteArray FileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArrayLiteral("(no file)");
}

QString TestDataPath(const QString& relative) { return QStringLiteral(FENWOLD_TEST_DATA_DIR "/") + relative; }

QByteArray ReadTestData(const QString& relative)
{
    QFile f(TestDataPath(relative));
    if (!f.open(QIODevice::ReadOnly))
        throw std::runtime_error("missing test data " + relative.toStdString());
    return f.readAll();
}
