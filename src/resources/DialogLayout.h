// A dialog's content as data: a tree of columns, rows, groups and controls. Windows are built from it with the
// system's own sizes, so that they follow its font and scaling.
#pragma once

#include "resources/StandardControls.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

enum class ItemKind {
  Column,
  Row,
  Group,    ///< a titled frame around a column; may have a control number
  Icon,     ///< the program's icon
  Heading,  ///< a label in large letters
  Label,    ///< static text; line feeds break it
  Link,     ///< a web address that can be pressed; its text is what it opens
  Edit,     ///< one line of text
  Button,
  StatusLine,  ///< a line of text that can be pressed; what it has no room for is cut
  CheckBox,
  RadioButton,  ///< a run of neighbours in one row or column excludes one another
  ComboBox,     ///< fixed entries
  ListBox,
  Tabs,   ///< a tab control; its pages are child windows
  Slot,   ///< the place of a child window
  Space,  ///< room that takes what is left
  EmptyButtonRow,
  Layers,  ///< its children share one place; the dialog's rules show one of them at a time
};

/// One node of the tree. Made by the functions below.
struct DialogItem {
  ItemKind kind = ItemKind::Column;
  int control = 0;  ///< 0 for what nobody addresses
  std::string text;
  int width = 0;                     ///< least width in average characters; 0 for the natural one
  bool stretch = false;              ///< takes the room that is left in its row or column
  bool isDefault = false;            ///< a button that Return presses
  bool readOnly = false;             ///< an edit field that only shows
  bool listsPaths = false;           ///< an edit field with a list of paths: pasted lines are its elements
  bool startsHidden = false;         ///< the dialog's rules show it
  bool floats = false;               ///< has its own size and takes no room; the dialog's rules place it
  bool pictured = false;             ///< a button of the panel, as narrow as its text with its picture
  bool likeButtons = false;          ///< an edit field that is as high as the buttons beside it
  bool offersEntries = false;        ///< an edit field that one of a list of entries may be chosen for
  bool collapses = false;            ///< takes no room where the dialog's rules hide it from the start
  bool equalWidths = false;          ///< a row or column whose buttons are equally wide
  bool closes = false;               ///< a row of the buttons that end the dialog; the system's custom orders them
  bool agrees = false;               ///< a button in such a row that is an answer like the default one
  bool asInTabs = false;             ///< a group whose content stands in line with that of tabs below it
  std::vector<std::string> entries;  ///< of a combo box
  int lines = 0;                     ///< height of a list; 0 for the usual one
  bool multiple = false;             ///< a list whose entries may be selected each for itself
  std::string spoken;                ///< the name for readers of the screen, where no label before it tells
  std::vector<DialogItem> children;

  DialogItem stretched() && {
    stretch = true;
    return std::move(*this);
  }
  DialogItem asDefault() && {
    isDefault = true;
    return std::move(*this);
  }
  DialogItem showingOnly() && {
    readOnly = true;
    return std::move(*this);
  }
  DialogItem listingPaths() && {
    listsPaths = true;
    return std::move(*this);
  }
  DialogItem withEqualWidths() && {
    equalWidths = true;
    return std::move(*this);
  }
  DialogItem offeringEntries() && {
    offersEntries = true;
    return std::move(*this);
  }
  DialogItem atLeast(int characters) && {
    width = characters;
    return std::move(*this);
  }
  DialogItem collapsing() && {
    collapses = true;
    return std::move(*this);
  }
  DialogItem hiddenAtFirst() && {
    startsHidden = true;
    return std::move(*this);
  }
  DialogItem floating() && {
    floats = true;
    return std::move(*this);
  }
  DialogItem withItsPicture() && {
    pictured = true;
    return std::move(*this);
  }
  DialogItem closing() && {
    closes = true;
    return std::move(*this);
  }
  DialogItem agreeing() && {
    agrees = true;
    return std::move(*this);
  }
  DialogItem inLineWithTabs() && {
    asInTabs = true;
    return std::move(*this);
  }
  DialogItem asHighAsButtons() && {
    likeButtons = true;
    return std::move(*this);
  }
  DialogItem linesHigh(int count) && {
    lines = count;
    return std::move(*this);
  }
  DialogItem selectingSeveral() && {
    multiple = true;
    return std::move(*this);
  }
  DialogItem named(const std::string& name) && {
    spoken = name;
    return std::move(*this);
  }
};

/// The empty border around a window's content, in pixels.
struct Margins {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

/// A whole dialog or child window.
struct DialogLayout {
  int resource = 0;
  std::string title;
  bool minimiseBox = false;
  DialogItem content;
  int firstFocus = 0;  ///< the control that has the focus first; 0 for the first that takes it
  std::optional<Margins> margins = std::nullopt;  ///< nothing for the usual ones
};

namespace layout {

DialogItem column(std::vector<DialogItem> children);
DialogItem row(std::vector<DialogItem> children);
DialogItem group(int control, const std::string& title, std::vector<DialogItem> children);
DialogItem icon();
DialogItem heading(const std::string& text);
DialogItem label(const std::string& text, int control = 0);
DialogItem link(int control, const std::string& address);
DialogItem edit(int control, int characters);
DialogItem button(int control, const std::string& text);
DialogItem statusLine(int control);
DialogItem checkBox(int control, const std::string& text);
DialogItem radioButton(int control, const std::string& text);
DialogItem comboBox(int control, std::vector<std::string> entries);
DialogItem listBox(int control, int characters);
DialogItem tabs(int control);
DialogItem slot(int control);
DialogItem space();
/// Empty room as high as a row of buttons, with no gap below it.
DialogItem emptyButtonRow();
DialogItem layers(std::vector<DialogItem> children);

}  // namespace layout

}  // namespace tarnwick
