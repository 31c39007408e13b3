#pragma once

#include <QByteArray>
#include <QString>

// Realistic Japanese inventory files for the intake benchmark: about 300 lines each, code page
// 932 with CR LF, every record the field map asks for, two network adapters, 95 hotfix records
// that nothing selects, 30 applications, 40 devices, 5 printers and 30 environment variables.
// File n is always the same; values vary from file to file.
namespace bench {

QByteArray InventoryFile(int n);

// Writes files 1 to count into folder as pc00001.csv ...; returns the number written.
int WriteInventoryFiles(const QString& folder, int count);

} // namespace bench
