#include "resources/TemplateLayouts.h"

#include "resources/DialogLayout.h"

namespace tarnwick {

using namespace layout;

namespace {

DialogItem explanation() {
  return label(
      "You didn't specify which file to open. You can either\n - create a new file,  or\n - browse for an existing "
      "file "
      "that will be opened, or\n - cancel your request.");
}

DialogLayout madeFor(NewSourceMode mode) {
  const bool inProject = mode == NewSourceMode::InProject;
  const bool nothingToEdit = mode == NewSourceMode::NothingToEdit;
  std::vector<DialogItem> fields;
  if (inProject) fields.push_back(row({label("Filename"), edit(NEW_NAME, 36).stretched()}));
  fields.push_back(row({label("Filetype"), comboBox(TEMPLATE_COMBO, {}).atLeast(28).stretched(),
                        button(ADD_TEMPLATE, "Add new template ..")}));

  std::vector<DialogItem> buttons = {button(IDOK_CONTROL, "Create sourcefile").asDefault()};
  if (nothingToEdit) buttons.push_back(button(BROWSE_EXISTING, "Browse for existing file").agreeing());
  buttons.insert(buttons.end(), {space(), button(NEW_SOURCE_HELP, "Help"), button(IDCANCEL_CONTROL, "Cancel")});

  std::vector<DialogItem> content;
  if (nothingToEdit) content.push_back(explanation());
  content.push_back(group(0, " New file ", std::move(fields)));
  content.push_back(row(std::move(buttons)).closing());
  return {201, inProject ? "Create new sourcefile in project" : "Create new .java/.html file", false,
          column(std::move(content)), inProject ? NEW_NAME : TEMPLATE_COMBO};
}

}  // namespace

const DialogLayout& newSourceLayout(NewSourceMode mode) {
  static const DialogLayout layouts[] = {madeFor(NewSourceMode::InProject), madeFor(NewSourceMode::NothingToEdit),
                                         madeFor(NewSourceMode::NewFile)};
  return layouts[static_cast<int>(mode)];
}

const DialogLayout& addTemplateLayout() {
  static const DialogLayout dialog = {
      202, "Add template for new sourcefiles", false,
      column({
          label("Extend or customize Tarnwick's list of templates.\nSpecify below your own template from which new "
                "sourcefiles can be created. Supply your template as a file. Press Help for an example of a template."),
          row({label("File"), edit(TEMPLATE_FILE, 44).stretched(), button(TEMPLATE_BROWSE, "Browse")}),
          row({label("Description"), edit(TEMPLATE_DESCRIPTION, 44).stretched()}),
          label(
              "The Description field is the text that appears in the dropdown list of templates. If you enter a "
              "description that already exists in the list, your new template will override the existing list entry."),
          row({space(), button(IDOK_CONTROL, "OK").asDefault(), button(IDCANCEL_CONTROL, "Cancel"),
               button(TEMPLATE_HELP, "Help")})
              .closing(),
      }),
      TEMPLATE_FILE};
  return dialog;
}

}  // namespace tarnwick
