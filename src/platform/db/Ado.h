#pragma once

// The ADO constants the system passes and reads, with ADO's own numbers.
namespace db {

enum CursorType { adOpenUnspecified = -1, adOpenForwardOnly = 0, adOpenKeyset = 1, adOpenDynamic = 2, adOpenStatic = 3 };
enum LockType { adLockUnspecified = -1, adLockReadOnly = 1, adLockPessimistic = 2, adLockOptimistic = 3, adLockBatchOptimistic = 4 };
enum ObjectState { adStateClosed = 0, adStateOpen = 1 };
enum EditMode { adEditNone = 0, adEditInProgress = 1, adEditAdd = 2 };
inline constexpr long adCmdUnspecified = -1;

// Field types, as ADO numbered them. The ledger's declared column types map onto these.
enum DataType {
    adEmpty = 0,
    adSmallInt = 2, // SMALLINT: keys and flags
    adInteger = 3,  // INTEGER: long numbers
    adDouble = 5,
    adDate = 7, // DATETIME
    adBoolean = 11,
    adVarWChar = 202,    // TEXT
    adLongVarWChar = 203 // LONGTEXT
};

} // namespace db
