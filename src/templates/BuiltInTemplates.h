#pragma once

#include "templates/TemplateList.h"

#include <vector>

namespace tarnwick {

/// The templates that come with the program, in the order in which they are offered.
std::vector<TemplateList::Row> builtInTemplates();

}  // namespace tarnwick
