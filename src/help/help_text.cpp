#include "help/help_text.h"

#include <array>
#include <utility>

#include "help/help_sections.h"

namespace zev {
namespace {

constexpr std::string_view closingLine = "(To close this window, press 'Esc' or 'Enter')";
constexpr std::size_t ruleLength = 96;

std::string filledIn(std::string_view line, const HelpFacts& facts) {
    const std::array<std::pair<std::string_view, std::string_view>, 2> values{{
        {"{folder}", facts.dataFolder},
        {"{support}", facts.supportAddress},
    }};
    std::string text(line);
    for (const auto& [placeholder, value] : values) {
        if (const auto at = text.find(placeholder); at != std::string::npos) {
            text.replace(at, placeholder.size(), value);
            break; // a folder's own name may look like a placeholder
        }
    }
    return text;
}

void addSection(HelpText& help, std::string_view section, const HelpFacts& facts) {
    for (const std::string_view line : linesOf(section))
        help.lines.push_back(filledIn(line, facts));
}

int addLine(HelpText& help, std::string line) {
    help.lines.push_back(std::move(line));
    return static_cast<int>(help.lines.size()) - 1;
}

void addEndOfInstructions(HelpText& help, const HelpFacts& facts) {
    addLine(help, {});
    help.moreInformationLine =
        addLine(help, "MORE INFORMATION: Please see the \"FAQ\" at " +
                          std::string(facts.webAddress) + " (click here to access)");
    addLine(help, {});
    addLine(help, std::string(50, ' ') + "(End of normal instructions)");
    addLine(help, std::string(ruleLength, '_'));
    addLine(help, std::string(closingLine));
}

} // namespace

std::vector<std::string_view> linesOf(std::string_view section) {
    std::vector<std::string_view> lines;
    while (!section.empty()) {
        const auto end = section.find('\n');
        lines.push_back(section.substr(0, end));
        section.remove_prefix(end == std::string_view::npos ? section.size() : end + 1);
    }
    return lines;
}

HelpText helpText(const HelpFacts& facts) {
    HelpText help;
    addLine(help, "(To close this window, press 'Esc' or 'Enter'.  To print this page, RIGHT-click "
                  "this line.)               Version: " +
                      std::string(facts.programVersion));
    const auto sections = helpSections();
    addSection(help, sections.usingCards, facts);
    addEndOfInstructions(help, facts);
    addSection(help, sections.changingLayout, facts);
    addSection(help, sections.reporting, facts);
    help.websiteLine = addLine(help, "  * Website (click here): " + std::string(facts.webAddress) +
                                         " -- good place to check the 'FAQ' for known solutions.");
    addLine(help, {});
    addLine(help, std::string(closingLine));
    return help;
}

} // namespace zev
