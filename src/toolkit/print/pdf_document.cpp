#include "toolkit/print/pdf_document.h"

#include <utility>

#include "toolkit/base/error.h"
#include "toolkit/print/pdf_artworks.h"
#include "toolkit/print/pdf_file.h"
#include "toolkit/print/pdf_writing.h"
#include "toolkit/print/qt_page_painter.h"

namespace toolkit {
namespace {

/// Fine enough for hairlines of any printer; places have fractions besides.
constexpr int dotsPerInch = 1200;

/// Says in which language the texts are, so that they are read aloud as they should be, and that
/// the document is called by its title. The library can't say either.
void tellLanguage(const PdfFile& file, PdfRevision& revision) {
    std::string catalog(file.object(file.root()));
    if (const std::size_t end = catalog.rfind(">>"); end != std::string::npos)
        catalog.insert(end, "/Lang (en-US)\n/ViewerPreferences <</DisplayDocTitle true>>\n");
    revision.replace(file.root(), std::move(catalog));
}

/// The library tells the present moment.
void tellDate(const PdfFile& file, PdfRevision& revision, const std::string& date) {
    constexpr std::string_view beginning = "/CreationDate (";
    std::string info(file.object(file.info()));
    const std::size_t start = info.find(beginning);
    const std::size_t end = info.find(")\n", start);
    if (start == std::string::npos || end == std::string::npos) return;
    std::string told;
    if (!date.empty()) told.append(beginning).append("D:").append(date).append(")\n");
    revision.replace(file.info(), info.replace(start, end + 2 - start, told));
}

} // namespace

struct PdfDocument::Implementation {
    explicit Implementation(PdfFacts given) : facts(std::move(given)) {
        writing.describe(facts.title);
    }

    PdfFacts facts;
    PdfWriting writing{dotsPerInch};
    PdfArtworks artworks;
};

PdfDocument::PdfDocument(PdfFacts facts)
    : implementation_(std::make_unique<Implementation>(std::move(facts))) {}

PdfDocument::~PdfDocument() = default;

void PdfDocument::addPage(const Page& page) {
    QPainter& painter = implementation_->writing.newPage(page.width, page.height);
    paintPage(painter, implementation_->artworks.takenOff(page), dotsPerInch);
}

std::string PdfDocument::finish() {
    std::string written = implementation_->writing.finish();
    const auto file = PdfFile::read(written);
    // Where the library writes another kind of file, no artwork was taken off a page.
    if (!file) return written;
    PdfRevision revision(*file);
    tellLanguage(*file, revision);
    if (const auto& date = implementation_->facts.date) tellDate(*file, revision, *date);
    implementation_->artworks.putBehind(*file, revision);
    return revision.finish();
}

std::string pdfDocument(std::span<const Page> pages, std::string_view title) {
    PdfDocument document({.title = std::string(title)});
    for (const Page& page : pages) document.addPage(page);
    return document.finish();
}

} // namespace toolkit
