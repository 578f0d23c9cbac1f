// What the toolkit does differently on the two systems, or leaves to them.
#pragma once

#include "base/Geometry.h"
#include "resources/ButtonOrder.h"

#include <wx/font.h>
#include <wx/gdicmn.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

class wxBitmap;
class wxDC;
class wxKeyEvent;
class wxMessageDialog;
class wxNotebook;
class wxStaticBox;
class wxString;
class wxTopLevelWindow;
class wxWindow;

namespace tarnwick::ui {

/// What has to be done before the toolkit starts.
void prepareToolkit();

/// What has to be undone once it has started.
void toolkitStarted();

/// What the program's windows would show on, for a message.
std::string displayName();

/// Makes `label` the name of `control` for readers of the screen.
void nameByLabel(wxWindow& control, wxWindow& label);

/// Lets a label name no button or mark: those say for themselves what they are. Left alone, the toolkit would have each
/// label name whatever comes next.
void nameNoButton(wxWindow& label);

/// Names `control` for readers of the screen without a label to be seen.
void nameBySpeech(wxWindow& control, const std::string& name);

/// What readers of the screen tell of the control beside its name, in the place of its tool tip; nothing for no words.
void describe(wxWindow& control, const std::string& words);

/// Lets readers of the screen read a window that shows for a while and never has the focus.
void describeHint(wxWindow& window, const std::string& name);

/// The label of a button that shows its picture alone.
wxString noWords();

/// The font of a control that has been given none.
wxFont usualFont(const wxWindow& control);

/// Tells readers of the screen what a tab is called, for as long as they ask.
void nameTab(wxNotebook& tabs, std::size_t tab, const std::string& label);

/// What readers of the screen call the control; empty if they have no name for it. For tests.
std::string spokenName(wxWindow& control);

/// Makes a combo box one that takes no typing: no caret shows in it, and Tab stops once, not at its arrow as well.
void showAsClosed(wxWindow& comboBox);

/// To be called after the rules have checked something: that does not lead the focus there when the window gets it
/// next.
void keepFirstFocus(wxWindow& surface);

/// Makes a group: a bold heading, and room below it for what belongs to it.
wxStaticBox* makeGroup(wxWindow& parent, const wxString& title);

/// Shows the button as the one that Return presses, where the toolkit does not do so by itself.
void showAsDefault(wxWindow& button);

/// Where the buttons that end a dialog stand on this system.
ButtonCustom customOfButtons();

/// Tells readers of the screen that the toolkit's own drawing in this window is a link.
void describeLink(wxWindow& link, const std::string& address);

/// Lets Tab find its way into a window that was hidden so far. It has a brother or sister.
void joinTabOrder(wxWindow& window);

/// Lets a window's scroll bars show as long as there is something to scroll, not only while the mouse is near.
void keepScrollBarsInSight(wxWindow& window);

/// True while the list of a combo box hangs open, which Return and Escape then belong to.
bool isListOpen(wxWindow& comboBox);

/// True for the key that is Break while Control is held.
bool isBreakKey(const wxKeyEvent& event);

/// True while the toolkit handles a key. Its lists take Return for a double click.
bool handlesKey();

/// Left and top of a window in its normal state; nothing where the window system does not tell.
std::optional<Point> normalPosition(const wxTopLevelWindow& window);

/// Moves left and top of a window, which may be still to be shown.
void moveWindow(wxTopLevelWindow& window, const Point& leftTop);

/// True if a window of another instance of the program shows with its left top there, as far as the window system
/// tells.
bool otherInstanceAt(const Point& leftTop);

/// Adds a separator and a command to the window's system menu. On Linux that menu is the window manager's.
void appendToSystemMenu(wxTopLevelWindow& window, const std::string& label, const std::function<void()>& action);

/// Lets the window system treat a dialog as a program's main window.
void makeMainWindow(wxTopLevelWindow& window);

/// Gives the program's picture to every window that has none of its own, such as a message box.
void useAsDefaultIcon(const wxBitmap& picture);

/// The size of a tab control whose pages are to have this size, wide enough for all of its tabs.
wxSize sizeWithTabs(wxNotebook& tabs, const wxSize& page);

/// Where a page stands in a tab control of the size that it has now.
wxRect pageRect(const wxNotebook& tabs);

/// Closes a message box that shows, as its user would by its close box. Only a system that tells programs to end needs
/// it.
void dismiss(wxMessageDialog& box);

/// Inverts the colours of what has been painted in the rectangle.
void invertColours(wxDC& dc, const wxRect& rect);

}  // namespace tarnwick::ui
