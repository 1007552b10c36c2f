// The help page as a list of lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zev {

/// What the page says about this run.
struct HelpFacts {
    std::string_view programVersion;
    std::string_view dataFolder; ///< as a text to show
    std::string_view webAddress;
    std::string_view supportAddress;
};

struct HelpText {
    std::vector<std::string> lines;
    int moreInformationLine = 0; ///< index of the first line that opens the web page
    int websiteLine = 0;         ///< index of the second
};

[[nodiscard]] HelpText helpText(const HelpFacts& facts);

/// The lines of a section; the last one may lack its line feed.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view section);

/// Path of the page with frequently asked questions on the web site.
constexpr std::string_view faqPath = "/history#faq";

} // namespace zev
