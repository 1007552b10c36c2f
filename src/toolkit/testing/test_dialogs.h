// Dialogs on the screen, for tests.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace toolkit::test {

/// A dialog of the platform that came up.
struct ShownDialog {
    std::string title;
    std::vector<std::string> buttons;
};
/// The next dialog that is no box is noted and cancelled.
void endNextDialog(ShownDialog& seen);

/// Works the lists, numbers, options and buttons of a form that is open. Lists are counted from the
/// top; captions and labels are told without their marks of access keys.
class DialogDriver {
  public:
    [[nodiscard]] std::string title() const;
    [[nodiscard]] std::vector<std::string> labels() const;
    [[nodiscard]] std::vector<std::string> listRows(int list) const;
    [[nodiscard]] std::string chosen(int list) const;
    /// Chooses the row in the list that has it; false where none does.
    [[nodiscard]] bool choose(std::string_view row);
    void choose(int list, int row);
    void typeInto(int list, int keyCode, std::string_view text);
    [[nodiscard]] bool isListEnabled(int list) const;
    void setNumber(std::string_view label, int value);
    [[nodiscard]] int number(std::string_view label) const;
    [[nodiscard]] bool isNumberEnabled(std::string_view label) const;
    void turnOn(std::string_view option);
    [[nodiscard]] bool isOn(std::string_view option) const;
    [[nodiscard]] bool isEnabled(std::string_view option) const;
    void press(std::string_view button);
};
/// Runs once the next form is there, which must close in it.
void driveNextDialog(std::function<void(DialogDriver&)> act);

} // namespace toolkit::test
