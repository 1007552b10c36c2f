// A folder for the files of one test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace toolkit::test {

/// Made empty, and removed with everything in it. Each test has its own.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        path_ = std::filesystem::path(testing::TempDir()) /
                (std::string("zevlin.") + test->test_suite_name() + "." + test->name());
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    /// The name is in UTF-8.
    [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
        return path_ / std::u8string(name.begin(), name.end());
    }

  private:
    std::filesystem::path path_;
};

} // namespace toolkit::test
