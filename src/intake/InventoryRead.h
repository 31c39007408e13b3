#pragma once

#include "intake/InventoryFieldMap.h"

#include "platform/db/Connection.h"

#include <QElapsedTimer>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>

// The bulk read of inventory files: each accepted file becomes a new computer, with its row in
// tbl_Computer_List and tbl_Pclist, the 107 fields of the field map, and its applications,
// devices, printers and environment variables. It never updates a computer that exists and
// looks at nothing in the ledger but the highest key: the same file read twice makes two
// computers. The window and the companion program's read command both run it.

// What became of one file.
struct InventoryFileResult {
    enum Outcome {
        Read,           // staged and made into the computer mainKey
        RefusedHeader,  // first line empty or not the header: nothing changed
        Unreadable,     // could not be opened or read: the computer mainKey was made from what
                        // tbl_ReadCsv still held
    };
    QString path;
    Outcome outcome = Read;
    std::int16_t mainKey = 0;  // the key written to (Read, Unreadable)
    bool keyOverflow = false;  // the highest key was 32767: no new key, the previous one was
                               // written to again
    QString reason;            // Unreadable: the error's description
};

// One run of the reader over files, in the language the user chose. The key lives as long as
// the run: when the next key would pass 32767 the addition
// fails, the key stays what it was, and the file's values land on that computer.
class InventoryReader {
public:
    explicit InventoryReader(InventoryLanguage language) : m_language(language) {}
    // Commits what the run wrote.
    ~InventoryReader();
    InventoryReader(const InventoryReader&) = delete;
    InventoryReader& operator=(const InventoryReader&) = delete;

    // Reads one file into the ledger through DbConnection and sets LastReadMainKey.
    //
    // The run's statements go into the ledger in batches: a savepoint is opened before a file
    // and committed after the file that ends a quarter of a second of work, and at the end of
    // the run. A refused statement still drops alone (SQLite undoes only that statement), files
    // are committed between, never within, so a run that is killed leaves each computer whole or
    // absent, and the run is many times faster than with a commit per statement or per file.
    InventoryFileResult Read(const QString& path);

    // Commits the open batch now; the next file opens a new one.
    void Commit();

private:
    void writeFieldMap(const QString& key);

    InventoryLanguage m_language;
    std::int16_t m_key = 0;
    std::unique_ptr<db::Transaction> m_batch;
    QElapsedTimer m_batchAge;
};

// ReadInventoryFiles: the run that both read commands share, file by file in the given order;
// onFile hears of each file as soon as it is done.
void ReadInventoryFiles(const QStringList& paths, InventoryLanguage language,
                        const std::function<void(const InventoryFileResult&)>& onFile = {});
