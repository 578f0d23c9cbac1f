#pragma once

#include <functional>
#include <string>

namespace tarnwick {

class Desktop;
struct SettingsContext;

/// Shows an address in the user's browser. Where there is none, a message tells `place`, by which a person finds the
/// document.
void openInBrowser(Desktop& desktop, const std::string& address, const std::string& place);

/// Opens the user's guide, the file `place`, in `browser`, at an anchor such as "#paths" or, for the empty text, at its
/// top. Where the guide is lost, the user is asked for it, and the default configuration remembers the answer; the live
/// settings are left alone and learn it at the next save.
void showUsersGuide(SettingsContext& context, const std::string& anchor,
                    const std::function<void(const std::string& address, const std::string& place)>& browser);

}  // namespace tarnwick
