#include "assetlist/ListQuery.h"

#include "foundation/Mdl_gData.h"

// Filled in with the main list.
void gSetSQLVal() { Mdl_gData::ListSql.clear(); }
