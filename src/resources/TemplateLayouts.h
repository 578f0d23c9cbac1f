// The layouts for new source files and their templates.
#pragma once

namespace tarnwick {

struct DialogLayout;

/// Where a new source is asked for; decides what the dialog offers.
enum class NewSourceMode {
  InProject = 0,      ///< the name is typed
  NothingToEdit = 1,  ///< the editor was asked for without a file; an existing one may be taken
  NewFile = 2,
};

/// "Create new .java/.html file", or "... sourcefile in project".
const DialogLayout& newSourceLayout(NewSourceMode mode);
/// "Add template for new sourcefiles".
const DialogLayout& addTemplateLayout();

enum NewSourceControl {
  TEMPLATE_COMBO = 2001,
  NEW_NAME = 2002,
  BROWSE_EXISTING = 2003,
  ADD_TEMPLATE = 2004,
  NEW_SOURCE_HELP = 2005,
};

enum AddTemplateControl {
  TEMPLATE_FILE = 2011,
  TEMPLATE_BROWSE = 2012,
  TEMPLATE_DESCRIPTION = 2013,
  TEMPLATE_HELP = 2014
};

}  // namespace tarnwick
