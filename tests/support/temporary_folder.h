// A folder for the files of one test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "support/system.h"

namespace toolkit::test {

/// Made empty, and removed with everything in it. No two share one, even where the same tests run
/// side by side.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        path_ = test_system::newFolder(std::string("zevlin.") + test->test_suite_name() + "." +
                                       test->name() + ".");
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
