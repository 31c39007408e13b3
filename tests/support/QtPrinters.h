#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

// Readable GoogleTest failure output for Qt's strings.
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }
inline void PrintTo(const QStringList& l, std::ostream* os)
{
    *os << '{';
    for (qsizetype i = 0; i < l.size(); ++i)
        *os << (i ? ", " : "") << '"' << l[i].toStdString() << '"';
    *os << '}';
}
