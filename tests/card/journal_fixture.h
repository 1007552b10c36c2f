// The file that keeps unsaved changes, as tests look at it.
#pragma once

#include <filesystem>
#include <string>

#include "card/card_form_test.h"
#include "card/rescue_file.h"
#include "toolkit/base/files.h"

namespace zev::test {

class JournalTest : public CardFormTest {
  protected:
    [[nodiscard]] std::filesystem::path file() const { return home / "state" / "changes-1.zev"; }
    [[nodiscard]] bool isThere() const { return std::filesystem::exists(file()); }
    [[nodiscard]] RescuedCard content() const { return readRescue(toolkit::readFile(file())); }
};

} // namespace zev::test
