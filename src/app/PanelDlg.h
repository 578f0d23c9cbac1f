#pragma once

#include "app/PanelArrangement.h"
#include "app/PanelFoot.h"
#include "dialogbase/TabbedDialog.h"
#include "dialogs/RunJar.h"
#include "settings/Settings.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace tarnwick {

class PanelDlg;

/// A tab page of a panel: three buttons and a field. What a button does is the panel's affair.
class PanelPage : public TabPage {
 public:
  enum Control { FIELD = 1223, LEFT = 1228, MIDDLE = 1229, RIGHT = 1230 };

  PanelPage(Desktop& desktop, PanelDlg& panel, std::array<std::string, 3> labels, std::vector<ToolTip> tips);

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void onSelectionChanged(int control) override;
  std::function<void()> controlReturn(int control) override;

  /// The page's window; null while the panel has none.
  using TabPage::window;

 private:
  PanelDlg& panel_;
  std::array<std::string, 3> labels_;
};

/// The words of a panel's tab pages.
struct PageWords {
  std::array<std::string, 3> labels;
  std::vector<ToolTip> tips;
};

/// The bar with Settings, Exit and the layout buttons. It does nothing itself.
class ButtonBar : public ToolTipDlg {
 public:
  enum Control { SETTINGS = 1000, SWITCH_VIEW = 1, EXIT = 2, LAYOUT_LEFT = 1244, LAYOUT_RIGHT = 1242 };

  ButtonBar(Desktop& desktop, PanelDlg& panel, const DialogLayout& layout);

  void onCommand(int control) override;
  void onCloseRequest() override {}

  const DialogLayout& layout() const { return layout_; }
  /// The bar's window; null while the panel has none.
  using ToolTipDlg::window;

 private:
  PanelDlg& panel_;
  const DialogLayout& layout_;
};

/// What a panel asks of the main dialog.
struct MainDialog {
  /// Its window, which holds both panels.
  std::function<DialogWindow&()> window;
  /// The fields of the file view show their files anew.
  std::function<void()> showFiles;
  /// The fields of the file view are emptied.
  std::function<void()> emptyFileFields;
  /// Saves what every end saves. Once: what fails has been told.
  std::function<void()> save;
  /// Ends the dialog as with OK.
  std::function<void()> end;
  /// What there is to tell of the tools' runs.
  std::function<std::string()> runs;
};

/// The common base of the panels of the main window.
class PanelDlg : public TabbedDialog {
 public:
  /// `words` are those of the first two pages; the third has the same on every panel.
  PanelDlg(Settings& settings, int resource, std::array<PageWords, 2> words, MainDialog mainDialog);

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  /// Escape; the main window then ends.
  void onCloseRequest() override { mainDialog_.save(); }

  /// Tells the panel the other one and the label of its button that switches to it.
  void setPartner(PanelDlg* partner, const std::string& switchLabel);
  /// Makes the three arrangements from the places where the controls stand now; once, when both panels stand.
  virtual void buildLayouts();
  /// What opens ".ZIP" files here; outlives the panel.
  void setZipApplication(const WinApp& application) { jarSession_.zipApplication = &application; }
  /// Arranges the panel as the settings say, puts the main window to its stored place and names it.
  virtual void applyLayout();
  virtual void updateTitle() = 0;
  /// The status line tells how things stand now.
  void updateStatus();
  bool isShown() const { return shown_; }
  /// Shows the other panel in the place of this one.
  virtual void switchView();
  virtual void exitProgram();
  /// A button of the page with this index, by PanelPage::Control. Knows the utilities'.
  virtual void onPageButton(int page, int control);
  /// One of the files was chosen that the field of the open page offers.
  virtual void onPageFileChosen() {}

  /// What Ctrl+Return does in the field of the page that is open.
  std::function<void()> controlReturnInField();

  /// A button of the page that is open.
  void onPageButton(int control) { onPageButton(currentPage(), control); }

 protected:
  enum Page { MAIN_PROGRAM = 0, APPLET = 1, UTILITIES = 2 };

  /// Starts the user's editor on a file, or on none with the empty text. False when no editor could be chosen or
  /// started.
  bool openEditor(const std::string& name);
  /// Compiles what is not up to date, and runs the program if nothing was said.
  virtual void compileAndRun() = 0;
  /// The dialog that makes shortcuts.
  virtual void makeShortcut();

  /// The panel's own controls, in the order in which they stand side by side.
  virtual std::vector<int> ownControls() const = 0;
  virtual void arrangeFlat(PanelPlaces& places) const = 0;
  /// The main window's title as the resource gives it.
  const std::string& title() const { return title_; }
  DialogWindow& mainWindow() const { return mainDialog_.window(); }
  const MainDialog& mainDialog() const { return mainDialog_; }

  Settings& settings_;
  bool shown_ = false;
  PanelPage leftPage_;
  PanelPage middlePage_;
  PanelPage rightPage_;
  ButtonBar verticalBar_;
  ButtonBar horizontalBar_;
  ButtonBar flatBar_;

 private:
  PanelPlaces placesNow();
  void changeLayout(int layout);
  void editSettings();
  /// Shows the last log, if there is one.
  void showLastLog();
  /// The bar of the present arrangement.
  ButtonBar& bar() { return *bars_[static_cast<std::size_t>(settings_.panelLayout.value)]; }

  std::array<ButtonBar*, 3> bars_;
  std::array<PanelPage*, 3> pages_;
  std::array<std::unique_ptr<PanelLayout>, 3> layouts_;
  std::array<PanelFoot, 3> feet_;
  PanelDlg* partner_ = nullptr;
  std::string title_;
  MainDialog mainDialog_;
  JarSession jarSession_;
  /// The source files of the last run of `javadoc`.
  std::string javadocInput_;
};

}  // namespace tarnwick
