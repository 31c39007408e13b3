#pragma once

#include "intake/InventoryFieldMap.h"
#include "intake/Staging.h"

#include "platform/db/Connection.h"
#include "platform/vb/VbError.h"

#include <QElapsedTimer>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

// The bulk read of inventory files: each accepted file becomes a new computer, with its row in
// tbl_Computer_List and tbl_Pclist, the 107 fields of the field map, and its applications,
// devices, printers and environment variables. It never updates a computer that exists and
// looks at nothing in the ledger but the highest key: the same file read twice makes two
// computers. The window and the companion program's read command both run it.

// What became of one file.
struct InventoryFileResult {
    enum Outcome {
        Read,          // staged and made into the computer mainKey
        RefusedHeader, // first line empty or not the header: nothing changed
        Unreadable,    // could not be opened or read: the computer mainKey was made from what
                       // tbl_ReadCsv still held
        NotWritten,    // read, but the ledger could not be written: nothing of it was kept
        NotAttempted,  // not looked at: the run stopped at a write that failed before it
    };
    QString path;
    Outcome outcome = Read;
    std::int16_t mainKey = 0; // the key written to (Read, Unreadable)
    bool keyOverflow = false; // the highest key was 32767: no new key, the previous one was
                              // written to again
    QString reason;           // Unreadable, NotWritten, NotAttempted: the error's description
};

// What a run came to. failure is set when the ledger could not be written; the run stopped
// there, and the files of the batch it lost are reported NotWritten.
struct InventoryRunResult {
    std::optional<vb::VbError> failure;
};

// One run of the reader over files, in the language the user chose. The key lives as long as
// the run: when the next key would pass 32767 the addition fails, the key stays what it was, and
// the file's values land on that computer.
//
// The run's statements go into the ledger in batches: a savepoint is opened before a file and
// committed after the file that ends a quarter of a second of work, and at the end of the run.
// A refused statement still drops alone (SQLite undoes only that statement), files are committed
// between, never within, so a run that is killed leaves each computer whole or absent, and the
// run is many times faster than with a commit per statement or per file.
//
// Within a batch the reader writes less than the statements it stands for, where the ledger
// ends the same: each file's lines are kept in memory and looked up there as the SELECTs on
// tbl_ReadCsv would find them; staging itself is written once, with the batch's last file,
// before the commit; a computer's fields go in with one UPDATE a table (a refused one falls
// back to the field-by-field statements); the row-wise copies run their INSERTs with the Jet
// text rewritten once. Where a trigger could run on these tables, or staging could refuse a
// line, the statements run one by one as written.
//
// A file is reported (onWritten) only once the batch that holds it is committed. When the
// ledger cannot be written (a full disk, a read-only file, another program holding it), the
// batch is rolled back whole, its files are reported NotWritten with the reason, and the run
// stops: Read and Commit answer false from then on.
class InventoryReader {
public:
    using Report = std::function<void(const InventoryFileResult&)>;
    InventoryReader(InventoryLanguage language, Report onWritten);
    // Rolls back a batch that was not committed; reports nothing.
    ~InventoryReader();
    InventoryReader(const InventoryReader&) = delete;
    InventoryReader& operator=(const InventoryReader&) = delete;

    // Reads one file into the ledger through DbConnection and sets LastReadMainKey. False when
    // the ledger could not be written.
    bool Read(const QString& path);
    // Commits the open batch and reports its files. False when the commit failed.
    bool Commit();
    const std::optional<vb::VbError>& Failure() const { return m_failure; }

private:
    struct GatheredWrite;
    InventoryFileResult readOne(const QString& path);
    void writeFieldMap(const QString& key);
    void lose(const vb::VbError& e);

    InventoryLanguage m_language;
    Report m_report;
    std::int16_t m_key = 0;
    std::unique_ptr<db::Transaction> m_batch;
    std::vector<InventoryFileResult> m_pending; // read into the open batch, not yet reported
    std::optional<vb::VbError> m_failure;
    QElapsedTimer m_batchAge;
    // The lines tbl_ReadCsv holds, when this run wrote them whole; unknown before the first file
    // and after a write that failed.
    std::optional<Mdl_Access_mdb::StagedLines> m_staged;
    bool m_stagingPending = false;             // m_staged is still to be written to tbl_ReadCsv
    bool m_stageAtCommit = false;              // staging may wait for the commit (no trigger on it)
    std::unique_ptr<GatheredWrite> m_gathered; // made at the first computer
};

// ReadInventoryFiles: the run that both read commands share, file by file in the given order.
// onFile hears of each file once it is committed, or NotWritten/NotAttempted after a failed
// write; every path is reported exactly once, in order.
InventoryRunResult ReadInventoryFiles(const QStringList& paths, InventoryLanguage language,
                                      const std::function<void(const InventoryFileResult&)>& onFile = {});
