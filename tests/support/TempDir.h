#pragma once

#include "support/QtPrinters.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// A fresh folder per test, removed afterwards, with small helpers to write and read its files.
class TempDir {
public:
    TempDir();
    QString path() const { return m_dir.path(); }
    QString file(const QString& name) const { return m_dir.filePath(name); }
    void write(const QString& name, const QByteArray& bytes) const;
    QByteArray read(const QString& name) const;

private:
    QTemporaryDir m_dir;
};

// The bytes of a file; "(no file)" when there is none, which no expected content equals.
QByteArray FileBytes(const QString& path);

// Test data under tests/data.
QString TestDataPath(const QString& relative);
QByteArray ReadTestData(const QString& relative);
