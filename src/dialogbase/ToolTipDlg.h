#pragma once

#include "dialogbase/DialogWindow.h"
#include "resources/StandardControls.h"

#include <string>
#include <variant>
#include <vector>

namespace tarnwick {

class Desktop;
class StringableM;
struct TagRow;

/// Ties a control to a variable of the dialog.
struct BindingRow {
  int control;
  std::variant<std::string*, bool*, StringableM*> variable;
};

struct ToolTip {
  int control;
  std::string text;
};

/// The base of all dialogs: moves values between controls and bound variables or the tag table, and shows tool tips.
/// A dialog whose window was never made has `initialised` off, and its operations do nothing.
class ToolTipDlg : public DialogHandler {
 public:
  /// `pageId` is the resource number; `ownerId` the dialog that the rows of the tag table belong to.
  ToolTipDlg(Desktop& desktop, int pageId, int ownerId) : desktop_(desktop), pageId_(pageId), ownerId_(ownerId) {}
  ToolTipDlg(const ToolTipDlg&) = delete;
  ToolTipDlg& operator=(const ToolTipDlg&) = delete;

  void initialise(DialogWindow& window) override;
  void onCommand(int control) override;
  void onCloseRequest() override { onCancel(); }
  void detached() override;

  virtual void scrollFieldToEnd(int control);
  /// Sets the control's text and shows its end.
  virtual void setFieldText(int control, const std::string& text);
  virtual void showControl(int control, bool show);
  virtual void enableControl(int control, bool enable);
  virtual void moveControl(int control, const Rect& rect);
  virtual bool isControlVisible(int control) const;
  virtual Rect getControlRect(int control) const;
  /// Gives each row of the tag table that this page shows to its control.
  virtual void loadFromTags();
  /// The same with the rows of another table, in the order of this dialog's own.
  void loadFrom(const TagRow* rows);
  /// Every control takes its value from its binding.
  virtual void updateControls();
  virtual void setText(int control, const std::string& text);
  virtual void setCheck(int control, bool on);
  /// Every binding takes its value from its control. Malformed values are dropped.
  virtual void updateVariables();
  /// Takes each row of the tag table that this page shows from its control. Malformed values are dropped.
  virtual void storeToTags();
  virtual bool getCheck(int control) const;
  virtual std::string getText(int control) const;
  /// Asks for a folder or an archive, and adds it to the field's list of paths. `description` names the list.
  virtual void askPathEntry(int control, const std::string& description);
  /// Asks for a folder, and adds it to the field's list of paths.
  virtual void addFolderToField(int control);
  /// Adds an element to the field's list of paths; nothing if it is empty.
  virtual void appendPathEntry(int control, const std::string& entry);

  bool initialised() const { return initialised_; }
  int pageId() const { return pageId_; }
  int ownerId() const { return ownerId_; }

 protected:
  /// What stands in a field. Always on one line: line ends that were pasted count as blanks.
  virtual std::string fieldText(int control) const;

  virtual void onOk() { close(IDOK_CONTROL); }
  virtual void onCancel() { close(IDCANCEL_CONTROL); }
  void close(int result);

  /// The open window; null outside `initialise` and `detached`.
  DialogWindow* window() const { return window_; }

  Desktop& desktop_;
  /// Filled by the derived class before or during initialisation.
  std::vector<BindingRow> bindings_;
  std::vector<ToolTip> toolTips_;
  /// The rows that this dialog's controls show; null for none.
  const TagRow* tags_ = nullptr;

 private:
  const BindingRow* binding(int control) const;

  int pageId_;
  int ownerId_;
  bool initialised_ = false;
  DialogWindow* window_ = nullptr;
};

/// The dialog's result that stands for OK.
inline constexpr int DIALOG_OK = IDOK_CONTROL;
inline constexpr int DIALOG_CANCEL = IDCANCEL_CONTROL;

}  // namespace tarnwick
