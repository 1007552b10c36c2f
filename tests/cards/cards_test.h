// The commands of zevlin-cards on files of the test's own.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "card/write_card.h"
#include "cards/message_text.h"
#include "cards/run_cards.h"
#include "support/system.h"

namespace zev::test {

class CardsTest : public testing::Test {
  protected:
    ~CardsTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    /// Writes a file below the folder, with the folders on the way; its path.
    std::string write(std::string_view name, std::string_view content) const {
        const std::filesystem::path path = pathOf(at(name));
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return utf8Of(path);
    }

    std::string writeCardFile(std::string_view name, const CardDocument& card = someCard()) const {
        return write(name, zev::writeCard(card));
    }

    [[nodiscard]] std::string at(std::string_view name) const {
        return utf8Of((folder / pathOf(name)).make_preferred());
    }

    /// Check box 3 and the text "1^c & 2^H" in area 2, of 4 and 3 fields.
    [[nodiscard]] static CardDocument someCard() {
        CardDocument card;
        card.programVersion = "2.1.0";
        card.marks = {false, false, true, false};
        card.texts = {{}, {"1^c && 2^H", 0}, {}};
        return card;
    }

    /// The exit status; what was told stands in `out` and `err`.
    int run(std::vector<std::string> arguments, const std::string& input = {}) {
        std::istringstream in(input);
        std::ostringstream told;
        std::ostringstream wrong;
        const int status = runCards(std::move(arguments), {.in = in,
                                                           .out = told,
                                                           .err = wrong,
                                                           .dataFolder =
                                                               [this] {
                                                                   ++folderQuestions;
                                                                   return dataFolder;
                                                               },
                                                           .worker = worker,
                                                           .isErrShown = isErrShown});
        out = told.str();
        err = wrong.str();
        return status;
    }

    std::filesystem::path folder = test_system::newFolder("zevlin-cards-");
    std::filesystem::path dataFolder = folder / "ZEV";
    std::filesystem::path worker;
    bool isErrShown = false;
    int folderQuestions = 0;
    std::string out;
    std::string err;
};

} // namespace zev::test
