#include "app/TraceEditor.h"

#include "app/ChooseSourceDlg.h"
#include "dialogbase/Desktop.h"
#include "dialogbase/Messages.h"
#include "platform/FileSystem.h"
#include "process/EditorLaunch.h"
#include "settings/EditorChoice.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

namespace tarnwick {

TraceEditor::TraceEditor(Settings& settings, const std::string& configFile, const std::string& runArguments)
    : settings_(settings), folders_(traceFolders(settings, configFile, runArguments)) {}

void TraceEditor::open(const TraceLink& trace) const {
  Desktop& desktop = settings_.context().desktop;
  const auto files = traceSources(folders_, trace);
  if (files.empty()) {
    const std::string package = trace.package.empty() ? "" : " of the package " + trace.package;
    desktop.message("Can't find the source " + trace.file + package +
                    "\nin the project, on the source path, on the class path or where the program was started");
    return;
  }
  const std::string file = files.size() > 1 ? ChooseSourceDlg(desktop, files).runModal() : files.front();
  if (file.empty()) return;
  // A console has no settings dialog: it never writes the configuration.
  const EditorSource source{[this] { return settings_.editorChoice(); },
                            [&desktop] {
                              desktop.hint("Choose the editor for your sources in Tarnwick's settings first");
                              return false;
                            }};
  showEach(desktop, openEditor(source, file, {trace.line, 0}).failures);
  // The editor has begun in the file's folder; what runs again here does not.
  platform::changeDirectory(folders_.startFolder);
}

}  // namespace tarnwick
