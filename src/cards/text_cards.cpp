#include "cards/text_cards.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "cards/field_json.h"
#include "cards/filled_fields.h"
#include "cards/message_text.h"
#include "toolkit/text/typed_text.h"

namespace zev {
namespace {

/// The cards as lines of text, or as the elements of a JSON list.
class CardTeller {
  public:
    CardTeller(std::ostream& out, bool asJson) : out_(out), asJson_(asJson) {}

    void begin() {
        if (asJson_) out_ << '[';
    }

    void tell(const std::filesystem::path& file, const CardDocument& card) {
        if (asJson_)
            tellJson(file, card);
        else
            tellLines(file, card);
        isFirst_ = false;
    }

    void end() {
        if (asJson_) out_ << (isFirst_ ? "]\n" : "\n]\n");
    }

  private:
    void tellLine(std::string_view name, const std::string& value, bool isHighlighted = false) {
        out_ << "  " << name << ": " << onOneLine(value);
        if (isHighlighted) out_ << (value.empty() ? "(highlighted)" : " (highlighted)");
        out_ << '\n';
    }

    void tellLines(const std::filesystem::path& file, const CardDocument& card) {
        if (!isFirst_) out_ << '\n';
        out_ << onOneLine(utf8Of(file)) << '\n';
        const CardPartner& partner = card.partner;
        if (!partner.name.empty()) tellLine("Partner's name", toolkit::utf8ForOthers(partner.name));
        if (!partner.number.empty())
            tellLine("Partner's number", toolkit::utf8ForOthers(partner.number));
        for (const CardField& field : filledFieldsOf(card))
            tellLine(field.name, field.value, field.isHighlighted);
    }

    void tellJson(const std::filesystem::path& file, const CardDocument& card) {
        out_ << (isFirst_ ? "\n  {" : ",\n  {") << "\n    \"file\": " << jsonText(utf8Of(file))
             << ",\n    \"card\": " << jsonText(utf8Of(file.stem()))
             << ",\n    \"partner\": {\"name\": "
             << jsonText(toolkit::utf8ForOthers(card.partner.name))
             << ", \"number\": " << jsonText(toolkit::utf8ForOthers(card.partner.number))
             << "},\n    \"fields\": [";
        const char* separator = "\n      ";
        for (const CardField& field : filledFieldsOf(card)) {
            out_ << separator << fieldJson(field);
            separator = ",\n      ";
        }
        out_ << "\n    ]\n  }";
    }

    static std::string fieldJson(const CardField& field) {
        return "{" + fieldIdJson(field) + ", " + fieldValueJson(field) + "}";
    }

    std::ostream& out_;
    bool asJson_;
    bool isFirst_ = true;
};

} // namespace

int tellCards(const CommandOptions& options, const Surroundings& surroundings) {
    bool areWhole = true;
    CardTeller teller(surroundings.out, options.json);
    teller.begin();
    const auto tell = [&](const std::filesystem::path& file, const CardReading& reading) {
        if (reading.isWhole) return teller.tell(file, reading.card);
        tellFaults(surroundings.err, file, reading);
        areWhole = false;
    };
    const bool areRead = forEachCard(options, surroundings, FoldersAsked::Refused, tell);
    teller.end();
    return areRead && areWhole ? exit_status::success : exit_status::someFailed;
}

} // namespace zev
