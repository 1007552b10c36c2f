// The main form as a plain value: its place, its frame, its background and its focus.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "toolkit/base/error.h"
#include "toolkit/model/control.h"
#include "toolkit/picture/bitmap.h"

namespace toolkit {

enum class Backdrop { Plain, Tiles, Gradient };

/// What the form paints behind its controls, anew for its present size at every paint.
struct FormBackground {
    Backdrop backdrop = Backdrop::Plain;
    std::shared_ptr<const Bitmap> tile{}; ///< for Tiles
    float tileScale = 1;                  ///< for Tiles: size of a tile over its picture's
    float yOffset = 0;                    ///< for Tiles: twips free at the top
    Color top = white;                    ///< for Gradient
    Color bottom = white;                 ///< for Gradient
    std::string text{};                   ///< printed in the bottom left corner, size 8 bold

    friend bool operator==(const FormBackground&, const FormBackground&) = default;
};

/// Which row of the menu bar's menus is highlighted, and where. Twips, relative to the form.
struct MenuSelection {
    std::string Caption{}; ///< of the row's item; empty where no row is highlighted
    float RowTop = 0;
    float Left = 0; ///< this and the following: what the open menus cover
    float Top = 0;
    float Width = 0;
    float Height = 0;

    friend bool operator==(const MenuSelection&, const MenuSelection&) = default;
};

/// Left, Top, Width and Height are those of the outer frame, twips on the screen that holds its
/// centre.
struct Form {
    float Left = 0;
    float Top = 0;
    float Width = 9600;
    float Height = 7200;
    /// Outer less inner size: borders; title bar and menu bar. An estimate until the window is
    /// mapped, then what the window manager really gives.
    float FrameWidth = 0;
    float FrameHeight = 0;
    /// Maximised or full-screen, as the player wants it. Setting place or size would end that.
    bool FillsScreen = false;
    bool Visible = false;
    bool MenusEnabled = true;
    std::string Caption;
    Color BackColor = rgb(192, 200, 192);
    toolkit::MousePointer MousePointer = toolkit::MousePointer::Default;
    FormBackground Background;
    std::string Hint; ///< shown in the middle of the form, behind all that lies on it
    /// The control that gets the keys; nullptr before the first SetFocus.
    Control* ActiveControl = nullptr;

    /// Sees every key of the form's controls first.
    std::function<void(KeyArguments&)> KeyDown;
    /// Wheel: keys held, rotation in 120ths, pointer x and y in screen pixels.
    std::function<void(int keys, int rotation, int x, int y)> MouseWheel;
    /// Another row of the menus is highlighted, or none any more. Before a chosen row's Click none
    /// is. Of a menu whose header is highlighted the header counts, until one of its rows is.
    std::function<void(const MenuSelection&)> MenuSelect;
    /// What the row with this caption does, for those who have the screen read to them; may be
    /// empty. Asked when the row's menu opens.
    std::function<std::string(std::string_view caption)> MenuDescription;
    /// Whether a file may be dropped now; asked again and again while one is dragged over the form.
    std::function<bool()> TakesFile;
    /// A file was dropped, of several the first.
    std::function<void(const std::filesystem::path&)> FileDropped;
    /// The form has another size. Comes after the fact, and in the middle of a procedure, too.
    std::function<void()> Resize;
    /// An event's procedures are done; the window hasn't taken over the values yet.
    std::function<void()> Settled;
    /// The player closes the window; true refuses.
    std::function<bool()> QueryClose;
    /// The session ends, or another program asks this one to; true refuses.
    std::function<bool()> QueryEnd;
    /// The process may end at once, whatever comes then: the system has asked for it, a procedure
    /// ends it, or the screen is gone. Can come in the middle of a procedure, and more than once;
    /// only files may be touched.
    std::function<void()> Ending;
    /// A failure that no procedure trapped (none should).
    std::function<void(const RunTimeError&)> Unhandled;

    [[nodiscard]] float ScaleWidth() const { return Width - FrameWidth; }
    [[nodiscard]] float ScaleHeight() const { return Height - FrameHeight; }

    /// Moves the focus: runs LostFocus of the control that had it, then GotFocus of this one. A
    /// control that has it already gets no event. ActiveControl has changed when LostFocus runs; if
    /// LostFocus moves the focus on, it stays there and this control gets no GotFocus.
    void SetFocus(Control& control);
};

/// Brings a label or control to the front of (or sends it to the back of) its container's stack.
class Stacking {
  public:
    template <typename Item>
    void bringToFront(Item& item) {
        item.Stack = ++front_;
    }
    template <typename Item>
    void sendToBack(Item& item) {
        item.Stack = --back_;
    }

  private:
    int front_ = 0;
    int back_ = 0;
};

} // namespace toolkit
