// A row of the menu bar that the player only reads. Internal to the toolkit's sources.
#pragma once

#include <string>

#include <QtWidgets/QLabel>

#include "toolkit/model/control.h"

namespace toolkit {

/// Stands at the bar's end and keeps its width while its text changes. Among the menus it would
/// fold away where the bar is narrow, and its every change would lay the bar out anew.
class ReadOut : public QLabel {
  public:
    ReadOut(QWidget& bar, const MenuItem& item);

    /// Takes over what the program changed.
    void push();
    /// Lies down in what the menus leave of the bar, from the pixel behind the last of them.
    void place(int menusEnd);

  private:
    void fit();

    const MenuItem& item_;
    std::string caption_;
};

} // namespace toolkit
