// What tests need from the system that they run on, by the same names on each system.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

namespace test_system {

inline void setVariable(const char* name, const std::string& value) {
#ifdef _WIN32
    _putenv_s(name, value.c_str());
#else
    setenv(name, value.c_str(), 1);
#endif
}

inline void clearVariable(const char* name) {
#ifdef _WIN32
    _putenv_s(name, "");
#else
    unsetenv(name);
#endif
}

/// Sets the variable if it isn't set yet.
inline void presetVariable(const char* name, const std::string& value) {
    if (std::getenv(name) == nullptr) setVariable(name, value);
}

/// An empty folder of its own below the system's folder for such.
inline std::filesystem::path newFolder(const std::string& prefix) {
    std::random_device random;
    while (true) {
        std::filesystem::path folder =
            std::filesystem::temp_directory_path() / (prefix + std::to_string(random()));
        if (std::filesystem::create_directory(folder)) return folder;
    }
}

} // namespace test_system
