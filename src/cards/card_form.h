// The program's form without a window that anybody sees: it shows card after card and makes pages
// and images of them.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cards/command_options.h"
#include "form/zevlin.h"
#include "toolkit/print/page.h"
#include "toolkit/window/window.h"

namespace zev {

class CardForm {
  public:
    /// The folder has what the form needs, and takes the place of the player's own; its parent
    /// stands for the Documents. Trouble where the form can't be made. One at a time.
    CardForm(const CommandOptions& options, const std::filesystem::path& folder,
             std::optional<double> date);
    ~CardForm();
    CardForm(const CardForm&) = delete;
    CardForm& operator=(const CardForm&) = delete;

    /// Shows a card, which must be one that the program shows whole. Failures of readFile.
    void show(const std::filesystem::path& card);

    /// The name of the card that is shown, in the code page.
    [[nodiscard]] const std::string& cardName() const { return form_.CardName; }
    /// Its page, that of the partner, or both, as Print card makes them.
    [[nodiscard]] std::vector<toolkit::Page> pages();
    /// Writes its image as Export Image makes it. Failures of writeFile.
    void saveImage(const std::filesystem::path& file);

  private:
    /// Which field lies over which: each card shuffles them.
    struct FieldOrder {
        toolkit::Stacking stack{};
        std::vector<int> texts{};
        std::vector<int> highlights{};
    };

    void start();
    void chooseColors();
    void choosePaper();
    void keepFieldOrder();
    void putFieldOrderBack();
    void stamp();
    [[nodiscard]] toolkit::Page page();
    [[nodiscard]] float imageScale() const;

    const CommandOptions& options_;
    std::string told_; ///< the last box that would have been shown
    Zevlin form_;
    std::unique_ptr<toolkit::Window> window_;
    std::shared_ptr<const toolkit::Bitmap> blank_; ///< the card's picture without fields
    FieldOrder order_;
    bool isBlack_ = false;
};

} // namespace zev
