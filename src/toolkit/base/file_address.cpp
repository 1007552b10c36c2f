#include "toolkit/base/file_address.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <string>
#include <utility>

#include "toolkit/base/ansi.h"

namespace toolkit {
namespace {

constexpr std::string_view scheme = "file:";
constexpr std::string_view hostMark = "//";

/// None where a percent sign stands before something else than two hexadecimal digits, or for the
/// character that ends a path.
std::optional<std::string> withoutPercents(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        char character = text.front();
        text.remove_prefix(1);
        if (character == '%') {
            constexpr std::size_t digits = 2;
            constexpr int hexadecimal = 16;
            unsigned value = 0;
            const char* const end = text.data() + std::min(digits, text.size());
            const auto [read, error] = std::from_chars(text.data(), end, value, hexadecimal);
            if (error != std::errc() || read != text.data() + digits) return std::nullopt;
            character = static_cast<char>(value);
            text.remove_prefix(digits);
        }
        if (character == '\0') return std::nullopt;
        plain += character;
    }
    return plain;
}

bool isThisMachine(std::string_view host) {
    return host.empty() || equalWithoutCase(host, "localhost");
}

#ifdef _WIN32
/// "/C:/cards/Jones.zev", or what another machine shares.
std::optional<std::filesystem::path> nativePath(std::string_view host, std::string path) {
    if (!isThisMachine(host))
        path = "//" + std::string(host) + path;
    else if (path.size() > 2 && path[2] == ':')
        path.erase(0, 1);
    try {
        return std::filesystem::path(std::u8string(path.begin(), path.end()));
    } catch (const std::exception&) {
        // Bytes that are no text name no file there.
        return std::nullopt;
    }
}
#else
/// A name may be any bytes.
std::optional<std::filesystem::path> nativePath(std::string_view host, std::string path) {
    if (!isThisMachine(host)) return std::nullopt;
    return std::filesystem::path(std::move(path));
}
#endif

} // namespace

std::optional<std::filesystem::path> fileOfAddress(std::string_view address) {
    if (!equalWithoutCase(address.substr(0, scheme.size()), scheme)) return std::nullopt;
    address.remove_prefix(scheme.size());
    std::string_view host;
    if (address.starts_with(hostMark)) {
        address.remove_prefix(hostMark.size());
        host = address.substr(0, address.find('/'));
        address.remove_prefix(host.size());
    }
    if (!address.starts_with('/')) return std::nullopt;
    auto path = withoutPercents(address);
    if (!path) return std::nullopt;
    return nativePath(host, std::move(*path));
}

} // namespace toolkit
