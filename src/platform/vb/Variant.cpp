#include "platform/vb/Variant.h"

#include <ostream>

namespace vb {

VarType Variant::Type() const
{
    switch (m_v.index()) {
    case 0: return VarType::Empty;
    case 1: return VarType::Null;
    case 2: return VarType::Integer;
    case 3: return VarType::Long;
    case 4: return VarType::Double;
    case 5: return VarType::String;
    case 6: return VarType::Date;
    default: return VarType::Boolean;
    }
}

bool Variant::IsNumeric() const
{
    switch (Type()) {
    case VarType::Integer:
    case VarType::Long:
    case VarType::Double:
    case VarType::Boolean: return true;
    default: return false;
    }
}

QString DebugString(const Variant& v)
{
    switch (v.Type()) {
    case VarType::Empty: return QStringLiteral("Empty");
    case VarType::Null: return QStringLiteral("Null");
    case VarType::Integer: return QStringLiteral("Integer(%1)").arg(v.integerValue());
    case VarType::Long: return QStringLiteral("Long(%1)").arg(v.longValue());
    case VarType::Double: return QStringLiteral("Double(%1)").arg(v.doubleValue(), 0, 'g', 17);
    case VarType::String: return QStringLiteral("String(\"%1\")").arg(v.stringValue());
    case VarType::Date: return QStringLiteral("Date(%1)").arg(v.dateValue().toString(QStringLiteral("yyyy/MM/dd HH:mm:ss")));
    case VarType::Boolean: return v.booleanValue() ? QStringLiteral("Boolean(True)") : QStringLiteral("Boolean(False)");
    }
    return {};
}

void PrintTo(const Variant& v, std::ostream* os) { *os << DebugString(v).toStdString(); }

} // namespace vb
