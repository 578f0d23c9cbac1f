#pragma once

#include "dialogbase/Desktop.h"
#include "dialogbase/DialogWindow.h"
#include "resources/DialogLayout.h"
#include "resources/StandardControls.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick::test {

/// The rectangles of controls by the number of the layout that they are in; 0 stands for the window itself.
struct ScriptedPlaces {
  std::map<int, std::map<int, Rect>> rects;
  /// What the top window's frame takes of its height and its width.
  int frameHeight = 0;
  int frameWidth = 0;
  /// What the screen has for windows.
  Rect workArea{0, 0, 3840, 2100};
  /// The width at which any label shows whole.
  int leastWidth = 80;
  /// Slots that can't be filled.
  std::vector<int> refusedSlots;
};

/// A dialog's window for tests: a table of controls made from the same layout as the real one. What a person can't do
/// fails the test: pressing a control that is not there, hidden or disabled.
class ScriptedWindow : public DialogWindow {
 public:
  ScriptedWindow(const DialogLayout& layout, DialogHandler& handler, const ScriptedPlaces& places = {});
  ~ScriptedWindow() override;

  // What a person does.
  void press(int control);
  void type(int control, const std::string& text);
  /// False if Ctrl+Return means nothing of its own in the field.
  bool pressControlReturn(int control);
  void choose(int control, int index);
  void doubleClick(int control, int index);
  void closeBox() { handler_.onCloseRequest(); }
  void drop(const std::vector<std::string>& files) { handler_.onFilesDropped(files); }
  /// Chooses an entry of the window's system menu.
  void chooseSystemCommand(const std::string& label);
  void moveByHand(const Point& to) { position_ = to; }

  // What a person sees.
  bool has(int control) const { return controls_.count(control) > 0; }
  std::string toolTip(int control) const;
  /// The words in the place of what the control holds; none while it holds something.
  std::string wordsInPlace(int control) const;
  std::vector<std::string> tabLabels(int tabs) const;
  ScriptedWindow& page(int tabs, int index);
  ScriptedWindow& child(int slot);
  bool shown() const { return shown_; }
  /// Whether the field was scrolled to its end.
  bool showsEnd(int control) const { return at(control).shownToEnd; }
  /// The control that was given the focus last; 0 for none.
  int focused() const { return focused_; }
  /// Whether the window was painted anew after it last got a size or a title.
  bool redrawn() const { return redrawn_; }
  bool closed() const { return closed_; }
  int result() const { return result_; }

  /// The position that the window system tells; nothing where it does not.
  void setKnownPosition(std::optional<Point> position) { position_ = position; }

  std::string text(int control) const override;
  void setText(int control, const std::string& text) override;
  bool checked(int control) const override;
  void setChecked(int control, bool on) override;
  bool enabled(int control) const override;
  void enable(int control, bool on) override;
  bool visible(int control) const override;
  void show(int control, bool on) override;
  Rect rect(int control) const override;
  void setRect(int control, const Rect& rect) override;
  int leastWidth(int) const override { return places_.leastWidth; }
  void focus(int control) override;
  void scrollToEnd(int control) override;
  void setToolTip(int control, const std::string& text) override;
  void setEmptyText(int control, const std::string& words) override { at(control).emptyText = words; }
  std::vector<std::string> entries(int control) const override;
  void setEntries(int control, const std::vector<std::string>& entries) override;
  int selection(int control) const override;
  void select(int control, int index) override;
  bool selected(int control, int index) const override;
  void setSelected(int control, int index, bool on) override;
  DialogWindow& addTabPage(int tabs, const std::string& label, const DialogLayout& layout,
                           DialogHandler& handler) override;
  DialogWindow& addChild(int slot, const DialogLayout& layout, DialogHandler& handler) override;
  Rect windowRect() const override;
  void setWindowRect(const Rect& rect) override;
  Rect clientRect() const override;
  void arrangeControls() override {}
  void redraw() override { redrawn_ = true; }
  std::string title() const override { return title_; }
  void setTitle(const std::string& title) override {
    title_ = title;
    redrawn_ = false;
  }
  void showWindow(bool on) override { shown_ = on; }
  void addSystemCommand(const std::string& label, std::function<void()> action) override {
    systemCommands_[label] = std::move(action);
  }
  std::optional<Point> position() const override { return position_; }
  void moveTo(const Point& leftTop) override { position_ = leftTop; }
  Rect workArea() const override { return places_.workArea; }
  void close(int result) override;

 private:
  struct Control {
    ItemKind kind;
    std::string text;
    std::string toolTip;
    std::string emptyText;
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    bool readOnly = false;
    bool shownToEnd = false;
    Rect rect;
    std::vector<std::string> entries;
    int selection = -1;
    std::vector<bool> chosen;  ///< by entry, of a list that selects several
    int radioGroup = 0;
  };

  /// Tells that the window goes, to its children first. All of them still stand by then.
  void detach();
  void collect(const DialogItem& item, int radioGroup);
  Control& at(int control);
  const Control& at(int control) const;
  /// The control as a person may use it; fails the test if it can't be used.
  Control* usable(int control, const char* what);

  std::map<int, Control> controls_;
  DialogHandler& handler_;
  std::map<int, std::vector<std::unique_ptr<ScriptedWindow>>> pages_;
  std::map<int, std::unique_ptr<ScriptedWindow>> children_;
  std::map<std::string, std::function<void()>> systemCommands_;
  ScriptedPlaces places_;
  Rect rect_;
  bool fillsTabControl_ = false;
  int focused_ = 0;
  std::string title_;
  bool shown_ = true;
  bool detached_ = false;
  bool redrawn_ = false;
  bool closed_ = false;
  int result_ = 0;
  int nextRadioGroup_ = 1;
  std::optional<Point> position_ = Point{40, 50};
};

/// A desktop that plays a script of expected dialogs and answers, records what was shown, and fails the test on what
/// it did not expect. The destructor fails the test if something expected never came.
class ScriptedDesktop : public Desktop {
 public:
  using DialogScript = std::function<void(ScriptedWindow&)>;

  ~ScriptedDesktop() override;

  /// The user has left the program.
  bool left = false;

  void expectMessage(const std::string& text);
  void expectHint(const std::string& text);
  void expectQuestion(const std::string& text, bool answer);
  void expectOpenFile(std::optional<std::string> answer);
  /// For several; none stands for Cancel.
  void expectOpenFiles(std::vector<std::string> answer);
  void expectSaveFile(std::optional<std::string> answer);
  void expectBrowseFolder(std::optional<std::string> answer);
  /// The next modal dialog bears this title; `script` plays its user and closes it.
  void expectDialog(const std::string& title, DialogScript script);
  void expectMainDialog(DialogScript script);

  /// What the last file dialog was asked for.
  const FileRequest& lastRequest() const { return lastRequest_; }
  /// Where the last folder browser began; empty where it chose for itself.
  const std::string& lastRoot() const { return lastRoot_; }
  const std::vector<AlertSound>& alerts() const { return alerts_; }
  /// How often the wait cursor has shown. It must have gone again each time.
  int waits() const { return waits_; }
  /// The position that the main window gets from the window system.
  void setWindowPosition(std::optional<Point> position) { windowPosition_ = position; }
  /// Where the controls of the next windows stand.
  void setPlaces(ScriptedPlaces places) { places_ = std::move(places); }
  /// Runs what was posted, on this thread.
  void runPosted();
  /// Lets every running timer tick once.
  void tickTimers();
  std::size_t runningTimers() const { return timers_.size(); }
  void setClipboard(std::optional<std::string> text) { clipboard_ = std::move(text); }
  /// A person holds the Control key, or lets it go.
  void holdControlKey(bool held) { controlKey_ = held; }

  void message(const std::string& text) override;
  void hint(const std::string& text) override;
  bool askOkCancel(const std::string& text) override { return ask(text); }
  bool askYesNo(const std::string& text) override { return ask(text); }
  void alert(AlertSound sound) override { alerts_.push_back(sound); }
  void showWaitCursor(bool on) override;
  bool controlKeyHeld() override { return controlKey_; }
  std::optional<std::string> clipboardText() override { return clipboard_; }
  bool setClipboardText(const std::string& text) override;
  int runDialog(const DialogLayout& layout, DialogHandler& handler) override;
  void runMainDialog(const DialogLayout& layout, DialogHandler& handler) override;
  void whileBusy(const BusyWork& busy) override { busy.work(); }
  bool showStep(std::size_t /*step*/, std::size_t /*steps*/) override { return true; }
  bool isLeft() const override { return left; }
  int startTimer(int milliseconds, std::function<void()> tick) override;
  void stopTimer(int timer) override { timers_.erase(timer); }
  void post(std::function<void()> task) override;

 protected:
  std::optional<std::string> pickFile(const FileRequest& request) override;
  std::vector<std::string> pickFiles(const FileRequest& request) override;
  std::optional<std::string> pickFileToSave(const FileRequest& request) override;
  std::optional<std::string> pickFolder(const std::string& root) override;

 private:
  struct Step {
    std::string kind;  ///< "message", "hint", "question", "open", "several", "save", "folder", "dialog", "main"
    std::string text;
    std::optional<std::string> answer;
    bool yes = false;
    DialogScript script;
    std::vector<std::string> answers = {};
  };

  std::optional<Step> take(const std::string& kind, const std::string& text);
  bool ask(const std::string& text);
  int play(const std::string& kind, const DialogLayout& layout, DialogHandler& handler);

  std::deque<Step> steps_;
  FileRequest lastRequest_;
  std::string lastRoot_;
  std::vector<AlertSound> alerts_;
  std::optional<Point> windowPosition_ = Point{40, 50};
  ScriptedPlaces places_;
  std::optional<std::string> clipboard_;
  bool controlKey_ = false;
  std::map<int, std::function<void()>> timers_;
  int lastTimer_ = 0;
  int waits_ = 0;
  int waiting_ = 0;
  std::mutex postLock_;
  std::deque<std::function<void()>> posted_;
};

}  // namespace tarnwick::test
