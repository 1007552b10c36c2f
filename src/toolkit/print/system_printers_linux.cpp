#include "toolkit/print/system_printers.h"

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <utility>

#include "toolkit/base/ansi.h"
#include "toolkit/base/error.h"
#include "toolkit/base/utf8.h"
#include "toolkit/print/cups_library.h"

namespace toolkit {
namespace {

constexpr int usualResolution = 600;
constexpr int systemToken = 2;

/// The service's own name for the player, or where it has none one made of the keyword: "Letter
/// (8.5x11in)" of "na_letter_8.5x11in", "Top" of "top".
std::string nameOf(const char* localized, const std::string& keyword) {
    if (localized != nullptr && keyword != localized) return ansiFromUtf8(localized);
    std::string name = keyword;
    std::string size;
    const std::size_t first = keyword.find('_');
    const std::size_t last = keyword.rfind('_');
    if (first != last) {
        name = keyword.substr(first + 1, last - first - 1);
        size = " (" + keyword.substr(last + 1) + ")";
    }
    if (!name.empty() && name[0] >= 'a' && name[0] <= 'z')
        name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return ansiFromUtf8(name + size);
}

/// What the service lists: its printers, some with instances that have settings of their own.
class Queues {
  public:
    Queues() : cups_(cupsLibrary()) {
        if (cups_ != nullptr) count_ = cups_->getDests(&list_);
    }
    ~Queues() {
        if (cups_ != nullptr) cups_->freeDests(count_, list_);
    }
    Queues(const Queues&) = delete;
    Queues& operator=(const Queues&) = delete;

    [[nodiscard]] std::span<cups_dest_t> all() const {
        return {list_, static_cast<std::size_t>(count_)};
    }
    /// False if there is none of this name, or the service refuses.
    [[nodiscard]] bool makeDefault(std::string_view name) {
        bool isThere = false;
        for (cups_dest_t& queue : all()) {
            const bool isWanted = queue.instance == nullptr && queue.name == name;
            queue.is_default = isWanted ? 1 : 0;
            isThere = isThere || isWanted;
        }
        return isThere && cups_->setDests(CUPS_HTTP_DEFAULT, count_, list_) == 0;
    }

  private:
    const CupsLibrary* cups_;
    cups_dest_t* list_ = nullptr;
    int count_ = 0;
};

/// A printer of the service with what it can do.
class Destination {
  public:
    Destination(const CupsLibrary& cups, const std::string& name)
        : cups_(cups), destination_(cups.getNamedDest(CUPS_HTTP_DEFAULT, name.c_str(), nullptr)) {
        if (destination_ != nullptr) info_ = cups.copyDestInfo(CUPS_HTTP_DEFAULT, destination_);
    }
    ~Destination() {
        if (info_ != nullptr) cups_.freeDestInfo(info_);
        if (destination_ != nullptr) cups_.freeDests(1, destination_);
    }
    Destination(const Destination&) = delete;
    Destination& operator=(const Destination&) = delete;

    [[nodiscard]] bool exists() const { return info_ != nullptr; }

    void fill(Printer& printer) const {
        readColor(printer);
        readResolution(printer);
        readPapers(printer);
        printer.Trays = offered(CUPS_MEDIA_SOURCE);
        printer.PaperTypes = offered(CUPS_MEDIA_TYPE);
        readQualities(printer);
    }

  private:
    [[nodiscard]] std::vector<std::string> supported(const char* option) const {
        ipp_attribute_t* values =
            cups_.findDestSupported(CUPS_HTTP_DEFAULT, destination_, info_, option);
        std::vector<std::string> texts;
        const int count = values == nullptr ? 0 : cups_.getCount(values);
        for (int i = 0; i < count; ++i)
            if (const char* text = cups_.getString(values, i, nullptr)) texts.emplace_back(text);
        return texts;
    }

    void readColor(Printer& printer) const {
        const auto modes = supported(CUPS_PRINT_COLOR_MODE);
        printer.CanColor = std::ranges::find(modes, "color") != modes.end();
        const char* chosen = cups_.getOption(CUPS_PRINT_COLOR_MODE, destination_->num_options,
                                             destination_->options);
        const bool isGrey = chosen != nullptr && std::string_view(chosen) == "monochrome";
        printer.ColorMode = printer.CanColor && !isGrey ? colored : monochrome;
    }

    void readResolution(Printer& printer) const {
        printer.PixelsPerInchX = printer.PixelsPerInchY = usualResolution;
        ipp_attribute_t* value =
            cups_.findDestDefault(CUPS_HTTP_DEFAULT, destination_, info_, "printer-resolution");
        if (value == nullptr) return;
        int y = 0;
        ipp_res_t unit = IPP_RES_PER_INCH;
        const int x = cups_.getResolution(value, 0, &y, &unit);
        if (x <= 0 || y <= 0 || unit != IPP_RES_PER_INCH) return;
        printer.PixelsPerInchX = x;
        printer.PixelsPerInchY = y;
    }

    [[nodiscard]] Paper paperOf(cups_size_t size, int code) const {
        const auto inches = [](int length) {
            return static_cast<float>(length) / hundredthsPerInch;
        };
        const char* name = cups_.localizeDestMedia(CUPS_HTTP_DEFAULT, destination_, info_,
                                                   CUPS_MEDIA_FLAGS_DEFAULT, &size);
        return {.code = code,
                .name = nameOf(name, size.media),
                .keyword = size.media,
                .width = inches(size.width),
                .height = inches(size.length),
                .sideMargin = inches(std::max(size.left, size.right)),
                .endMargin = inches(std::max(size.top, size.bottom))};
    }

    void readPapers(Printer& printer) const {
        cups_size_t size{};
        const int count = cups_.getDestMediaCount(CUPS_HTTP_DEFAULT, destination_, info_,
                                                  CUPS_MEDIA_FLAGS_DEFAULT);
        for (int i = 0; i < count; ++i)
            if (cups_.getDestMediaByIndex(CUPS_HTTP_DEFAULT, destination_, info_, i,
                                          CUPS_MEDIA_FLAGS_DEFAULT, &size) != 0)
                printer.Papers.push_back(paperOf(size, i + 1));
        if (printer.Papers.empty()) printer.Papers = usualPapers();
        layOutPage(printer, defaultPaper(printer), Orientation::Portrait);
    }

    /// Of a queue that tells nothing of its paper, with the margins that most printers need.
    [[nodiscard]] static std::vector<Paper> usualPapers() {
        constexpr float margin = 0.25F;
        return {{1, "Letter", "na_letter_8.5x11in", 8.5F, 11, margin, margin},
                {2, "A4", "iso_a4_210x297mm", 8.27F, 11.69F, margin, margin}};
    }

    [[nodiscard]] int defaultPaper(const Printer& printer) const {
        cups_size_t size{};
        if (cups_.getDestMediaDefault(CUPS_HTTP_DEFAULT, destination_, info_,
                                      CUPS_MEDIA_FLAGS_DEFAULT, &size) != 0) {
            const auto found = std::ranges::find(printer.Papers, size.media, &Paper::keyword);
            if (found != printer.Papers.end()) return found->code;
        }
        return printer.Papers.front().code;
    }

    [[nodiscard]] std::vector<PrinterOption> offered(const char* option) const {
        std::vector<PrinterOption> options;
        for (const std::string& keyword : supported(option)) {
            const char* name = cups_.localizeDestValue(CUPS_HTTP_DEFAULT, destination_, info_,
                                                       option, keyword.c_str());
            const int code = static_cast<int>(options.size()) + 1;
            options.push_back({code, nameOf(name, keyword), keyword});
        }
        return options;
    }

    /// They are numbers, for which the service has no names.
    void readQualities(Printer& printer) const {
        constexpr std::array names{std::pair{IPP_QUALITY_DRAFT, "Draft"},
                                   std::pair{IPP_QUALITY_NORMAL, "Normal"},
                                   std::pair{IPP_QUALITY_HIGH, "High"}};
        ipp_attribute_t* values =
            cups_.findDestSupported(CUPS_HTTP_DEFAULT, destination_, info_, CUPS_PRINT_QUALITY);
        const int count = values == nullptr ? 0 : cups_.getCount(values);
        for (int i = 0; i < count; ++i)
            for (const auto& [quality, name] : names)
                if (cups_.getInteger(values, i) == quality)
                    printer.Qualities.push_back({quality, name, std::to_string(quality)});
    }

    const CupsLibrary& cups_;
    cups_dest_t* destination_ = nullptr;
    cups_dinfo_t* info_ = nullptr;
};

} // namespace

std::vector<std::string> systemPrinterNames() {
    const Queues queues;
    std::vector<std::string> names;
    for (const cups_dest_t& queue : queues.all()) {
        const auto place = queue.is_default != 0 ? names.begin() : names.end();
        if (queue.instance == nullptr) names.insert(place, ansiFromUtf8(queue.name));
    }
    return names;
}

std::string systemDefaultPrinterName() {
    const Queues queues;
    const auto found = std::ranges::find_if(queues.all(), &cups_dest_t::is_default);
    return found == queues.all().end() ? std::string() : ansiFromUtf8(found->name);
}

void setSystemDefaultPrinter(std::string_view name) {
    Queues queues;
    if (!queues.makeDefault(utf8FromAnsi(name))) throw RunTimeError(Failure::PrinterError);
}

Printer systemPrinter(std::string_view name) {
    Printer printer;
    const CupsLibrary* cups = cupsLibrary();
    if (cups == nullptr) return printer;
    const Destination destination(*cups, utf8FromAnsi(name));
    if (!destination.exists()) return printer;
    printer.DeviceName = name;
    printer.hdc = systemToken;
    destination.fill(printer);
    return printer;
}

} // namespace toolkit
