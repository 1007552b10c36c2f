#include "toolkit/base/error.h"

#include <cerrno>
#include <filesystem>
#include <new>
#include <utility>

namespace toolkit {

RunTimeError::RunTimeError(Failure failure)
    : RunTimeError(failure, std::string(describe(failure))) {}

RunTimeError::RunTimeError(Failure failure, std::string description)
    : failure_(failure), description_(std::move(description)) {}

std::string_view describe(Failure failure) {
    switch (failure) {
    case Failure::InvalidProcedureCall:
        return "Invalid procedure call or argument";
    case Failure::Overflow:
        return "Overflow";
    case Failure::OutOfMemory:
        return "Out of memory";
    case Failure::SubscriptOutOfRange:
        return "Subscript out of range";
    case Failure::DivisionByZero:
        return "Division by zero";
    case Failure::TypeMismatch:
        return "Type mismatch";
    case Failure::InternalError:
        return "Internal error";
    case Failure::BadFileName:
        return "Bad file name or number";
    case Failure::FileNotFound:
        return "File not found";
    case Failure::FileAlreadyOpen:
        return "File already open";
    case Failure::DeviceIo:
        return "Device I/O error";
    case Failure::FileAlreadyExists:
        return "File already exists";
    case Failure::DiskFull:
        return "Disk full";
    case Failure::InputPastEnd:
        return "Input past end of file";
    case Failure::TooManyFiles:
        return "Too many files";
    case Failure::PermissionDenied:
        return "Permission denied";
    case Failure::PathFileAccess:
        return "Path/File access error";
    case Failure::PathNotFound:
        return "Path not found";
    case Failure::NoSuchElement:
        return "Control array element doesn't exist";
    case Failure::ObjectAlreadyLoaded:
        return "Object already loaded";
    case Failure::InvalidPicture:
        return "Invalid picture";
    case Failure::PrinterError:
        return "Printer error";
    }
    return "Internal error";
}

void failNoSuchElement(int index) {
    throw RunTimeError(Failure::NoSuchElement,
                       "Control array element '" + std::to_string(index) + "' doesn't exist");
}

namespace {

Failure failureOfErrno(int errorCode) {
    switch (errorCode) {
    case ENOENT:
        return Failure::FileNotFound;
    case ENOTDIR:
        return Failure::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return Failure::PermissionDenied;
    case EISDIR:
        return Failure::PathFileAccess;
    case EEXIST:
        return Failure::FileAlreadyExists;
    case ENAMETOOLONG:
        return Failure::BadFileName;
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return Failure::DiskFull;
    case EMFILE:
    case ENFILE:
        return Failure::TooManyFiles;
    case ENOMEM:
        return Failure::OutOfMemory;
    default:
        return Failure::DeviceIo;
    }
}

} // namespace

RunTimeError fileFailure(int errorCode) { return RunTimeError(failureOfErrno(errorCode)); }

RunTimeError currentFailure() {
    try {
        throw;
    } catch (const RunTimeError& error) {
        return error;
    } catch (const std::filesystem::filesystem_error& error) {
        const auto condition = error.code().default_error_condition();
        return fileFailure(condition.category() == std::generic_category() ? condition.value()
                                                                           : EIO);
    } catch (const std::bad_alloc&) {
        return RunTimeError(Failure::OutOfMemory);
    } catch (const std::exception&) {
        return RunTimeError(Failure::InternalError);
    }
}

} // namespace toolkit
