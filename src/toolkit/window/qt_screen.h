// The screen that the program reckons by. Internal to the toolkit's sources.
#pragma once

#include <QtCore/QPoint>
#include <QtGui/QScreen>

class QWidget;

namespace toolkit {

/// From now on the screen of this window counts; nullptr: there is no form.
void reckonByScreenOf(const QWidget* window);

/// The screen that holds the form's centre, the primary one before there is a form; nullptr where
/// there is none at all.
[[nodiscard]] const QScreen* presentScreen();

/// Its upper left corner among all screens. The form's place and the cursor are told from there: a
/// second screen isn't beyond the edge of the first.
[[nodiscard]] QPoint screenOrigin();

} // namespace toolkit
