#include "cards/page_worker.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <istream>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <system_error>

#include "cards/card_form.h"
#include "cards/card_reading.h"
#include "cards/form_folder.h"
#include "cards/message_text.h"
#include "cards/surroundings.h"
#include "layout/layout_file.h"
#include "layout/layout_text.h"
#include "toolkit/base/error.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/base/write_file.h"
#include "toolkit/print/pdf_document.h"
#include "toolkit/window/shell_folders.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

/// As the file's own date has it.
std::string dateText(double seconds) {
    const auto time = static_cast<std::time_t>(seconds);
    std::tm fields{};
#ifdef _WIN32
    gmtime_s(&fields, &time);
#else
    gmtime_r(&time, &fields);
#endif
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y%m%d%H%M%SZ", &fields)};
}

/// A card with less than all its fields isn't made a page of.
void requireWhole(const fs::path& card) {
    const CardReading reading = readForgivingly(toolkit::readFile(card));
    if (reading.isWhole) return;
    std::ostringstream faults;
    tellFaults(faults, card, reading);
    std::string text = faults.str();
    text.pop_back(); // the end of its last line
    throw Trouble{text};
}

/// What fails in it is the file's, not the card's.
template <typename Write>
void writing(const fs::path& file, Write write) {
    try {
        write();
    } catch (const toolkit::RunTimeError& failure) {
        throw Trouble{onOneLine(utf8Of(file)) + ": " + failure.description()};
    }
}

class PageWork {
  public:
    PageWork(const CommandOptions& options, const fs::path& folder)
        : options_(options), date_(sourceDate()), form_(options, folder, date_) {}

    void doTask(const PageTask& task) {
        if (task.card.empty()) return writeTogether(task.output);
        requireWhole(task.card);
        form_.show(task.card);
        if (options_.command == Command::Image)
            return writing(task.output, [&] { form_.saveImage(task.output); });
        if (task.output.empty()) return addTogether();
        toolkit::PdfDocument document({.title = titleOfCard(), .date = dateOfFile()});
        for (const toolkit::Page& page : form_.pages()) document.addPage(page);
        const std::string file = document.finish();
        writing(task.output, [&] { toolkit::writeFile(task.output, file); });
    }

  private:
    [[nodiscard]] std::string titleOfCard() const {
        return form_.cardName() + (options_.owner == CardOwner::Partner ? " - partner" : "");
    }

    /// Only who asks for the time gets a file that is never the same twice.
    [[nodiscard]] std::optional<std::string> dateOfFile() const {
        if (date_) return dateText(*date_);
        return options_.stamp ? std::nullopt : std::optional<std::string>("");
    }

    void addTogether() {
        if (!together_)
            together_.emplace(
                toolkit::PdfFacts{.title = toolkit::displayText(pathOf(options_.together).stem()),
                                  .date = dateOfFile()});
        for (const toolkit::Page& page : form_.pages()) together_->addPage(page);
    }

    /// Without a card there is no file.
    void writeTogether(const fs::path& file) {
        if (!together_) return;
        const std::string content = together_->finish();
        together_.reset();
        writing(file, [&] { toolkit::writeFile(file, content); });
    }

    const CommandOptions& options_;
    std::optional<double> date_;
    CardForm form_;
    std::optional<toolkit::PdfDocument> together_;
};

/// Empty if all went well.
std::string answerTo(PageWork& work, const PageTask& task) {
    try {
        work.doTask(task);
        return {};
    } catch (const Trouble& trouble) {
        return trouble.message;
    } catch (const std::exception&) {
        return onOneLine(utf8Of(task.card.empty() ? task.output : task.card)) + ": " +
               toolkit::currentFailure().description();
    }
}

void say(std::ostream& out, const std::string& text) {
    out << text << '\0';
    out.flush();
}

/// The installed layout where the player has none. A form that finds none takes the start for a
/// first one, and shows the card as wide as the screen.
void completeLayout(const fs::path& folder) {
    constexpr int usualTwips = 15;
    const std::string name =
        std::string(layoutFileName) + "." + toolkit::numberText(installedLayout(usualTwips));
    if (toolkit::findFile(folder, layoutFileName)) return;
    const auto installed = toolkit::findFile(toolkit::programFolder(), name);
    if (!installed)
        throw Trouble{onOneLine(utf8Of(toolkit::programFolder() / name)) + ": " +
                      std::string(toolkit::describe(toolkit::Failure::FileNotFound))};
    toolkit::writeTemporaryFile(folder / layoutFileName, toolkit::readFile(*installed));
}

/// A folder that the form may write to.
fs::path copiedInto(const TemporaryFolder& own, const fs::path& folder) {
    const fs::path copy = own.path() / "Documents" / "ZEV";
    std::error_code error;
    fs::create_directories(copy, error);
    if (error) throw Trouble{onOneLine(utf8Of(copy)) + ": " + textOf(error)};
    for (const fs::directory_entry& file : fs::directory_iterator(folder))
        toolkit::writeTemporaryFile(copy / file.path().filename(), toolkit::readFile(file.path()));
    completeLayout(copy);
    return copy;
}

} // namespace

int workOnPages(const WorkerOrder& order, std::istream& in, std::ostream& out) {
    try {
        const TemporaryFolder own(order.folder.parent_path());
        PageWork work(order.options, copiedInto(own, order.folder));
        say(out, {});
        while (const auto task = readTask(in)) say(out, answerTo(work, *task));
        return EXIT_SUCCESS;
    } catch (const Trouble& trouble) {
        say(out, trouble.message.empty() ? "the form can't be made" : trouble.message);
    } catch (const std::exception&) {
        say(out, toolkit::currentFailure().description());
    }
    return EXIT_FAILURE;
}

} // namespace zev
