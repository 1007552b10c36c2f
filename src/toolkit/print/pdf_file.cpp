#include "toolkit/print/pdf_file.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <utility>

namespace toolkit {
namespace {

constexpr std::size_t entryLength = 20;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

std::optional<std::size_t> numberAt(std::string_view text, std::size_t place) {
    if (place > text.size()) return std::nullopt;
    std::size_t number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data() + place, end, number);
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

/// What the table that begins here says of the places of all objects; none if it's no such table.
std::vector<std::size_t> placesIn(std::string_view file, std::size_t table) {
    constexpr std::string_view beginning = "xref\n0 ";
    if (table > file.size() || !file.substr(table).starts_with(beginning)) return {};
    const auto count = numberAt(file, table + beginning.size());
    const std::size_t first = file.find('\n', table + beginning.size()) + 1;
    if (!count || first == 0 || *count > (file.size() - first) / entryLength) return {};
    std::vector<std::size_t> places(*count);
    for (std::size_t i = 0; i < *count; ++i)
        places[i] = numberAt(file, first + i * entryLength).value_or(0);
    return places;
}

std::string entryFor(std::size_t place) {
    constexpr std::size_t digits = 10;
    const std::string number = std::to_string(place);
    return std::string(digits - std::min(digits, number.size()), '0') + number + " 00000 n \n";
}

/// What an object says of itself, without its stream.
std::string_view withoutStream(std::string_view object) {
    return object.substr(0, object.find("stream\n"));
}

/// The digits in front of each " 0 R".
std::vector<std::string_view> referringDigits(std::string_view object) {
    std::vector<std::string_view> found;
    const std::string_view text = withoutStream(object);
    constexpr std::string_view reference = " 0 R";
    for (std::size_t at = text.find(reference); at != std::string_view::npos;
         at = text.find(reference, at + 1)) {
        std::size_t first = at;
        while (first > 0 && isDigit(text[first - 1])) --first;
        if (first < at) found.push_back(text.substr(first, at - first));
    }
    return found;
}

/// A font that a file holds in part has a mark of six letters before its name, which the library
/// makes of its object's number.
void markAnew(std::string& object, int number) {
    constexpr std::string_view beginning = "/FontName /Q";
    constexpr std::size_t letters = 5;
    constexpr int alphabet = 26;
    const std::size_t at = object.find(beginning);
    const std::size_t first = at + beginning.size();
    if (at == std::string::npos || first + letters >= object.size() ||
        object[first + letters] != '+')
        return;
    for (std::size_t i = 0; i < letters; ++i, number /= alphabet)
        object[first + i] = static_cast<char>('A' + number % alphabet);
}

} // namespace

std::optional<int> numberAfter(std::string_view object, std::string_view word) {
    const std::size_t place = object.find(word);
    if (place == std::string_view::npos) return std::nullopt;
    const auto number = numberAt(object, place + word.size());
    return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

std::vector<int> referencesIn(std::string_view object) {
    std::vector<int> numbers;
    for (const std::string_view digits : referringDigits(object))
        numbers.push_back(static_cast<int>(numberAt(digits, 0).value_or(0)));
    return numbers;
}

std::string renumbered(std::string_view object, const std::map<int, int>& numbers) {
    std::string changed;
    const char* done = object.data();
    for (const std::string_view digits : referringDigits(object)) {
        changed.append(done, digits.data());
        changed += std::to_string(numbers.at(static_cast<int>(numberAt(digits, 0).value_or(0))));
        done = digits.data() + digits.size();
    }
    return changed.append(done, object.data() + object.size());
}

std::optional<PdfFile> PdfFile::read(std::string file) {
    const std::size_t trailer = file.rfind("trailer\n");
    if (trailer == std::string::npos) return std::nullopt;
    const std::string_view end = std::string_view(file).substr(trailer);
    const auto root = numberAfter(end, "/Root ");
    const auto info = numberAfter(end, "/Info ");
    const auto table = numberAfter(end, "startxref\n");
    if (!root || !info || !table) return std::nullopt;
    PdfFile read;
    read.table_ = static_cast<std::size_t>(*table);
    read.places_ = placesIn(file, read.table_);
    read.sorted_ = read.places_;
    std::ranges::sort(read.sorted_);
    read.root_ = *root;
    read.info_ = *info;
    read.content_ = std::move(file);
    if (read.object(read.root_).empty()) return std::nullopt;
    return read;
}

std::string_view PdfFile::head() const {
    const auto first = std::ranges::upper_bound(sorted_, std::size_t{0});
    return std::string_view(content_).substr(0, first == sorted_.end() ? 0 : *first);
}

std::string_view PdfFile::object(int number) const {
    if (number <= 0 || number >= size()) return {};
    const std::size_t place = places_[static_cast<std::size_t>(number)];
    const auto next = std::ranges::upper_bound(sorted_, place);
    const std::size_t end = next == sorted_.end() ? table_ : *next;
    if (place >= end || end > content_.size()) return {};
    // Streams may hold any bytes, so the object's end is looked for from the next one's beginning.
    std::string_view text = std::string_view(content_).substr(place, end - place);
    const std::string head = std::to_string(number) + " 0 obj\n";
    const std::size_t past = text.rfind("endobj");
    if (!text.starts_with(head) || past == std::string_view::npos) return {};
    return text.substr(head.size(), past - head.size());
}

std::vector<int> PdfFile::pages() const {
    const auto tree = numberAfter(object(root_), "/Pages ");
    if (!tree) return {};
    const std::string_view text = object(*tree);
    const std::size_t first = text.find("/Kids");
    if (first == std::string_view::npos) return {};
    const std::size_t past = text.find(']', first);
    return referencesIn(text.substr(first, past - first));
}

int PdfRevision::add(std::string object) {
    changed_.emplace(next_, std::move(object));
    return next_++;
}

void PdfRevision::replace(int number, std::string object) {
    changed_.insert_or_assign(number, std::move(object));
}

std::string_view PdfRevision::object(int number) const {
    const auto changed = changed_.find(number);
    return changed == changed_.end() ? file_.object(number) : std::string_view(changed->second);
}

std::vector<int> PdfRevision::inOrder() const {
    std::vector<int> order{file_.root(), file_.info()};
    std::set<int> known(order.begin(), order.end());
    for (std::size_t i = 0; i < order.size(); ++i)
        for (const int number : referencesIn(object(order[i])))
            if (known.insert(number).second) order.push_back(number);
    return order;
}

std::string PdfRevision::finish() const {
    const std::vector<int> order = inOrder();
    std::map<int, int> numbers;
    for (const int number : order) numbers.emplace(number, static_cast<int>(numbers.size()) + 1);
    const std::string size = std::to_string(order.size() + 1);
    std::string file(file_.head());
    std::string table = "xref\n0 " + size + "\n0000000000 65535 f \n";
    for (const int number : order) {
        std::string text = renumbered(object(number), numbers);
        markAnew(text, numbers.at(number));
        table += entryFor(file.size());
        file += std::to_string(numbers.at(number)) + " 0 obj\n" + text + "endobj\n";
    }
    const std::string place = std::to_string(file.size());
    return file + table + "trailer\n<<\n/Size " + size + "\n/Info " +
           std::to_string(numbers.at(file_.info())) + " 0 R\n/Root " +
           std::to_string(numbers.at(file_.root())) + " 0 R\n>>\nstartxref\n" + place + "\n%%EOF\n";
}

} // namespace toolkit
