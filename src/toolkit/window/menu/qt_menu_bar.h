// The menu bar and its shortcuts. Internal to the toolkit's sources.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QtGui/QKeySequence>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/menu/qt_menu_watch.h"
#include "toolkit/window/menu/qt_read_out.h"

namespace toolkit {

/// Only the bar itself follows the values all the time. A menu is made anew from its rows whenever
/// it opens, so that the rows cost nothing before and always show what is true then.
class MenuBar : public QMenuBar {
  public:
    MenuBar(QWidget& form, const WindowParts& parts, EventDispatcher& dispatcher);

    void push();
    /// The form hears no more of the menus, which may still be open when the window goes.
    void stopTelling() { watch_.stop(); }
    /// Runs the row whose shortcut this is, if it and all menus around it are shown and enabled.
    bool runShortcut(const QKeyEvent& event);
    /// As if the player had opened the menus and chosen the row; captions without "&", joined by
    /// ">". False where it isn't shown or enabled.
    bool choose(std::string_view captionPath);
    /// The row itself; nullptr where it isn't shown or enabled.
    [[nodiscard]] QAction* offeredRow(std::string_view captionPath);
    /// The row on the bar that is only read: one with neither rows below it nor a Click. nullptr
    /// where there is none.
    [[nodiscard]] const ReadOut* readOut() const { return readOut_.get(); }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    /// A menu on the bar.
    struct Entry {
        std::size_t row = 0;
        QMenu menu;
        QAction* action = nullptr;
        std::string caption;
    };

    enum class Rest { Lasting, OfAMoment };

    void showRest(Rest rest);
    void addEntry(std::size_t row);
    void placeReadOut();
    void endGlow();
    void fill(QMenu& menu, std::size_t first, int level);
    std::size_t addRow(QMenu& menu, std::size_t row);
    void connectRow(QAction& action, std::size_t row);
    [[nodiscard]] bool mayAct(std::size_t row) const;
    [[nodiscard]] std::optional<std::size_t> menuAround(std::size_t row) const;
    [[nodiscard]] bool hasMenu(std::size_t row) const;
    void runIfOffered(std::size_t row);
    void run(std::size_t row);
    void describe(QAction& action, std::size_t row);
    void tellSelection(const HighlightedRow& highlighted);

    const WindowParts& parts_;
    EventDispatcher& dispatcher_;
    MenuWatch watch_; ///< outlives the menus
    MenuSelection told_;
    std::vector<std::unique_ptr<Entry>> entries_;
    std::vector<QKeySequence> shortcuts_; ///< by row
    std::unique_ptr<ReadOut> readOut_;
};

} // namespace toolkit
