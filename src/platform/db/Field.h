#pragma once

#include "platform/db/Ado.h"
#include "platform/vb/Variant.h"

namespace db {

class Recordset;

// One field of the current record of a recordset, as ADO's Field object: its name, its type
// and its value. Assigning converts the value to the field's type on the spot and raises the
// error ADO raised when it cannot; the record is written by Recordset::Update.
class Field {
public:
    Field(Recordset& rs, int index) : m_rs(&rs), m_index(index) {}

    QString Name() const;
    DataType Type() const;
    const vb::Variant& Value() const;
    operator const vb::Variant&() const { return Value(); }

    void SetValue(const vb::Variant& v);
    Field& operator=(const vb::Variant& v)
    {
        SetValue(v);
        return *this;
    }

private:
    Recordset* m_rs;
    int m_index;
};

} // namespace db
