// Run-time failures, each known by its number.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace toolkit {

/// The failures that procedures raise or tell apart. The values are part of messages and traces.
enum class Failure : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    InternalError = 51,
    BadFileName = 52,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DeviceIo = 57,
    FileAlreadyExists = 58,
    DiskFull = 61,
    InputPastEnd = 62,
    TooManyFiles = 67,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    NoSuchElement = 340,
    ObjectAlreadyLoaded = 360,
    InvalidPicture = 481,
    PrinterError = 482,
};

/// A failure with the number and the description that traces and boxes show.
class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(Failure failure);
    RunTimeError(Failure failure, std::string description);

    [[nodiscard]] int number() const noexcept { return static_cast<int>(failure_); }
    [[nodiscard]] Failure failure() const noexcept { return failure_; }
    [[nodiscard]] const std::string& description() const noexcept { return description_; }
    [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

  private:
    Failure failure_;
    std::string description_;
};

/// The English description of a failure, without a full stop.
[[nodiscard]] std::string_view describe(Failure failure);

/// "Control array element 'n' doesn't exist" (340).
[[noreturn]] void failNoSuchElement(int index);

/// The failure for an errno value of a file operation: ENOENT 53, ENOTDIR 76, EACCES, EPERM and
/// EROFS 70, EISDIR 75, EEXIST 58, ENAMETOOLONG 52, ENOSPC and EDQUOT 61, EMFILE and ENFILE 67,
/// ENOMEM 7, anything else 57.
[[nodiscard]] RunTimeError fileFailure(int errorCode);

/// The exception being handled, as a run-time error: only valid inside a catch block. What is not
/// a RunTimeError becomes 7 (bad_alloc), a file failure (filesystem_error) or 51; what is no
/// std::exception at all passes through.
[[nodiscard]] RunTimeError currentFailure();

} // namespace toolkit
