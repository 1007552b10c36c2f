// A document on a printer: opened, cards and lines of text put on its pages, closed.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "toolkit/model/drawing.h"
#include "toolkit/print/page.h"
#include "toolkit/print/printer.h"

namespace toolkit {

/// What the printer is to be told beside the pages.
struct DocumentInfo {
    std::string title;                ///< of the document, in the code page
    std::filesystem::path filePreset; ///< offered by a printer that asks for a file
};

class PrintJob {
  public:
    PrintJob();
    ~PrintJob();
    PrintJob(PrintJob&&) noexcept;
    PrintJob& operator=(PrintJob&&) noexcept;

    /// Opens a document on the printer as it is set up; the one that is open is given up. False if
    /// the player was asked for a file and cancelled. Failure 482 if the document is refused, with
    /// the reason behind the description where one is known.
    [[nodiscard]] bool start(const Printer& printer, const DocumentInfo& info);
    [[nodiscard]] bool isOpen() const { return document_ != nullptr; }

    /// Printer pixels from the corner of the printable part of the page.
    struct Place {
        int left = 0;
        int top = 0;
        int width = 0;
        int height = 0;
    };
    /// A page of the printer's paper, and where a place of it lies.
    [[nodiscard]] static Page emptyPage(const Printer& printer);
    [[nodiscard]] static PlacedCard
    placed(const Printer& printer, std::shared_ptr<const CardRecording> card, const Place& place);
    /// Draws the card, or a picture pixel by pixel, stretched to the place. False if there is none
    /// or no document is open.
    bool draw(std::shared_ptr<const CardRecording> card, const Place& place);
    bool stretch(std::shared_ptr<const Bitmap> picture, const Place& place);
    /// Writes a line of text in black. The place of its top left corner in twips from the corner of
    /// the printable part of the page. Nothing happens if no document is open.
    void write(std::string_view text, const FontSpec& font, float left, float top);
    /// What is drawn from now on stands on one more page.
    void turnPage();

    /// Closes the document; when it returns the pages are with the printer, or in the file that is
    /// handed back. Failures 482 and those of writeFile. Nothing happens if no document is open.
    std::optional<std::filesystem::path> finish();
    /// Gives the open document up.
    void abandon();

  private:
    struct Document;
    std::unique_ptr<Document> document_;
};

} // namespace toolkit
