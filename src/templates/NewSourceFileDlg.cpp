#include "templates/NewSourceFileDlg.h"

#include "base/RelativeName.h"
#include "base/ReplacingFile.h"
#include "base/Text.h"
#include "dialogbase/Desktop.h"
#include "platform/FileSystem.h"
#include "resources/DialogLayout.h"
#include "settings/SettingsContext.h"
#include "templates/AddTemplateDlg.h"
#include "templates/FileNameMark.h"

#include <cerrno>
#include <cstring>

namespace tarnwick {

NewSourceFileDlg::NewSourceFileDlg(Settings& settings, NewSourceMode mode, FileForSubprocess* file,
                                   std::string projectFolder)
    : ToolTipDlg(settings.context().desktop, newSourceLayout(mode).resource, 0),
      settings_(settings),
      mode_(mode),
      templates_(settings),
      file_(file),
      projectFolder_(std::move(projectFolder)) {
  toolTips_ = {{IDOK_CONTROL, "Create a new source file"},
               {TEMPLATE_COMBO, "Select a template to initialize the new sourcefile"},
               {ADD_TEMPLATE, "Add your own template to the list of filetypes. A template must be supplied as a file."},
               {NEW_SOURCE_HELP, "Start HTML browser to display the Tarnwick user's guide"},
               {IDCANCEL_CONTROL, "Close this window without creating a new sourcefile"}};
  if (mode == NewSourceMode::InProject)
    toolTips_.push_back({NEW_NAME, "Enter the name for the new source file. Must be a .java, .htm or .html file"});
  if (mode == NewSourceMode::NothingToEdit)
    toolTips_.push_back({BROWSE_EXISTING, "Locate an existing .java file to be opened in the editor"});
}

int NewSourceFileDlg::runModal() {
  return desktop_.runDialog(newSourceLayout(mode_), *this);
}

void NewSourceFileDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  templates_.build();
  showTemplates();
  // A typed name has to come first.
  window.enable(IDOK_CONTROL, mode_ != NewSourceMode::InProject);
}

void NewSourceFileDlg::onTextChanged(int control) {
  if (control == NEW_NAME) enableControl(IDOK_CONTROL, !getText(NEW_NAME).empty());
}

void NewSourceFileDlg::onCommand(int control) {
  if (control == ADD_TEMPLATE)
    addTemplate();
  else if (control == BROWSE_EXISTING)
    takeExisting();
  else if (control == NEW_SOURCE_HELP)
    settings_.context().showHelp("#newfile");
  else
    ToolTipDlg::onCommand(control);
}

void NewSourceFileDlg::showTemplates() {
  window()->setEntries(TEMPLATE_COMBO, templates_.labels());
  window()->select(TEMPLATE_COMBO, 0);
}

void NewSourceFileDlg::addTemplate() {
  AddTemplateDlg dialog(settings_.context());
  if (dialog.runModal() != DIALOG_OK) return;
  templates_.addPersonal(dialog.description(), dialog.file());
  showTemplates();
}

void NewSourceFileDlg::takeExisting() {
  // The caller then finds no name, and asks for a file itself.
  if (file_) file_->reset(false);
  close(DIALOG_OK);
}

void NewSourceFileDlg::onOk() {
  try {
    const auto path = targetPath();
    if (path && mayWrite(*path)) create(*path);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message("Can't open " + failure.file + "\n" + failure.message);
  }
}

std::optional<std::string> NewSourceFileDlg::targetPath() {
  return mode_ == NewSourceMode::InProject ? pathInProject() : pathFromSaveDialog();
}

std::optional<std::string> NewSourceFileDlg::pathFromSaveDialog() {
  FileRequest request;
  request.filter = "java source files (*.java)|*.java||";
  request.extension = ".java";
  request.name = "*.java";
  std::string start = file_ ? file_->name().fullName() : "";
  if (start.empty() && file_) start = file_->previousName();
  if (!start.empty()) {
    request.startFolder = Filename(start).directory();
    request.name = Filename(start).nameWithExtension();
  }
  const auto chosen = desktop_.saveFile(request);
  if (!chosen) close(DIALOG_CANCEL);
  return chosen;
}

std::optional<std::string> NewSourceFileDlg::pathInProject() {
  const Filename typed(cleanedPath(getText(NEW_NAME)));
  const bool mayHaveFolders =
      settings_.newerJava && equalsIgnoringCase(typed.extension(), ".java") && leadsDown(typed.fullName());
  if (mayHaveFolders) return pathBelowProject(relativeName(typed.fullName()));
  for (const char* known : {".java", ".htm", ".html"}) {
    if (equalsIgnoringCase(typed.extension(), known))
      return Filename(projectFolder_, typed.nameWithExtension()).fullName();
  }
  desktop_.message("Filename has invalid extension");
  return std::nullopt;
}

std::string NewSourceFileDlg::pathBelowProject(const std::string& name) {
  const Filename path(projectFolder_, localName(name));
  // Where that fails the file can't be made either, which is told.
  platform::makeFolders(path.directoryNoSlash());
  return path.fullName();
}

bool NewSourceFileDlg::mayWrite(const std::string& path) {
  if (!canBeRead(path)) return true;
  return desktop_.askYesNo("The file " + Filename(path).quoted() + " already exists. Overwrite?");
}

void NewSourceFileDlg::create(const std::string& path) {
  // What was there is kept until the new text is whole.
  ReplacingFile target(path);
  const auto text = templateText();
  if (!text) {
    close(DIALOG_CANCEL);
    return;
  }
  const std::string content = withFileName(*text, Filename(path).baseName());
  try {
    if (std::fputs(content.c_str(), target.stream()) == EOF)
      throw Tarnwickfile::FileNotOpenE(std::strerror(errno), path);
    target.commit();
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message("Error writing to " + Filename(path).quoted() + "\n" + failure.message);
  }
  createdFile_ = path;
  if (file_) file_->setName(Filename(path).quoted());
  close(DIALOG_OK);
}

std::optional<std::string> NewSourceFileDlg::templateText() {
  const auto shown = static_cast<std::size_t>(window()->selection(TEMPLATE_COMBO));
  const auto* row = shown < templates_.rows().size() ? templates_.rowOf(templates_.rows()[shown].label) : nullptr;
  if (!row) return "";
  if (row->kind < TemplateList::USER_DEFINED) return row->option;
  try {
    return userDefinedText(row->option);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    desktop_.message("Can't copy user-defined file template " + failure.file + "\n" + failure.message);
    return std::nullopt;
  }
}

std::string NewSourceFileDlg::userDefinedText(const std::string& path) {
  auto source = Tarnwickfile::unopened(path, FileMode::Read);
  source.openContent(FileMode::Read);
  std::string text;
  // Deliberate: a byte of 255 ends a template. It reads like the end of the file.
  for (int byte = std::getc(source.stream()); byte != EOF && byte != 255; byte = std::getc(source.stream())) {
    text += static_cast<char>(byte);
    refuseLarge(text.size(), source.name().fullName());
  }
  if (std::ferror(source.stream()))
    desktop_.message(std::string("Error copying user-defined file template\n") + std::strerror(errno));
  return text;
}

}  // namespace tarnwick
