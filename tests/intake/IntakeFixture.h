#pragma once

#include "support/WindowTest.h"

#include <initializer_list>
#include <ostream>
#include <utility>
#include <vector>

inline QString Inventory(const QString& name) { return TestDataPath(QStringLiteral("inventory/") + name); }

// Field and expected stored text, "NULL" for Null.
using FieldValues = std::vector<std::pair<QString, QString>>;

// The pairs written as "Field=text".
inline FieldValues Fields(std::initializer_list<const char*> fieldIsText)
{
    FieldValues out;
    for (const char* entry : fieldIsText) {
        const QString s = QString::fromUtf8(entry);
        out.push_back({s.section(QLatin1Char('='), 0, 0), s.section(QLatin1Char('='), 1)});
    }
    return out;
}
inline FieldValues operator+(FieldValues a, const FieldValues& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// Compares the fields of one computer's row with a message per field.
inline void ExpectRow(TempLedger& ledger, const QString& table, int key, const FieldValues& expected)
{
    QStringList names;
    for (const auto& [field, value] : expected)
        names << QLatin1Char('"') + field + QLatin1Char('"');
    const QStringList rows =
        ledger.rows(QStringLiteral("SELECT %1 FROM %2 WHERE MainKey = %3").arg(names.join(QLatin1Char(',')), table).arg(key));
    ASSERT_EQ(rows.size(), 1) << table.toStdString() << " has no row " << key;
    const QStringList cells = rows.first().split(QLatin1Char('|'));
    ASSERT_EQ(cells.size(), qsizetype(expected.size()));
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(cells[qsizetype(i)], expected[i].second) << table.toStdString() << "." << expected[i].first.toStdString();
}

// A fresh ledger beside a program folder of its own, connected as the program connects it.
class IntakeFixture : public WindowTest {
protected:
    QStringList staging() { return ledger.rows(QStringLiteral("SELECT * FROM tbl_ReadCsv ORDER BY rowid")); }
};
