#include "cards/run_cards.h"

#include <ostream>
#include <utility>
#include <variant>

#include "cards/check_cards.h"
#include "cards/diff_cards.h"
#include "cards/make_pages.h"
#include "cards/text_cards.h"

namespace zev {
namespace {

int answer(const CommandAnswer& answered, const Surroundings& surroundings) {
    (answered.isFailure ? surroundings.err : surroundings.out) << answered.text;
    return answered.isFailure ? exit_status::trouble : exit_status::success;
}

int runCommand(const CommandOptions& options, const Surroundings& surroundings) {
    switch (options.command) {
    case Command::Text:
        return tellCards(options, surroundings);
    case Command::Diff:
        return diffCards(options, surroundings);
    case Command::Check:
        return checkCards(options, surroundings);
    case Command::Pdf:
    case Command::Image:
        return makePages(options, surroundings);
    }
    return exit_status::trouble;
}

int run(std::vector<std::string> arguments, const Surroundings& surroundings) {
    const auto asked = readCommand(std::move(arguments));
    if (const auto* answered = std::get_if<CommandAnswer>(&asked))
        return answer(*answered, surroundings);
    return runCommand(std::get<CommandOptions>(asked), surroundings);
}

} // namespace

int runCards(std::vector<std::string> arguments, const Surroundings& surroundings) {
    try {
        const int status = run(std::move(arguments), surroundings);
        // A full disk shows when the last of it is written.
        if (!surroundings.out.flush()) throw Trouble{"the output can't be written"};
        return status;
    } catch (const Trouble& trouble) {
        surroundings.err << "zevlin-cards: " << trouble.message << '\n';
        return exit_status::trouble;
    }
}

} // namespace zev
