#include "project/SelectProjectDlg.h"

#include "dialogbase/Desktop.h"
#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "project/RecentProjects.h"
#include "resources/DialogLayout.h"
#include "resources/ProjectLayouts.h"
#include "settings/OpenProject.h"
#include "settings/Settings.h"
#include "settings/SettingsContext.h"

namespace tarnwick {

const char projectFileFilter[] = "JDK project files (*.twp)|*.twp||";

SelectProjectDlg::SelectProjectDlg(Settings& settings)
    : ToolTipDlg(settings.context().desktop, selectProjectLayout().resource, 0), settings_(settings) {}

int SelectProjectDlg::runModal() {
  return desktop_.runDialog(selectProjectLayout(), *this);
}

void SelectProjectDlg::initialise(DialogWindow& window) {
  ToolTipDlg::initialise(window);
  const auto recent = recentProjects(settings_.context());
  window.setEntries(RECENT_LIST, recent);
  window.setEmptyText(RECENT_LIST, "No recent projects. Press \"Browse\" to find one.");
  if (!recent.empty()) window.select(RECENT_LIST, 0);
}

void SelectProjectDlg::onCommand(int control) {
  if (control == BROWSE_PROJECT)
    browse();
  else if (control == REGISTER_TYPE)
    settings_.context().registerProjectType();
  else
    ToolTipDlg::onCommand(control);
}

void SelectProjectDlg::onOk() {
  const int chosen = window()->selection(RECENT_LIST);
  if (chosen >= 0) path_ = window()->entries(RECENT_LIST).at(static_cast<std::size_t>(chosen));
  close(DIALOG_OK);
}

void SelectProjectDlg::browse() {
  FileRequest request;
  request.filter = projectFileFilter;
  request.startFolder = startFolder();
  request.name = "*.twp";
  request.extension = ".twp";
  request.mustExist = true;
  const auto chosen = desktop_.openFile(request);
  if (!chosen) return;
  path_ = *chosen;
  close(DIALOG_OK);
}

std::string SelectProjectDlg::startFolder() const {
  std::string folder = platform::startFolder("C:\\");
  const auto enter = [&folder](const std::string& path) {
    const std::string candidate = Filename(path).directory();
    if (!candidate.empty() && platform::changeDirectory(candidate)) folder = candidate;
  };
  enter(settings_.lastProjectFile);
  if (settings_.currentProject) enter(settings_.currentProject->quotedPath());
  return folder;
}

}  // namespace tarnwick
