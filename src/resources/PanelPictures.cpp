#include "resources/PanelPictures.h"

#include "platform/Path.h"

#include <algorithm>
#include <iterator>

namespace tarnwick {

namespace {

const PanelPicture pictures[] = {
    {"New", "new"},
    {"Open", "open"},
    {"Browse", "open"},
    {"Files", "files"},
    {"Select", "select"},
    {"Edit", "edit"},
    {"javac", "compile", PanelPicture::Emphasised},
    {"javac  all", "compile-all"},
    {"java", "run", PanelPicture::Emphasised},
    {"jdb debug", "debug"},
    {"appletviewer", "applet"},
    {"appletdebug", "debug"},
    {"jar", "archive"},
    {"javadoc", "document"},
    {"WinShortcut", "link"},  // on Windows
    {"Shortcut", "link"},     // elsewhere
    {"Settings", "settings"},
    {"Switch view", "switch-view"},
    {"Projectview", "switch-view"},
    {"Fileview", "switch-view"},
    {"Exit", "exit"},
    {"==", "wide", PanelPicture::Unseen},
    {"------", "flat", PanelPicture::Unseen},
    {platform::brokenBar, "tall", PanelPicture::Unseen},
};

}  // namespace

const PanelPicture* panelPicture(std::string_view label) {
  const auto found =
      std::find_if(std::begin(pictures), std::end(pictures), [&](const auto& each) { return each.label == label; });
  return found == std::end(pictures) ? nullptr : found;
}

}  // namespace tarnwick
