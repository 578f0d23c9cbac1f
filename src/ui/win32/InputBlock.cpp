#include "ui/InputBlock.h"

#include <wx/utils.h>

namespace tarnwick::ui {

struct InputBlock::State {
  wxWindowDisabler disabler;
};

InputBlock::InputBlock() : state_(std::make_unique<State>()) {}

InputBlock::~InputBlock() = default;

}  // namespace tarnwick::ui
