#include "resources/DialogLayout.h"

namespace tarnwick::layout {

namespace {

DialogItem item(ItemKind kind, int control = 0, const std::string& text = {}) {
  DialogItem made;
  made.kind = kind;
  made.control = control;
  made.text = text;
  return made;
}

DialogItem container(ItemKind kind, std::vector<DialogItem> children) {
  auto made = item(kind);
  made.children = std::move(children);
  return made;
}

}  // namespace

DialogItem column(std::vector<DialogItem> children) {
  return container(ItemKind::Column, std::move(children));
}

DialogItem row(std::vector<DialogItem> children) {
  return container(ItemKind::Row, std::move(children));
}

DialogItem group(int control, const std::string& title, std::vector<DialogItem> children) {
  auto made = item(ItemKind::Group, control, title);
  made.children = std::move(children);
  return made;
}

DialogItem icon() {
  return item(ItemKind::Icon);
}

DialogItem heading(const std::string& text) {
  return item(ItemKind::Heading, 0, text);
}

DialogItem label(const std::string& text, int control) {
  return item(ItemKind::Label, control, text);
}

DialogItem link(int control, const std::string& address) {
  return item(ItemKind::Link, control, address);
}

DialogItem statusLine(int control) {
  return item(ItemKind::StatusLine, control);
}

DialogItem edit(int control, int characters) {
  return item(ItemKind::Edit, control).atLeast(characters);
}

DialogItem button(int control, const std::string& text) {
  return item(ItemKind::Button, control, text);
}

DialogItem checkBox(int control, const std::string& text) {
  return item(ItemKind::CheckBox, control, text);
}

DialogItem radioButton(int control, const std::string& text) {
  return item(ItemKind::RadioButton, control, text);
}

DialogItem comboBox(int control, std::vector<std::string> entries) {
  auto made = item(ItemKind::ComboBox, control);
  made.entries = std::move(entries);
  return made;
}

DialogItem listBox(int control, int characters) {
  return item(ItemKind::ListBox, control).atLeast(characters);
}

DialogItem tabs(int control) {
  return item(ItemKind::Tabs, control);
}

DialogItem slot(int control) {
  return item(ItemKind::Slot, control);
}

DialogItem layers(std::vector<DialogItem> children) {
  return container(ItemKind::Layers, std::move(children));
}

DialogItem space() {
  auto made = item(ItemKind::Space);
  made.stretch = true;
  return made;
}

DialogItem emptyButtonRow() {
  return item(ItemKind::EmptyButtonRow);
}

}  // namespace tarnwick::layout
