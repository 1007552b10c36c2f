#include "toolkit/print/pdf_form.h"

#include <array>
#include <charconv>
#include <string_view>
#include <utility>
#include <vector>

namespace toolkit {
namespace {

constexpr std::string_view dictionary = "<<";

/// False if an object is missing.
bool collect(const PdfFile& file, int number, std::map<int, std::string>& objects) {
    if (objects.contains(number)) return true;
    const std::string_view object = file.object(number);
    if (object.empty()) return false;
    objects.emplace(number, object);
    for (const int other : referencesIn(object))
        if (!collect(file, other, objects)) return false;
    return true;
}

/// The object with more in its dictionary; empty if it has none.
std::string extended(std::string_view object, const std::string& entries) {
    const std::size_t at = object.find(dictionary);
    if (at == std::string_view::npos) return {};
    const std::size_t past = at + dictionary.size();
    return std::string(object.substr(0, past)).append("\n" + entries).append(object.substr(past));
}

std::string_view boxOf(std::string_view page) {
    constexpr std::string_view word = "/MediaBox [";
    const std::size_t at = page.find(word);
    if (at == std::string_view::npos) return {};
    const std::size_t first = at + word.size();
    return page.substr(first, page.find(']', first) - first);
}

std::string decimalText(double number) {
    constexpr int decimals = 9;
    std::array<char, 64> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number,
                                            std::chars_format::fixed, decimals);
    return {text.data(), end};
}

std::string nameOf(const ShownForm& shown) { return "/Form" + std::to_string(shown.form); }

std::string drawn(std::span<const ShownForm> forms) {
    std::string content;
    for (const ShownForm& shown : forms)
        content += "q\n" + decimalText(shown.across) + " 0 0 " + decimalText(shown.up) + ' ' +
                   decimalText(shown.left) + ' ' + decimalText(shown.foot) + " cm\n" +
                   nameOf(shown) + " Do\nQ\n";
    return "<<\n/Length " + std::to_string(content.size()) + "\n>>\nstream\n" + content +
           "endstream\n";
}

/// A page's resources with the forms among them.
std::string resourcesWith(std::string_view resources, std::span<const ShownForm> forms) {
    std::string entries;
    for (const ShownForm& shown : forms)
        if (entries.find(nameOf(shown) + ' ') == std::string::npos)
            entries += nameOf(shown) + ' ' + std::to_string(shown.form) + " 0 R\n";
    constexpr std::string_view word = "/XObject <<";
    const std::size_t at = resources.find(word);
    if (at == std::string_view::npos)
        return extended(resources, std::string(word) + '\n' + entries + ">>\n");
    return std::string(resources.substr(0, at)) + extended(resources.substr(at), entries);
}

void replaceFirst(std::string& object, const std::string& old, const std::string& text) {
    if (const std::size_t at = object.find(old); at != std::string::npos)
        object.replace(at, old.size(), text);
}

} // namespace

std::optional<PdfForm> PdfForm::ofFirstPage(const PdfFile& file) {
    const std::vector<int> pages = file.pages();
    if (pages.empty()) return std::nullopt;
    const std::string_view page = file.object(pages.front());
    const auto content = numberAfter(page, "/Contents ");
    const auto resources = numberAfter(page, "/Resources ");
    const std::string_view box = boxOf(page);
    if (!content || !resources || box.empty()) return std::nullopt;
    PdfForm form;
    if (!collect(file, *content, form.objects_) || !collect(file, *resources, form.objects_))
        return std::nullopt;
    form.form_ = *content;
    std::string& object = form.objects_.at(*content);
    object = extended(object, "/Type /XObject\n/Subtype /Form\n/BBox [" + std::string(box) +
                                  "]\n/Resources " + std::to_string(*resources) + " 0 R\n");
    if (object.empty()) return std::nullopt;
    return form;
}

int PdfForm::addTo(PdfRevision& revision) const {
    std::map<int, int> numbers;
    int next = revision.next();
    for (const auto& [number, object] : objects_) numbers.emplace(number, next++);
    for (const auto& [number, object] : objects_) revision.add(renumbered(object, numbers));
    return numbers.at(form_);
}

std::optional<double> heightOfPage(const PdfFile& file, int page) {
    const std::string_view box = boxOf(file.object(page));
    const std::size_t first = box.rfind(' ');
    double height = 0;
    if (first == std::string_view::npos ||
        std::from_chars(box.data() + first + 1, box.data() + box.size(), height).ec != std::errc())
        return std::nullopt;
    return height;
}

bool showBehind(const PdfFile& file, PdfRevision& revision, int page,
                std::span<const ShownForm> shown) {
    std::string object(file.object(page));
    const auto content = numberAfter(object, "/Contents ");
    const auto resources = numberAfter(object, "/Resources ");
    if (!content || !resources) return false;
    const std::string extendedResources = resourcesWith(file.object(*resources), shown);
    if (extendedResources.empty()) return false;
    const int drawing = revision.add(drawn(shown));
    const int all = revision.add(extendedResources);
    const std::string old = std::to_string(*content) + " 0 R";
    replaceFirst(object, "/Contents " + old,
                 "/Contents [" + std::to_string(drawing) + " 0 R " + old + ']');
    replaceFirst(object, "/Resources " + std::to_string(*resources),
                 "/Resources " + std::to_string(all));
    revision.replace(page, object);
    return true;
}

} // namespace toolkit
