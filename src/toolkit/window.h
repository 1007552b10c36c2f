// The window that shows the form: it paints the values of the controls and sends their events.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/form.h"
#include "toolkit/label.h"
#include "toolkit/label_group.h"
#include "toolkit/panel.h"

namespace toolkit {

/// One row of the menu bar's table.
struct MenuRow {
    int level = 0;               ///< 0 on the bar, 1 in its menu, 2 in a submenu
    MenuItem* item = nullptr;    ///< none: a separator
    std::string_view shortcut{}; ///< acts while the item is shown and enabled: "Ctrl+S"
    std::function<void()> Click{};
};

/// Everything that the window shows. The values must outlive the window.
struct WindowParts {
    Form* form = nullptr;
    PictureBox* card = nullptr;
    /// While it is visible the card's widget goes on showing what it showed when this one came up,
    /// whatever becomes of the card's values. May be missing.
    PictureBox* frozenCard = nullptr;
    std::vector<LabelGroup> cardGroups{};
    std::vector<Label*> cardLabels{};      ///< single labels on the card; they swallow presses
    std::vector<TextBox*> cardTextBoxes{}; ///< over the labels of the card
    std::vector<ListBox*> lists{};         ///< on the form, over the card
    std::vector<PanelContents> panels{};   ///< the same
    std::vector<TextBox*> notices{};       ///< on the form, over all else; only to be read
    std::vector<MenuRow> menu{};
};

/// Events run in the order of the platform: MouseDown, MouseUp, Click for every button, the control
/// that got the press keeps the moves and the release; a MouseMove without button precedes a press
/// on the card whenever the pointer isn't where the last one was sent. Keys go to the form, the
/// menu's shortcuts, the control's KeyDown, KeyPress and then the control itself.
class Window {
  public:
    explicit Window(WindowParts parts);
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Takes over all values now (events, boxes and waits do it by themselves).
    void update();

    class Implementation;

  private:
    std::unique_ptr<Implementation> implementation_;
};

/// Makes the labels of the open window, as their values stand now, part of the card's picture, at
/// one pixel a pixel; also the parts that no screen shows. Without a window the picture stays as it
/// is. What else shares the picture keeps it without the labels.
void flatten(PictureBox& card);

/// The platform's application object: made first in main, gone last.
class Application {
  public:
    Application(int& argumentCount, char** arguments);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// Runs events until the program ends; returns the exit code.
    int run();
    /// Lets run() return.
    static void quit();
    /// The words behind the program's name, without the platform's own switches, joined by blanks;
    /// in UTF-8, since a path may hold any character.
    [[nodiscard]] std::string commandLine() const;

  private:
    class Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace toolkit
