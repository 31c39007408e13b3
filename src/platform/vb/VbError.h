#pragma once

#include <QString>

#include <exception>

namespace vb {

// A run-time error as VB raised it: a number and a Japanese description. Every failure of the
// platform layer and of the ledger is one of these; handlers catch it where a VB routine had an
// error handler, and the UI's dispatcher turns an uncaught one into the fatal report.
class VbError : public std::exception {
public:
    VbError(long number, QString description);

    long Number() const noexcept { return m_number; }
    const QString& Description() const noexcept { return m_description; }
    const char* what() const noexcept override { return m_what.constData(); }

    // The VB run-time errors that the system meets, with the texts of the Japanese run time.
    static VbError InvalidProcedureCall();  //  5
    static VbError Overflow();              //  6
    static VbError SubscriptOutOfRange();   //  9
    static VbError TypeMismatch();          // 13
    static VbError BadFileNameOrNumber();   // 52
    static VbError FileNotFound();          // 53
    static VbError PermissionDenied();      // 70
    static VbError PathFileAccessError();   // 75
    static VbError PathNotFound();          // 76
    static VbError InvalidPatternString();  // 93
    static VbError InvalidUseOfNull();      // 94
    static VbError CancelSelected();        // 32755, the common dialog's CancelError

private:
    long m_number;
    QString m_description;
    QByteArray m_what;
};

namespace Err {
inline constexpr long InvalidProcedureCall = 5;
inline constexpr long Overflow = 6;
inline constexpr long SubscriptOutOfRange = 9;
inline constexpr long TypeMismatch = 13;
inline constexpr long FileNotFound = 53;
inline constexpr long InvalidUseOfNull = 94;
inline constexpr long CancelSelected = 32755;
} // namespace Err

} // namespace vb
