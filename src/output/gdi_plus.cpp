#include "output/gdi_plus.h"

#include <algorithm>
#include <array>
#include <exception>
#include <utility>

#include "toolkit/base/ansi.h"
#include "toolkit/base/error.h"
#include "toolkit/base/path_text.h"
#include "toolkit/picture/bitmap_file.h"

namespace zev {
namespace {

namespace status {
constexpr int genericError = 1;
constexpr int invalidParameter = 2;
constexpr int outOfMemory = 3;
constexpr int win32Error = 7;
constexpr int fileNotFound = 10;
constexpr int accessDenied = 12;
constexpr int unknownImageFormat = 13;
} // namespace status

constexpr std::array<std::string_view, 20> texts{"Generic Error",
                                                 "Invalid Parameter",
                                                 "Out Of Memory",
                                                 "Object Busy",
                                                 "Insufficient Buffer",
                                                 "Not Implemented",
                                                 "Win32 Error",
                                                 "Wrong State",
                                                 "Aborted",
                                                 "File Not Found",
                                                 "Value Overflow",
                                                 "Access Denied",
                                                 "Unknown Image Format",
                                                 "FontFamily Not Found",
                                                 "FontStyle Not Found",
                                                 "Not TrueType Font",
                                                 "Unsupported Gdiplus Version",
                                                 "Gdiplus Not Initialized",
                                                 "Property Not Found",
                                                 "Property Not Supported"};

int statusOf(const toolkit::RunTimeError& failure) {
    using enum toolkit::Failure;
    switch (failure.failure()) {
    case FileNotFound:
    case PathNotFound:
        return status::fileNotFound;
    case PermissionDenied:
    case PathFileAccess:
        return status::accessDenied;
    case OutOfMemory:
        return status::outOfMemory;
    case InvalidPicture:
        return status::unknownImageFormat;
    case InvalidProcedureCall:
    case BadFileName:
        return status::invalidParameter;
    case DiskFull:
    case DeviceIo:
        return status::win32Error;
    default:
        return status::genericError;
    }
}

/// What follows the last "." of the file's name.
std::string extensionOf(const std::filesystem::path& file) {
    const std::string name = toolkit::displayText(file.filename());
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

bool isJpeg(std::string_view extension) {
    return !extension.empty() && toolkit::lowerCase(extension.front()) == 'j';
}

} // namespace

cGdiPlus::cGdiPlus(Failed failed, const std::vector<toolkit::ImageEncoder>& encoders)
    : failed_(std::move(failed)), encoderCount_(static_cast<int>(encoders.size())) {
    if (encoders.empty()) raise(status::genericError);
    encoderIds_.resize(encoders.size());
    for (int index = encoderCount_ - 1; index >= 0; --index) {
        const auto place = static_cast<std::size_t>(index);
        encoderIds_[place] = encoders[place].id;
        addPatterns(encoders[place], index);
    }
}

void cGdiPlus::addPatterns(const toolkit::ImageEncoder& encoder, int index) {
    std::string_view rest = encoder.FilenameExtension;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(';'), rest.size());
        const std::string pattern = toolkit::lowerCase(toolkit::trim(rest.substr(0, end)));
        encoderIndexes_.try_emplace(pattern, index);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

int cGdiPlus::encoderFor(std::string_view extension) const {
    const auto found = encoderIndexes_.find("*." + toolkit::lowerCase(extension));
    return found == encoderIndexes_.end() ? -1 : found->second;
}

void cGdiPlus::raise(int status) const {
    if (failed_) failed_(GdiErrorString(status), status);
}

std::optional<toolkit::Bitmap>
cGdiPlus::FilenameToIPicture(const std::filesystem::path& file) const {
    try {
        return toolkit::loadBitmap(file);
    } catch (const std::exception&) {
        raise(statusOf(toolkit::currentFailure()));
        return std::nullopt;
    }
}

std::optional<toolkit::CodecId> cGdiPlus::encoderOf(const std::filesystem::path& file) const {
    const int index = encoderFor(extensionOf(file));
    if (index < 0) return std::nullopt;
    return encoderIds_[static_cast<std::size_t>(index)];
}

bool cGdiPlus::PictureBoxToFile(const toolkit::Bitmap& picture, const std::filesystem::path& file,
                                int quality) const {
    const auto encoder = encoderOf(file);
    if (!encoder) return false;
    try {
        toolkit::saveImage(picture, file, *encoder,
                           isJpeg(extensionOf(file)) ? std::optional(quality) : std::nullopt);
        return true;
    } catch (const std::exception&) {
        raise(statusOf(toolkit::currentFailure()));
        return false;
    }
}

std::string_view cGdiPlus::GdiErrorString(int status) {
    if (status < 1 || status > static_cast<int>(texts.size())) return "Unknown GDI+ Error";
    return texts[static_cast<std::size_t>(status - 1)];
}

} // namespace zev
