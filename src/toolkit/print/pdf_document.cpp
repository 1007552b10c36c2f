#include "toolkit/print/pdf_document.h"

#include <optional>
#include <utility>

#include <QtCore/QBuffer>
#include <QtGui/QPageLayout>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include "toolkit/base/error.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/print/qt_page_painter.h"

namespace toolkit {
namespace {

/// Fine enough for hairlines of any printer; places have fractions besides.
constexpr int dotsPerInch = 1200;

QPageLayout layoutOf(const Page& page) {
    const QPageSize size(QSizeF(page.width, page.height), QPageSize::Point, QString(),
                         QPageSize::ExactMatch);
    return {size, QPageLayout::Portrait, QMarginsF()};
}

/// The text between two others, behind a place; none if one is missing.
std::optional<std::string_view> between(std::string_view text, std::size_t from,
                                        std::string_view before, std::string_view behind) {
    const std::size_t start = text.find(before, from);
    if (start == std::string_view::npos) return std::nullopt;
    const std::size_t first = start + before.size();
    const std::size_t end = text.find(behind, first);
    if (end == std::string_view::npos) return std::nullopt;
    return text.substr(first, end - first);
}

/// Says in which language the texts are, so that they are read aloud as they should be, and that
/// the document is called by its title. The library can't say either: its catalog is replaced, by
/// the kind of addition to a finished file that the format provides for.
std::string withLanguage(std::string file) {
    const std::size_t trailer = file.rfind("trailer\n");
    if (trailer == std::string::npos) return file;
    const auto size = between(file, trailer, "/Size ", "\n");
    const auto root = between(file, trailer, "/Root ", " 0 R");
    const auto info = between(file, trailer, "/Info ", " 0 R");
    const auto table = between(file, trailer, "startxref\n", "\n");
    if (!size || !root || !info || !table) return file;
    const std::string object = std::string(*root) + " 0 obj\n<<";
    const auto catalog = between(file, 0, '\n' + object, ">>\nendobj");
    if (!catalog) return file;
    std::string added = object + std::string(*catalog) +
                        "/Lang (en-US)\n/ViewerPreferences <</DisplayDocTitle true>>\n>>\nendobj\n";
    std::string place(10, '0');
    place += std::to_string(file.size());
    place.erase(0, place.size() - 10);
    const std::size_t addedTable = file.size() + added.size();
    added += "xref\n" + std::string(*root) + " 1\n" + place + " 00000 n \ntrailer\n<<\n/Size " +
             std::string(*size) + "\n/Info " + std::string(*info) + " 0 R\n/Root " +
             std::string(*root) + " 0 R\n/Prev " + std::string(*table) + "\n>>\nstartxref\n" +
             std::to_string(addedTable) + "\n%%EOF\n";
    return file + added;
}

/// The library tells the present moment. The text keeps its length, since places in the file
/// follow.
std::string withDate(std::string file, const std::string& date) {
    constexpr std::string_view beginning = "/CreationDate (";
    const std::size_t start = file.find(beginning);
    const std::size_t end = file.find(')', start);
    if (start == std::string::npos || end == std::string::npos) return file;
    std::string told;
    if (!date.empty()) told.append(beginning).append("D:").append(date).append(")");
    const std::size_t length = end + 1 - start;
    if (told.size() > length) return file;
    told.resize(length, ' ');
    return file.replace(start, length, told);
}

} // namespace

struct PdfDocument::Implementation {
    explicit Implementation(PdfFacts given) : facts(std::move(given)) {
        buffer.open(QIODevice::WriteOnly);
        writer.setResolution(dotsPerInch);
        writer.setTitle(qString(facts.title));
        writer.setCreator(QStringLiteral("Zevlin"));
    }

    void begin() {
        if (!painter.isActive() && !painter.begin(&writer))
            throw RunTimeError(Failure::PrinterError);
    }

    PdfFacts facts;
    QBuffer buffer;
    QPdfWriter writer{&buffer};
    QPainter painter;
};

PdfDocument::PdfDocument(PdfFacts facts)
    : implementation_(std::make_unique<Implementation>(std::move(facts))) {}

PdfDocument::~PdfDocument() = default;

void PdfDocument::addPage(const Page& page) {
    implementation_->writer.setPageLayout(layoutOf(page));
    if (implementation_->painter.isActive())
        implementation_->writer.newPage();
    else
        implementation_->begin();
    paintPage(implementation_->painter, page, dotsPerInch);
}

std::string PdfDocument::finish() {
    implementation_->begin();
    if (!implementation_->painter.end()) throw RunTimeError(Failure::PrinterError);
    std::string file = withLanguage(implementation_->buffer.data().toStdString());
    const auto& date = implementation_->facts.date;
    return date ? withDate(std::move(file), *date) : file;
}

std::string pdfDocument(std::span<const Page> pages, std::string_view title) {
    PdfDocument document({.title = std::string(title)});
    for (const Page& page : pages) document.addPage(page);
    return document.finish();
}

} // namespace toolkit
