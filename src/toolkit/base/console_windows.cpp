#include "toolkit/base/console.h"

#ifdef _WIN32

#include <memory>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace toolkit {
namespace {

std::string utf8From(const wchar_t* text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1) return {};
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
    utf8.pop_back(); // the null at its end
    return utf8;
}

} // namespace

std::vector<std::string> commandArguments(int /*argumentCount*/, const char* const* /*arguments*/) {
    int count = 0;
    const std::unique_ptr<wchar_t*[], decltype(&LocalFree)> texts(
        CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; texts && i < count; ++i)
        arguments.push_back(utf8From(texts[static_cast<std::size_t>(i)]));
    return arguments;
}

bool isErrorOnTerminal() {
    constexpr int standardError = 2;
    return _isatty(standardError) != 0;
}

void passBytesUnchanged() {
    constexpr int standardInput = 0;
    constexpr int standardOutput = 1;
    _setmode(standardInput, _O_BINARY);
    _setmode(standardOutput, _O_BINARY);
}

void showUtf8OnConsole() { SetConsoleOutputCP(CP_UTF8); }

} // namespace toolkit

#endif
