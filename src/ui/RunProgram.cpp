#include "ui/RunProgram.h"

#include "ui/Icons.h"
#include "ui/Toolkit.h"
#include "ui/WxDesktop.h"

#include <wx/app.h>
#include <wx/log.h>

#include <cstdio>
#include <memory>

namespace tarnwick::ui {

namespace {

using Program = std::function<int(Desktop&, ConsoleFrameHost&)>;

void printAssertion(const wxString& file, int line, const wxString& function, const wxString& condition,
                    const wxString& message) {
  std::fprintf(stderr, "%s:%d: %s: %s %s\n", file.utf8_str().data(), line, function.utf8_str().data(),
               condition.utf8_str().data(), message.utf8_str().data());
}

class Application : public wxApp {
 public:
  explicit Application(Program program) : program_(std::move(program)) {}

  // Not the toolkit's own: that would read the command line, which is the program's.
  bool OnInit() override {
    // The toolkit owns it. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    delete wxLog::SetActiveTarget(new wxLogStderr);
    // The toolkit's notes for those who work on it are none of the user's business.
    wxLog::SetLogLevel(wxLOG_Info);
    SetAppName("Tarnwick");
    SetExitOnFrameDelete(false);
    useAsDefaultIcon(programPicture(48).GetBitmap({48, 48}));
    return true;
  }

  // From here rather than from OnInit: there, modal dialogs end with the exit code lost.
  int OnRun() override {
    WxDesktop desktop;
    int result = 1;
    desktop.guard([&] { result = program_(desktop, desktop); });
    return result;
  }

 private:
  Program program_;
};

/// Ends the toolkit on every path.
struct Cleanup {
  Cleanup() = default;
  ~Cleanup() { wxEntryCleanup(); }
  Cleanup(const Cleanup&) = delete;
  Cleanup& operator=(const Cleanup&) = delete;
};

bool startToolkit(int argc, char** argv) {
  prepareToolkit();
  // The toolkit sees the program's name alone: among the arguments may be some that it would take for its own.
  int count = argc > 0 ? 1 : 0;
  const wxLogNull quiet;  // it would speak of a missing display in words of its own
  const bool started = wxEntryStart(count, argv);
  toolkitStarted();
  return started;
}

}  // namespace

int runProgram(int argc, char** argv, Program program) {
  wxSetAssertHandler(printAssertion);
  wxApp::SetInstance(new Application(std::move(program)));
  if (!startToolkit(argc, argv)) {
    std::fprintf(stderr, "Tarnwick: can't open the display %s\n", displayName().c_str());
    return 1;
  }
  const Cleanup cleanup;
  if (!wxTheApp->CallOnInit()) return 1;
  const int result = wxTheApp->OnRun();
  wxTheApp->OnExit();
  return result;
}

}  // namespace tarnwick::ui
