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
    // Every error the program raises comes from one of these (or from the database layer's
    // EngineError); code that tells errors apart compares with the numbers in Err.
    static VbError InvalidProcedureCall();
    static VbError Overflow();
    static VbError OutOfMemory();
    static VbError SubscriptOutOfRange();
    static VbError TypeMismatch();
    static VbError InternalError(const QString& what);
    static VbError BadFileNameOrNumber();
    static VbError FileNotFound();
    static VbError DeviceUnavailable();
    static VbError PathFileAccessError();
    static VbError PathNotFound();
    static VbError InvalidPatternString();
    static VbError InvalidUseOfNull();
    static VbError FormAlreadyShown();
    static VbError CancelSelected();

private:
    long m_number;
    QString m_description;
    QByteArray m_what;
};

namespace Err {
inline constexpr long InvalidProcedureCall = 5;
inline constexpr long Overflow = 6;
inline constexpr long OutOfMemory = 7;
inline constexpr long SubscriptOutOfRange = 9;
inline constexpr long TypeMismatch = 13;
inline constexpr long InternalError = 51;
inline constexpr long BadFileNameOrNumber = 52;
inline constexpr long FileNotFound = 53;
inline constexpr long DeviceUnavailable = 68;
inline constexpr long PathFileAccessError = 75;
inline constexpr long PathNotFound = 76;
inline constexpr long InvalidPatternString = 93;
inline constexpr long InvalidUseOfNull = 94;
inline constexpr long FormAlreadyShown = 400;
inline constexpr long CancelSelected = 32755; // the common dialog's CancelError
} // namespace Err

} // namespace vb
