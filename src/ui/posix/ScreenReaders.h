#pragma once

namespace tarnwick::ui {

/// Readers of the screen go on to ask for a while about windows that have gone. Some of the toolkit's classes have no
/// answer then, and write a complaint on standard error for each question: from now on they have one.
void answerForGoneWindows();

}  // namespace tarnwick::ui
