#include "cards/page_tasks.h"

#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <istream>
#include <string_view>
#include <variant>

#include "cards/message_text.h"
#include "cards/surroundings.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

constexpr const char* dateVariable = "SOURCE_DATE_EPOCH";
/// The year 9999.
constexpr std::int64_t latestDate = 253402300799;

/// Without a screen the library knows only the fonts of one folder.
void addFonts(std::vector<std::pair<std::string, std::string>>& environment) {
#ifdef _WIN32
    constexpr const char* variable = "QT_QPA_FONTDIR";
    const char* system = std::getenv("WINDIR");
    if (std::getenv(variable) == nullptr && system != nullptr)
        environment.emplace_back(variable, std::string(system) + "\\Fonts");
#else
    (void)environment;
#endif
}

void append(std::string& text, const std::filesystem::path& path) {
    text += utf8Of(path);
    text += '\0';
}

} // namespace

std::string taskText(const PageTask& task) {
    std::string text;
    append(text, task.card);
    append(text, task.output);
    return text;
}

std::optional<PageTask> readTask(std::istream& in) {
    std::string card;
    std::string output;
    if (!std::getline(in, card, '\0') || !std::getline(in, output, '\0')) return std::nullopt;
    return PageTask{.card = pathOf(card), .output = pathOf(output)};
}

std::vector<std::string> workerArguments(const CommandOptions& options,
                                         const std::filesystem::path& folder) {
    std::vector<std::string> arguments{workerArgument, utf8Of(folder)};
    if (options.command == Command::Image) {
        arguments.insert(arguments.end(), {"image", "--type", options.imageType});
        if (options.width > 0)
            arguments.insert(arguments.end(), {"--width", toolkit::numberText(options.width)});
    } else {
        arguments.emplace_back("pdf");
        if (options.owner == CardOwner::Partner) arguments.emplace_back("--partner");
        if (options.owner == CardOwner::Both) arguments.emplace_back("--both");
        if (options.black) arguments.emplace_back("--black");
        if (!options.paper.empty()) arguments.insert(arguments.end(), {"--paper", options.paper});
        if (!options.together.empty())
            arguments.insert(arguments.end(), {"--together", options.together});
    }
    if (options.stamp) arguments.emplace_back("--stamp");
    arguments.insert(arguments.end(), {"--files-from", "-"});
    return arguments;
}

std::optional<WorkerOrder> readOrder(std::vector<std::string> arguments) {
    constexpr std::size_t mine = 2;
    if (arguments.size() < mine || arguments.front() != workerArgument) return std::nullopt;
    const std::filesystem::path folder = pathOf(arguments[1]);
    arguments.erase(arguments.begin(), arguments.begin() + mine);
    const auto asked = readCommand(std::move(arguments));
    const auto* options = std::get_if<CommandOptions>(&asked);
    if (options == nullptr) return std::nullopt;
    return WorkerOrder{.options = *options, .folder = folder};
}

std::vector<std::pair<std::string, std::string>>
workerEnvironment(const CommandOptions& options, const std::filesystem::path& folder) {
    std::vector<std::pair<std::string, std::string>> environment{
        {"QT_QPA_PLATFORM", "offscreen"},
        // Where there is none, the library makes one for good.
        {"XDG_RUNTIME_DIR", utf8Of(folder)},
        {"QT_SCALE_FACTOR", ""},
        {"QT_SCREEN_SCALE_FACTORS", ""},
        {"QT_FONT_DPI", ""},
        {"QT_STYLE_OVERRIDE", ""}};
    addFonts(environment);
    // A date that is given means the same everywhere; only the present one is the player's own.
    if (!options.stamp || sourceDate()) environment.emplace_back("TZ", "UTC0");
    return environment;
}

std::optional<double> sourceDate() {
    const char* text = std::getenv(dateVariable);
    if (text == nullptr || *text == '\0') return std::nullopt;
    const std::string_view digits = text;
    std::int64_t seconds = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), seconds);
    if (error != std::errc() || end != digits.data() + digits.size() || seconds < 0 ||
        seconds > latestDate)
        throw Trouble{std::string(dateVariable) + ": no number of seconds"};
    return static_cast<double>(seconds);
}

} // namespace zev
