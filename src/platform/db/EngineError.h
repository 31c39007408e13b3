#pragma once

#include "platform/vb/VbError.h"

#include <QString>

struct sqlite3;

namespace db {

// The errors of the database layer, numbered and worded as Jet's data access reported
// them, so that StandardErrorBox shows the numbers and texts that users know from Jet.
namespace EngineError {

inline constexpr long Fail = -2147467259; // E_FAIL: most refusals of the engine
inline constexpr long TypeMismatchInCriteria = -2147217913;
inline constexpr long SyntaxError = -2147217900;
inline constexpr long MissingParameter = -2147217904; // an unknown column name
inline constexpr long TableNotFound = -2147217865;
inline constexpr long MultipleStep = -2147217887; // a field assignment that cannot convert

// The error for a failed call on db, with rc its result code; path names the file for open errors.
vb::VbError FromSqlite(sqlite3* db, int rc, const QString& path = QString());

vb::VbError ItemNotFound();      // 3265: no field of that name or number
vb::VbError NoCurrentRecord();   // 3021: BOF or EOF
vb::VbError ObjectClosed();      // 3704
vb::VbError ObjectOpen();        // 3705
vb::VbError NoTransaction();     // a commit or rollback without BeginTrans
vb::VbError ConnectionClosed();  // 3709
vb::VbError NotSupported();      // 3251: read-only recordset
vb::VbError NotUpdatableQuery(); // a DISTINCT or grouped query
vb::VbError ConversionFailed();  // multiple-step: the value does not fit the field
vb::VbError FileNotFound(const QString& path);
vb::VbError UnrecognisedFormat(const QString& path);

} // namespace EngineError
} // namespace db
