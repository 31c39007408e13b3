#include "platform/db/ColumnSet.h"

#include <cstring>

namespace db {

void ColumnSet::index()
{
    m_lookup.clear();
    QHash<QString, int> bareCount;
    for (const ColumnInfo& c : columns)
        if (!c.origin.isEmpty() && c.name.compare(c.origin, Qt::CaseInsensitive) == 0)
            ++bareCount[c.origin.toCaseFolded()];

    for (size_t i = 0; i < columns.size(); ++i) {
        ColumnInfo& c = columns[i];
        const bool shared =
            !c.origin.isEmpty() && bareCount.value(c.origin.toCaseFolded()) > 1 && c.name.compare(c.origin, Qt::CaseInsensitive) == 0;
        if (shared)
            c.name = c.table + QLatin1Char('.') + c.origin;
    }
    for (size_t i = 0; i < columns.size(); ++i) {
        const ColumnInfo& c = columns[i];
        const QString key = c.name.toCaseFolded();
        if (!m_lookup.contains(key))
            m_lookup.insert(key, int(i));
        if (!c.table.isEmpty() && !c.origin.isEmpty()) {
            const QString qualified = QString(c.table + QLatin1Char('.') + c.origin).toCaseFolded();
            if (!m_lookup.contains(qualified))
                m_lookup.insert(qualified, int(i));
            // a bare name that two tables share answers to neither of them
            const QString bare = c.origin.toCaseFolded();
            if (bareCount.value(bare) > 1 && !m_lookup.contains(bare))
                m_lookup.insert(bare, Ambiguous);
        }
    }
}

int ColumnSet::indexOf(QStringView name) const { return m_lookup.value(name.toString().toCaseFolded(), NotFound); }

int ColumnSet::rowidSlotOf(const QString& table) const
{
    for (size_t i = 0; i < rowidTables.size(); ++i)
        if (rowidTables[i].compare(table, Qt::CaseInsensitive) == 0)
            return int(i);
    return -1;
}

DataType TypeOfDeclaration(const char* d)
{
    if (!d)
        return adEmpty;
    if (strcasecmp(d, "SMALLINT") == 0)
        return adSmallInt;
    if (strcasecmp(d, "INTEGER") == 0)
        return adInteger;
    if (strcasecmp(d, "DATETIME") == 0)
        return adDate;
    if (strcasecmp(d, "LONGTEXT") == 0)
        return adLongVarWChar;
    if (strcasecmp(d, "TEXT") == 0)
        return adVarWChar;
    if (strcasecmp(d, "DOUBLE") == 0 || strcasecmp(d, "REAL") == 0)
        return adDouble;
    if (strcasecmp(d, "BOOLEAN") == 0)
        return adBoolean;
    return adEmpty;
}

} // namespace db
