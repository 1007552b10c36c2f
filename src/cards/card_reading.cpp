#include "cards/card_reading.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "layout/skip_comment.h"
#include "text/escapes.h"
#include "toolkit/base/error.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/text_input.h"

namespace zev {
namespace {

using toolkit::Failure;
using toolkit::numberText;

int lineAt(std::string_view content, std::size_t position) {
    int line = 1;
    for (std::size_t i = 0; i < position; ++i) {
        const bool isPair = content[i] == '\r' && i + 1 < content.size() && content[i + 1] == '\n';
        if (content[i] == '\n' || (content[i] == '\r' && !isPair)) ++line;
    }
    return line;
}

std::string faultText(Failure failure, const std::string& what) {
    switch (failure) {
    case Failure::InputPastEnd:
        return "the file ends before " + what;
    case Failure::Overflow:
        return "a number too large for " + what;
    case Failure::TypeMismatch:
        return "no number where one should stand for " + what;
    default:
        return std::string(toolkit::describe(failure)) + ": " + what;
    }
}

/// Ends the reading of a card.
struct Unreadable {};

class Reading {
  public:
    explicit Reading(const std::string& content)
        : content_(content), reader_(content, version_, [this](toolkit::TextInput& input) {
              const bool ended = skipComments(input, version_);
              place_ = input.position();
              return ended;
          }) {}

    CardReading run() {
        try {
            readPartner();
            readMarks();
            readTexts();
            result_.isWhole = true;
            if (!reader_.isAtEnd()) complain("more than the text areas that were announced");
        } catch (const Unreadable&) {
            // What is wrong stands in the last fault.
        }
        return std::move(result_);
    }

  private:
    void complain(std::string what) {
        result_.faults.push_back({lineAt(content_, place_), std::move(what)});
    }

    [[noreturn]] void giveUp(std::string what) {
        complain(std::move(what));
        throw Unreadable();
    }

    /// `tell` says what is read, if that fails.
    template <typename Tell, typename Read>
    auto attempt(Tell tell, Read read) {
        try {
            return read();
        } catch (const toolkit::RunTimeError& error) {
            giveUp(faultText(error.failure(), tell()));
        }
    }

    template <typename Read>
    auto reading(const std::string& what, Read read) {
        return attempt([&] { return what; }, read);
    }

    template <typename Read>
    auto reading(const std::string& kind, int record, int count, Read read) {
        return attempt([&] { return kind + " " + numberText(record) + " of " + numberText(count); },
                       read);
    }

    void readPartner() {
        CardPartner& partner = result_.card.partner;
        partner.name = reading("the partner's name", [this] { return reader_.readPartnerName(); });
        partner.number =
            reading("the partner's number", [this] { return reader_.readPartnerNumber(); });
        result_.card.programVersion = version_;
    }

    int readCount(const std::string& kind) {
        const int count = reading("the count of " + kind, [this] { return reader_.readCount(); });
        if (count < 1) giveUp("a card without " + kind);
        return count;
    }

    void readMarks() {
        const int count = readCount("check boxes");
        std::vector<bool> seen;
        for (int i = 1; i <= count; ++i) {
            const MarkRecord record =
                reading("check box", i, count, [this] { return reader_.readMark(); });
            if (!hasPlace(record.number, count, "check box", seen)) continue;
            makeRoom(result_.card.marks, record.number);
            result_.card.marks[placeOf(record.number)] = record.set;
        }
    }

    void readTexts() {
        const int count = readCount("text areas");
        std::vector<bool> seen;
        for (int i = 1; i <= count; ++i) {
            TextRecord record =
                reading("text area", i, count, [this] { return reader_.readText(); });
            if (!hasPlace(record.number, count, "text area", seen)) continue;
            AmpRem(record.text);
            AmpAdd(record.text);
            makeRoom(result_.card.texts, record.number);
            result_.card.texts[placeOf(record.number)] = {std::move(record.text), record.switches};
        }
    }

    /// Complains of a number that the program never writes. A negative one ends its reading.
    bool hasPlace(int number, int count, const std::string& kind, std::vector<bool>& seen) {
        if (number < 0) giveUp("no " + kind + " has the number " + numberText(number));
        if (number == 0 || number > count)
            complain("no " + kind + " of " + numberText(count) + " has the number " +
                     numberText(number));
        if (number == 0) return false;
        makeRoom(seen, number);
        if (seen[placeOf(number)]) complain(kind + " " + numberText(number) + " comes again");
        seen[placeOf(number)] = true;
        return true;
    }

    static std::size_t placeOf(int number) { return static_cast<std::size_t>(number) - 1; }

    template <typename List>
    static void makeRoom(List& list, int number) {
        if (placeOf(number) >= list.size()) list.resize(placeOf(number) + 1);
    }

    const std::string& content_;
    std::string version_;
    std::size_t place_ = 0; ///< where the record begins
    CardReader reader_;
    CardReading result_;
};

} // namespace

CardReading readForgivingly(const std::string& content) { return Reading(content).run(); }

} // namespace zev
