#include "templates/AddTemplateDlg.h"

#include "base/Tarnwickfile.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "platform/FileSystem.h"
#include "resources/DialogLayout.h"
#include "resources/TemplateLayouts.h"
#include "settings/SettingsContext.h"

namespace tarnwick {

AddTemplateDlg::AddTemplateDlg(const SettingsContext& context)
    : ToolTipDlg(context.desktop, addTemplateLayout().resource, 0), context_(context) {}

int AddTemplateDlg::runModal() {
  return desktop_.runDialog(addTemplateLayout(), *this);
}

void AddTemplateDlg::onCommand(int control) {
  if (control == TEMPLATE_BROWSE)
    browse();
  else if (control == TEMPLATE_HELP)
    context_.showHelp("#usertemplate");
  else
    ToolTipDlg::onCommand(control);
}

void AddTemplateDlg::browse() {
  FileRequest request;
  request.filter = "all files|*.*||";
  request.mustExist = true;
  if (const auto chosen = desktop_.openFile(request)) setFieldText(TEMPLATE_FILE, *chosen);
}

void AddTemplateDlg::onOk() {
  description_ = trim(getText(TEMPLATE_DESCRIPTION));
  if (description_.empty()) {
    desktop_.hint(
        "Please enter a description.\nIt is needed to create an entry in the dropdown list for file templates.");
    return;
  }
  const std::string typed = trimLeft(getText(TEMPLATE_FILE));
  if (typed.empty()) {
    desktop_.hint("Please enter a filename for your template file");
    return;
  }
  try {
    const Tarnwickfile probe(typed, FileMode::Read);
    // As it was opened: without quotes, and to be found again from any folder.
    file_ = platform::absolutePath(probe.name().fullName());
    close(DIALOG_OK);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message("Can't open file " + typed + "\n" + failure.message);
  }
}

}  // namespace tarnwick
